<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en_US">
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
        <source>Shows the library&apos;s widgets.</source>
        <translation>Menampilkan widget pustaka.</translation>
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
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>Tulis gambar halaman ke &lt;file&gt;.</translation>
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
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>Pengukur level</translation>
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
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>Penggaris</translation>
    </message>
</context>
</TS>
