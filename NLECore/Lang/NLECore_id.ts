<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>Tanpa kompresi 4:2:2, 10 bit</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>Aliran transpor MPEG</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>Aliran program MPEG</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>GIF animasi</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>Urutan PNG</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>Urutan TIFF</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>Urutan JPEG</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>Audio MPEG-4</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>Audio Ogg</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>Audio Windows Media</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 untuk arsip</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 untuk streaming</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 tanpa kehilangan</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 10 bit</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 dengan alfa</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>Urutan TIFF 16 bit</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 berselang-seling</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV 24 bit</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>Tidak ada kesalahan</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Gagal</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>Sesuatu yang diperlukan tidak ada</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>Nilai tidak diterima</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>Di luar rentang</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Tidak ada yang bernama ini</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>Tidak ada yang bernomor ini</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>Tidak mungkin untuk saat ini</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>Tidak tersedia</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Memori tidak cukup</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Dibatalkan</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>Nilai ini tidak dapat diubah</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>Nilai ini tidak ada</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>Tidak ada yang dapat ditampilkan atau ditulis</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>Objek ini tidak dapat digunakan di sana</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>Berkas tidak ada</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Berkas tidak dapat dibaca</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>Berkas rusak atau formatnya tidak dikenal</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>Berkas atau folder tidak dapat ditulisi</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Disk penuh</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>Tidak ada format penulisan dengan nama ini</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>Format tidak menerima pengaturan ini</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>Pencahayaan</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>Tingkat hitam</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontras</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Kecerahan</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Titik tumpu</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturasi</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Keseimbangan putih</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Suhu warna</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>Rona</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Kurva</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>Utama</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Merah</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Hijau</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Biru</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>Tabel pencarian (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Berkas</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Jumlah</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>Kunci kroma</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Warna</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>Toleransi</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>Kelembutan tepi</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>Penghapusan limpahan warna</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Pangkas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Kiri</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Atas</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Kanan</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bawah</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>Vinyet</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>Pusat horizontal</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>Pusat vertikal</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Hitam putih</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frekuensi</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>Resonansi</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>Target kenyaringan</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>Puncak sejati tertinggi</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>Kenyaringan terukur</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>Rentang kenyaringan terukur</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>Puncak sejati terukur</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>Attack</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Release</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Ambang</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>Kompresor</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rasio</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>Penguatan kompensasi</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Limiter</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Batas</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>Gerbang derau</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>Pengurangan</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>Reverb</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Waktu reverb</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>Pantulan pertama</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Campuran</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>Gema</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Tunda</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>Pengulangan</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>Lolos tinggi</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>Lolos rendah</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>De-esser</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Kedalaman</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>Normalisasi kenyaringan</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Buram</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Pertajam</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Cermin</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Pengurangan derau</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Kekuatan</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>Bayangan jatuh</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>Geseran horizontal</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>Geseran vertikal</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opasitas</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Teks</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fon</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Tebal</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>Miring</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>Jarak huruf</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>Jarak baris</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Arah</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Otomatis</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Kiri ke kanan</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Kanan ke kiri</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Perataan</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Tengah</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Posisi vertikal</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Tengah</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>Geser ke kanan</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>Geser ke bawah</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>Panjang baris maksimum</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Margin</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>Garis tepi</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>Warna garis tepi</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>Warna bayangan</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>Bayangan ke kanan</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>Bayangan ke bawah</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>Keburaman bayangan</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>Warna kotak</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>Jarak dalam kotak</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>Sudut kotak</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>Muncul perlahan</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>Hilang perlahan</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Gulir teks</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Tidak ada</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Ke atas</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ke bawah</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>Ke kiri</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>Ke kanan</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Judul</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Peralihan audio</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>Daya tetap</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>Tanpa peralihan</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Balik</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>Ke kanan bawah</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>Ke kiri bawah</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>Ke kanan atas</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>Ke kiri atas</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>Larut</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>Larut melalui warna</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>Sapuan</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Lingkaran</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>Belah ketupat</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Jam</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>Daun pintu</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>Dorong</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Geser</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>Sebuah efek dilewati</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>Sebuah transisi dilewati</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>Klip berjenis tidak dikenal menampilkan gambar kosong</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>Klip yang diputar mundur kini diputar maju</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>Perubahan kecepatan dilewati atau hanya mendekati</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>Berkas tidak ada; klipnya luring</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>Sebagian dokumen tidak dapat digunakan</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>Penanda disimpan hanya sebagai teks</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>Volume, keseimbangan, atau opasitas hanya mendekati</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>Perangkat tidak ada</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>Trek terkunci</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>Klip akan bertumpang tindih</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>Klip tidak memiliki materi lagi</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>Tidak akan ada yang tersisa dari klip</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>Transisi tidak dapat dipotong</translation>
    </message>
</context>
</TS>
