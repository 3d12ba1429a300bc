<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
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
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>画像なし</translation>
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
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n 個のクリップを選択中</numerusform>
        </translation>
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
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>&quot;LTR&quot; where text runs from left to right, &quot;RTL&quot; where it runs from right to left.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
