<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>PlotSeries</name>
    <message>
        <source>Not described by the loaded definitions, or not a number</source>
        <translation>已加载的定义未描述，或不是数字</translation>
    </message>
    <message>
        <source>Confidential, not shown</source>
        <translation>机密，不显示</translation>
    </message>
    <message>
        <source>Not received yet</source>
        <translation>尚未收到</translation>
    </message>
    <message>
        <source>Absent in the last message</source>
        <translation>最后一条消息中不存在</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>已收到</translation>
    </message>
    <message>
        <source>No finite number</source>
        <translation>不是有限数</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>corvane::BytesPanel</name>
    <message>
        <source>Bytes of the message</source>
        <translation>消息的字节</translation>
    </message>
    <message>
        <source>Arrow keys move, with Shift they select; Ctrl+C copies as hexadecimal; Enter or a double click goes to the field of a byte</source>
        <translation>方向键移动，按住 Shift 可选择；Ctrl+C 以十六进制复制；按 Enter 或双击可转到字节所属的字段</translation>
    </message>
    <message>
        <source>Choose a message or a field in the tree to see its bytes.</source>
        <translation>在树中选择消息或字段以查看其字节。</translation>
    </message>
    <message>
        <source>%1: no message of this type has come yet.</source>
        <translation>%1：尚未收到此类型的消息。</translation>
    </message>
    <message>
        <source>%1: this message did not come as bytes.</source>
        <translation>%1：此消息不是以字节形式收到的。</translation>
    </message>
    <message>
        <source>%1: %2 bytes.</source>
        <translation>%1：%2 字节。</translation>
    </message>
    <message>
        <source>Masked (··): all that may be confidential.</source>
        <translation>已遮盖 (··)：所有可能机密的内容。</translation>
    </message>
    <message>
        <source>%1: offset %2, length %3.</source>
        <translation>%1：位置 %2，长度 %3。</translation>
    </message>
    <message>
        <source>%1 is computed and has no bytes of its own.</source>
        <translation>%1 由计算得出，没有自己的字节。</translation>
    </message>
    <message>
        <source>Where fields lie in the bytes is not known in this format.</source>
        <translation>此格式中不知道字段在字节中的位置。</translation>
    </message>
    <message>
        <source>%1 has no bytes in this message.</source>
        <translation>%1 在此消息中没有字节。</translation>
    </message>
    <message>
        <source>Offset %1 (0x%2)</source>
        <translation>位置 %1 (0x%2)</translation>
    </message>
    <message>
        <source>, %1 bytes</source>
        <translation>，%1 字节</translation>
    </message>
    <message>
        <source>, in %1</source>
        <translation>，位于 %1</translation>
    </message>
</context>
<context>
    <name>corvane::ConfidentialSwitch</name>
    <message>
        <source>Show &amp;Confidential Fields</source>
        <translation>显示机密字段(&amp;C)</translation>
    </message>
    <message>
        <source>Show the content of fields that are marked as confidential</source>
        <translation>显示标记为机密的字段的内容</translation>
    </message>
    <message>
        <source>Confidential fields become readable in all views, and in what is exported or copied from now on, until this window is closed.</source>
        <translation>机密字段将在所有视图中可读，从现在起导出或复制的内容中也可读，直到此窗口关闭。</translation>
    </message>
    <message>
        <source>&amp;Show Them</source>
        <translation>显示(&amp;S)</translation>
    </message>
    <message>
        <source>Keep Them Hidden</source>
        <translation>保持隐藏</translation>
    </message>
</context>
<context>
    <name>corvane::CrashTrace</name>
    <message>
        <source>The program has crashed before. What it did last is written in &quot;%1&quot;.</source>
        <translation>程序之前崩溃过。它最后的操作写在“%1”中。</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>打开文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>以后</translation>
    </message>
</context>
<context>
    <name>corvane::EventLogPanel</name>
    <message>
        <source>Show only events that contain…</source>
        <translation>仅显示包含以下内容的事件…</translation>
    </message>
    <message>
        <source>Filter of the event log</source>
        <translation>事件日志的筛选器</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>到末尾</translation>
    </message>
    <message>
        <source>Scroll to the latest event and follow the log again</source>
        <translation>滚动到最新事件并重新跟随日志</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>事件日志</translation>
    </message>
    <message>
        <source>No events: nothing was damaged, lost or unknown</source>
        <translation>没有事件：没有损坏、丢失或未知的内容</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>%1 个条目</translation>
    </message>
    <message>
        <source>Entries: %1 of %2</source>
        <translation>%2 个条目中的 %1 个</translation>
    </message>
    <message>
        <source>, not following</source>
        <translation>，未跟随</translation>
    </message>
</context>
<context>
    <name>corvane::ExportBar</name>
    <message>
        <source>Progress of the export</source>
        <translation>导出进度</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>corvane::ExportController</name>
    <message>
        <source>CSV (*.csv);;All files (*)</source>
        <translation>CSV (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>&amp;Export Messages...</source>
        <translation>导出消息(&amp;E)…</translation>
    </message>
    <message>
        <source>Write messages or some of their fields as CSV or JSON lines</source>
        <translation>将消息或其部分字段写为 CSV 或 JSON 行</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Export &amp;Statistics...</source>
        <translation>导出统计(&amp;S)…</translation>
    </message>
    <message>
        <source>Write the counts of all message types as CSV</source>
        <translation>将所有消息类型的计数写为 CSV</translation>
    </message>
    <message>
        <source>Export Event &amp;Log...</source>
        <translation>导出事件日志(&amp;L)…</translation>
    </message>
    <message>
        <source>Write the event log as CSV</source>
        <translation>将事件日志写为 CSV</translation>
    </message>
    <message>
        <source>All of &quot;%1&quot; will be exported, from its start.</source>
        <translation>将从头导出“%1”的全部内容。</translation>
    </message>
    <message>
        <source>What %1 sends will be exported from now on, until you stop it.</source>
        <translation>从现在起导出 %1 发送的内容，直到您停止。</translation>
    </message>
    <message>
        <source>There is nothing to export: no source is open.</source>
        <translation>没有可导出的内容：未打开数据源。</translation>
    </message>
    <message>
        <source>Export Statistics</source>
        <translation>导出统计</translation>
    </message>
    <message>
        <source>Export Event Log</source>
        <translation>导出事件日志</translation>
    </message>
    <message>
        <source>Exporting to &quot;%1&quot;: %2 messages</source>
        <translation>正在导出到“%1”：%2 条消息</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>%1 messages exported to &quot;%2&quot;.</source>
        <translation>已将 %1 条消息导出到“%2”。</translation>
    </message>
    <message>
        <source>The export ended after %1 messages: %2.</source>
        <translation>导出在 %1 条消息后结束：%2。</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;.</source>
        <translation>已导出到“%1”。</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
</context>
<context>
    <name>corvane::ExportDialog</name>
    <message>
        <source>&amp;Names in place of numbers, where values have names</source>
        <translation>值有名称时用名称代替数字(&amp;N)</translation>
    </message>
    <message>
        <source>Export Messages</source>
        <translation>导出消息</translation>
    </message>
    <message>
        <source>Messages and fields</source>
        <translation>消息和字段</translation>
    </message>
    <message>
        <source>Message or field</source>
        <translation>消息或字段</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>已收到</translation>
    </message>
    <message>
        <source>CSV: a table</source>
        <translation>CSV：表格</translation>
    </message>
    <message>
        <source>JSON lines: an object for each message</source>
        <translation>JSON 行：每条消息一个对象</translation>
    </message>
    <message>
        <source>Find messages and fields</source>
        <translation>查找消息和字段</translation>
    </message>
    <message>
        <source>F&amp;orm:</source>
        <translation>格式(&amp;O)：</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>文件(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>导出(&amp;E)</translation>
    </message>
    <message>
        <source>Choose &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>C&amp;hoose None</source>
        <translation>全不选(&amp;U)</translation>
    </message>
    <message>
        <source>Of what the list shows</source>
        <translation>列表中显示的项目</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>选择(&amp;C)…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>CSV (*.csv);;JSON lines (*.jsonl);;All files (*)</source>
        <translation>CSV (*.csv);;JSON 行 (*.jsonl);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Choose messages or fields to export.</source>
        <translation>请选择要导出的消息或字段。</translation>
    </message>
    <message>
        <source>Choose the file to write.</source>
        <translation>请选择要写入的文件。</translation>
    </message>
    <message>
        <source>The file exists and will be replaced.</source>
        <translation>文件已存在，将被替换。</translation>
    </message>
</context>
<context>
    <name>corvane::ExportJob</name>
    <message>
        <source>cannot write &quot;%1&quot;: it is the source</source>
        <translation>无法写入“%1”：它就是数据源</translation>
    </message>
</context>
<context>
    <name>corvane::ExportWriter</name>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>cannot write to standard output: %1</source>
        <translation>无法写入标准输出：%1</translation>
    </message>
</context>
<context>
    <name>corvane::FileList</name>
    <message>
        <source>Add…</source>
        <translation>添加…</translation>
    </message>
    <message>
        <source>Add to: %1</source>
        <translation>添加到：%1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove from: %1</source>
        <translation>从以下移除：%1</translation>
    </message>
</context>
<context>
    <name>corvane::FindBar</name>
    <message>
        <source>Find a name, a value or a path</source>
        <translation>查找名称、值或路径</translation>
    </message>
    <message>
        <source>Find in the tree</source>
        <translation>在树中查找</translation>
    </message>
    <message>
        <source>Looks in names, values and, with a dot or a bracket, in paths (&quot;position.lat&quot;, &quot;volt[2]&quot;); Escape closes</source>
        <translation>在名称和值中查找；含点或方括号时也在路径中查找（“position.lat”、“volt[2]”）；按 Esc 关闭</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一个</translation>
    </message>
    <message>
        <source>Go to the previous one (Shift+F3, Shift+Enter)</source>
        <translation>转到上一个 (Shift+F3, Shift+Enter)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一个</translation>
    </message>
    <message>
        <source>Go to the next one (F3, Enter)</source>
        <translation>转到下一个 (F3, Enter)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close and collapse what was expanded (Escape)</source>
        <translation>关闭并折叠展开过的内容 (Esc)</translation>
    </message>
    <message>
        <source>from the end again</source>
        <translation>从末尾重新开始</translation>
    </message>
    <message>
        <source>from the top again</source>
        <translation>从开头重新开始</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>正在查找…</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>第 %1 个，共 %2 个</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>找到 %1 个</translation>
    </message>
    <message>
        <source> so far</source>
        <translation>（目前）</translation>
    </message>
</context>
<context>
    <name>corvane::FormPanel</name>
    <message>
        <source>Fields of the chosen message type</source>
        <translation>所选消息类型的字段</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
</context>
<context>
    <name>corvane::HelpPanel</name>
    <message>
        <source>Open a source</source>
        <translation>打开数据源</translation>
    </message>
    <message>
        <source>A recording, a network address, a serial port or a program, together with the files that describe its messages. Files can be dropped onto the window.</source>
        <translation>录制、网络地址、串口或程序，以及描述其消息的文件。可以将文件拖放到窗口上。</translation>
    </message>
    <message>
        <source>Look at messages</source>
        <translation>查看消息</translation>
    </message>
    <message>
        <source>The tree in the middle shows the last message of each type. A row that is chosen there, or in the list of types, fills the form. Choose what the tree shows in the menu Tree.</source>
        <translation>中间的树显示每种类型的最后一条消息。在树或类型列表中选择的行会填入表单。在“树”菜单中选择树显示的内容。</translation>
    </message>
    <message>
        <source>Watch some fields</source>
        <translation>监视若干字段</translation>
    </message>
    <message>
        <source>Watch and Plot take paths of fields, FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>“监视”和“曲线图”使用字段的路径 FORMAT.MESSAGE.FIELD；* 代表任意文本。</translation>
    </message>
    <message>
        <source>See what is lost</source>
        <translation>查看丢失的内容</translation>
    </message>
    <message>
        <source>Statistics, senders and event log tell of rates, gaps, losses and damage of every message, shown or not, also while the views are paused.</source>
        <translation>统计、发送方和事件日志说明每条消息的速率、缺口、丢失和损坏，无论是否显示，视图暂停时也一样。</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>保存下来</translation>
    </message>
    <message>
        <source>Record writes the bytes of the source as they come. Export writes messages or some of their fields as text for other programs.</source>
        <translation>“录制”将数据源的字节原样写入。“导出”将消息或其部分字段写为文本，供其他程序使用。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Corvane Inspector %1
Framework %1
Qt %2
Protocol Buffers %3</source>
        <translation>Corvane 检查器 %1
框架 %1
Qt %2
Protocol Buffers %3</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Message types</source>
        <translation>消息类型</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Choose another source, or other definitions</source>
        <translation>选择其他数据源或其他定义</translation>
    </message>
    <message>
        <source>&amp;Pause the Views</source>
        <translation>暂停视图(&amp;P)</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Leave the views as they are; everything is counted all the same</source>
        <translation>保持视图不变；所有内容仍会计数</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>监视</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>事件日志</translation>
    </message>
    <message>
        <source>Senders</source>
        <translation>发送方</translation>
    </message>
    <message>
        <source>Plot (not in this build)</source>
        <translation>曲线图（此版本不含）</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>曲线图</translation>
    </message>
    <message>
        <source>No definition describes this message. Load the definitions of its dialect with --definitions FILE.</source>
        <translation>没有定义描述此消息。请用 --definitions FILE 加载其方言的定义。</translation>
    </message>
    <message>
        <source>Waiting for messages from %1.</source>
        <translation>正在等待来自 %1 的消息。</translation>
    </message>
    <message>
        <source>Show or hide the tool bar</source>
        <translation>显示或隐藏工具栏</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Close the window; what it shows is remembered</source>
        <translation>关闭窗口；其显示的内容会被记住</translation>
    </message>
    <message>
        <source>Show or hide the bar that plays recordings</source>
        <translation>显示或隐藏播放录制的工具栏</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>Show or hide the panel &quot;%1&quot;</source>
        <translation>显示或隐藏面板“%1”</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Uses and Keys</source>
        <translation>用途和按键(&amp;U)</translation>
    </message>
    <message>
        <source>What the window is for, and all keys</source>
        <translation>窗口的用途以及所有按键</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>The versions of the program and of what it uses</source>
        <translation>程序及其所用组件的版本</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>%1 has ended.</source>
        <translation>%1 已结束。</translation>
    </message>
    <message>
        <source>No source is open. Choose one with &quot;Open…&quot; in the menu &quot;File&quot;.</source>
        <translation>没有打开的数据源。请用“文件”菜单中的“打开…”选择一个。</translation>
    </message>
    <message>
        <source>%1 No bytes have come.</source>
        <translation>%1 没有收到任何字节。</translation>
    </message>
    <message>
        <source>%1 None of its %2 bytes could be decoded: they are no messages of this format, or in another framing.</source>
        <translation>%1 其 %2 个字节都无法解码：它们不是此格式的消息，或者使用了其他分帧方式。</translation>
    </message>
    <message>
        <source>%1 %2 bytes have come, but no message of the loaded definitions among them.</source>
        <translation>%1 已收到 %2 个字节，但其中没有已加载定义的消息。</translation>
    </message>
</context>
<context>
    <name>corvane::MessageTreePanel</name>
    <message>
        <source>&amp;Tree</source>
        <translation>树(&amp;T)</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Choose what the tree shows</source>
        <translation>选择树显示的内容</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Filter of repeated sub-messages</source>
        <translation>重复子消息的筛选器</translation>
    </message>
    <message>
        <source>&amp;Computed Fields</source>
        <translation>计算字段(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Secondary Fields</source>
        <translation>次要字段(&amp;S)</translation>
    </message>
    <message>
        <source>All &amp;Known Message Types</source>
        <translation>所有已知的消息类型(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>全部展开(&amp;E)</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>全部折叠(&amp;O)</translation>
    </message>
    <message>
        <source>Show only repeated sub-messages with this name of a value</source>
        <translation>仅显示某个值具有此名称的重复子消息</translation>
    </message>
    <message>
        <source>Show or hide this column</source>
        <translation>显示或隐藏此列</translation>
    </message>
    <message>
        <source>Current Ro&amp;w</source>
        <translation>当前行(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>查找(&amp;F)…</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a row by name, value or path</source>
        <translation>按名称、值或路径查找行</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>查找下一个(&amp;N)</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>Go to the next row that was found</source>
        <translation>转到找到的下一行</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>查找上一个(&amp;P)</translation>
    </message>
    <message>
        <source>Shift+F3</source>
        <translation>Shift+F3</translation>
    </message>
    <message>
        <source>Go to the row that was found before</source>
        <translation>转到之前找到的行</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>单位(&amp;U)</translation>
    </message>
    <message>
        <source>Show units beside numbers</source>
        <translation>在数字旁显示单位</translation>
    </message>
    <message>
        <source>He&amp;xadecimal</source>
        <translation>十六进制(&amp;X)</translation>
    </message>
    <message>
        <source>Show integers in hexadecimal digits as well</source>
        <translation>同时以十六进制显示整数</translation>
    </message>
    <message>
        <source>Show fields that are computed from others</source>
        <translation>显示由其他字段计算得出的字段</translation>
    </message>
    <message>
        <source>Show details that few readers want</source>
        <translation>显示少数人需要的细节</translation>
    </message>
    <message>
        <source>Show types of which no message has come yet as well</source>
        <translation>同时显示尚未收到消息的类型</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>Expand all rows</source>
        <translation>展开所有行</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>Collapse all rows</source>
        <translation>折叠所有行</translation>
    </message>
    <message>
        <source>Nothing to filter: no message type has repeated sub-messages</source>
        <translation>没有可筛选的内容：没有消息类型含有重复子消息</translation>
    </message>
    <message>
        <source>No definitions are loaded, so nothing can be shown. Open a source together with the definitions of its messages.</source>
        <translation>未加载定义，因此无法显示任何内容。请将数据源与其消息的定义一起打开。</translation>
    </message>
    <message>
        <source>No message has come yet. Each message type gets its row with its first message. The menu &quot;Show&quot; lists all %1 known types, messages or not.</source>
        <translation>尚未收到消息。每种消息类型在收到第一条消息时获得自己的行。“显示”菜单可列出全部 %1 种已知类型，无论有无消息。</translation>
    </message>
    <message>
        <source>Choose a row to read about it. A right click offers more.</source>
        <translation>选择一行以阅读其说明。右键单击可执行更多操作。</translation>
    </message>
</context>
<context>
    <name>corvane::MessageTypeModel</name>
    <message>
        <source>No definition describes this message.</source>
        <translation>没有定义描述此消息。</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>数量</translation>
    </message>
</context>
<context>
    <name>corvane::NoticeArea</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>corvane::OpenPanel</name>
    <message>
        <source>File or recording</source>
        <translation>文件或录制</translation>
    </message>
    <message>
        <source>Network: connect (TCP)</source>
        <translation>网络：连接 (TCP)</translation>
    </message>
    <message>
        <source>Network: wait for a connection (TCP)</source>
        <translation>网络：等待连接 (TCP)</translation>
    </message>
    <message>
        <source>Network: datagrams (UDP)</source>
        <translation>网络：数据报 (UDP)</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>串口</translation>
    </message>
    <message>
        <source>Output of a program</source>
        <translation>程序的输出</translation>
    </message>
    <message>
        <source>Open a Source</source>
        <translation>打开数据源</translation>
    </message>
    <message>
        <source>&amp;Recent sources</source>
        <translation>最近的数据源(&amp;R)</translation>
    </message>
    <message>
        <source>Recent sources</source>
        <translation>最近的数据源</translation>
    </message>
    <message>
        <source>This &amp;machine&apos;s own feed</source>
        <translation>本机自身的数据(&amp;M)</translation>
    </message>
    <message>
        <source>Load, memory, network, disks and processes of this machine, live</source>
        <translation>本机的负载、内存、网络、磁盘和进程，实时</translation>
    </message>
    <message>
        <source>Kind of source</source>
        <translation>数据源的种类</translation>
    </message>
    <message>
        <source>Address of the source</source>
        <translation>数据源的地址</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>定义</translation>
    </message>
    <message>
        <source>Definitions (*.xml *.proto *.desc *.pb);;All files (*)</source>
        <translation>定义 (*.xml *.proto *.desc *.pb);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>叠加文件</translation>
    </message>
    <message>
        <source>Overlays (*.json);;All files (*)</source>
        <translation>叠加文件 (*.json);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Framing</source>
        <translation>分帧</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Root message type</source>
        <translation>根消息类型</translation>
    </message>
    <message>
        <source>Protocol Buffers only: package.Type</source>
        <translation>仅用于 Protocol Buffers：package.Type</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>数据源(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>地址(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Definitions</source>
        <translation>定义(&amp;D)</translation>
    </message>
    <message>
        <source>Overla&amp;ys</source>
        <translation>叠加文件(&amp;Y)</translation>
    </message>
    <message>
        <source>Frami&amp;ng</source>
        <translation>分帧(&amp;N)</translation>
    </message>
    <message>
        <source>Root ty&amp;pe</source>
        <translation>根类型(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>浏览…</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>Choose the port</source>
        <translation>选择端口</translation>
    </message>
    <message>
        <source>This machine has no serial port</source>
        <translation>本机没有串口</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Files that describe the messages: MAVLink dialects, .proto files or descriptor sets</source>
        <translation>描述消息的文件：MAVLink 方言、.proto 文件或描述符集</translation>
    </message>
    <message>
        <source>Files that add roles, units or computed fields to the definitions</source>
        <translation>为定义添加角色、单位或计算字段的文件</translation>
    </message>
    <message>
        <source>Nothing yet: what you open is listed here.</source>
        <translation>暂无：您打开的内容会列在这里。</translation>
    </message>
    <message>
        <source>Name the source: %1.</source>
        <translation>请指定数据源：%1。</translation>
    </message>
    <message>
        <source>This starts a program on this machine: %1
Press Open again to start it.</source>
        <translation>这将在本机启动程序：%1
再次按“打开”以启动它。</translation>
    </message>
    <message>
        <source>The messages of %1 cannot be read without their definitions. Add the files that describe them: for MAVLink a dialect (.xml), such as common.xml, with the files that it includes beside it; for Protocol Buffers the .proto files, or a descriptor set (.desc, .pb), and the root type.</source>
        <translation>没有定义就无法读取 %1 的消息。请添加描述消息的文件：MAVLink 使用方言 (.xml)，例如 common.xml，其包含的文件应在旁边；Protocol Buffers 使用 .proto 文件或描述符集 (.desc, .pb)，以及根类型。</translation>
    </message>
</context>
<context>
    <name>corvane::PlotLegend</name>
    <message>
        <source>Plotted series</source>
        <translation>绘制的序列</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>序列</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>At cursor</source>
        <translation>光标处</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>轴</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>The newest value at the cursor&apos;s time</source>
        <translation>光标时刻的最新值</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Draw at the Other Axis</source>
        <translation>在另一轴上绘制</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>移除 %1</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
</context>
<context>
    <name>corvane::PlotPanel</name>
    <message>
        <source>Path of a field to plot</source>
        <translation>要绘制的字段的路径</translation>
    </message>
    <message>
        <source>FORMAT.MESSAGE.FIELD; * stands for any text, FIELD[2] is the third element of a repeated field, FIELD[0..3] are the first four</source>
        <translation>FORMAT.MESSAGE.FIELD；* 代表任意文本，FIELD[2] 是重复字段的第三个元素，FIELD[0..3] 是前四个</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>跟随</translation>
    </message>
    <message>
        <source>Follow the newest value (End)</source>
        <translation>跟随最新值 (End)</translation>
    </message>
    <message>
        <source>In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Show less time (+)</source>
        <translation>显示更短的时间 (+)</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Show more time (-)</source>
        <translation>显示更长的时间 (-)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Show all that was recorded (Home)</source>
        <translation>显示录制的全部内容 (Home)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适应</translation>
    </message>
    <message>
        <source>Fit the value axes to what is shown (V)</source>
        <translation>使数值轴适应显示的内容 (V)</translation>
    </message>
    <message>
        <source>Axis per Unit</source>
        <translation>每个单位一个轴</translation>
    </message>
    <message>
        <source>Give each unit a value axis of its own</source>
        <translation>为每个单位设置单独的数值轴</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copy the picture (Ctrl+C)</source>
        <translation>复制图片 (Ctrl+C)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save what is shown as PNG, SVG or CSV (Ctrl+S)</source>
        <translation>将显示的内容保存为 PNG、SVG 或 CSV (Ctrl+S)</translation>
    </message>
    <message>
        <source>No numeric field is named &quot;%1&quot;. A path is FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>没有名为“%1”的数值字段。路径为 FORMAT.MESSAGE.FIELD；* 代表任意文本。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names more than %2 fields; name fewer.</source>
        <translation>“%1”指向超过 %2 个字段；请缩小范围。</translation>
    </message>
    <message>
        <source>More than %1 series are not plotted.</source>
        <translation>最多绘制 %1 个序列。</translation>
    </message>
    <message>
        <source>The picture is in the clipboard.</source>
        <translation>图片已在剪贴板中。</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>保存曲线图</translation>
    </message>
    <message>
        <source>Picture (*.png);;Drawing (*.svg);;Shown values (*.csv)</source>
        <translation>图片 (*.png);;绘图 (*.svg);;显示的值 (*.csv)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>已写入：%1</translation>
    </message>
</context>
<context>
    <name>corvane::PlotView</name>
    <message>
        <source>Plot</source>
        <translation>曲线图</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Nothing is plotted yet. Type the path of a numeric field above, such as FORMAT.MESSAGE.FIELD, and press Enter; FIELD[2] is the third element of a repeated field.</source>
        <translation>尚未绘制任何内容。请在上方输入数值字段的路径，例如 FORMAT.MESSAGE.FIELD，然后按 Enter；FIELD[2] 是重复字段的第三个元素。</translation>
    </message>
    <message>
        <source>No values yet. They appear as soon as messages with the chosen fields arrive.</source>
        <translation>尚无数值。一旦收到含有所选字段的消息，数值就会出现。</translation>
    </message>
    <message>
        <source>Following the newest value, %1 s</source>
        <translation>跟随最新值，%1 秒</translation>
    </message>
    <message>
        <source>Standing still, %1 s</source>
        <translation>静止，%1 秒</translation>
    </message>
    <message>
        <source>Paused, values are kept; %1 s</source>
        <translation>已暂停，数值保留；%1 秒</translation>
    </message>
    <message>
        <source>; value axes as set by hand</source>
        <translation>；数值轴为手动设置</translation>
    </message>
    <message>
        <source>; cursor at %1</source>
        <translation>；光标位于 %1</translation>
    </message>
    <message>
        <source>The name of the file must end in .png, .svg or .csv.</source>
        <translation>文件名必须以 .png、.svg 或 .csv 结尾。</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
</context>
<context>
    <name>corvane::RecordController</name>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>There is nothing to record: no source is open.</source>
        <translation>没有可录制的内容：未打开数据源。</translation>
    </message>
    <message>
        <source>Record to a File</source>
        <translation>录制到文件</translation>
    </message>
    <message>
        <source>Recorded %1 to &quot;%2&quot;.</source>
        <translation>已将 %1 录制到“%2”。</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>停止录制(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Record…</source>
        <translation>录制(&amp;R)…</translation>
    </message>
    <message>
        <source>End the recording and close its file</source>
        <translation>结束录制并关闭其文件</translation>
    </message>
    <message>
        <source>Write the bytes of the source to a file as they come</source>
        <translation>将数据源的字节原样写入文件</translation>
    </message>
    <message>
        <source>Recording to &quot;%1&quot;: %2</source>
        <translation>正在录制到“%1”：%2</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
</context>
<context>
    <name>corvane::RowActions</name>
    <message>
        <source>&amp;Copy Value</source>
        <translation>复制值(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the value as it is shown</source>
        <translation>按显示的样子复制值</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>复制路径(&amp;P)</translation>
    </message>
    <message>
        <source>Copy the path by which the watch list, the plot and exports know the row</source>
        <translation>复制监视列表、曲线图和导出用来指代该行的路径</translation>
    </message>
    <message>
        <source>Copy &amp;Row</source>
        <translation>复制行(&amp;R)</translation>
    </message>
    <message>
        <source>Copy the texts of all columns, with tabs between</source>
        <translation>复制所有列的文本，以制表符分隔</translation>
    </message>
    <message>
        <source>Copy Message as &amp;JSON</source>
        <translation>将消息复制为 JSON(&amp;J)</translation>
    </message>
    <message>
        <source>Copy the whole message that is shown, as in an export</source>
        <translation>按导出的形式复制显示的整条消息</translation>
    </message>
    <message>
        <source>Add to &amp;Watch</source>
        <translation>添加到监视(&amp;W)</translation>
    </message>
    <message>
        <source>Show the field in the list of watched fields</source>
        <translation>在监视的字段列表中显示该字段</translation>
    </message>
    <message>
        <source>P&amp;lot</source>
        <translation>绘制曲线图(&amp;L)</translation>
    </message>
    <message>
        <source>Draw the field over time</source>
        <translation>绘制字段随时间的变化</translation>
    </message>
    <message>
        <source>Show &amp;Form</source>
        <translation>显示表单(&amp;F)</translation>
    </message>
    <message>
        <source>Show the message type as a form</source>
        <translation>以表单显示消息类型</translation>
    </message>
    <message>
        <source>Show &amp;Bytes</source>
        <translation>显示字节(&amp;B)</translation>
    </message>
    <message>
        <source>Show the bytes of the message, with those of the field marked</source>
        <translation>显示消息的字节，并标出字段的字节</translation>
    </message>
    <message>
        <source>Filter by &amp;This Value</source>
        <translation>按此值筛选(&amp;T)</translation>
    </message>
    <message>
        <source>Show only elements of lists that hold this value</source>
        <translation>仅显示含有此值的列表元素</translation>
    </message>
    <message>
        <source>E&amp;xpand Below</source>
        <translation>展开下级(&amp;X)</translation>
    </message>
    <message>
        <source>Expand the row and all below</source>
        <translation>展开该行及其所有下级</translation>
    </message>
    <message>
        <source>C&amp;ollapse Below</source>
        <translation>折叠下级(&amp;O)</translation>
    </message>
    <message>
        <source>Collapse the row and all below</source>
        <translation>折叠该行及其所有下级</translation>
    </message>
    <message>
        <source>No row is chosen</source>
        <translation>未选择行</translation>
    </message>
    <message>
        <source>This row stands for no field</source>
        <translation>此行不代表任何字段</translation>
    </message>
    <message>
        <source>This row has no value of its own</source>
        <translation>此行没有自己的值</translation>
    </message>
    <message>
        <source>No message of this type has come yet</source>
        <translation>尚未收到此类型的消息</translation>
    </message>
    <message>
        <source>A message type cannot be watched; choose a field</source>
        <translation>无法监视消息类型；请选择字段</translation>
    </message>
    <message>
        <source>Fields inside sub-messages cannot be watched</source>
        <translation>无法监视子消息内的字段</translation>
    </message>
    <message>
        <source>This build has no plot</source>
        <translation>此版本不含曲线图</translation>
    </message>
    <message>
        <source>A message type cannot be plotted; choose a numeric field</source>
        <translation>无法绘制消息类型；请选择数值字段</translation>
    </message>
    <message>
        <source>Only numeric fields can be plotted; this one is of type %1</source>
        <translation>只能绘制数值字段；此字段的类型为 %1</translation>
    </message>
    <message>
        <source>What this field holds is confidential</source>
        <translation>此字段的内容是机密的</translation>
    </message>
    <message>
        <source>Only values inside the elements of a list of sub-messages can be filtered by</source>
        <translation>只能按子消息列表的元素内的值进行筛选</translation>
    </message>
    <message>
        <source>There is no value</source>
        <translation>没有值</translation>
    </message>
    <message>
        <source>There is nothing below this row</source>
        <translation>此行没有下级</translation>
    </message>
</context>
<context>
    <name>corvane::RowDescription</name>
    <message>
        <source>list of %1</source>
        <translation>%1 的列表</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1，单位 %2</translation>
    </message>
    <message>
        <source>Empty in the newest message.</source>
        <translation>在最新消息中为空。</translation>
    </message>
    <message>
        <source>Absent: what it is computed from is not in the newest message.</source>
        <translation>不存在：计算所需的内容不在最新消息中。</translation>
    </message>
    <message>
        <source>Absent: the newest message has another case of &quot;%1&quot;, or none.</source>
        <translation>不存在：最新消息具有“%1”的另一种情况，或没有任何情况。</translation>
    </message>
    <message>
        <source>Absent: the newest message came without this field.</source>
        <translation>不存在：最新消息不含此字段。</translation>
    </message>
    <message>
        <source>Cut: only the beginning of %1 bytes is shown.</source>
        <translation>已截断：仅显示 %1 字节的开头部分。</translation>
    </message>
    <message>
        <source>Cut: only the beginning of %1 characters is shown.</source>
        <translation>已截断：仅显示 %1 个字符的开头部分。</translation>
    </message>
    <message>
        <source>%1 of %2 elements do not pass the filter.</source>
        <translation>%2 个元素中有 %1 个未通过筛选。</translation>
    </message>
    <message>
        <source>No message of this type has come yet.</source>
        <translation>尚未收到此类型的消息。</translation>
    </message>
    <message>
        <source>Hidden: what it holds is confidential.</source>
        <translation>已隐藏：其内容是机密的。</translation>
    </message>
    <message>
        <source>Absent: the newest message came without the sub-message around it.</source>
        <translation>不存在：最新消息不含其所在的子消息。</translation>
    </message>
</context>
<context>
    <name>corvane::SenderChooser</name>
    <message>
        <source>Sender whose messages are shown</source>
        <translation>显示其消息的发送方</translation>
    </message>
    <message>
        <source>Whose messages the views show. Everything is counted, whoever sends it.</source>
        <translation>视图显示谁的消息。无论由谁发送，全部都会计数。</translation>
    </message>
    <message>
        <source>Only sender %1</source>
        <translation>仅发送方 %1</translation>
    </message>
    <message>
        <source>All %1 senders: the last one wins</source>
        <translation>全部 %1 个发送方：以最后的为准</translation>
    </message>
</context>
<context>
    <name>corvane::SendersPanel</name>
    <message>
        <source>Here stands each sender with what it has sent and what was lost, once messages with sequence numbers come.</source>
        <translation>一旦收到带序号的消息，这里会列出每个发送方及其发送和丢失的内容。</translation>
    </message>
    <message>
        <source>Senders</source>
        <translation>发送方</translation>
    </message>
    <message>
        <source>Sender</source>
        <translation>发送方</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>帧</translation>
    </message>
    <message>
        <source>Places with losses</source>
        <translation>丢失之处</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>丢失</translation>
    </message>
    <message>
        <source>CRC errors</source>
        <translation>CRC 错误</translation>
    </message>
    <message>
        <source>Below a sender: the message types that its damaged frames claim to be of</source>
        <translation>发送方之下：其损坏的帧自称所属的消息类型</translation>
    </message>
    <message>
        <source>Messages missing by their sequence numbers</source>
        <translation>按序号缺失的消息</translation>
    </message>
    <message>
        <source>Enter or a double click shows the messages of one sender only</source>
        <translation>按 Enter 或双击可仅显示一个发送方的消息</translation>
    </message>
</context>
<context>
    <name>corvane::Session</name>
    <message>
        <source>An MCAP file brings its own definitions. Leave out --definitions and --root.</source>
        <translation>MCAP 文件自带定义。请去掉 --definitions 和 --root。</translation>
    </message>
    <message>
        <source>Definitions of different formats cannot be mixed.</source>
        <translation>不同格式的定义不能混用。</translation>
    </message>
    <message>
        <source>--root and --import-path go with definitions of Protocol Buffers.</source>
        <translation>--root 和 --import-path 用于 Protocol Buffers 的定义。</translation>
    </message>
    <message>
        <source>--framing %1 does not go with %2; expected one of: %3.</source>
        <translation>--framing %1 不适用于 %2；应为其中之一：%3。</translation>
    </message>
    <message>
        <source>Opened %1.</source>
        <translation>已打开 %1。</translation>
    </message>
    <message>
        <source>%1 has ended.</source>
        <translation>%1 已结束。</translation>
    </message>
    <message>
        <source>Cannot record to &quot;%1&quot;: it is the file that is being read. Choose another name.</source>
        <translation>无法录制到“%1”：它是正在读取的文件。请选择其他名称。</translation>
    </message>
    <message>
        <source>There is not enough memory to read the definitions.</source>
        <translation>内存不足，无法读取定义。</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsFile</name>
    <message>
        <source>it is no settings file</source>
        <translation>不是设置文件</translation>
    </message>
    <message>
        <source>the value of &quot;%1&quot; is none that this program writes</source>
        <translation>“%1”的值不是本程序会写入的值</translation>
    </message>
    <message>
        <source>The settings file could not be used: %1. Everything starts with its defaults; the old file is kept as &quot;%2&quot;.</source>
        <translation>无法使用设置文件：%1。全部以默认值开始；旧文件保留为“%2”。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; could not be used: %2. Everything starts with its defaults, and nothing will be remembered.</source>
        <translation>无法使用设置文件“%1”：%2。全部以默认值开始，并且不会记住任何内容。</translation>
    </message>
    <message>
        <source>it cannot be read (%1)</source>
        <translation>无法读取（%1）</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>太大</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>不是文本</translation>
    </message>
    <message>
        <source>it holds what this program does not write</source>
        <translation>包含本程序不会写入的内容</translation>
    </message>
</context>
<context>
    <name>corvane::StatisticsPanel</name>
    <message>
        <source>Here stand count, rate, intervals and gaps of each message type, once messages come.</source>
        <translation>一旦收到消息，这里会列出每种消息类型的数量、速率、间隔和缺口。</translation>
    </message>
    <message>
        <source>Reception statistics</source>
        <translation>接收统计</translation>
    </message>
</context>
<context>
    <name>corvane::StatusFigures</name>
    <message>
        <source>Bytes that have come and wait to be read. A figure that grows says that more comes than can be shown.</source>
        <translation>已到达并等待读取的字节。数字增长表示到达的内容多于可显示的内容。</translation>
    </message>
    <message>
        <source>The longest time in the last 5 seconds in which the window did not react, because it was busy with messages or drawing</source>
        <translation>最近 5 秒内窗口因忙于处理消息或绘制而没有响应的最长时间</translation>
    </message>
    <message>
        <source>Longest round: %1 ms</source>
        <translation>最长轮次：%1 毫秒</translation>
    </message>
    <message>
        <source>Messages: %1 (%2 per second)</source>
        <translation>消息：%1（每秒 %2）</translation>
    </message>
    <message>
        <source>, CRC errors: %1</source>
        <translation>，CRC 错误：%1</translation>
    </message>
    <message>
        <source>, unknown: %1</source>
        <translation>，未知：%1</translation>
    </message>
    <message>
        <source>, datagrams dropped: %1</source>
        <translation>，丢弃的数据报：%1</translation>
    </message>
    <message>
        <source>Backlog: %1</source>
        <translation>积压：%1</translation>
    </message>
    <message>
        <source>The views stand still. Everything is counted all the same.</source>
        <translation>视图已静止。所有内容仍会计数。</translation>
    </message>
    <message>
        <source>Paused for %1 s, new messages: %2</source>
        <translation>已暂停 %1 秒，新消息：%2</translation>
    </message>
</context>
<context>
    <name>corvane::TransportBar</name>
    <message>
        <source>Playback</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Ctrl+Space</source>
        <translation>Ctrl+Space</translation>
    </message>
    <message>
        <source>Next Message</source>
        <translation>下一条消息</translation>
    </message>
    <message>
        <source>Ctrl+.</source>
        <translation>Ctrl+.</translation>
    </message>
    <message>
        <source>Read on to the next message (Right, %1)</source>
        <translation>读到下一条消息（向右键，%1）</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>How fast the recording is played</source>
        <translation>录制的播放速度</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 x</translation>
    </message>
    <message>
        <source>No waiting</source>
        <translation>不等待</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>The place in the recording</source>
        <translation>录制中的位置</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Indexing</source>
        <translation>索引</translation>
    </message>
    <message>
        <source>How much of the file has been indexed: places behind cannot be reached yet</source>
        <translation>文件中已建立索引的部分：其后的位置还不能到达</translation>
    </message>
    <message>
        <source>Indexing: %p %</source>
        <translation>索引：%p %</translation>
    </message>
    <message>
        <source>Stop Indexing</source>
        <translation>停止建立索引</translation>
    </message>
    <message>
        <source>Places that have not been indexed cannot be reached then</source>
        <translation>届时将无法到达未建立索引的位置</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>%1 (Space, %2)</source>
        <translation>%1（空格，%2）</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1，共 %2</translation>
    </message>
</context>
<context>
    <name>corvane::TreeHistory</name>
    <message>
        <source>&amp;History</source>
        <translation>历史(&amp;H)</translation>
    </message>
    <message>
        <source>A small line of the last 15 seconds of each numeric field</source>
        <translation>每个数值字段最近 15 秒的小曲线</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史</translation>
    </message>
</context>
<context>
    <name>corvane::ViewSettings</name>
    <message>
        <source>10 Times a Second</source>
        <translation>每秒 10 次</translation>
    </message>
    <message>
        <source>4 Times a Second</source>
        <translation>每秒 4 次</translation>
    </message>
    <message>
        <source>Once a Second</source>
        <translation>每秒一次</translation>
    </message>
    <message>
        <source>Every 5 Seconds</source>
        <translation>每 5 秒</translation>
    </message>
    <message>
        <source>Times in &amp;UTC</source>
        <translation>使用 UTC 时间(&amp;U)</translation>
    </message>
    <message>
        <source>Show times in UTC instead of this machine&apos;s time zone</source>
        <translation>以 UTC 而非本机时区显示时间</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Larger text in the views</source>
        <translation>视图中使用更大的文字</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Smaller text in the views</source>
        <translation>视图中使用更小的文字</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>正常大小(&amp;N)</translation>
    </message>
    <message>
        <source>Text of the usual size in the views</source>
        <translation>视图中使用通常大小的文字</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>How often counts and statistics are refreshed</source>
        <translation>计数和统计的刷新频率</translation>
    </message>
    <message>
        <source>&amp;Refresh of Counts</source>
        <translation>计数的刷新(&amp;R)</translation>
    </message>
</context>
<context>
    <name>corvane::WatchPanel</name>
    <message>
        <source>Type the path of a field and press Enter, or pick one and press Watch.</source>
        <translation>输入字段的路径并按 Enter，或选择一个字段并按“监视”。</translation>
    </message>
    <message>
        <source>Path of a field</source>
        <translation>字段的路径</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>消息类型</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>监视</translation>
    </message>
    <message>
        <source>Add the chosen fields</source>
        <translation>添加所选字段</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move the current row up</source>
        <translation>将当前行上移</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Move the current row down</source>
        <translation>将当前行下移</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Stop watching the current row (Delete)</source>
        <translation>停止监视当前行 (Delete)</translation>
    </message>
    <message>
        <source>Watched fields</source>
        <translation>监视的字段</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Stop Watching</source>
        <translation>停止监视</translation>
    </message>
    <message>
        <source>No field is named &quot;%1&quot;. A path is FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>没有名为“%1”的字段。路径为 FORMAT.MESSAGE.FIELD；* 代表任意文本。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names more than %2 fields; name fewer.</source>
        <translation>“%1”指向超过 %2 个字段；请缩小范围。</translation>
    </message>
    <message>
        <source>Not described by the loaded definitions</source>
        <translation>已加载的定义未描述</translation>
    </message>
    <message>
        <source>Not received yet</source>
        <translation>尚未收到</translation>
    </message>
    <message>
        <source>Timed out</source>
        <translation>已超时</translation>
    </message>
    <message>
        <source>Absent in the last message</source>
        <translation>最后一条消息中不存在</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>最新</translation>
    </message>
</context>
<context>
    <name>corvane::Workbench</name>
    <message>
        <source>Corvane Inspector</source>
        <translation>Corvane 检查器</translation>
    </message>
    <message>
        <source>End of %1</source>
        <translation>%1 结束</translation>
    </message>
</context>
</TS>
