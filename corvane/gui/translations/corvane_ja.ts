<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>EventLog</name>
    <message>
        <source>%1 older entries were dropped: the log is full.</source>
        <translation>古い項目 %1 件を削除しました: ログがいっぱいです。</translation>
    </message>
</context>
<context>
    <name>EventLogTableWidget</name>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>なし</translation>
    </message>
</context>
<context>
    <name>FieldValueLabel</name>
    <message>
        <source>N/A</source>
        <translation>なし</translation>
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
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>回数</translation>
    </message>
    <message>
        <source>Current rate/interval</source>
        <translation>現在のレート/間隔</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>欠落</translation>
    </message>
    <message>
        <source>Message statistics for the messages
in the %1 format.</source>
        <translation>%1 形式のメッセージの
統計。</translation>
    </message>
    <message>
        <source>CRC Errors</source>
        <translation>CRC エラー</translation>
    </message>
</context>
<context>
    <name>MessageTreeWidget</name>
    <message>
        <source>&amp;Type</source>
        <translation>型(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Raw Value</source>
        <translation>生の値(&amp;R)</translation>
    </message>
    <message>
        <source>Duplicate column</source>
        <translation>列の重複</translation>
    </message>
    <message>
        <source>Attempt to add to a MessageTreeWidget a column that is already present: %1. Duplicate column was not added.</source>
        <translation>MessageTreeWidget に既にある列を追加しようとしました: %1。重複した列は追加されませんでした。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Raw value</source>
        <translation>生の値</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>型</translation>
    </message>
    <message>
        <source>Custom 1</source>
        <translation>カスタム 1</translation>
    </message>
    <message>
        <source>Custom 2</source>
        <translation>カスタム 2</translation>
    </message>
    <message>
        <source>Custom 3</source>
        <translation>カスタム 3</translation>
    </message>
    <message>
        <source>Custom 4</source>
        <translation>カスタム 4</translation>
    </message>
    <message>
        <source>Custom 5</source>
        <translation>カスタム 5</translation>
    </message>
    <message>
        <source>Custom 6</source>
        <translation>カスタム 6</translation>
    </message>
    <message>
        <source>Custom 7</source>
        <translation>カスタム 7</translation>
    </message>
    <message>
        <source>Custom 8</source>
        <translation>カスタム 8</translation>
    </message>
    <message>
        <source>Custom 9</source>
        <translation>カスタム 9</translation>
    </message>
    <message>
        <source>Custom 10</source>
        <translation>カスタム 10</translation>
    </message>
    <message>
        <source>Column type %1</source>
        <translation>列の種類 %1</translation>
    </message>
</context>
<context>
    <name>MessageTreeWidgetItem</name>
    <message>
        <source>No message type set</source>
        <translation>メッセージ型が設定されていません</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>メッセージ</translation>
    </message>
    <message>
        <source>No message</source>
        <translation>メッセージなし</translation>
    </message>
    <message>
        <source>Hidden data</source>
        <translation>非表示のデータ</translation>
    </message>
    <message>
        <source>Due to confidentiality, the data in this message has been (partly) hidden.</source>
        <translation>機密のため、このメッセージのデータは（一部）非表示になっています。</translation>
    </message>
</context>
<context>
    <name>MessageWidget</name>
    <message>
        <source>No message type set</source>
        <translation>メッセージ型が設定されていません</translation>
    </message>
</context>
<context>
    <name>PathExpressionComboBox</name>
    <message>
        <source>Null path expression set!</source>
        <translation>設定されたパス式が null です！</translation>
    </message>
    <message>
        <source>Null options source path expression set!</source>
        <translation>設定された選択肢のパス式が null です！</translation>
    </message>
    <message>
        <source>No options</source>
        <translation>選択肢なし</translation>
    </message>
</context>
<context>
    <name>PathExpressionLabel</name>
    <message>
        <source>No path expression set!</source>
        <translation>パス式が設定されていません！</translation>
    </message>
</context>
<context>
    <name>PathExpressionLineEdit</name>
    <message>
        <source>No path expression set!</source>
        <translation>パス式が設定されていません！</translation>
    </message>
</context>
<context>
    <name>PathExpressionListWidget</name>
    <message>
        <source>Null options source path expression set!</source>
        <translation>設定された選択肢のパス式が null です！</translation>
    </message>
    <message>
        <source>No options</source>
        <translation>選択肢なし</translation>
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
        <translation>%1 ミリ秒</translation>
    </message>
    <message>
        <source>%1 (unknown)</source>
        <translation>%1（不明）</translation>
    </message>
    <message>
        <source>Number of times the %1
message has been received.</source>
        <translation>メッセージ %1 を
受信した回数。</translation>
    </message>
    <message>
        <source>Most recent regular rate/interval at which the %1
message has been received.</source>
        <translation>メッセージ %1 を受信した
最新の規則的なレート/間隔。</translation>
    </message>
    <message>
        <source>Detected gaps in regular data segments with valid time, if any.</source>
        <translation>時刻が有効で規則的な区間に見つかった欠落（ある場合）。</translation>
    </message>
    <message>
        <source>Rates/Intervals</source>
        <translation>レート/間隔</translation>
    </message>
    <message>
        <source>The rates/intervals in which this message has been received,
together with the corresponding count.</source>
        <translation>このメッセージを受信したレート/間隔と
それぞれの回数。</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>%1 (%2 epochs)</source>
        <translation>%1（%2 エポック）</translation>
    </message>
    <message>
        <source>No time</source>
        <translation>時刻なし</translation>
    </message>
    <message>
        <source>The number of times this message 
has been received without a valid time tag.</source>
        <translation>このメッセージを有効な時刻なしで
受信した回数。</translation>
    </message>
    <message>
        <source>Unknown interval/rate</source>
        <translation>間隔/レート不明</translation>
    </message>
    <message>
        <source>Number of times this message has been received 
with a valid time tag but for which the interval 
could not be determined: 
there was no previous message with valid time, 
and the following messages did not 
come in at a regular rate.</source>
        <translation>このメッセージを有効な時刻つきで受信したものの、
間隔を決められなかった回数:
有効な時刻を持つ以前のメッセージがなく、
以降のメッセージも規則的なレートで
届きませんでした。</translation>
    </message>
    <message>
        <source>Number of times the message was received at %1.</source>
        <translation>メッセージを %1 で受信した回数。</translation>
    </message>
    <message>
        <source>Number of times the messages was received
with the same time stamp as previous.</source>
        <translation>メッセージを直前と同じタイムスタンプで
受信した回数。</translation>
    </message>
    <message>
        <source>Gaps, with time and duration</source>
        <translation>欠落とその時刻および長さ</translation>
    </message>
    <message>
        <source>Gaps (incomplete list)</source>
        <translation>欠落（一覧は不完全）</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>欠落</translation>
    </message>
    <message>
        <source>Gaps start</source>
        <translation>欠落の開始</translation>
    </message>
    <message>
        <source>Missing epochs</source>
        <translation>欠けているエポック</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>列 %1</translation>
    </message>
    <message>
        <source>No field set</source>
        <translation>フィールドが設定されていません</translation>
    </message>
    <message>
        <source>No values for optional field</source>
        <translation>省略可能なフィールドに値がありません</translation>
    </message>
    <message>
        <source>submessage</source>
        <translation>サブメッセージ</translation>
    </message>
    <message>
        <source>repeated value</source>
        <translation>繰り返しの値</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%2 %1 個</translation>
    </message>
    <message>
        <source>%1 %2s</source>
        <translation>%2 %1 個</translation>
    </message>
    <message>
        <source> [%1]</source>
        <translation> [%1]</translation>
    </message>
    <message>
        <source>Optional submessage not present</source>
        <translation>省略可能なサブメッセージがありません</translation>
    </message>
    <message>
        <source>No value for optional field</source>
        <translation>省略可能なフィールドに値がありません</translation>
    </message>
    <message>
        <source>string</source>
        <translation>文字列</translation>
    </message>
</context>
<context>
    <name>corvane::BoundSocket</name>
    <message>
        <source>Cannot receive at %1: </source>
        <translation>%1 で受信できません: </translation>
    </message>
    <message>
        <source>another program already uses this port. End it, or choose another port.</source>
        <translation>別のプログラムがこのポートを使用しています。そのプログラムを終了するか、別のポートを選んでください。</translation>
    </message>
    <message>
        <source>no permission. Choose a port above 1023.</source>
        <translation>権限がありません。1023 より大きいポートを選んでください。</translation>
    </message>
    <message>
        <source>this machine does not have this address. Leave it empty to mean all.</source>
        <translation>このコンピューターにはこのアドレスがありません。空にするとすべてを意味します。</translation>
    </message>
</context>
<context>
    <name>corvane::EventGatherer</name>
    <message>
        <source>Unknown messages of various ids</source>
        <translation>さまざまな ID の未知のメッセージ</translation>
    </message>
    <message>
        <source>CRC errors of various messages</source>
        <translation>さまざまなメッセージの CRC エラー</translation>
    </message>
    <message>
        <source>Messages of various senders lost</source>
        <translation>さまざまな送信元のメッセージの消失</translation>
    </message>
    <message>
        <source>Various events</source>
        <translation>さまざまなイベント</translation>
    </message>
    <message>
        <source>%1: %2 more in the same second</source>
        <translation>%1: 同じ秒にさらに %2 件</translation>
    </message>
</context>
<context>
    <name>corvane::FdSource</name>
    <message>
        <source>Cannot read %1: it is a folder. Name a file.</source>
        <translation>%1 を読めません: フォルダーです。ファイルを指定してください。</translation>
    </message>
    <message>
        <source>Cannot read %1: %2.</source>
        <translation>%1 を読めません: %2。</translation>
    </message>
    <message>
        <source>Reading %1 failed: %2.</source>
        <translation>%1 の読み取りに失敗しました: %2。</translation>
    </message>
    <message>
        <source>%1 has become shorter, so it is another recording now. Open it again.</source>
        <translation>%1 が短くなったため、別の記録になっています。開き直してください。</translation>
    </message>
</context>
<context>
    <name>corvane::FileIndex</name>
    <message>
        <source>Cannot index %1: %2.</source>
        <translation>%1 の索引を作成できません: %2。</translation>
    </message>
</context>
<context>
    <name>corvane::FileSource</name>
    <message>
        <source>Cannot open &quot;%1&quot;: </source>
        <translation>「%1」を開けません: </translation>
    </message>
    <message>
        <source>there is no such file. Check the path.</source>
        <translation>そのようなファイルはありません。パスを確認してください。</translation>
    </message>
    <message>
        <source>it is a folder. Name a file in it.</source>
        <translation>フォルダーです。その中のファイルを指定してください。</translation>
    </message>
    <message>
        <source>no permission to read it. Change its permissions or its owner.</source>
        <translation>読み取り権限がありません。権限または所有者を変更してください。</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkDecoder</name>
    <message>
        <source>checksum %1 received, %2 computed</source>
        <translation>チェックサム %1 を受信、計算値は %2</translation>
    </message>
    <message>
        <source>; it fits the payload extended with zeros to %1 bytes, so a relay has cut the zeros after the checksum was made</source>
        <translation>。%1 バイトまで零で延長したペイロードに一致するため、チェックサム作成後に中継が零を切り捨てています</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkDefinitionReader</name>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>ファイル「%1」は存在しません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; includes itself, directly or through others.</source>
        <translation>「%1」は直接または他のファイル経由で自分自身を取り込んでいます。</translation>
    </message>
    <message>
        <source>More than %1 files are included.</source>
        <translation>%1 個を超えるファイルが取り込まれています。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file.</source>
        <translation>「%1」はファイルではありません。</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2.</source>
        <translation>「%1」を読めません: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is larger than a definition file can be (32 MiB).</source>
        <translation>「%1」は定義ファイルの上限（32 MiB）を超えています。</translation>
    </message>
    <message>
        <source>The included files are larger than 64 MiB in all.</source>
        <translation>取り込まれたファイルの合計が 64 MiB を超えています。</translation>
    </message>
    <message>
        <source>A MAVLink definition file begins with &lt;mavlink&gt;, not with &lt;%1&gt;.</source>
        <translation>MAVLink 定義ファイルは &lt;%1&gt; ではなく &lt;mavlink&gt; で始まります。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be included: name a file in this file&apos;s folder.</source>
        <translation>「%1」を取り込めません: このファイルと同じフォルダーのファイルを指定してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for an enum: use letters, digits and underscores.</source>
        <translation>「%1」は列挙型の名前にできません: 英字、数字、下線を使ってください。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; of %2 needs a name of letters, digits and underscores and a whole number as its value, not &quot;%3&quot;.</source>
        <translation>%2 の項目「%1」には、英字、数字、下線からなる名前と、「%3」ではなく整数の値が必要です。</translation>
    </message>
    <message>
        <source>There are more than %1 enum entries.</source>
        <translation>列挙型の項目が %1 個を超えています。</translation>
    </message>
    <message>
        <source>%1 = %2 of %3 is passed over: the name or the value is taken.</source>
        <translation>%3 の %1 = %2 は無視されます: 名前または値が使用済みです。</translation>
    </message>
    <message>
        <source>The message &quot;%1&quot; needs a name of letters, digits and underscores and an id from 0 to 16777215, not &quot;%2&quot;.</source>
        <translation>メッセージ「%1」には、英字、数字、下線からなる名前と、「%2」ではなく 0 から 16777215 の ID が必要です。</translation>
    </message>
    <message>
        <source>There are more than %1 messages, or more than %2 fields and bits of fields.</source>
        <translation>メッセージが %1 個を超えているか、フィールドとそのビットが %2 個を超えています。</translation>
    </message>
    <message>
        <source>The message %1 with id %2 is there already: %3 with id %4, line %5 of %6.</source>
        <translation>ID %2 のメッセージ %1 は既にあります: %3、ID %4、%6 の %5 行目。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name for a field: use letters, digits and underscores.</source>
        <translation>「%1」はフィールドの名前にできません: 英字、数字、下線を使ってください。</translation>
    </message>
    <message>
        <source>%1 has two fields named %2.</source>
        <translation>%1 には %2 という名前のフィールドが二つあります。</translation>
    </message>
    <message>
        <source>The field %1 has the unknown type &quot;%2&quot;. Known are int8_t to int64_t, uint8_t to uint64_t, float, double and char, each also with a length from 1 to 255 in brackets.</source>
        <translation>フィールド %1 の型「%2」は未知です。使えるのは int8_t から int64_t、uint8_t から uint64_t、float、double、char で、それぞれ角括弧に 1 から 255 の長さを付けられます。</translation>
    </message>
    <message>
        <source>The fields of %1 take more than the %2 bytes that a frame has room for.</source>
        <translation>%1 のフィールドはフレームに入る %2 バイトを超えています。</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>要素の入れ子が深すぎます。</translation>
    </message>
</context>
<context>
    <name>corvane::MavlinkFormat</name>
    <message>
        <source>The message %1 with id %2 contradicts %3 with id %4, which is loaded already.</source>
        <translation>ID %2 のメッセージ %1 は、読み込み済みの ID %4 の %3 と矛盾します。</translation>
    </message>
</context>
<context>
    <name>corvane::McapDecoder</name>
    <message>
        <source>%1 bytes of channel %2, at offset %3 of the file, are no message of type %4.</source>
        <translation>ファイルの位置 %3 にあるチャンネル %2 の %1 バイトは、型 %4 のメッセージではありません。</translation>
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
        <translation>読めません: %1。</translation>
    </message>
    <message>
        <source>This is no MCAP file, or one of another version.</source>
        <translation>MCAP ファイルではないか、別のバージョンのものです。</translation>
    </message>
    <message>
        <source>The file contains no channels.</source>
        <translation>ファイルにチャンネルがありません。</translation>
    </message>
</context>
<context>
    <name>corvane::McapFormat</name>
    <message>
        <source>Only one MCAP file can be loaded.</source>
        <translation>読み込める MCAP ファイルは一つだけです。</translation>
    </message>
    <message>
        <source>None of the channels has messages of Protocol Buffers.</source>
        <translation>Protocol Buffers のメッセージを持つチャンネルがありません。</translation>
    </message>
    <message>
        <source>schema %1</source>
        <translation>スキーマ %1</translation>
    </message>
    <message>
        <source>The schema %1 does not define the message type of that name.</source>
        <translation>スキーマ %1 はその名前のメッセージ型を定義していません。</translation>
    </message>
    <message>
        <source>The message type %1 has too many parts to be shown.</source>
        <translation>メッセージ型 %1 は部分が多すぎて表示できません。</translation>
    </message>
    <message>
        <source>channel %1</source>
        <translation>チャンネル %1</translation>
    </message>
</context>
<context>
    <name>corvane::McapReader</name>
    <message>
        <source>A chunk is compressed with &quot;%1&quot;, which is not known.</source>
        <translation>チャンクが未知の方式「%1」で圧縮されています。</translation>
    </message>
    <message>
        <source>A chunk cannot be decompressed.</source>
        <translation>チャンクを展開できません。</translation>
    </message>
    <message>
        <source>A chunk holds more than the %1 bytes it tells of.</source>
        <translation>チャンクの内容が、示された %1 バイトより多くあります。</translation>
    </message>
    <message>
        <source>A chunk holds less than the %1 bytes it tells of.</source>
        <translation>チャンクの内容が、示された %1 バイトより少なくあります。</translation>
    </message>
    <message>
        <source>The checksum of a chunk is wrong.</source>
        <translation>チャンクのチェックサムが正しくありません。</translation>
    </message>
    <message>
        <source>This is no MCAP file, or one of another version.</source>
        <translation>MCAP ファイルではないか、別のバージョンのものです。</translation>
    </message>
    <message>
        <source>The mark at the end of the file is wrong.</source>
        <translation>ファイル末尾の印が正しくありません。</translation>
    </message>
    <message>
        <source>There is no record where one must be.</source>
        <translation>レコードが必要な場所にレコードがありません。</translation>
    </message>
    <message>
        <source>A record of %1 bytes is larger than the %2 that are allowed.</source>
        <translation>%1 バイトのレコードは、許される %2 バイトを超えています。</translation>
    </message>
    <message>
        <source>The records of a chunk do not end where the chunk does.</source>
        <translation>チャンクのレコードの終わりがチャンクの終わりと一致しません。</translation>
    </message>
    <message>
        <source>There is a chunk inside a chunk.</source>
        <translation>チャンクの中にチャンクがあります。</translation>
    </message>
    <message>
        <source>There are bytes behind the end of the file.</source>
        <translation>ファイルの終わりの後にバイトがあります。</translation>
    </message>
    <message>
        <source>The file is cut off here.</source>
        <translation>ファイルがここで切れています。</translation>
    </message>
    <message>
        <source>A schema is incomplete.</source>
        <translation>スキーマが不完全です。</translation>
    </message>
    <message>
        <source>Schema %1 is not the one that had this number before.</source>
        <translation>スキーマ %1 は、以前この番号だったものと異なります。</translation>
    </message>
    <message>
        <source>There are more or larger schemas than are allowed.</source>
        <translation>スキーマの数または大きさが許容範囲を超えています。</translation>
    </message>
    <message>
        <source>A channel is incomplete.</source>
        <translation>チャンネルが不完全です。</translation>
    </message>
    <message>
        <source>Channel %1 is not the one that had this number before.</source>
        <translation>チャンネル %1 は、以前この番号だったものと異なります。</translation>
    </message>
    <message>
        <source>Channel %1 names schema %2, which the file does not contain.</source>
        <translation>チャンネル %1 が指すスキーマ %2 はファイルにありません。</translation>
    </message>
    <message>
        <source>There are more channels than are allowed.</source>
        <translation>チャンネルの数が許容範囲を超えています。</translation>
    </message>
    <message>
        <source>A message is incomplete.</source>
        <translation>メッセージが不完全です。</translation>
    </message>
    <message>
        <source>A message names channel %1, which the file does not contain.</source>
        <translation>メッセージが指すチャンネル %1 はファイルにありません。</translation>
    </message>
    <message>
        <source>A chunk is incomplete.</source>
        <translation>チャンクが不完全です。</translation>
    </message>
    <message>
        <source>A chunk tells of %1 bytes, more than the %2 that are allowed.</source>
        <translation>チャンクが示す %1 バイトは、許される %2 バイトを超えています。</translation>
    </message>
</context>
<context>
    <name>corvane::ProcessSource</name>
    <message>
        <source>Cannot start &quot;%1&quot;: %2.</source>
        <translation>「%1」を起動できません: %2。</translation>
    </message>
    <message>
        <source>Reading from &quot;%1&quot; failed: %2.</source>
        <translation>「%1」からの読み取りに失敗しました: %2。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ended with exit code %2.</source>
        <translation>「%1」は終了コード %2 で終了しました。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was ended by signal %2.</source>
        <translation>「%1」はシグナル %2 で終了させられました。</translation>
    </message>
    <message>
        <source>It said last:</source>
        <translation>最後の出力:</translation>
    </message>
</context>
<context>
    <name>corvane::ProtobufDecoder</name>
    <message>
        <source>no definitions are loaded</source>
        <translation>定義が読み込まれていません</translation>
    </message>
    <message>
        <source>they should be the length of a message and are none</source>
        <translation>メッセージの長さであるはずですが、そうではありません</translation>
    </message>
    <message>
        <source>the stream ends inside of a message</source>
        <translation>ストリームがメッセージの途中で終わっています</translation>
    </message>
    <message>
        <source>the message would take more than %1 bytes of memory</source>
        <translation>メッセージが %1 バイトを超えるメモリーを必要とします</translation>
    </message>
    <message>
        <source>they are no message of type %1</source>
        <translation>型 %1 のメッセージではありません</translation>
    </message>
    <message>
        <source>The message at offset %1 would be %2 bytes long, more than %3; it is passed over. Is the framing right?</source>
        <translation>位置 %1 のメッセージは %2 バイトとなり、%3 を超えるため、読み飛ばします。フレーミングは正しいですか？</translation>
    </message>
</context>
<context>
    <name>corvane::ProtobufFormat</name>
    <message>
        <source>Definitions are loaded already.</source>
        <translation>定義は既に読み込まれています。</translation>
    </message>
    <message>
        <source>The message type %1 has too many parts to be shown.</source>
        <translation>メッセージ型 %1 は部分が多すぎて表示できません。</translation>
    </message>
    <message>
        <source>Which message type does the stream consist of? Name it with --root, such as one of: %1.</source>
        <translation>ストリームはどのメッセージ型からなりますか？ --root で指定してください。例: %1。</translation>
    </message>
    <message>
        <source>There is no message type %1; expected &quot;package.Type&quot;, such as one of: %2.</source>
        <translation>メッセージ型 %1 はありません。「package.Type」の形で、例えば次のいずれかを指定してください: %2。</translation>
    </message>
    <message>
        <source>stream</source>
        <translation>ストリーム</translation>
    </message>
</context>
<context>
    <name>corvane::Reception</name>
    <message>
        <source>Unknown message: %1</source>
        <translation>未知のメッセージ: %1</translation>
    </message>
    <message>
        <source>%1. Load the definitions that describe this id.</source>
        <translation>%1。この ID を記述する定義を読み込んでください。</translation>
    </message>
    <message>
        <source>CRC error: %1</source>
        <translation>CRC エラー: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 bytes from offset %2 belong to no frame.</source>
        <translation>位置 %2 からの %1 バイトはどのフレームにも属しません。</translation>
    </message>
    <message>
        <source>Bytes that belong to no frame</source>
        <translation>どのフレームにも属さないバイト</translation>
    </message>
    <message>
        <source>%1 bytes from offset %2 are lost: %3.</source>
        <translation>位置 %2 からの %1 バイトが失われました: %3。</translation>
    </message>
    <message>
        <source>Bytes lost: %1</source>
        <translation>失われたバイト: %1</translation>
    </message>
    <message>
        <source>Sender %1: %2 messages lost before sequence number %3.</source>
        <translation>送信元 %1: 連番 %3 の前に %2 件のメッセージが失われました。</translation>
    </message>
    <message>
        <source>Sender %1: messages lost</source>
        <translation>送信元 %1: メッセージの消失</translation>
    </message>
    <message>
        <source>id %1</source>
        <translation>ID %1</translation>
    </message>
    <message>
        <source>%1 from sender %2</source>
        <translation>%1、送信元 %2</translation>
    </message>
</context>
<context>
    <name>corvane::Reconnector</name>
    <message>
        <source>Connection lost, trying again in %1 s</source>
        <translation>接続が切れました。%1 秒後に再試行します</translation>
    </message>
    <message>
        <source>%1 Trying again in %2 s.</source>
        <translation>%1 %2 秒後に再試行します。</translation>
    </message>
</context>
<context>
    <name>corvane::Recorder</name>
    <message>
        <source>there is no such folder. Choose another one.</source>
        <translation>そのようなフォルダーはありません。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>it is a folder. Name a file in it.</source>
        <translation>フォルダーです。その中のファイルを指定してください。</translation>
    </message>
    <message>
        <source>no permission to write there. Choose another folder.</source>
        <translation>そこに書き込む権限がありません。別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>it is no file. Choose another name.</source>
        <translation>ファイルではありません。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>Cannot record to &quot;%1&quot;: %2</source>
        <translation>「%1」に記録できません: %2</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>ディスクがいっぱいです</translation>
    </message>
    <message>
        <source>the disk is slower than the stream</source>
        <translation>ディスクがストリームより遅いです</translation>
    </message>
    <message>
        <source>Recording to &quot;%1&quot; has stopped: %2. The first %3 bytes were kept; watching goes on.</source>
        <translation>「%1」への記録が止まりました: %2。最初の %3 バイトは保存されました。監視は続きます。</translation>
    </message>
</context>
<context>
    <name>corvane::SerialSource</name>
    <message>
        <source>Reading %1 failed: the device is gone. Plug it in, and open it again.</source>
        <translation>%1 の読み取りに失敗しました: 機器が外れました。接続して開き直してください。</translation>
    </message>
    <message>
        <source>Cannot open %1: </source>
        <translation>%1 を開けません: </translation>
    </message>
    <message>
        <source>there is no such device. Check the name, and whether it is plugged in.</source>
        <translation>そのような機器はありません。名前と接続を確認してください。</translation>
    </message>
    <message>
        <source>no permission, or in use by another program. End that program, or become a member of the group that owns the device (often &quot;dialout&quot;).</source>
        <translation>権限がないか、別のプログラムが使用しています。そのプログラムを終了するか、機器を所有するグループ（多くは「dialout」）に加わってください。</translation>
    </message>
</context>
<context>
    <name>corvane::SourceAddress</name>
    <message>
        <source> Expected %1.</source>
        <translation> 期待されるのは %1 です。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no source: %2.</source>
        <translation>「%1」は入力元ではありません: %2。</translation>
    </message>
    <message>
        <source>it is empty; expected a file, or - for standard input</source>
        <translation>空です。ファイル、または標準入力を表す - が必要です</translation>
    </message>
    <message>
        <source>the scheme &quot;%1&quot; is unknown; known are tcp://, tcp-listen://, udp://, serial: and exec:</source>
        <translation>スキーム「%1」は未知です。使えるのは tcp://、tcp-listen://、udp://、serial:、exec: です</translation>
    </message>
    <message>
        <source>&quot;//&quot; is missing after &quot;%1:&quot;</source>
        <translation>「%1:」の後に「//」がありません</translation>
    </message>
    <message>
        <source>the port is missing</source>
        <translation>ポートがありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; in brackets is no IPv6 address</source>
        <translation>角括弧内の「%1」は IPv6 アドレスではありません</translation>
    </message>
    <message>
        <source>an IPv6 address is written in brackets, such as [::1]</source>
        <translation>IPv6 アドレスは [::1] のように角括弧に入れます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no name of a host</source>
        <translation>「%1」はホスト名ではありません</translation>
    </message>
    <message>
        <source>the host is missing</source>
        <translation>ホストがありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no IPv4 address of this machine</source>
        <translation>「%1」はこのコンピューターの IPv4 アドレスではありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no port, which is a number from %2 to %3</source>
        <translation>「%1」はポートではありません。ポートは %2 から %3 の数です</translation>
    </message>
    <message>
        <source>the device is missing</source>
        <translation>機器がありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is unknown after the question mark</source>
        <translation>疑問符の後の「%1」は未知です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no baud rate, which is a number such as 57600 or 115200</source>
        <translation>「%1」はボーレートではありません。57600 や 115200 のような数です</translation>
    </message>
    <message>
        <source>the command is missing</source>
        <translation>コマンドがありません</translation>
    </message>
</context>
<context>
    <name>corvane::StdinSource</name>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>Cannot read standard input: it is closed. Redirect a file or a pipe to it.</source>
        <translation>標準入力を読めません: 閉じられています。ファイルまたはパイプをリダイレクトしてください。</translation>
    </message>
</context>
<context>
    <name>corvane::StreamPump</name>
    <message>
        <source>There is not enough memory to read on; what was read before stays.</source>
        <translation>読み続けるためのメモリーが足りません。それまでに読んだものは残ります。</translation>
    </message>
</context>
<context>
    <name>corvane::TcpClientSource</name>
    <message>
        <source>The connection to %1 broke: %2.</source>
        <translation>%1 との接続が切れました: %2。</translation>
    </message>
    <message>
        <source>Cannot connect to %1: </source>
        <translation>%1 に接続できません: </translation>
    </message>
    <message>
        <source>nobody listens there. Start the sender first, or check address and port.</source>
        <translation>そこで待ち受けているものがありません。先に送信側を起動するか、アドレスとポートを確認してください。</translation>
    </message>
    <message>
        <source>there is no machine of this name. Check the name.</source>
        <translation>この名前のコンピューターはありません。名前を確認してください。</translation>
    </message>
    <message>
        <source>no answer. Check the address, and whether a firewall is in the way.</source>
        <translation>応答がありません。アドレスと、ファイアウォールが妨げていないかを確認してください。</translation>
    </message>
</context>
<context>
    <name>corvane::TcpListenerSource</name>
    <message>
        <source>Cannot accept connections at %1: %2.</source>
        <translation>%1 で接続を受け付けられません: %2。</translation>
    </message>
</context>
<context>
    <name>corvane::UdpSource</name>
    <message>
        <source>Receiving at %1 failed: %2.</source>
        <translation>%1 での受信に失敗しました: %2。</translation>
    </message>
</context>
</TS>
