<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>製品: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>ライブラリの機能を示す小さなエディターです。</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>ファイル…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>フォルダー…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>デバイスから…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>再生ヘッドに配置</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>インポイントを設定</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>アウトポイントを設定</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>インポイントとアウトポイントを消去</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>プロキシを作成</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>プロキシの作成をキャンセル</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>プロキシを使用</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>場所を指定…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>フォルダー内でオフラインのメディアを検索…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>未使用をすべて削除</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>メディアを追加</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>デバイスから読み込む</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>どのファイルも見つかりませんでした。</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>見つかったファイルを読み取れません。</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>%n 個のファイルが見つかりました。</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>%1 はどこにありますか？</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>メディアのあるフォルダー</translation>
    </message>
</context>
<context>
    <name>BinDelegate</name>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
</context>
<context>
    <name>BinModel</name>
    <message>
        <source>in %1, out %2</source>
        <translation>イン %1、アウト %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>プロキシ: %1%</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>プロキシ: 使用中</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>プロキシ: 未使用</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み取り中…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>オフライン</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>タイムライン上のクリップ: %n 個</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>タイムラインで未使用</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>メディアを検索</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>グリッド</translation>
    </message>
    <message>
        <source>List</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>追加…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>メディアをここにドロップするか、ファイルやフォルダーを追加してください。</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>見つかりませんでした</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n 個のファイルを選択中</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>%n 個のファイルを読み取り中…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 はメディアとして読み取れません。</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 とほか %n 個のファイルはメディアとして読み取れません。</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>%1 のプロキシを作成できません: %2</translation>
    </message>
</context>
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
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>トランジションを追加</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>タイトルを追加</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>速度を変更</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>エフェクトを追加</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>エフェクトを削除</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>エフェクトを移動</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>エフェクトのオン/オフ</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>トランジションを変更</translation>
    </message>
</context>
<context>
    <name>ClipFields</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>フィット方法</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>映像全体</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>フレーム全面</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>引き伸ばし</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>等倍</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> フレーム</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>ノイズ除去</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>中心 X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>中心 Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>通常</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>乗算</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>スクリーン</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>オーバーレイ</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>比較（暗）</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>比較（明）</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>加算</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差の絶対値</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>覆い焼きカラー</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>焼き込みカラー</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>ハードライト</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>ソフトライト</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>バランス</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>ピッチ</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>フェードイン</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>フェードアウト</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>モノラル</translation>
    </message>
    <message>
        <source> st</source>
        <translation> 半音</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>カラー</translation>
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
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>小さなエディターです。</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>ウィンドウの画像を &lt;file&gt; に書き出します。</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>開くプロジェクトと、ビンに入れるメディア。</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>エンジンがありません。</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>メディアから短い動画を自動で作り、画像、動画、レポートを &lt;フォルダー&gt; に書き出します。</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>タイムライン</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>インポイントからアウトポイントまでをリフト</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>リフト</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>インポイントからアウトポイントまでを抽出</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>抽出</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>メディア(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>タイムライン(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>ファイルに関する注意が %n 件、ログにあります</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>先にインポイントとアウトポイントを設定してください。</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>復旧</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>エディターが予期せず終了しました。%2 までの %1 の変更を開くことができます。</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>動画を書き出しています。中止しますか？</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>プレビューをレンダリング／停止</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>%1 に書き込めません。</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>ライトスタイル</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>エフェクトを追加</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>映像</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>先に適用</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>後に適用</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>この組み合わせは使えません</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>そのようなプリセットはありません。</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>プロセッサーがエンコードとデコードを行います。</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>プロセッサーがエンコードし、グラフィックスハードウェアがデコードを補助します。</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>キューに追加</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>film</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>ファイルを選択</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>プロジェクトと同じ</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>インからアウトまで</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>インポイント</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>アウトポイント</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>ハードウェア</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>静止画…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>再生ヘッド位置のフレームを書き出します</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>プロジェクトをコピーできません。</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>静止画</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/フレーム %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>画像 (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 はすでに待ち行列にあります。</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 はすでに存在します。置き換えますか？</translation>
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
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 は書き込まれませんでした</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>動画はまだありません</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>書き出し中</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>書き出しました</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>リストから除く</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>最近使ったものを開く</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>変更を保存</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>プロジェクトに保存されていない変更があります。</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>ファイルなし</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>ファイルを選択</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>システムフォント</translation>
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
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>ページ &lt;name&gt; から始めます。</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>ページの名前を一覧表示します。</translation>
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
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>別のウィンドウがデバイスを開いています。そのウィンドウを閉じてから、このデバイスをもう一度選択してください。</translation>
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
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>前のキーフレーム</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>キーフレーム</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>次のキーフレーム</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>ホールド</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>リニア</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>スムーズ</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>次のキーフレームまで</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>言語</translation>
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
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>トラック %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隠す</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>ソロ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
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
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>メディアを追加</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>メディアを削除</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>メディアを再リンク</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>元のメディアを使用</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>プロキシを使用</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>インポイントとアウトポイントを設定</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>インポイントとアウトポイントを消去</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>クリップを配置</translation>
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
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>右への移動</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>上への移動</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>幅の倍率</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>高さの倍率</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>不透明度の倍率</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>モーション</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>キーフレーム</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>モーションを変更</translation>
    </message>
</context>
<context>
    <name>ParameterFields</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> フレーム</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source> K</source>
        <translation> K</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
</context>
<context>
    <name>PictureHandles</name>
    <message>
        <source>Place picture</source>
        <translation>画像を配置</translation>
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
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>再生または一時停止</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>逆再生</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>順方向に再生</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>ループ</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>1フレーム戻る</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>1フレーム進む</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>先頭へ移動</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>末尾へ移動</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>インポイントを設定</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>アウトポイントを設定</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>インポイントとアウトポイントを消去</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>インポイントへ移動</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>アウトポイントへ移動</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>マーカーを設定または削除</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>セーフエリア</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>映像を全画面表示</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>再生ヘッドのタイムコード</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>再生ヘッド</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>プロジェクトを作成できません</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 を開けません</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>%1 を保存できません</translation>
    </message>
</context>
<context>
    <name>ProjectFields</name>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>プレビュー倍率</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>サンプルレート</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>カラービット数</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>滑らかな拡縮</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>バランス</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>ソロ</translation>
    </message>
</context>
<context>
    <name>PropertiesPanel</name>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>プロジェクト</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>クリップ</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>フォーマット</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>描画</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>エフェクト</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>タイトルを追加</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>ミキサー、トラック %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>トランジション</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>ブレンド</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>モーション</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>トランジション</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>パラメーター</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>初期値に戻す</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1を変更</translation>
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
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
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
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>初期値に戻す</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>フレームを描画できません</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 は書き込まれませんでした: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>コンポジット</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>スナップ</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>トリム</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>スリップ</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>スライド</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>挿入して貼り付け</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>リップル削除</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>再生ヘッドで分割</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>先頭を再生ヘッドまでトリム</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>末尾を再生ヘッドまでトリム</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>再生ヘッド位置のギャップを閉じる</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ化</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>グループ解除</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>トラックをロックまたはロック解除</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>再生ヘッド位置を選択</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>選択を解除</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>1フレーム前に移動</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>1フレーム後に移動</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>1秒前に移動</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>1秒後に移動</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>上のトラックへ移動</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>下のトラックへ移動</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>前の編集点</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>次の編集点</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>選択ツール</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>リップルツール</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>ロールツール</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>スリップツール</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>スライドツール</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>カミソリツール</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>ウィンドウに合わせる</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>トラックを高くする</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>トラックを低くする</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>リップルトリム</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>トラックを隠すまたは表示</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>トラックをミュートまたは解除</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>トラックのソロを切り替え</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ化</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>グループ解除</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>移動</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>リップル削除</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>挿入して貼り付け</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>ギャップを閉じる</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>トラックをロック</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>トラックのロックを解除</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>トラック名を変更</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>タイムライン</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>再生ヘッド</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>クリップ</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1、トラック %2、フレーム %3～%4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>ルーラー</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>メディアを挿入</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>メディアを追加</translation>
    </message>
</context>
<context>
    <name>TransitionForm</name>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>先頭に</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>末尾に</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>マーカーを削除</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>マーカーを設定</translation>
    </message>
</context>
</TS>
