<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>PlotSeries</name>
    <message>
        <source>Not described by the loaded definitions, or not a number</source>
        <translation>読み込まれた定義に記述がないか、数値ではありません</translation>
    </message>
    <message>
        <source>Confidential, not shown</source>
        <translation>機密のため表示しません</translation>
    </message>
    <message>
        <source>Not received yet</source>
        <translation>まだ受信していません</translation>
    </message>
    <message>
        <source>Absent in the last message</source>
        <translation>最後のメッセージにありません</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>受信済み</translation>
    </message>
    <message>
        <source>No finite number</source>
        <translation>有限の数ではありません</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>corvane::BytesPanel</name>
    <message>
        <source>Bytes of the message</source>
        <translation>メッセージのバイト</translation>
    </message>
    <message>
        <source>Arrow keys move, with Shift they select; Ctrl+C copies as hexadecimal; Enter or a double click goes to the field of a byte</source>
        <translation>矢印キーで移動、Shift とともに押すと選択します。Ctrl+C で 16 進数としてコピー、Enter またはダブルクリックでバイトのフィールドへ移動します</translation>
    </message>
    <message>
        <source>Choose a message or a field in the tree to see its bytes.</source>
        <translation>バイトを見るには、ツリーでメッセージまたはフィールドを選んでください。</translation>
    </message>
    <message>
        <source>%1: no message of this type has come yet.</source>
        <translation>%1: この型のメッセージはまだ届いていません。</translation>
    </message>
    <message>
        <source>%1: this message did not come as bytes.</source>
        <translation>%1: このメッセージはバイトとして届いたものではありません。</translation>
    </message>
    <message>
        <source>%1: %2 bytes.</source>
        <translation>%1: %2 バイト。</translation>
    </message>
    <message>
        <source>Masked (··): all that may be confidential.</source>
        <translation>伏せ字 (··): 機密の可能性があるものすべて。</translation>
    </message>
    <message>
        <source>%1: offset %2, length %3.</source>
        <translation>%1: 位置 %2、長さ %3。</translation>
    </message>
    <message>
        <source>%1 is computed and has no bytes of its own.</source>
        <translation>%1 は計算された値で、それ自体のバイトはありません。</translation>
    </message>
    <message>
        <source>Where fields lie in the bytes is not known in this format.</source>
        <translation>この形式では、フィールドがどのバイトにあるかわかりません。</translation>
    </message>
    <message>
        <source>%1 has no bytes in this message.</source>
        <translation>%1 のバイトはこのメッセージにありません。</translation>
    </message>
    <message>
        <source>Offset %1 (0x%2)</source>
        <translation>位置 %1 (0x%2)</translation>
    </message>
    <message>
        <source>, %1 bytes</source>
        <translation>、%1 バイト</translation>
    </message>
    <message>
        <source>, in %1</source>
        <translation>、%1 の中</translation>
    </message>
</context>
<context>
    <name>corvane::ConfidentialSwitch</name>
    <message>
        <source>Show &amp;Confidential Fields</source>
        <translation>機密フィールドを表示(&amp;C)</translation>
    </message>
    <message>
        <source>Show the content of fields that are marked as confidential</source>
        <translation>機密とされたフィールドの内容を表示します</translation>
    </message>
    <message>
        <source>Confidential fields become readable in all views, and in what is exported or copied from now on, until this window is closed.</source>
        <translation>このウィンドウを閉じるまで、機密フィールドがすべての表示で読めるようになり、今後エクスポートまたはコピーする内容にも含まれます。</translation>
    </message>
    <message>
        <source>&amp;Show Them</source>
        <translation>表示する(&amp;S)</translation>
    </message>
    <message>
        <source>Keep Them Hidden</source>
        <translation>隠したままにする</translation>
    </message>
</context>
<context>
    <name>corvane::CrashTrace</name>
    <message>
        <source>The program has crashed before. What it did last is written in &quot;%1&quot;.</source>
        <translation>プログラムは前回異常終了しました。最後に行ったことは「%1」に書かれています。</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>フォルダーを開く(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
</context>
<context>
    <name>corvane::EventLogPanel</name>
    <message>
        <source>Show only events that contain…</source>
        <translation>次を含むイベントのみ表示…</translation>
    </message>
    <message>
        <source>Filter of the event log</source>
        <translation>イベントログのフィルター</translation>
    </message>
    <message>
        <source>To the end</source>
        <translation>最後へ</translation>
    </message>
    <message>
        <source>Scroll to the latest event and follow the log again</source>
        <translation>最新のイベントへ移動し、再びログに追従します</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>イベントログ</translation>
    </message>
    <message>
        <source>No events: nothing was damaged, lost or unknown</source>
        <translation>イベントなし: 破損、消失、未知のものはありません</translation>
    </message>
    <message>
        <source>Entries: %1</source>
        <translation>%1 件</translation>
    </message>
    <message>
        <source>Entries: %1 of %2</source>
        <translation>%2 件中 %1 件</translation>
    </message>
    <message>
        <source>, not following</source>
        <translation>、追従していません</translation>
    </message>
</context>
<context>
    <name>corvane::ExportBar</name>
    <message>
        <source>Progress of the export</source>
        <translation>エクスポートの進行状況</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>corvane::ExportController</name>
    <message>
        <source>CSV (*.csv);;All files (*)</source>
        <translation>CSV (*.csv);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>&amp;Export Messages...</source>
        <translation>メッセージをエクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>Write messages or some of their fields as CSV or JSON lines</source>
        <translation>メッセージまたはその一部のフィールドを CSV または JSON 行として書き出します</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>Export &amp;Statistics...</source>
        <translation>統計をエクスポート(&amp;S)…</translation>
    </message>
    <message>
        <source>Write the counts of all message types as CSV</source>
        <translation>すべてのメッセージ型の回数を CSV として書き出します</translation>
    </message>
    <message>
        <source>Export Event &amp;Log...</source>
        <translation>イベントログをエクスポート(&amp;L)…</translation>
    </message>
    <message>
        <source>Write the event log as CSV</source>
        <translation>イベントログを CSV として書き出します</translation>
    </message>
    <message>
        <source>All of &quot;%1&quot; will be exported, from its start.</source>
        <translation>「%1」の全体を最初からエクスポートします。</translation>
    </message>
    <message>
        <source>What %1 sends will be exported from now on, until you stop it.</source>
        <translation>%1 が送るものを今から、停止するまでエクスポートします。</translation>
    </message>
    <message>
        <source>There is nothing to export: no source is open.</source>
        <translation>エクスポートするものがありません: 入力元が開かれていません。</translation>
    </message>
    <message>
        <source>Export Statistics</source>
        <translation>統計をエクスポート</translation>
    </message>
    <message>
        <source>Export Event Log</source>
        <translation>イベントログをエクスポート</translation>
    </message>
    <message>
        <source>Exporting to &quot;%1&quot;: %2 messages</source>
        <translation>「%1」へエクスポート中: %2 メッセージ</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>%1 messages exported to &quot;%2&quot;.</source>
        <translation>%1 メッセージを「%2」にエクスポートしました。</translation>
    </message>
    <message>
        <source>The export ended after %1 messages: %2.</source>
        <translation>エクスポートは %1 メッセージで終わりました: %2。</translation>
    </message>
    <message>
        <source>Exported to &quot;%1&quot;.</source>
        <translation>「%1」にエクスポートしました。</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2.</source>
        <translation>「%1」に書き込めません: %2。</translation>
    </message>
</context>
<context>
    <name>corvane::ExportDialog</name>
    <message>
        <source>&amp;Names in place of numbers, where values have names</source>
        <translation>値に名前がある場合は数の代わりに名前(&amp;N)</translation>
    </message>
    <message>
        <source>Export Messages</source>
        <translation>メッセージをエクスポート</translation>
    </message>
    <message>
        <source>Messages and fields</source>
        <translation>メッセージとフィールド</translation>
    </message>
    <message>
        <source>Message or field</source>
        <translation>メッセージまたはフィールド</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>受信済み</translation>
    </message>
    <message>
        <source>CSV: a table</source>
        <translation>CSV: 表</translation>
    </message>
    <message>
        <source>JSON lines: an object for each message</source>
        <translation>JSON 行: メッセージごとに一つのオブジェクト</translation>
    </message>
    <message>
        <source>Find messages and fields</source>
        <translation>メッセージとフィールドを検索</translation>
    </message>
    <message>
        <source>F&amp;orm:</source>
        <translation>形式(&amp;O):</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>ファイル(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>エクスポート(&amp;E)</translation>
    </message>
    <message>
        <source>Choose &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>C&amp;hoose None</source>
        <translation>選択解除(&amp;U)</translation>
    </message>
    <message>
        <source>Of what the list shows</source>
        <translation>一覧に表示されているもの</translation>
    </message>
    <message>
        <source>&amp;Choose...</source>
        <translation>選択(&amp;C)…</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>CSV (*.csv);;JSON lines (*.jsonl);;All files (*)</source>
        <translation>CSV (*.csv);;JSON 行 (*.jsonl);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Choose messages or fields to export.</source>
        <translation>エクスポートするメッセージまたはフィールドを選んでください。</translation>
    </message>
    <message>
        <source>Choose the file to write.</source>
        <translation>書き込むファイルを選んでください。</translation>
    </message>
    <message>
        <source>The file exists and will be replaced.</source>
        <translation>ファイルは既にあり、置き換えられます。</translation>
    </message>
</context>
<context>
    <name>corvane::ExportJob</name>
    <message>
        <source>cannot write &quot;%1&quot;: it is the source</source>
        <translation>「%1」に書き込めません: 入力元です</translation>
    </message>
</context>
<context>
    <name>corvane::ExportWriter</name>
    <message>
        <source>cannot write &quot;%1&quot;: %2</source>
        <translation>「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>cannot write to standard output: %1</source>
        <translation>標準出力に書き込めません: %1</translation>
    </message>
</context>
<context>
    <name>corvane::FileList</name>
    <message>
        <source>Add…</source>
        <translation>追加…</translation>
    </message>
    <message>
        <source>Add to: %1</source>
        <translation>追加先: %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove from: %1</source>
        <translation>削除元: %1</translation>
    </message>
</context>
<context>
    <name>corvane::FindBar</name>
    <message>
        <source>Find a name, a value or a path</source>
        <translation>名前、値、パスを検索</translation>
    </message>
    <message>
        <source>Find in the tree</source>
        <translation>ツリー内を検索</translation>
    </message>
    <message>
        <source>Looks in names, values and, with a dot or a bracket, in paths (&quot;position.lat&quot;, &quot;volt[2]&quot;); Escape closes</source>
        <translation>名前と値を探します。ドットか角括弧があればパスも探します（「position.lat」、「volt[2]」）。Esc で閉じます</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Go to the previous one (Shift+F3, Shift+Enter)</source>
        <translation>前の結果へ移動します (Shift+F3, Shift+Enter)</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Go to the next one (F3, Enter)</source>
        <translation>次の結果へ移動します (F3, Enter)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close and collapse what was expanded (Escape)</source>
        <translation>閉じて、展開したものを折りたたみます (Esc)</translation>
    </message>
    <message>
        <source>from the end again</source>
        <translation>末尾に戻って検索</translation>
    </message>
    <message>
        <source>from the top again</source>
        <translation>先頭に戻って検索</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>検索中…</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%2 件中 %1 件目</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 件見つかりました</translation>
    </message>
    <message>
        <source> so far</source>
        <translation>（これまで）</translation>
    </message>
</context>
<context>
    <name>corvane::FormPanel</name>
    <message>
        <source>Fields of the chosen message type</source>
        <translation>選んだメッセージ型のフィールド</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
</context>
<context>
    <name>corvane::HelpPanel</name>
    <message>
        <source>Open a source</source>
        <translation>入力元を開く</translation>
    </message>
    <message>
        <source>A recording, a network address, a serial port or a program, together with the files that describe its messages. Files can be dropped onto the window.</source>
        <translation>記録、ネットワークアドレス、シリアルポート、またはプログラムと、そのメッセージを記述するファイル。ファイルはウィンドウにドロップできます。</translation>
    </message>
    <message>
        <source>Look at messages</source>
        <translation>メッセージを見る</translation>
    </message>
    <message>
        <source>The tree in the middle shows the last message of each type. A row that is chosen there, or in the list of types, fills the form. Choose what the tree shows in the menu Tree.</source>
        <translation>中央のツリーは各型の最後のメッセージを表示します。そこ、または型の一覧で選んだ行がフォームに表示されます。ツリーに表示するものはメニュー「ツリー」で選びます。</translation>
    </message>
    <message>
        <source>Watch some fields</source>
        <translation>いくつかのフィールドを監視する</translation>
    </message>
    <message>
        <source>Watch and Plot take paths of fields, FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>「監視」と「グラフ」はフィールドのパス FORMAT.MESSAGE.FIELD を使います。* は任意の文字列です。</translation>
    </message>
    <message>
        <source>See what is lost</source>
        <translation>失われたものを見る</translation>
    </message>
    <message>
        <source>Statistics, senders and event log tell of rates, gaps, losses and damage of every message, shown or not, also while the views are paused.</source>
        <translation>統計、送信元、イベントログは、表示の有無にかかわらず、表示の一時停止中も、各メッセージのレート、欠落、消失、破損を示します。</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>保存する</translation>
    </message>
    <message>
        <source>Record writes the bytes of the source as they come. Export writes messages or some of their fields as text for other programs.</source>
        <translation>「記録」は入力元のバイトを届いたまま書きます。「エクスポート」はメッセージまたはその一部のフィールドを他のプログラム向けのテキストとして書きます。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Corvane Inspector %1
Framework %1
Qt %2
Protocol Buffers %3</source>
        <translation>Corvane インスペクター %1
フレームワーク %1
Qt %2
Protocol Buffers %3</translation>
    </message>
</context>
<context>
    <name>corvane::MainWindow</name>
    <message>
        <source>Message types</source>
        <translation>メッセージ型</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Choose another source, or other definitions</source>
        <translation>別の入力元または別の定義を選びます</translation>
    </message>
    <message>
        <source>&amp;Pause the Views</source>
        <translation>表示を一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>Ctrl+P</source>
        <translation>Ctrl+P</translation>
    </message>
    <message>
        <source>Leave the views as they are; everything is counted all the same</source>
        <translation>表示をそのままにします。すべて数え続けます</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>監視</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Event log</source>
        <translation>イベントログ</translation>
    </message>
    <message>
        <source>Senders</source>
        <translation>送信元</translation>
    </message>
    <message>
        <source>Plot (not in this build)</source>
        <translation>グラフ（このビルドにはありません）</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>No definition describes this message. Load the definitions of its dialect with --definitions FILE.</source>
        <translation>このメッセージを記述する定義がありません。その方言の定義を --definitions FILE で読み込んでください。</translation>
    </message>
    <message>
        <source>Waiting for messages from %1.</source>
        <translation>%1 からのメッセージを待っています。</translation>
    </message>
    <message>
        <source>Show or hide the tool bar</source>
        <translation>ツールバーの表示と非表示を切り替えます</translation>
    </message>
    <message>
        <source>Notices</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Close the window; what it shows is remembered</source>
        <translation>ウィンドウを閉じます。表示内容は記憶されます</translation>
    </message>
    <message>
        <source>Show or hide the bar that plays recordings</source>
        <translation>記録を再生するバーの表示と非表示を切り替えます</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>バイト</translation>
    </message>
    <message>
        <source>Show or hide the panel &quot;%1&quot;</source>
        <translation>パネル「%1」の表示と非表示を切り替えます</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Uses and Keys</source>
        <translation>使い方とキー(&amp;U)</translation>
    </message>
    <message>
        <source>What the window is for, and all keys</source>
        <translation>ウィンドウの使い道とすべてのキー</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>バージョン情報(&amp;A)</translation>
    </message>
    <message>
        <source>The versions of the program and of what it uses</source>
        <translation>プログラムとそれが使うもののバージョン</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>%1 has ended.</source>
        <translation>%1 は終わりました。</translation>
    </message>
    <message>
        <source>No source is open. Choose one with &quot;Open…&quot; in the menu &quot;File&quot;.</source>
        <translation>入力元が開かれていません。「ファイル」メニューの「開く…」で選んでください。</translation>
    </message>
    <message>
        <source>%1 No bytes have come.</source>
        <translation>%1 バイトは 1 つも届きませんでした。</translation>
    </message>
    <message>
        <source>%1 None of its %2 bytes could be decoded: they are no messages of this format, or in another framing.</source>
        <translation>%1 %2 バイトのどれもデコードできませんでした。この形式のメッセージではないか、フレーミングが異なります。</translation>
    </message>
    <message>
        <source>%1 %2 bytes have come, but no message of the loaded definitions among them.</source>
        <translation>%1 %2 バイト届きましたが、読み込んだ定義のメッセージは含まれていません。</translation>
    </message>
</context>
<context>
    <name>corvane::MessageTreePanel</name>
    <message>
        <source>&amp;Tree</source>
        <translation>ツリー(&amp;T)</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Choose what the tree shows</source>
        <translation>ツリーに表示するものを選びます</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Filter of repeated sub-messages</source>
        <translation>繰り返しサブメッセージのフィルター</translation>
    </message>
    <message>
        <source>&amp;Computed Fields</source>
        <translation>計算フィールド(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Secondary Fields</source>
        <translation>副次フィールド(&amp;S)</translation>
    </message>
    <message>
        <source>All &amp;Known Message Types</source>
        <translation>既知のすべてのメッセージ型(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>すべて展開(&amp;E)</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>すべて折りたたむ(&amp;O)</translation>
    </message>
    <message>
        <source>Show only repeated sub-messages with this name of a value</source>
        <translation>値がこの名前を持つ繰り返しサブメッセージだけを表示します</translation>
    </message>
    <message>
        <source>Show or hide this column</source>
        <translation>この列の表示と非表示を切り替えます</translation>
    </message>
    <message>
        <source>Current Ro&amp;w</source>
        <translation>現在の行(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Find…</source>
        <translation>検索(&amp;F)…</translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation>Ctrl+F</translation>
    </message>
    <message>
        <source>Find a row by name, value or path</source>
        <translation>名前、値、パスで行を探します</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>次を検索(&amp;N)</translation>
    </message>
    <message>
        <source>F3</source>
        <translation>F3</translation>
    </message>
    <message>
        <source>Go to the next row that was found</source>
        <translation>次に見つかった行へ移動します</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>前を検索(&amp;P)</translation>
    </message>
    <message>
        <source>Shift+F3</source>
        <translation>Shift+F3</translation>
    </message>
    <message>
        <source>Go to the row that was found before</source>
        <translation>前に見つかった行へ移動します</translation>
    </message>
    <message>
        <source>&amp;Units</source>
        <translation>単位(&amp;U)</translation>
    </message>
    <message>
        <source>Show units beside numbers</source>
        <translation>数の横に単位を表示します</translation>
    </message>
    <message>
        <source>He&amp;xadecimal</source>
        <translation>16 進数(&amp;X)</translation>
    </message>
    <message>
        <source>Show integers in hexadecimal digits as well</source>
        <translation>整数を 16 進数でも表示します</translation>
    </message>
    <message>
        <source>Show fields that are computed from others</source>
        <translation>他のフィールドから計算されるフィールドを表示します</translation>
    </message>
    <message>
        <source>Show details that few readers want</source>
        <translation>必要とする人の少ない詳細を表示します</translation>
    </message>
    <message>
        <source>Show types of which no message has come yet as well</source>
        <translation>まだメッセージの届いていない型も表示します</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>Expand all rows</source>
        <translation>すべての行を展開します</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>Collapse all rows</source>
        <translation>すべての行を折りたたみます</translation>
    </message>
    <message>
        <source>Nothing to filter: no message type has repeated sub-messages</source>
        <translation>フィルターの対象なし: 繰り返しサブメッセージのあるメッセージ型がありません</translation>
    </message>
    <message>
        <source>No definitions are loaded, so nothing can be shown. Open a source together with the definitions of its messages.</source>
        <translation>定義が読み込まれていないため、何も表示できません。入力元をそのメッセージの定義とともに開いてください。</translation>
    </message>
    <message>
        <source>No message has come yet. Each message type gets its row with its first message. The menu &quot;Show&quot; lists all %1 known types, messages or not.</source>
        <translation>まだメッセージが届いていません。各メッセージ型は最初のメッセージで行を得ます。メニュー「表示」は、メッセージの有無にかかわらず既知の %1 個の型をすべて並べます。</translation>
    </message>
    <message>
        <source>Choose a row to read about it. A right click offers more.</source>
        <translation>行を選ぶと説明が出ます。右クリックでさらに操作できます。</translation>
    </message>
</context>
<context>
    <name>corvane::MessageTypeModel</name>
    <message>
        <source>No definition describes this message.</source>
        <translation>このメッセージを記述する定義がありません。</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>回数</translation>
    </message>
</context>
<context>
    <name>corvane::NoticeArea</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>corvane::OpenPanel</name>
    <message>
        <source>File or recording</source>
        <translation>ファイルまたは記録</translation>
    </message>
    <message>
        <source>Network: connect (TCP)</source>
        <translation>ネットワーク: 接続する (TCP)</translation>
    </message>
    <message>
        <source>Network: wait for a connection (TCP)</source>
        <translation>ネットワーク: 接続を待つ (TCP)</translation>
    </message>
    <message>
        <source>Network: datagrams (UDP)</source>
        <translation>ネットワーク: データグラム (UDP)</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>シリアルポート</translation>
    </message>
    <message>
        <source>Output of a program</source>
        <translation>プログラムの出力</translation>
    </message>
    <message>
        <source>Open a Source</source>
        <translation>入力元を開く</translation>
    </message>
    <message>
        <source>&amp;Recent sources</source>
        <translation>最近の入力元(&amp;R)</translation>
    </message>
    <message>
        <source>Recent sources</source>
        <translation>最近の入力元</translation>
    </message>
    <message>
        <source>This &amp;machine&apos;s own feed</source>
        <translation>このコンピューターのデータ(&amp;M)</translation>
    </message>
    <message>
        <source>Load, memory, network, disks and processes of this machine, live</source>
        <translation>このコンピューターの負荷、メモリー、ネットワーク、ディスク、プロセスをライブで</translation>
    </message>
    <message>
        <source>Kind of source</source>
        <translation>入力元の種類</translation>
    </message>
    <message>
        <source>Address of the source</source>
        <translation>入力元のアドレス</translation>
    </message>
    <message>
        <source>Definitions</source>
        <translation>定義</translation>
    </message>
    <message>
        <source>Definitions (*.xml *.proto *.desc *.pb);;All files (*)</source>
        <translation>定義 (*.xml *.proto *.desc *.pb);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Overlays</source>
        <translation>オーバーレイ</translation>
    </message>
    <message>
        <source>Overlays (*.json);;All files (*)</source>
        <translation>オーバーレイ (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Framing</source>
        <translation>フレーミング</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Root message type</source>
        <translation>ルートのメッセージ型</translation>
    </message>
    <message>
        <source>Protocol Buffers only: package.Type</source>
        <translation>Protocol Buffers のみ: package.Type</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>入力元(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>アドレス(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Definitions</source>
        <translation>定義(&amp;D)</translation>
    </message>
    <message>
        <source>Overla&amp;ys</source>
        <translation>オーバーレイ(&amp;Y)</translation>
    </message>
    <message>
        <source>Frami&amp;ng</source>
        <translation>フレーミング(&amp;N)</translation>
    </message>
    <message>
        <source>Root ty&amp;pe</source>
        <translation>ルートの型(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>参照…</translation>
    </message>
    <message>
        <source>Ports</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>Choose the file</source>
        <translation>ファイルを選びます</translation>
    </message>
    <message>
        <source>Choose the port</source>
        <translation>ポートを選びます</translation>
    </message>
    <message>
        <source>This machine has no serial port</source>
        <translation>このコンピューターにはシリアルポートがありません</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Files that describe the messages: MAVLink dialects, .proto files or descriptor sets</source>
        <translation>メッセージを記述するファイル: MAVLink ダイアレクト、.proto ファイル、記述子セット</translation>
    </message>
    <message>
        <source>Files that add roles, units or computed fields to the definitions</source>
        <translation>定義に役割、単位、計算フィールドを追加するファイル</translation>
    </message>
    <message>
        <source>Nothing yet: what you open is listed here.</source>
        <translation>まだありません: 開いたものがここに並びます。</translation>
    </message>
    <message>
        <source>Name the source: %1.</source>
        <translation>入力元を指定してください: %1。</translation>
    </message>
    <message>
        <source>This starts a program on this machine: %1
Press Open again to start it.</source>
        <translation>このコンピューターでプログラムを起動します: %1
起動するには「開く」をもう一度押してください。</translation>
    </message>
    <message>
        <source>The messages of %1 cannot be read without their definitions. Add the files that describe them: for MAVLink a dialect (.xml), such as common.xml, with the files that it includes beside it; for Protocol Buffers the .proto files, or a descriptor set (.desc, .pb), and the root type.</source>
        <translation>%1 のメッセージは定義なしでは読めません。それを記述するファイルを追加してください: MAVLink には common.xml のような方言 (.xml) と、それが取り込むファイルを同じ場所に。Protocol Buffers には .proto ファイルまたは記述子セット (.desc, .pb) と、ルートの型を。</translation>
    </message>
</context>
<context>
    <name>corvane::PlotLegend</name>
    <message>
        <source>Plotted series</source>
        <translation>描かれている系列</translation>
    </message>
    <message>
        <source>Series</source>
        <translation>系列</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>At cursor</source>
        <translation>カーソル位置</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>軸</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>The newest value at the cursor&apos;s time</source>
        <translation>カーソルの時刻での最新の値</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Draw at the Other Axis</source>
        <translation>もう一方の軸に描く</translation>
    </message>
    <message>
        <source>Ctrl+T</source>
        <translation>Ctrl+T</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 を削除</translation>
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
        <translation>描くフィールドのパス</translation>
    </message>
    <message>
        <source>FORMAT.MESSAGE.FIELD; * stands for any text, FIELD[2] is the third element of a repeated field, FIELD[0..3] are the first four</source>
        <translation>FORMAT.MESSAGE.FIELD。* は任意の文字列、FIELD[2] は繰り返しフィールドの三番目の要素、FIELD[0..3] は最初の四つです</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>追従</translation>
    </message>
    <message>
        <source>Follow the newest value (End)</source>
        <translation>最新の値に追従します (End)</translation>
    </message>
    <message>
        <source>In</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Show less time (+)</source>
        <translation>表示する時間を短くします (+)</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Show more time (-)</source>
        <translation>表示する時間を長くします (-)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Show all that was recorded (Home)</source>
        <translation>記録されたすべてを表示します (Home)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>合わせる</translation>
    </message>
    <message>
        <source>Fit the value axes to what is shown (V)</source>
        <translation>値の軸を表示内容に合わせます (V)</translation>
    </message>
    <message>
        <source>Axis per Unit</source>
        <translation>単位ごとの軸</translation>
    </message>
    <message>
        <source>Give each unit a value axis of its own</source>
        <translation>単位ごとに値の軸を設けます</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copy the picture (Ctrl+C)</source>
        <translation>画像をコピーします (Ctrl+C)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save what is shown as PNG, SVG or CSV (Ctrl+S)</source>
        <translation>表示内容を PNG、SVG、CSV として保存します (Ctrl+S)</translation>
    </message>
    <message>
        <source>No numeric field is named &quot;%1&quot;. A path is FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>「%1」という数値フィールドはありません。パスは FORMAT.MESSAGE.FIELD で、* は任意の文字列です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names more than %2 fields; name fewer.</source>
        <translation>「%1」は %2 個を超えるフィールドを指します。絞ってください。</translation>
    </message>
    <message>
        <source>More than %1 series are not plotted.</source>
        <translation>系列は %1 個までしか描かれません。</translation>
    </message>
    <message>
        <source>The picture is in the clipboard.</source>
        <translation>画像をクリップボードに入れました。</translation>
    </message>
    <message>
        <source>Save the Plot</source>
        <translation>グラフを保存</translation>
    </message>
    <message>
        <source>Picture (*.png);;Drawing (*.svg);;Shown values (*.csv)</source>
        <translation>画像 (*.png);;図面 (*.svg);;表示された値 (*.csv)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>書き込みました: %1</translation>
    </message>
</context>
<context>
    <name>corvane::PlotView</name>
    <message>
        <source>Plot</source>
        <translation>グラフ</translation>
    </message>
    <message>
        <source>%1 [%2]</source>
        <translation>%1 [%2]</translation>
    </message>
    <message>
        <source>Nothing is plotted yet. Type the path of a numeric field above, such as FORMAT.MESSAGE.FIELD, and press Enter; FIELD[2] is the third element of a repeated field.</source>
        <translation>まだ何も描かれていません。上に FORMAT.MESSAGE.FIELD のような数値フィールドのパスを入力して Enter を押してください。FIELD[2] は繰り返しフィールドの三番目の要素です。</translation>
    </message>
    <message>
        <source>No values yet. They appear as soon as messages with the chosen fields arrive.</source>
        <translation>まだ値がありません。選んだフィールドを持つメッセージが届くと現れます。</translation>
    </message>
    <message>
        <source>Following the newest value, %1 s</source>
        <translation>最新の値に追従、%1 秒</translation>
    </message>
    <message>
        <source>Standing still, %1 s</source>
        <translation>静止、%1 秒</translation>
    </message>
    <message>
        <source>Paused, values are kept; %1 s</source>
        <translation>一時停止、値は保持されます、%1 秒</translation>
    </message>
    <message>
        <source>; value axes as set by hand</source>
        <translation>。値の軸は手動設定</translation>
    </message>
    <message>
        <source>; cursor at %1</source>
        <translation>。カーソルは %1</translation>
    </message>
    <message>
        <source>The name of the file must end in .png, .svg or .csv.</source>
        <translation>ファイル名は .png、.svg、.csv のいずれかで終わる必要があります。</translation>
    </message>
    <message>
        <source>Cannot write &quot;%1&quot;: %2</source>
        <translation>「%1」に書き込めません: %2</translation>
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
        <translation>記録するものがありません: 入力元が開かれていません。</translation>
    </message>
    <message>
        <source>Record to a File</source>
        <translation>ファイルに記録</translation>
    </message>
    <message>
        <source>Recorded %1 to &quot;%2&quot;.</source>
        <translation>%1 を「%2」に記録しました。</translation>
    </message>
    <message>
        <source>Stop &amp;Recording</source>
        <translation>記録を停止(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Record…</source>
        <translation>記録(&amp;R)…</translation>
    </message>
    <message>
        <source>End the recording and close its file</source>
        <translation>記録を終えてファイルを閉じます</translation>
    </message>
    <message>
        <source>Write the bytes of the source to a file as they come</source>
        <translation>入力元のバイトを届いたままファイルに書き込みます</translation>
    </message>
    <message>
        <source>Recording to &quot;%1&quot;: %2</source>
        <translation>「%1」に記録中: %2</translation>
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
        <translation>値をコピー(&amp;C)</translation>
    </message>
    <message>
        <source>Copy the value as it is shown</source>
        <translation>値を表示のままコピーします</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>パスをコピー(&amp;P)</translation>
    </message>
    <message>
        <source>Copy the path by which the watch list, the plot and exports know the row</source>
        <translation>監視の一覧、グラフ、エクスポートでこの行を指すパスをコピーします</translation>
    </message>
    <message>
        <source>Copy &amp;Row</source>
        <translation>行をコピー(&amp;R)</translation>
    </message>
    <message>
        <source>Copy the texts of all columns, with tabs between</source>
        <translation>すべての列の文字をタブ区切りでコピーします</translation>
    </message>
    <message>
        <source>Copy Message as &amp;JSON</source>
        <translation>メッセージを JSON としてコピー(&amp;J)</translation>
    </message>
    <message>
        <source>Copy the whole message that is shown, as in an export</source>
        <translation>表示中のメッセージ全体を、エクスポートと同じ形でコピーします</translation>
    </message>
    <message>
        <source>Add to &amp;Watch</source>
        <translation>監視に追加(&amp;W)</translation>
    </message>
    <message>
        <source>Show the field in the list of watched fields</source>
        <translation>フィールドを監視中のフィールドの一覧に表示します</translation>
    </message>
    <message>
        <source>P&amp;lot</source>
        <translation>グラフに描く(&amp;L)</translation>
    </message>
    <message>
        <source>Draw the field over time</source>
        <translation>フィールドの時間変化を描きます</translation>
    </message>
    <message>
        <source>Show &amp;Form</source>
        <translation>フォームを表示(&amp;F)</translation>
    </message>
    <message>
        <source>Show the message type as a form</source>
        <translation>メッセージ型をフォームとして表示します</translation>
    </message>
    <message>
        <source>Show &amp;Bytes</source>
        <translation>バイトを表示(&amp;B)</translation>
    </message>
    <message>
        <source>Show the bytes of the message, with those of the field marked</source>
        <translation>メッセージのバイトを、フィールドの部分に印を付けて表示します</translation>
    </message>
    <message>
        <source>Filter by &amp;This Value</source>
        <translation>この値でフィルター(&amp;T)</translation>
    </message>
    <message>
        <source>Show only elements of lists that hold this value</source>
        <translation>この値を持つリストの要素だけを表示します</translation>
    </message>
    <message>
        <source>E&amp;xpand Below</source>
        <translation>以下を展開(&amp;X)</translation>
    </message>
    <message>
        <source>Expand the row and all below</source>
        <translation>行とその下のすべてを展開します</translation>
    </message>
    <message>
        <source>C&amp;ollapse Below</source>
        <translation>以下を折りたたむ(&amp;O)</translation>
    </message>
    <message>
        <source>Collapse the row and all below</source>
        <translation>行とその下のすべてを折りたたみます</translation>
    </message>
    <message>
        <source>No row is chosen</source>
        <translation>行が選ばれていません</translation>
    </message>
    <message>
        <source>This row stands for no field</source>
        <translation>この行はフィールドを表していません</translation>
    </message>
    <message>
        <source>This row has no value of its own</source>
        <translation>この行自体には値がありません</translation>
    </message>
    <message>
        <source>No message of this type has come yet</source>
        <translation>この型のメッセージはまだ届いていません</translation>
    </message>
    <message>
        <source>A message type cannot be watched; choose a field</source>
        <translation>メッセージ型は監視できません。フィールドを選んでください</translation>
    </message>
    <message>
        <source>Fields inside sub-messages cannot be watched</source>
        <translation>サブメッセージの中のフィールドは監視できません</translation>
    </message>
    <message>
        <source>This build has no plot</source>
        <translation>このビルドにはグラフがありません</translation>
    </message>
    <message>
        <source>A message type cannot be plotted; choose a numeric field</source>
        <translation>メッセージ型はグラフに描けません。数値フィールドを選んでください</translation>
    </message>
    <message>
        <source>Only numeric fields can be plotted; this one is of type %1</source>
        <translation>グラフに描けるのは数値フィールドだけです。これは %1 型です</translation>
    </message>
    <message>
        <source>What this field holds is confidential</source>
        <translation>このフィールドの内容は機密です</translation>
    </message>
    <message>
        <source>Only values inside the elements of a list of sub-messages can be filtered by</source>
        <translation>フィルターに使えるのは、サブメッセージのリストの要素の中にある値だけです</translation>
    </message>
    <message>
        <source>There is no value</source>
        <translation>値がありません</translation>
    </message>
    <message>
        <source>There is nothing below this row</source>
        <translation>この行の下には何もありません</translation>
    </message>
</context>
<context>
    <name>corvane::RowDescription</name>
    <message>
        <source>list of %1</source>
        <translation>%1 のリスト</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1、単位 %2</translation>
    </message>
    <message>
        <source>Empty in the newest message.</source>
        <translation>最新のメッセージでは空です。</translation>
    </message>
    <message>
        <source>Absent: what it is computed from is not in the newest message.</source>
        <translation>なし: 計算のもとになるものが最新のメッセージにありません。</translation>
    </message>
    <message>
        <source>Absent: the newest message has another case of &quot;%1&quot;, or none.</source>
        <translation>なし: 最新のメッセージには「%1」の別の選択肢があるか、どれもありません。</translation>
    </message>
    <message>
        <source>Absent: the newest message came without this field.</source>
        <translation>なし: 最新のメッセージはこのフィールドなしで届きました。</translation>
    </message>
    <message>
        <source>Cut: only the beginning of %1 bytes is shown.</source>
        <translation>省略: %1 バイトの先頭だけを表示しています。</translation>
    </message>
    <message>
        <source>Cut: only the beginning of %1 characters is shown.</source>
        <translation>省略: %1 文字の先頭だけを表示しています。</translation>
    </message>
    <message>
        <source>%1 of %2 elements do not pass the filter.</source>
        <translation>%2 個の要素のうち %1 個がフィルターに合いません。</translation>
    </message>
    <message>
        <source>No message of this type has come yet.</source>
        <translation>この型のメッセージはまだ届いていません。</translation>
    </message>
    <message>
        <source>Hidden: what it holds is confidential.</source>
        <translation>非表示: 内容は機密です。</translation>
    </message>
    <message>
        <source>Absent: the newest message came without the sub-message around it.</source>
        <translation>なし: 最新のメッセージは、これを含むサブメッセージなしで届きました。</translation>
    </message>
</context>
<context>
    <name>corvane::SenderChooser</name>
    <message>
        <source>Sender whose messages are shown</source>
        <translation>メッセージを表示する送信元</translation>
    </message>
    <message>
        <source>Whose messages the views show. Everything is counted, whoever sends it.</source>
        <translation>誰のメッセージを表示するか。送信元に関係なくすべて数えます。</translation>
    </message>
    <message>
        <source>Only sender %1</source>
        <translation>送信元 %1 のみ</translation>
    </message>
    <message>
        <source>All %1 senders: the last one wins</source>
        <translation>%1 個の送信元すべて: 最後のものが有効</translation>
    </message>
</context>
<context>
    <name>corvane::SendersPanel</name>
    <message>
        <source>Here stands each sender with what it has sent and what was lost, once messages with sequence numbers come.</source>
        <translation>連番付きのメッセージが届くと、各送信元が送ったものと失われたものがここに並びます。</translation>
    </message>
    <message>
        <source>Senders</source>
        <translation>送信元</translation>
    </message>
    <message>
        <source>Sender</source>
        <translation>送信元</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>Places with losses</source>
        <translation>消失のあった箇所</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>消失</translation>
    </message>
    <message>
        <source>CRC errors</source>
        <translation>CRC エラー</translation>
    </message>
    <message>
        <source>Below a sender: the message types that its damaged frames claim to be of</source>
        <translation>送信元の下: その破損フレームが名乗るメッセージ型</translation>
    </message>
    <message>
        <source>Messages missing by their sequence numbers</source>
        <translation>連番から見て欠けているメッセージ</translation>
    </message>
    <message>
        <source>Enter or a double click shows the messages of one sender only</source>
        <translation>Enter またはダブルクリックで、一つの送信元のメッセージだけを表示します</translation>
    </message>
</context>
<context>
    <name>corvane::Session</name>
    <message>
        <source>An MCAP file brings its own definitions. Leave out --definitions and --root.</source>
        <translation>MCAP ファイルには定義が含まれています。--definitions と --root を省いてください。</translation>
    </message>
    <message>
        <source>Definitions of different formats cannot be mixed.</source>
        <translation>異なる形式の定義は混ぜられません。</translation>
    </message>
    <message>
        <source>--root and --import-path go with definitions of Protocol Buffers.</source>
        <translation>--root と --import-path は Protocol Buffers の定義とともに使います。</translation>
    </message>
    <message>
        <source>--framing %1 does not go with %2; expected one of: %3.</source>
        <translation>--framing %1 は %2 に使えません。次のいずれかにしてください: %3。</translation>
    </message>
    <message>
        <source>Opened %1.</source>
        <translation>%1 を開きました。</translation>
    </message>
    <message>
        <source>%1 has ended.</source>
        <translation>%1 は終わりました。</translation>
    </message>
    <message>
        <source>Cannot record to &quot;%1&quot;: it is the file that is being read. Choose another name.</source>
        <translation>「%1」に記録できません: 読み取り中のファイルです。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>There is not enough memory to read the definitions.</source>
        <translation>定義を読むためのメモリーが足りません。</translation>
    </message>
</context>
<context>
    <name>corvane::SettingsFile</name>
    <message>
        <source>it is no settings file</source>
        <translation>設定ファイルではありません</translation>
    </message>
    <message>
        <source>the value of &quot;%1&quot; is none that this program writes</source>
        <translation>「%1」の値はこのプログラムが書くものではありません</translation>
    </message>
    <message>
        <source>The settings file could not be used: %1. Everything starts with its defaults; the old file is kept as &quot;%2&quot;.</source>
        <translation>設定ファイルを使えませんでした: %1。すべて既定値で始まります。古いファイルは「%2」として残してあります。</translation>
    </message>
    <message>
        <source>The settings file &quot;%1&quot; could not be used: %2. Everything starts with its defaults, and nothing will be remembered.</source>
        <translation>設定ファイル「%1」を使えませんでした: %2。すべて既定値で始まり、何も記憶されません。</translation>
    </message>
    <message>
        <source>it cannot be read (%1)</source>
        <translation>読めません（%1）</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>it is no text</source>
        <translation>テキストではありません</translation>
    </message>
    <message>
        <source>it holds what this program does not write</source>
        <translation>このプログラムが書かない内容が含まれています</translation>
    </message>
</context>
<context>
    <name>corvane::StatisticsPanel</name>
    <message>
        <source>Here stand count, rate, intervals and gaps of each message type, once messages come.</source>
        <translation>メッセージが届くと、各メッセージ型の回数、レート、間隔、欠落がここに並びます。</translation>
    </message>
    <message>
        <source>Reception statistics</source>
        <translation>受信統計</translation>
    </message>
</context>
<context>
    <name>corvane::StatusFigures</name>
    <message>
        <source>Bytes that have come and wait to be read. A figure that grows says that more comes than can be shown.</source>
        <translation>届いて読み取りを待つバイト。増え続ける場合は、表示できる以上に届いています。</translation>
    </message>
    <message>
        <source>The longest time in the last 5 seconds in which the window did not react, because it was busy with messages or drawing</source>
        <translation>過去 5 秒間で、ウィンドウがメッセージや描画で忙しく反応しなかった最長の時間</translation>
    </message>
    <message>
        <source>Longest round: %1 ms</source>
        <translation>最長の処理: %1 ミリ秒</translation>
    </message>
    <message>
        <source>Messages: %1 (%2 per second)</source>
        <translation>メッセージ: %1（毎秒 %2）</translation>
    </message>
    <message>
        <source>, CRC errors: %1</source>
        <translation>、CRC エラー: %1</translation>
    </message>
    <message>
        <source>, unknown: %1</source>
        <translation>、未知: %1</translation>
    </message>
    <message>
        <source>, datagrams dropped: %1</source>
        <translation>、破棄されたデータグラム: %1</translation>
    </message>
    <message>
        <source>Backlog: %1</source>
        <translation>未処理: %1</translation>
    </message>
    <message>
        <source>The views stand still. Everything is counted all the same.</source>
        <translation>表示は止まっています。それでもすべて数えています。</translation>
    </message>
    <message>
        <source>Paused for %1 s, new messages: %2</source>
        <translation>一時停止 %1 秒、新着メッセージ: %2</translation>
    </message>
</context>
<context>
    <name>corvane::TransportBar</name>
    <message>
        <source>Playback</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Ctrl+Space</source>
        <translation>Ctrl+Space</translation>
    </message>
    <message>
        <source>Next Message</source>
        <translation>次のメッセージ</translation>
    </message>
    <message>
        <source>Ctrl+.</source>
        <translation>Ctrl+.</translation>
    </message>
    <message>
        <source>Read on to the next message (Right, %1)</source>
        <translation>次のメッセージまで読みます（右、%1）</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>How fast the recording is played</source>
        <translation>記録を再生する速さ</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 x</translation>
    </message>
    <message>
        <source>No waiting</source>
        <translation>待たない</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>The place in the recording</source>
        <translation>記録の中の位置</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Indexing</source>
        <translation>索引の作成</translation>
    </message>
    <message>
        <source>How much of the file has been indexed: places behind cannot be reached yet</source>
        <translation>ファイルの索引済みの範囲: その先へはまだ移動できません</translation>
    </message>
    <message>
        <source>Indexing: %p %</source>
        <translation>索引の作成: %p %</translation>
    </message>
    <message>
        <source>Stop Indexing</source>
        <translation>索引の作成を停止</translation>
    </message>
    <message>
        <source>Places that have not been indexed cannot be reached then</source>
        <translation>索引のない箇所へは移動できなくなります</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>%1 (Space, %2)</source>
        <translation>%1（スペース、%2）</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>corvane::TreeHistory</name>
    <message>
        <source>&amp;History</source>
        <translation>履歴(&amp;H)</translation>
    </message>
    <message>
        <source>A small line of the last 15 seconds of each numeric field</source>
        <translation>各数値フィールドの過去 15 秒の小さな線</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
</context>
<context>
    <name>corvane::ViewSettings</name>
    <message>
        <source>10 Times a Second</source>
        <translation>毎秒 10 回</translation>
    </message>
    <message>
        <source>4 Times a Second</source>
        <translation>毎秒 4 回</translation>
    </message>
    <message>
        <source>Once a Second</source>
        <translation>毎秒 1 回</translation>
    </message>
    <message>
        <source>Every 5 Seconds</source>
        <translation>5 秒ごと</translation>
    </message>
    <message>
        <source>Times in &amp;UTC</source>
        <translation>時刻を UTC で(&amp;U)</translation>
    </message>
    <message>
        <source>Show times in UTC instead of this machine&apos;s time zone</source>
        <translation>時刻をこのコンピューターのタイムゾーンではなく UTC で表示します</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>拡大(&amp;I)</translation>
    </message>
    <message>
        <source>Larger text in the views</source>
        <translation>表示の文字を大きくします</translation>
    </message>
    <message>
        <source>Ctrl++</source>
        <translation>Ctrl++</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>縮小(&amp;O)</translation>
    </message>
    <message>
        <source>Smaller text in the views</source>
        <translation>表示の文字を小さくします</translation>
    </message>
    <message>
        <source>Ctrl+-</source>
        <translation>Ctrl+-</translation>
    </message>
    <message>
        <source>&amp;Normal Size</source>
        <translation>標準の大きさ(&amp;N)</translation>
    </message>
    <message>
        <source>Text of the usual size in the views</source>
        <translation>表示の文字を通常の大きさにします</translation>
    </message>
    <message>
        <source>Ctrl+0</source>
        <translation>Ctrl+0</translation>
    </message>
    <message>
        <source>How often counts and statistics are refreshed</source>
        <translation>回数と統計を更新する頻度</translation>
    </message>
    <message>
        <source>&amp;Refresh of Counts</source>
        <translation>回数の更新(&amp;R)</translation>
    </message>
</context>
<context>
    <name>corvane::WatchPanel</name>
    <message>
        <source>Type the path of a field and press Enter, or pick one and press Watch.</source>
        <translation>フィールドのパスを入力して Enter を押すか、一つ選んで「監視」を押してください。</translation>
    </message>
    <message>
        <source>Path of a field</source>
        <translation>フィールドのパス</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Message type</source>
        <translation>メッセージ型</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>フィールド</translation>
    </message>
    <message>
        <source>Watch</source>
        <translation>監視</translation>
    </message>
    <message>
        <source>Add the chosen fields</source>
        <translation>選んだフィールドを追加します</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Move the current row up</source>
        <translation>現在の行を上へ移動します</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>Move the current row down</source>
        <translation>現在の行を下へ移動します</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Stop watching the current row (Delete)</source>
        <translation>現在の行の監視をやめます (Delete)</translation>
    </message>
    <message>
        <source>Watched fields</source>
        <translation>監視中のフィールド</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Stop Watching</source>
        <translation>監視をやめる</translation>
    </message>
    <message>
        <source>No field is named &quot;%1&quot;. A path is FORMAT.MESSAGE.FIELD; * stands for any text.</source>
        <translation>「%1」というフィールドはありません。パスは FORMAT.MESSAGE.FIELD で、* は任意の文字列です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names more than %2 fields; name fewer.</source>
        <translation>「%1」は %2 個を超えるフィールドを指します。絞ってください。</translation>
    </message>
    <message>
        <source>Not described by the loaded definitions</source>
        <translation>読み込まれた定義に記述がありません</translation>
    </message>
    <message>
        <source>Not received yet</source>
        <translation>まだ受信していません</translation>
    </message>
    <message>
        <source>Timed out</source>
        <translation>期限切れ</translation>
    </message>
    <message>
        <source>Absent in the last message</source>
        <translation>最後のメッセージにありません</translation>
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
        <translation>Corvane インスペクター</translation>
    </message>
    <message>
        <source>End of %1</source>
        <translation>%1 の終わり</translation>
    </message>
</context>
</TS>
