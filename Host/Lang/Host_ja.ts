<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>ボタン</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>複数の状態</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>画像とテキスト</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>タブ</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>最後のシグナル</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>まだありません</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>%1 が押されました</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>%1 が (%2, %3) でクリックされました</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>%1 に入りました</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>%1 から出ました</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>アイコン付き</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>チェック済み</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>%1 がクリックされ、%2 を表示中</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>%1 がクリックされました</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>画像が左</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>画像が右</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>オーディオ</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>エフェクト</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>%1 が選択されました</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>右から左へ書く言語用</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>左から右へ書く言語用</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>オープニング</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>夜明けの港</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>インタビュー その1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>市場</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>インタビュー その2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>夜のドライブ</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>ログ %1 を開けません。ログなしで続行します。</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>エンジンがないか、起動しません: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>フォルダー %1 を作成できません。</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>メディアファイルの内容を表示し、それぞれのコンタクトシートを書き出します。</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>結果を保存するフォルダー。</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>ログファイル。既定では結果のフォルダー内の %1。</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>ログも表示します。</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>メディアファイル。</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>メディア…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>メディアファイルが指定されていません。</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>すべてのメディアファイルから成る動画をこのファイルに書き込みます。拡張子でエンコード方法が決まります。</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>動画のエンコードに使うプリセット。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>動画用のプリセットを一覧表示します。</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>画像なし</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>拡大率</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>最後のシグナル</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>ドラッグ開始: %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>ドラッグ終了: %1</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>プリセット「%1」はありません。</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>エンジンにはプリセットがありません。</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>エンコード済み: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 は書き込まれませんでした。理由はログにあります。</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>ルーラー</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>再生ヘッドをドラッグします。ホイールでスクロール、Ctrl を押すとズーム、ダブルクリックで全体を表示します。</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>スライダー</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>ドラッグするか、ホイールまたは矢印キーを使います。</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>ボタンとラベル</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>最後の行に、発したシグナルが表示されます。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>カメラ、スマートフォン、メモリーカードからメディアをコピーします。</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>選択はすぐにすべてのウィンドウに反映されます。</translation>
    </message>
    <message>
        <source>Shows the library&apos;s widgets.</source>
        <translation>ライブラリのウィジェットを表示します。</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>ページ &lt;name&gt; から始めます。</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>ページの名前を一覧表示します。</translation>
    </message>
    <message>
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>ページの画像を &lt;file&gt; に書き出します。</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>%1 を書き込めません</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>ページ %1 はありません</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>値のドラッグ</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>数値をドラッグします。Shift で速く、Ctrl で遅く。クリックで編集します。</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>プレーヤー</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>ファイルを開いて再生します。Kで再生と一時停止、コンマとピリオドで1フレームずつ移動します。</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>CommonLib ウィジェット</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>今後のテキストの言語（例: German）。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>%1 という言語はありません。使用できる言語: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>読み込み先のフォルダー</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>読み込みの進行状況</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>読み込み先</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>デバイスが見つかりません</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>カメラ、スマートフォン、またはカードリーダーを接続し、電源を入れてロックを解除してください。</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>%1 を開いています…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 を開けません</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>デバイスのロックを解除してファイルへのアクセスを許可し、もう一度選択してください。</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 が取り外されました</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>続けるには再接続してください。</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>選択したファイル: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>内容を読み取っています… ファイル: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>名前のないデバイス</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>デバイス上のファイル: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>デバイスが応答しなくなりました。すべてではない可能性があります。</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>このフォルダーには書き込めません。</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>読み込み中… %1/%2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>読み込んだファイル: %1/%2。</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>読み込み中にデバイスが取り外されました。</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>キャンセルされました。</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>読み込めませんでした: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>読み込み後にデバイスから削除</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>このフォルダーの空き容量は %1 だけです。</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>デバイスの内容</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>メディアを読み込む…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>再生ヘッドで分割</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>トランジションを追加</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>プロジェクトを保存</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>言語:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>言語のフォント:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>描画に使うフォント:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>読む方向:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>クリップ:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>サンプル</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>右から左</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>左から右</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln 個のクリップを選択中</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>レベルメーター</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>存在しません</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>フォルダーであり、メディアファイルではありません</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>このユーザーには読み取り権限がありません</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>メディアとして読み取れません</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>映像も音声も含まれていません</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>フレームがありません</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>フレーム %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>画像 %1/%2: フレーム %3、%4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1、デコードできません</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>どの画像もデコードできません</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%2 枚中 %1 枚の画像をデコードできません。ファイルが壊れている可能性があります</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>波形: %1/%2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>音声をデコードできません</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>結果を %1 に書き込めません</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>書き出しました: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>不明なコーデック</translation>
    </message>
    <message>
        <source>video</source>
        <translation>映像</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>%1° 回転</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n チャンネル</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>静止画、%1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>映像</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>映像も音声もありません</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n フレーム</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>ストリーム %1: %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>サンプリングレート: %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>映像</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>何も開かれていません。</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>1フレーム戻る</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>1フレーム進む</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>ループ</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>セーフエリア</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体表示</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>全面表示</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>映像の大きさ</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>直前の1秒: 表示 %1、破棄 %2、遅延 %3、キャッシュ %4、ずれ %5 ms</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 は再生できません。</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>準備完了: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>&quot;LTR&quot; where text runs from left to right, &quot;RTL&quot; where it runs from right to left.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>ScaleUnitSlider</name>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>シークバー</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>別の塗りと溝</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>右から左</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>空の範囲</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>ズームバー</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>左右反転の配置</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>バー</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>別の色</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>縦</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>ルーラー</translation>
    </message>
</context>
</TS>
