<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>非圧縮 4:2:2 10ビット</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>MPEGトランスポートストリーム</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>MPEGプログラムストリーム</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>アニメーションGIF</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>PNG連番</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>TIFF連番</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>JPEG連番</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>MPEG-4オーディオ</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Oggオーディオ</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Windows Mediaオーディオ</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264（アーカイブ用）</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264（ストリーミング用）</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264ロスレス</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 10ビット</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9（アルファ付き）</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>TIFF連番 16ビット</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2インターレース</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV 24ビット</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>エラーなし</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗しました</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>必要なものが指定されていません</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>受け付けられない値です</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>範囲外です</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>この名前のものはありません</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>この番号のものはありません</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>現在は実行できません</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>対応していません</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>メモリが不足しています</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>変更できない値です</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>そのような値はありません</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>表示または書き出しできるものがありません</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>このオブジェクトはそこでは使えません</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>ファイルが存在しません</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>ファイルを読み取れません</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>ファイルが壊れているか、不明な形式です</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>ファイルまたはフォルダーに書き込めません</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>ディスクがいっぱいです</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>この名前の書き出し形式はありません</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>この形式ではこれらの設定を使えません</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>露光量</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>黒レベル</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>コントラスト</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>ピボット</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>色温度</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>色かぶり補正</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>トーンカーブ</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>マスター</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>ルックアップテーブル（LUT）</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>適用量</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>クロマキー</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>許容量</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>境界のぼかし</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>スピル除去</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>クロップ</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>ビネット</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>中心（横）</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>中心（縦）</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>周波数</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>レゾナンス</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>目標ラウドネス</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>最大トゥルーピーク</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>測定ラウドネス</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>測定ラウドネスレンジ</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>測定トゥルーピーク</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>アタック</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>リリース</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>スレッショルド</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>コンプレッサー</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>レシオ</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>メイクアップゲイン</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>リミッター</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>リミット</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>ノイズゲート</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>減衰量</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>リバーブ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>残響時間</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>初期反射</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>ミックス</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>エコー</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>ディレイ</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>繰り返し回数</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>ハイパス</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>ローパス</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>ディエッサー</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>深さ</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>ラウドネス正規化</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>ブラー</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>シャープ</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>ミラー</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>ノイズ除去</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>強さ</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>ドロップシャドウ</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>オフセット（横）</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>オフセット（縦）</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>太字</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>斜体</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>文字間隔</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>行間</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>左から右</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>右から左</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>縦の位置</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>右への移動</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>下への移動</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>行の最大長</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>余白</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>縁取り</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>縁取りの色</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>影の色</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>影の右方向</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>影の下方向</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>影のぼかし</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>背景ボックスの色</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>背景ボックスの余白</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>背景ボックスの角丸</translation>
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
        <source>Roll</source>
        <translation>ロール</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>左へ</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>右へ</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音声クロスフェード</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>リニア</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>等パワー</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>フェードなし</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>反転</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>右下へ</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>左下へ</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>右上へ</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>左上へ</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>ディゾルブ</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>カラーディップ</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>ワイプ</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>円形ワイプ</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>ひし形ワイプ</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>時計ワイプ</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>バーンドア</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>プッシュ</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>スライド</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>エフェクトが省かれました</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>トランジションが省かれました</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>不明な種類のクリップは空の映像で表示されます</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>逆再生のクリップは順方向で再生されます</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>速度の変更が省かれたか、近似になっています</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>ファイルがないため、クリップはオフラインです</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>ドキュメントの一部を使用できません</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>マーカーはテキストとしてのみ保持されます</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>音量、バランス、または不透明度が近似になっています</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>デバイスが存在しません</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>トラックがロックされています</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>クリップが重なってしまいます</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>クリップにこれ以上の素材がありません</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>クリップが何も残らなくなります</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>トランジションは分割できません</translation>
    </message>
</context>
</TS>
