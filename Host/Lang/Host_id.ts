<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>Produk: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tentang</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>Penyunting kecil yang menunjukkan kemampuan pustaka.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>Berkas…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>Folder…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>Dari perangkat…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>Tempatkan di penanda putar</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Tetapkan titik masuk</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Tetapkan titik keluar</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Hapus titik masuk dan keluar</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>Buat proksi</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>Batalkan proksi</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>Gunakan proksi</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>Cari lokasi…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>Cari media luring di folder…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>Hapus semua yang tidak dipakai</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Tambah media</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Tambah folder</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>Impor dari perangkat</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>Tidak satu pun berkas ditemukan.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>Berkas yang ditemukan tidak dapat dibaca.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>%n berkas ditemukan.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>Di mana %1?</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;Semua berkas (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>Folder berisi media</translation>
    </message>
</context>
<context>
    <name>BinDelegate</name>
    <message>
        <source>Proxy</source>
        <translation>Proksi</translation>
    </message>
</context>
<context>
    <name>BinModel</name>
    <message>
        <source>in %1, out %2</source>
        <translation>masuk %1, keluar %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>proksi: %1%</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>proksi: digunakan</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>proksi: tidak digunakan</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Membaca…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Luring</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Tidak dapat dibaca</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>%n klip di linimasa</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>tidak ada di linimasa</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>Cari</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>Cari media</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Kisi</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Daftar</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Tambah…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>Letakkan media di sini, atau tambahkan berkas dan folder.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Tidak ada yang ditemukan</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>%n berkas dipilih</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>Membaca %n berkas…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>%1 tidak dapat dibaca sebagai media.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>%1 dan %n berkas lainnya tidak dapat dibaca sebagai media.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>Tidak ada proksi untuk %1: %2</translation>
    </message>
</context>
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>Tombol</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>Beberapa keadaan</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>Gambar dan teks</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Sinyal terakhir</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>belum ada</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>%1 ditekan</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>%1 diklik di (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>Masuk ke %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>Keluar dari %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>Dengan ikon</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Dicentang</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Nonaktif</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>%1 diklik, menampilkan %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>%1 diklik</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>Di kiri</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>Di atas</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>Di kanan</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>Di bawah</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Judul</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efek</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>%1 dipilih</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>untuk bahasa dari kanan ke kiri</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>untuk bahasa dari kiri ke kanan</translation>
    </message>
</context>
<context>
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>Tambah transisi</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Tambah judul</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>Ubah kecepatan</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>Tambah efek</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>Hapus efek</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>Pindahkan efek</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>Aktifkan atau matikan efek</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>Ubah transisi</translation>
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
        <translation>Penyesuaian</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>Seluruh gambar</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Seluruh bingkai</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>Diregangkan</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>Piksel per piksel</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opasitas</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> bingkai</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>Pengurangan derau</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> dB</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotasi</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>Pusat X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>Pusat Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Lebar</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Tinggi</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>Kalikan</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Layar</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Tumpang</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>Gelapkan</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>Terangkan</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tambahkan</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Selisih</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>Dodge warna</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>Burn warna</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>Cahaya keras</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>Cahaya lembut</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>Eksklusi</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Keseimbangan</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>Tinggi nada</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Bisukan</translation>
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
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message>
        <source> st</source>
        <translation> st</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Warna</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>Pembukaan</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>Pelabuhan saat fajar</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>Wawancara, bagian 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>Pasar</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>Wawancara, bagian 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>Perjalanan malam</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>Log %1 tidak dapat dibuka; dilanjutkan tanpa log.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>Mesin tidak ada atau tidak dapat dimulai: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Folder %1 tidak dapat dibuat.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>Menjelaskan berkas media dan menulis lembar kontak untuk masing-masing.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Menampilkan bantuan ini.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>Folder untuk hasil.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>FOLDER</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>Berkas log, bawaannya %1 di antara hasil.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>BERKAS</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>Menampilkan log juga.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>Berkas media.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>MEDIA…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>Tidak ada berkas media yang disebutkan.</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>Tulis film dari semua berkas media ke berkas ini; akhirannya menentukan cara pengodean.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>Prasetel untuk mengodekan film.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAMA</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>Tampilkan daftar prasetel untuk film.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>tidak ada gambar</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>Opasitas</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotasi</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Nonaktif</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>Sinyal terakhir</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>seret dimulai pada %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>seret berakhir pada %1</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>Penyunting kecil.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>Tulis gambar jendela ke &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>Proyek yang akan dibuka, dan media untuk bin.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>Mesin tidak ada.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>Buat sendiri film kecil dari media, lalu taruh gambar, film, dan laporan di &lt;folder&gt;.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Properti</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Linimasa</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Berkas</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Ekspor…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Urungkan</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ulangi</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Sunting</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>Angkat dari titik masuk hingga keluar</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>Angkat</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>Ekstrak dari titik masuk hingga keluar</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>Ekstrak</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Media</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>&amp;Linimasa</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Putar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Tampilan</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ba&amp;ntuan</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Pintasan papan ketik</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tentang</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Bilah alat</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Tanpa judul</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>%n catatan tentang berkas, di log</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>Tetapkan titik masuk dan keluar terlebih dahulu.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>Pemulihan</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>Penyunting berakhir secara tidak terduga. Perubahan pada %1 hingga %2 dapat dibuka.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Ekspor</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>Film sedang ditulis. Hentikan?</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>Render pratinjau, atau hentikan</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>%1 tidak dapat ditulisi.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>Gaya terang</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>Tambah efek</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Gambar</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Suara</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>Terapkan lebih awal</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>Terapkan lebih akhir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Hapus</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>Ini tidak dapat digabungkan</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>Prasetel itu tidak ada.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>Prosesor mengodekan dan mendekode.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>Prosesor mengodekan; perangkat keras grafis membantu mendekode.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>Tambahkan ke antrean</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Ekspor</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Prasetel</translation>
    </message>
    <message>
        <source>film</source>
        <translation>film</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Pilih berkas</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Berkas</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Lebar</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Tinggi</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>Sesuai proyek</translation>
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
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Laju bingkai</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Suara</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Semua</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>Dari masuk hingga keluar</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>Titik masuk</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>Titik keluar</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Rentang</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Perangkat keras</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>Gambar diam…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>Menulis bingkai di bawah penanda putar</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>Proyek tidak dapat disalin.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>Gambar diam</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/bingkai %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>Gambar (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 sudah ada dalam antrean.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 sudah ada. Ganti?</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>Tidak ada prasetel &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>Mesin tidak memiliki prasetel.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>dikodekan: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>%1 tidak ditulis; log menjelaskan alasannya.</translation>
    </message>
</context>
<context>
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>%1 tidak ditulis</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>Belum ada film</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Menunggu</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>Sedang ditulis</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>Tersisa %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>Telah ditulis</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Dibatalkan</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>Keluarkan dari daftar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>Proyek</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Baru</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Buka…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>Simpan sebagai…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>Buka yang terbaru</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Tanpa judul</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Simpan perubahan</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>Proyek memiliki perubahan yang belum disimpan.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>Tidak ada berkas</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Pilih berkas</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>Fon sistem</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>Penggaris</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>Seret penanda putar; roda menggulir, dengan Ctrl memperbesar; klik ganda menampilkan semuanya.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>Penggeser</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>Seret, gunakan roda atau tombol panah.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>Tombol dan label</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>Baris terakhir menunjukkan sinyalnya.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Impor</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>Menyalin media dari kamera, ponsel, dan kartu.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Bahasa</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>Pilihan langsung berlaku di setiap jendela.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>Mulai dari halaman &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>Menampilkan daftar nama halaman.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>tidak dapat menulis %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>tidak ada halaman %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>Menyeret nilai</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>Seret angka, dengan Shift lebih cepat, dengan Ctrl lebih lambat; klik untuk menyunting.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Pemutar</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>Buka berkas lalu putar; K memutar dan menjeda, koma dan titik bergeser satu bingkai.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>Widget CommonLib</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Halaman</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>Bahasa teks mulai sekarang, misalnya German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NAMA</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>Tidak ada bahasa %1. Bahasa yang tersedia: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>Segarkan</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Pilih…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Impor</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Perangkat</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>Folder tujuan impor</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>Kemajuan impor</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>Impor ke</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>Perangkat tidak ditemukan</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>Hubungkan kamera, ponsel, atau pembaca kartu, nyalakan dan buka kuncinya.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>Membuka %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 tidak dapat dibuka</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>Buka kunci perangkat dan izinkan akses ke berkasnya, lalu pilih lagi.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>%1 telah dilepas</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>Hubungkan lagi untuk melanjutkan.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>Berkas terpilih: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>Membaca isi… Berkas: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>Perangkat tanpa nama</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>Berkas di perangkat: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>Perangkat berhenti merespons; ini mungkin belum semuanya.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>Tidak dapat menulis ke folder ini.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>Mengimpor… %1 dari %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>Berkas yang diimpor: %1 dari %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>Perangkat dilepas saat mengimpor.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Dibatalkan.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>Tidak diimpor: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>Hapus dari perangkat setelahnya</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>Folder ini hanya memuat %1.</translation>
    </message>
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>Jendela lain sedang membuka perangkat. Tutup jendela itu, lalu pilih lagi perangkat ini.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>Diubah</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>Isi perangkat</translation>
    </message>
</context>
<context>
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>Bingkai kunci sebelumnya</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Bingkai kunci</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>Bingkai kunci berikutnya</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>Tahan</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Halus</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>Hingga bingkai kunci berikutnya</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Bahasa</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>Impor media…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>Pisah di penanda putar</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>Tambah transisi</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Urungkan</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Simpan proyek</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Ekspor…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Bahasa:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>Fon bahasa:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>Digambar dengan:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>Arah baca:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>Klip:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Contoh</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>kanan ke kiri</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>kiri ke kanan</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>%Ln klip dipilih</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>Trek %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Kunci</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Sembunyikan</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Bisukan</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Pengukur level</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>Tambah media</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>Hapus media</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>Tautkan ulang media</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>Gunakan media asli</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>Gunakan proksi</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>Tetapkan titik masuk dan keluar</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Hapus titik masuk dan keluar</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>Tempatkan klip</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>tidak ada</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>adalah folder, bukan berkas media</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>bukan berkas biasa</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>kosong</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>tidak boleh dibaca oleh pengguna ini</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>tidak dapat dibaca sebagai media</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>tidak berisi gambar maupun suara</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>tidak memiliki bingkai</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>bingkai %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>gambar %1 dari %2: bingkai %3, %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1, tidak terdekode</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>tidak satu pun gambarnya dapat didekode</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>%1 dari %2 gambar tidak dapat didekode; berkas mungkin rusak</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>bentuk gelombang: bagian %1 dari %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>suaranya tidak dapat didekode</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>hasil tidak dapat ditulis ke %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>ditulis: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>kodek tidak dikenal</translation>
    </message>
    <message>
        <source>video</source>
        <translation>video</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>diputar %1°</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>audio</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 Hz</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>%n kanal</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>lainnya</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>Gambar diam, %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Suara</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>Tanpa gambar dan tanpa suara</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>%n bingkai</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>aliran %1: %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>laju sampel: %1</translation>
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
        <translation>Rotasi</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>Geser ke kanan</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>Geser ke atas</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>Faktor lebar</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>Faktor tinggi</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>Faktor opasitas</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>Gerakan</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>Bingkai kunci</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>Ubah gerakan</translation>
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
        <translation> bingkai</translation>
    </message>
    <message>
        <source> s</source>
        <translation> dtk</translation>
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
        <translation> md</translation>
    </message>
</context>
<context>
    <name>PictureHandles</name>
    <message>
        <source>Place picture</source>
        <translation>Tempatkan gambar</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>Gambar</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>Tidak ada yang terbuka.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posisi</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Mundur satu bingkai</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Putar</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Maju satu bingkai</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Kecepatan</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Ulangi</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Buka…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Bisukan</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Area aman</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Paskan</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Penuhi</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>Ukuran gambar</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>Detik terakhir: %1 tampil, %2 dibuang, %3 terlambat, %4 dari cache, selisih %5 md</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>%1 tidak dapat diputar.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>Siap: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Jeda</translation>
    </message>
</context>
<context>
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>Putar atau jeda</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>Putar mundur</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Berhenti</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>Putar maju</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Ulangi</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>Mundur satu bingkai</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>Maju satu bingkai</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>Ke awal</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>Ke akhir</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>Tetapkan titik masuk</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>Tetapkan titik keluar</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>Hapus titik masuk dan keluar</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>Ke titik masuk</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>Ke titik keluar</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>Pasang atau hapus penanda</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Bisukan</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>Area aman</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>Gambar layar penuh</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>Kode waktu penanda putar</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Penanda putar</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>Proyek tidak dapat dibuat</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 tidak dapat dibuka</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>%1 tidak dapat disimpan</translation>
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
        <translation>Laju bingkai</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>Skala pratinjau</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Latar belakang</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Lebar</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Tinggi</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>Laju sampel</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> Hz</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>Bit per warna</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>Penskalaan halus</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Keseimbangan</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Bisukan</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>Solo</translation>
    </message>
</context>
<context>
    <name>PropertiesPanel</name>
    <message>
        <source>Properties</source>
        <translation>Properti</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyek</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Judul</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Warna</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Penggambaran</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efek</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>Tambah judul</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>Mixer, trek %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transisi</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Penempatan</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Pencampuran</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>Gerakan</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Kecepatan</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Suara</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Transisi</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>Kembalikan ke nilai bawaan</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Ubah %1</translation>
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
        <translation>Perkecil</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Perbesar</translation>
    </message>
</context>
<context>
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Pintasan papan ketik</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Perintah</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tombol</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>Bilah pemutaran</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>Isian dan alur lain</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>Dari kanan ke kiri</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>Rentang kosong</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Nonaktif</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>Bilah zum</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>Tata letak cermin</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Bilah</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>Warna lain</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Tegak</translation>
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
        <translation>Kecepatan</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>Kembalikan ke nilai bawaan</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>Bingkai tidak dapat digambar</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 tidak ditulis: %2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>Warna</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>Klip gabungan</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Pindahkan</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Lekatkan</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Roll</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Pangkas</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>Slip</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>Slide</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Potong</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Salin</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Tempel</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Tempel sisipkan</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Hapus ripple</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>Pisah di penanda putar</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>Pangkas awal ke penanda putar</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>Pangkas akhir ke penanda putar</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>Tutup celah di penanda putar</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Kelompokkan</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Lepas kelompok</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>Kunci atau buka kunci trek</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Pilih semua</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>Pilih di penanda putar</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>Batalkan pilihan</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>Satu bingkai lebih awal</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>Satu bingkai lebih akhir</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>Satu detik lebih awal</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>Satu detik lebih akhir</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>Naik satu trek</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>Turun satu trek</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>Potongan sebelumnya</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>Potongan berikutnya</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Alat pilih</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>Alat ripple</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>Alat roll</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>Alat slip</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>Alat slide</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>Alat silet</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Perbesar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Perkecil</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Paskan ke jendela</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>Pertinggi trek</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>Perpendek trek</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>Pangkas ripple</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>Sembunyikan atau tampilkan trek</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>Bisukan atau suarakan trek</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>Trek solo atau tidak</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>Pisah</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Potong</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Tempel</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Kelompokkan</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>Lepas kelompok</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Pindahkan</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>Hapus ripple</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>Tempel sisipkan</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>Tutup celah</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>Kunci trek</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>Buka kunci trek</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>Ganti nama trek</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>Linimasa</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>Penanda putar</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Klip</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1, trek %2, bingkai %3 hingga %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Penggaris</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>Pisah</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>Sisipkan media</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>Tambah media</translation>
    </message>
</context>
<context>
    <name>TransitionForm</name>
    <message>
        <source> s</source>
        <translation> dtk</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Jenis</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durasi</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>Di awal</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>Di akhir</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>Hapus penanda</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>Pasang penanda</translation>
    </message>
</context>
</TS>
