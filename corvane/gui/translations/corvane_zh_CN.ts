<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>EventLog</name>
    <message>
        <source>%1 older entries were dropped: the log is full.</source>
        <translation>已删除 %1 个较早的条目：日志已满。</translation>
    </message>
</context>
<context>
    <name>EventLogTableWidget</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>FieldValueLabel</name>
    <message>
        <source>N/A</source>
        <translation>无</translation>
    </message>
    <message>
        <source> [...]</source>
        <translation> [...]</translation>
    </message>
</context>
<context>
    <name>MessageStatisticsWidget</name>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Current rate/interval</source>
        <translation>当前速率/间隔</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>缺口</translation>
    </message>
    <message>
        <source>Message statistics for the messages
in the %1 format.</source>
        <translation>%1 格式中
消息的统计信息。</translation>
    </message>
    <message>
        <source>CRC Errors</source>
        <translation>CRC 错误</translation>
    </message>
</context>
<context>
    <name>MessageTreeWidget</name>
    <message>
        <source>&amp;Type</source>
        <translation>类型(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Raw Value</source>
        <translation>原始值(&amp;R)</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>重复的列</translation>
    </message>
    <message>
        <source>Attempt to add to a MessageTreeWidget a column that is already present: %1. Duplicate column was not added.</source>
        <translation>试图向 MessageTreeWidget 添加已存在的列：%1。未添加重复的列。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Raw value</source>
        <translation>原始值</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Custom 1</source>
        <translation>自定义 1</translation>
    </message>
    <message>
        <source>Custom 2</source>
        <translation>自定义 2</translation>
    </message>
    <message>
        <source>Custom 3</source>
        <translation>自定义 3</translation>
    </message>
    <message>
        <source>Custom 4</source>
        <translation>自定义 4</translation>
    </message>
    <message>
        <source>Custom 5</source>
        <translation>自定义 5</translation>
    </message>
    <message>
        <source>Custom 6</source>
        <translation>自定义 6</translation>
    </message>
    <message>
        <source>Custom 7</source>
        <translation>自定义 7</translation>
    </message>
    <message>
        <source>Custom 8</source>
        <translation>自定义 8</translation>
    </message>
    <message>
        <source>Custom 9</source>
        <translation>自定义 9</translation>
    </message>
    <message>
        <source>Custom 10</source>
        <translation>自定义 10</translation>
    </message>
    <message>
        <source>Column type %1</source>
        <translation>列类型 %1</translation>
    </message>
</context>
<context>
    <name>MessageTreeWidgetItem</name>
    <message>
        <source>No message type set</source>
        <translation>未设置消息类型</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>No message</source>
        <translation>没有消息</translation>
    </message>
    <message>
        <source>Hidden data</source>
        <translation>隐藏的数据</translation>
    </message>
    <message>
        <source>Due to confidentiality, the data in this message has been (partly) hidden.</source>
        <translation>出于保密原因，此消息中的数据已（部分）隐藏。</translation>
    </message>
</context>
<context>
    <name>MessageWidget</name>
    <message>
        <source>No message type set</source>
        <translation>未设置消息类型</translation>
    </message>
</context>
<context>
    <name>PathExpressionComboBox</name>
    <message>
        <source>Null path expression set!</source>
        <translation>设置的路径表达式为空！</translation>
    </message>
    <message>
        <source>Null options source path expression set!</source>
        <translation>设置的选项来源路径表达式为空！</translation>
    </message>
    <message>
        <source>No options</source>
        <translation>没有选项</translation>
    </message>
</context>
<context>
    <name>PathExpressionLabel</name>
    <message>
        <source>No path expression set!</source>
        <translation>未设置路径表达式！</translation>
    </message>
</context>
<context>
    <name>PathExpressionLineEdit</name>
    <message>
        <source>No path expression set!</source>
        <translation>未设置路径表达式！</translation>
    </message>
</context>
<context>
    <name>PathExpressionListWidget</name>
    <message>
        <source>Null options source path expression set!</source>
        <translation>设置的选项来源路径表达式为空！</translation>
    </message>
    <message>
        <source>No options</source>
        <translation>没有选项</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 毫秒</translation>
    </message>
    <message>
        <source>%1 (unknown)</source>
        <translation>%1（未知）</translation>
    </message>
    <message>
        <source>Number of times the %1
message has been received.</source>
        <translation>收到 %1 消息的次数。</translation>
    </message>
    <message>
        <source>Most recent regular rate/interval at which the %1
message has been received.</source>
        <translation>收到 %1 消息的
最近的规律速率/间隔。</translation>
    </message>
    <message>
        <source>Detected gaps in regular data segments with valid time, if any.</source>
        <translation>在时间有效的规律片段中检测到的缺口（如有）。</translation>
    </message>
    <message>
        <source>Rates/Intervals</source>
        <translation>速率/间隔</translation>
    </message>
    <message>
        <source>The rates/intervals in which this message has been received,
together with the corresponding count.</source>
        <translation>收到此消息的速率/间隔
及相应的次数。</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>无</translation>
    </message>
    <message>
        <source>%1 (%2 epochs)</source>
        <translation>%1（%2 个历元）</translation>
    </message>
    <message>
        <source>No time</source>
        <translation>无时间</translation>
    </message>
    <message>
        <source>The number of times this message 
has been received without a valid time tag.</source>
        <translation>收到的此消息中
没有有效时间标记的次数。</translation>
    </message>
    <message>
        <source>Unknown interval/rate</source>
        <translation>间隔/速率未知</translation>
    </message>
    <message>
        <source>Number of times this message has been received 
with a valid time tag but for which the interval 
could not be determined: 
there was no previous message with valid time, 
and the following messages did not 
come in at a regular rate.</source>
        <translation>收到的此消息中
有有效时间标记但无法确定间隔的次数：
之前没有时间有效的消息，
且之后的消息未以规律的速率到达。</translation>
    </message>
    <message>
        <source>Number of times the message was received at %1.</source>
        <translation>以 %1 收到此消息的次数。</translation>
    </message>
    <message>
        <source>Number of times the messages was received
with the same time stamp as previous.</source>
        <translation>收到的此消息中
时间戳与前一条相同的次数。</translation>
    </message>
    <message>
        <source>Gaps, with time and duration</source>
        <translation>缺口及其时间和持续时间</translation>
    </message>
    <message>
        <source>Gaps (incomplete list)</source>
        <translation>缺口（列表不完整）</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>缺口</translation>
    </message>
    <message>
        <source>Gaps start</source>
        <translation>缺口开始</translation>
    </message>
    <message>
        <source>Missing epochs</source>
        <translation>缺失的历元</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>持续时间</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>列 %1</translation>
    </message>
    <message>
        <source>No field set</source>
        <translation>未设置字段</translation>
    </message>
    <message>
        <source>No values for optional field</source>
        <translation>可选字段没有值</translation>
    </message>
    <message>
        <source>submessage</source>
        <translation>子消息</translation>
    </message>
    <message>
        <source>repeated value</source>
        <translation>重复值</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 个%2</translation>
    </message>
    <message>
        <source>%1 %2s</source>
        <translation>%1 个%2</translation>
    </message>
    <message>
        <source> [%1]</source>
        <translation> [%1]</translation>
    </message>
    <message>
        <source>Optional submessage not present</source>
        <translation>可选子消息不存在</translation>
    </message>
    <message>
        <source>No value for optional field</source>
        <translation>可选字段没有值</translation>
    </message>
    <message>
        <source>string</source>
        <translation>字符串</translation>
    </message>
</context>
<context>
    <name>corvane::BoundSocket</name>
    <message>
        <source>Cannot receive at %1: </source>
        <translation>无法在 %1 接收：</translation>
    </message>
    <message>
        <source>another program already uses this port. End it, or choose another port.</source>
        <translation>另一个程序已在使用此端口。请结束该程序或选择其他端口。</translation>
    </message>
    <message>
        <source>no permission. Choose a port above 1023.</source>
        <translation>没有权限。请选择 1023 以上的端口。</translation>
    </message>
    <message>
        <source>this machine does not have this address. Leave it empty to mean all.</source>
        <translation>本机没有此地址。留空表示所有地址。</translation>
    </message>
</context>
<context>
    <name>corvane::EventGatherer</name>
    <message>
        <source>Unknown messages of various ids</source>
        <translation>多个标识的未知消息</translation>
    </message>
    <message>
        <source>CRC errors of various messages</source>
        <translation>多种消息的 CRC 错误</translation>
    </message>
    <message>
        <source>Messages of various senders lost</source>
        <translation>多个发送方的消息丢失</translation>
    </message>
    <message>
        <source>Various events</source>
        <translation>多种事件</translation>
    </message>
    <message>
        <source>%1: %2 more in the same second</source>
        <translation>%1：同一秒内还有 %2 个</translation>
    </message>
</context>
<context>
    <name>corvane::FdSource</name>
    <message>
        <source>Cannot read %1: it is a folder. Name a file.</source>
        <translation>无法读取 %1：它是文件夹。请指定文件。</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>无法读取 %1:%2。</translation>
    </message>
    <message>
        <source>Reading %1 failed: %2.</source>
        <translation>读取 %1 失败：%2。</translation>
    </message>
    <message>
        <source>%1 has become shorter, so it is another recording now. Open it again.</source>
        <translation>%1 变短了，因此它现在是另一份录制。请重新打开。</translation>
    </message>
</context>
<context>
    <name>corvane::FileIndex</name>
    <message>
        <source>Cannot index %1: %2.</source>
        <translation>无法为 %1 建立索引：%2。</translation>
    </message>
</context>
<context>
    <name>corvane::FileSource</name>
    <message>
        <source>Cannot open &quot;%1&quot;: </source>
        <translation>无法打开“%1”：</translation>
    </message>
    <message>
        <source>there is no such file. Check the path.</source>
        <translation>没有这个文件。请检查路径。</translation>
    </message>
    <message>
        <source>it is a folder. Name a file in it.</source>
        <translation>它是文件夹。请指定其中的文件。</translation>
    </message>
    <message>
        <source>no permission to read it. Change its permissions or its owner.</source>
        <translation>没有读取权限。请更改其权限或所有者。</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkDecoder</name>
    <message>
        <source>checksum %1 received, %2 computed</source>
        <translation>收到的校验和为 %1，计算结果为 %2</translation>
    </message>
    <message>
        <source>; it fits the payload extended with zeros to %1 bytes, so a relay has cut the zeros after the checksum was made</source>
        <translation>；它与用零补足到 %1 字节的载荷相符，因此中继在计算校验和之后截去了零</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkDefinitionReader</name>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>文件“%1”不存在。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; includes itself, directly or through others.</source>
        <translation>“%1”直接或通过其他文件包含了自身。</translation>
    </message>
    <message>
        <source>More than %1 files are included.</source>
        <translation>包含的文件超过 %1 个。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>“%1”不是文件。</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>无法读取“%1”：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a definition file can be (32 MiB).</source>
        <translation>“%1”超过了定义文件的大小上限（32 MiB）。</translation>
    </message>
    <message>
        <source>The included files are larger than 64 MiB in all.</source>
        <translation>所包含的文件总共超过 64 MiB。</translation>
    </message>
    <message>
        <source>A MAVLink definition file begins with &lt;mavlink&gt;, not with &lt;%1&gt;.</source>
        <translation>MAVLink 定义文件应以 &lt;mavlink&gt; 开头，而不是 &lt;%1&gt;。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be included: name a file in this file&apos;s folder.</source>
        <translation>无法包含“%1”：请指定此文件所在文件夹中的文件。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for an enum: use letters, digits and underscores.</source>
        <translation>“%1”不能作为枚举名称：请使用字母、数字和下划线。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; of %2 needs a name of letters, digits and underscores and a whole number as its value, not &quot;%3&quot;.</source>
        <translation>%2 的条目“%1”需要由字母、数字和下划线组成的名称以及整数值，而不是“%3”。</translation>
    </message>
    <message>
        <source>There are more than %1 enum entries.</source>
        <translation>枚举条目超过 %1 个。</translation>
    </message>
    <message>
        <source>%1 = %2 of %3 is passed over: the name or the value is taken.</source>
        <translation>跳过 %3 的 %1 = %2：名称或值已被占用。</translation>
    </message>
    <message>
        <source>The message &quot;%1&quot; needs a name of letters, digits and underscores and an id from 0 to 16777215, not &quot;%2&quot;.</source>
        <translation>消息“%1”需要由字母、数字和下划线组成的名称以及 0 到 16777215 的标识，而不是“%2”。</translation>
    </message>
    <message>
        <source>There are more than %1 messages, or more than %2 fields and bits of fields.</source>
        <translation>消息超过 %1 个，或者字段和字段的位超过 %2 个。</translation>
    </message>
    <message>
        <source>The message %1 with id %2 is there already: %3 with id %4, line %5 of %6.</source>
        <translation>标识为 %2 的消息 %1 已存在：%3，标识 %4，位于 %6 第 %5 行。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a field: use letters, digits and underscores.</source>
        <translation>“%1”不能作为字段名称：请使用字母、数字和下划线。</translation>
    </message>
    <message>
        <source>%1 has two fields named %2.</source>
        <translation>%1 有两个名为 %2 的字段。</translation>
    </message>
    <message>
        <source>The field %1 has the unknown type &quot;%2&quot;. Known are int8_t to int64_t, uint8_t to uint64_t, float, double and char, each also with a length from 1 to 255 in brackets.</source>
        <translation>字段 %1 的类型“%2”未知。已知类型为 int8_t 至 int64_t、uint8_t 至 uint64_t、float、double 和 char，均可在方括号中附加 1 到 255 的长度。</translation>
    </message>
    <message>
        <source>The fields of %1 take more than the %2 bytes that a frame has room for.</source>
        <translation>%1 的字段超过了一帧可容纳的 %2 字节。</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>元素嵌套过深。</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkFormat</name>
    <message>
        <source>The message %1 with id %2 contradicts %3 with id %4, which is loaded already.</source>
        <translation>标识为 %2 的消息 %1 与已加载的标识为 %4 的 %3 冲突。</translation>
    </message>
</context>
<context>
    <name>corvane::McapDecoder</name>
    <message>
        <source>%1 bytes of channel %2, at offset %3 of the file, are no message of type %4.</source>
        <translation>通道 %2 在文件位置 %3 处的 %1 字节不是类型 %4 的消息。</translation>
    </message>
    <message>
        <source>%1 (at offset %2)</source>
        <translation>%1（位置 %2）</translation>
    </message>
</context>
<context>
    <name>corvane::McapDefinitions</name>
    <message>
        <source>Cannot be read: %1.</source>
        <translation>无法读取：%1。</translation>
    </message>
    <message>
        <source>This is no MCAP file, or one of another version.</source>
        <translation>这不是 MCAP 文件，或者是其他版本。</translation>
    </message>
    <message>
        <source>The file contains no channels.</source>
        <translation>文件不包含通道。</translation>
    </message>
</context>
<context>
    <name>corvane::McapFormat</name>
    <message>
        <source>Only one MCAP file can be loaded.</source>
        <translation>只能加载一个 MCAP 文件。</translation>
    </message>
    <message>
        <source>None of the channels has messages of Protocol Buffers.</source>
        <translation>没有通道含有 Protocol Buffers 消息。</translation>
    </message>
    <message>
        <source>schema %1</source>
        <translation>架构 %1</translation>
    </message>
    <message>
        <source>The schema %1 does not define the message type of that name.</source>
        <translation>架构 %1 未定义该名称的消息类型。</translation>
    </message>
    <message>
        <source>The message type %1 has too many parts to be shown.</source>
        <translation>消息类型 %1 的组成部分过多，无法显示。</translation>
    </message>
    <message>
        <source>channel %1</source>
        <translation>通道 %1</translation>
    </message>
</context>
<context>
    <name>corvane::McapReader</name>
    <message>
        <source>A chunk is compressed with &quot;%1&quot;, which is not known.</source>
        <translation>某个块使用了未知的压缩方式“%1”。</translation>
    </message>
    <message>
        <source>A chunk cannot be decompressed.</source>
        <translation>某个块无法解压。</translation>
    </message>
    <message>
        <source>A chunk holds more than the %1 bytes it tells of.</source>
        <translation>某个块的内容多于其声明的 %1 字节。</translation>
    </message>
    <message>
        <source>A chunk holds less than the %1 bytes it tells of.</source>
        <translation>某个块的内容少于其声明的 %1 字节。</translation>
    </message>
    <message>
        <source>The checksum of a chunk is wrong.</source>
        <translation>某个块的校验和错误。</translation>
    </message>
    <message>
        <source>This is no MCAP file, or one of another version.</source>
        <translation>这不是 MCAP 文件，或者是其他版本。</translation>
    </message>
    <message>
        <source>The mark at the end of the file is wrong.</source>
        <translation>文件末尾的标记错误。</translation>
    </message>
    <message>
        <source>There is no record where one must be.</source>
        <translation>应有记录之处没有记录。</translation>
    </message>
    <message>
        <source>A record of %1 bytes is larger than the %2 that are allowed.</source>
        <translation>%1 字节的记录超过了允许的 %2 字节。</translation>
    </message>
    <message>
        <source>The records of a chunk do not end where the chunk does.</source>
        <translation>块中记录的结束位置与块的结束位置不符。</translation>
    </message>
    <message>
        <source>There is a chunk inside a chunk.</source>
        <translation>块中含有块。</translation>
    </message>
    <message>
        <source>There are bytes behind the end of the file.</source>
        <translation>文件结尾之后还有字节。</translation>
    </message>
    <message>
        <source>The file is cut off here.</source>
        <translation>文件在此处被截断。</translation>
    </message>
    <message>
        <source>A schema is incomplete.</source>
        <translation>某个架构不完整。</translation>
    </message>
    <message>
        <source>Schema %1 is not the one that had this number before.</source>
        <translation>架构 %1 与之前使用此编号的架构不同。</translation>
    </message>
    <message>
        <source>There are more or larger schemas than are allowed.</source>
        <translation>架构的数量或大小超过了允许范围。</translation>
    </message>
    <message>
        <source>A channel is incomplete.</source>
        <translation>某个通道不完整。</translation>
    </message>
    <message>
        <source>Channel %1 is not the one that had this number before.</source>
        <translation>通道 %1 与之前使用此编号的通道不同。</translation>
    </message>
    <message>
        <source>Channel %1 names schema %2, which the file does not contain.</source>
        <translation>通道 %1 引用的架构 %2 不在文件中。</translation>
    </message>
    <message>
        <source>There are more channels than are allowed.</source>
        <translation>通道数量超过了允许范围。</translation>
    </message>
    <message>
        <source>A message is incomplete.</source>
        <translation>某条消息不完整。</translation>
    </message>
    <message>
        <source>A message names channel %1, which the file does not contain.</source>
        <translation>某条消息引用的通道 %1 不在文件中。</translation>
    </message>
    <message>
        <source>A chunk is incomplete.</source>
        <translation>某个块不完整。</translation>
    </message>
    <message>
        <source>A chunk tells of %1 bytes, more than the %2 that are allowed.</source>
        <translation>某个块声明了 %1 字节，超过了允许的 %2 字节。</translation>
    </message>
</context>
<context>
    <name>corvane::ProcessSource</name>
    <message>
        <source>Cannot start &quot;%1&quot;: %2.</source>
        <translation>无法启动“%1”：%2。</translation>
    </message>
    <message>
        <source>Reading from &quot;%1&quot; failed: %2.</source>
        <translation>从“%1”读取失败：%2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ended with exit code %2.</source>
        <translation>“%1”已结束，退出代码为 %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was ended by signal %2.</source>
        <translation>“%1”被信号 %2 终止。</translation>
    </message>
    <message>
        <source>It said last:</source>
        <translation>它最后的输出：</translation>
    </message>
</context>
<context>
    <name>corvane::ProtobufDecoder</name>
    <message>
        <source>no definitions are loaded</source>
        <translation>未加载定义</translation>
    </message>
    <message>
        <source>they should be the length of a message and are none</source>
        <translation>它们应为消息的长度，但并不是</translation>
    </message>
    <message>
        <source>the stream ends inside of a message</source>
        <translation>数据流在消息中间结束</translation>
    </message>
    <message>
        <source>the message would take more than %1 bytes of memory</source>
        <translation>该消息将占用超过 %1 字节的内存</translation>
    </message>
    <message>
        <source>they are no message of type %1</source>
        <translation>它们不是类型 %1 的消息</translation>
    </message>
    <message>
        <source>The message at offset %1 would be %2 bytes long, more than %3; it is passed over. Is the framing right?</source>
        <translation>位置 %1 处的消息将有 %2 字节，超过 %3；已跳过。分帧方式正确吗？</translation>
    </message>
</context>
<context>
    <name>corvane::ProtobufFormat</name>
    <message>
        <source>Definitions are loaded already.</source>
        <translation>定义已加载。</translation>
    </message>
    <message>
        <source>The message type %1 has too many parts to be shown.</source>
        <translation>消息类型 %1 的组成部分过多，无法显示。</translation>
    </message>
    <message>
        <source>Which message type does the stream consist of? Name it with --root, such as one of: %1.</source>
        <translation>数据流由哪种消息类型组成？请用 --root 指定，例如其中之一：%1。</translation>
    </message>
    <message>
        <source>There is no message type %1; expected &quot;package.Type&quot;, such as one of: %2.</source>
        <translation>没有消息类型 %1；应为“package.Type”，例如其中之一：%2。</translation>
    </message>
    <message>
        <source>stream</source>
        <translation>数据流</translation>
    </message>
</context>
<context>
    <name>corvane::Reception</name>
    <message>
        <source>Unknown message: %1</source>
        <translation>未知消息：%1</translation>
    </message>
    <message>
        <source>%1. Load the definitions that describe this id.</source>
        <translation>%1。请加载描述此标识的定义。</translation>
    </message>
    <message>
        <source>CRC error: %1</source>
        <translation>CRC 错误：%1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 bytes from offset %2 belong to no frame.</source>
        <translation>从位置 %2 起的 %1 字节不属于任何帧。</translation>
    </message>
    <message>
        <source>Bytes that belong to no frame</source>
        <translation>不属于任何帧的字节</translation>
    </message>
    <message>
        <source>%1 bytes from offset %2 are lost: %3.</source>
        <translation>从位置 %2 起的 %1 字节丢失：%3。</translation>
    </message>
    <message>
        <source>Bytes lost: %1</source>
        <translation>丢失的字节：%1</translation>
    </message>
    <message>
        <source>Sender %1: %2 messages lost before sequence number %3.</source>
        <translation>发送方 %1：序号 %3 之前丢失 %2 条消息。</translation>
    </message>
    <message>
        <source>Sender %1: messages lost</source>
        <translation>发送方 %1：消息丢失</translation>
    </message>
    <message>
        <source>id %1</source>
        <translation>标识 %1</translation>
    </message>
    <message>
        <source>%1 from sender %2</source>
        <translation>%1，来自发送方 %2</translation>
    </message>
</context>
<context>
    <name>corvane::Reconnector</name>
    <message>
        <source>Connection lost, trying again in %1 s</source>
        <translation>连接已断开，%1 秒后重试</translation>
    </message>
    <message>
        <source>%1 Trying again in %2 s.</source>
        <translation>%1 %2 秒后重试。</translation>
    </message>
</context>
<context>
    <name>corvane::Recorder</name>
    <message>
        <source>there is no such folder. Choose another one.</source>
        <translation>没有这个文件夹。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>it is a folder. Name a file in it.</source>
        <translation>它是文件夹。请指定其中的文件。</translation>
    </message>
    <message>
        <source>no permission to write there. Choose another folder.</source>
        <translation>没有在此写入的权限。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>it is no file. Choose another name.</source>
        <translation>它不是文件。请选择其他名称。</translation>
    </message>
    <message>
        <source>Cannot record to &quot;%1&quot;: %2</source>
        <translation>无法录制到“%1”：%2</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>the disk is slower than the stream</source>
        <translation>磁盘比数据流慢</translation>
    </message>
    <message>
        <source>Recording to &quot;%1&quot; has stopped: %2. The first %3 bytes were kept; watching goes on.</source>
        <translation>到“%1”的录制已停止：%2。已保留前 %3 字节；监视继续进行。</translation>
    </message>
</context>
<context>
    <name>corvane::SerialSource</name>
    <message>
        <source>Reading %1 failed: the device is gone. Plug it in, and open it again.</source>
        <translation>读取 %1 失败：设备已断开。请接上设备并重新打开。</translation>
    </message>
    <message>
        <source>Cannot open %1: </source>
        <translation>无法打开 %1:</translation>
    </message>
    <message>
        <source>there is no such device. Check the name, and whether it is plugged in.</source>
        <translation>没有这个设备。请检查名称以及设备是否已接上。</translation>
    </message>
    <message>
        <source>no permission, or in use by another program. End that program, or become a member of the group that owns the device (often &quot;dialout&quot;).</source>
        <translation>没有权限，或正被其他程序使用。请结束该程序，或加入设备所属的组（通常是“dialout”）。</translation>
    </message>
</context>
<context>
    <name>corvane::SourceAddress</name>
    <message>
        <source> Expected %1.</source>
        <translation> 应为 %1。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no source: %2.</source>
        <translation>“%1”不是数据源：%2。</translation>
    </message>
    <message>
        <source>it is empty; expected a file, or - for standard input</source>
        <translation>它是空的；应为文件，或用 - 表示标准输入</translation>
    </message>
    <message>
        <source>the scheme &quot;%1&quot; is unknown; known are tcp://, tcp-listen://, udp://, serial: and exec:</source>
        <translation>方案“%1”未知；已知的有 tcp://、tcp-listen://、udp://、serial: 和 exec:</translation>
    </message>
    <message>
        <source>&quot;//&quot; is missing after &quot;%1:&quot;</source>
        <translation>“%1：”之后缺少“//”</translation>
    </message>
    <message>
        <source>the port is missing</source>
        <translation>缺少端口</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in brackets is no IPv6 address</source>
        <translation>方括号中的“%1”不是 IPv6 地址</translation>
    </message>
    <message>
        <source>an IPv6 address is written in brackets, such as [::1]</source>
        <translation>IPv6 地址应写在方括号中，例如 [::1]</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a host</source>
        <translation>“%1”不是主机名</translation>
    </message>
    <message>
        <source>the host is missing</source>
        <translation>缺少主机</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no IPv4 address of this machine</source>
        <translation>“%1”不是本机的 IPv4 地址</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no port, which is a number from %2 to %3</source>
        <translation>“%1”不是端口，端口是 %2 到 %3 的数字</translation>
    </message>
    <message>
        <source>the device is missing</source>
        <translation>缺少设备</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown after the question mark</source>
        <translation>问号之后的“%1”未知</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no baud rate, which is a number such as 57600 or 115200</source>
        <translation>“%1”不是波特率，波特率是 57600 或 115200 之类的数字</translation>
    </message>
    <message>
        <source>the command is missing</source>
        <translation>缺少命令</translation>
    </message>
</context>
<context>
    <name>corvane::StdinSource</name>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>Cannot read standard input: it is closed. Redirect a file or a pipe to it.</source>
        <translation>无法读取标准输入：它已关闭。请将文件或管道重定向到标准输入。</translation>
    </message>
</context>
<context>
    <name>corvane::StreamPump</name>
    <message>
        <source>There is not enough memory to read on; what was read before stays.</source>
        <translation>内存不足，无法继续读取；之前读取的内容保留。</translation>
    </message>
</context>
<context>
    <name>corvane::TcpClientSource</name>
    <message>
        <source>The connection to %1 broke: %2.</source>
        <translation>与 %1 的连接中断：%2。</translation>
    </message>
    <message>
        <source>Cannot connect to %1: </source>
        <translation>无法连接到 %1:</translation>
    </message>
    <message>
        <source>nobody listens there. Start the sender first, or check address and port.</source>
        <translation>那里没有程序在监听。请先启动发送方，或检查地址和端口。</translation>
    </message>
    <message>
        <source>there is no machine of this name. Check the name.</source>
        <translation>没有这个名称的主机。请检查名称。</translation>
    </message>
    <message>
        <source>no answer. Check the address, and whether a firewall is in the way.</source>
        <translation>没有应答。请检查地址以及是否有防火墙阻挡。</translation>
    </message>
</context>
<context>
    <name>corvane::TcpListenerSource</name>
    <message>
        <source>Cannot accept connections at %1: %2.</source>
        <translation>无法在 %1 接受连接：%2。</translation>
    </message>
</context>
<context>
    <name>corvane::UdpSource</name>
    <message>
        <source>Receiving at %1 failed: %2.</source>
        <translation>在 %1 接收失败：%2。</translation>
    </message>
</context>
</TS>
