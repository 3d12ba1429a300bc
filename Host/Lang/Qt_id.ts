<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en_US">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Simpan</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Simpan Semua</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ya</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Ya untuk Semu&amp;a</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Tidak</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Tidak untuk Semu&amp;a</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Hentikan</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Coba Lagi</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Abaikan</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Tutup</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Buang</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Bantuan</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Terapkan</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Atur Ulang</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Pulihkan Bawaan</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Urungkan</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Ulangi &amp;Lagi</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Po&amp;tong</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Salin</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Tem&amp;pel</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Pilih Semua</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Urungkan</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Ulangi &amp;Lagi</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Po&amp;tong</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Salin</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Tem&amp;pel</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Pilih Semua</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Salin A&amp;lamat Tautan</translation>
    </message>
</context>
<context>
    <name>QAbstractSpinBox</name>
    <message>
        <source>&amp;Step up</source>
        <translation>&amp;Naikkan</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>&amp;Turunkan</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>&amp;Pilih Semua</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Penggunaan: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[opsi]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Opsi:</translation>
    </message>
    <message>
        <source>Arguments:</source>
        <translation>Argumen:</translation>
    </message>
    <message>
        <source>Displays version information.</source>
        <translation>Menampilkan informasi versi.</translation>
    </message>
    <message>
        <source>Displays help on commandline options.</source>
        <translation>Menampilkan bantuan opsi baris perintah.</translation>
    </message>
    <message>
        <source>Displays help including Qt specific options.</source>
        <translation>Menampilkan bantuan termasuk opsi khusus Qt.</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Opsi “%1” tidak dikenal.</translation>
    </message>
    <message>
        <source>Unknown options: %1.</source>
        <translation>Opsi tidak dikenal: %1.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>Tidak ada nilai setelah “%1”.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>Nilai tak terduga setelah “%1”.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Open</source>
        <translation>Buka</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Buka</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Simpan</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Simpan Sebagai</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Pilih</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Cari Folder</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Lihat di:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nama berkas:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Berkas bertipe:</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Semua Berkas (*)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Semua berkas (*)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Mundur</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Mundur</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Maju</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Maju</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Folder Induk</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Buka folder induk</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Buat Folder Baru</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Buat folder baru</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Folder Baru</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>Folder &amp;Baru</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Ubah Nama</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Hapus</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Hapus</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Singkirkan</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Tampilkan berkas &amp;tersembunyi</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Tampilan Daftar</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Ubah ke tampilan daftar</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Tampilan Rinci</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Ubah ke tampilan rinci</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Bilah Sisi</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Daftar tempat dan penanda</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Tempat Terbaru</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Berkas</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Berkas</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Berkas %1</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Folder Berkas</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Diska</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Komputerku</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Tak dikenal</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 sudah ada.
Apakah Anda ingin menggantinya?</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Folder tidak ditemukan.
Periksa kembali nama folder.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Berkas tidak ditemukan.
Periksa kembali nama berkas.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete &apos;%1&apos;?</source>
        <translation>Yakin ingin menghapus “%1”?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is write protected.
Do you want to delete it anyway?</source>
        <translation>“%1” diproteksi tulis.
Tetap hapus?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Folder tidak dapat dihapus.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nama</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Ukuran</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipe</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Jenis</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Tanggal Diubah</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>Komputerku</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nama berkas tidak sah</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name &quot;%1&quot; cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;Nama “%1” tidak dapat dipakai.&lt;/b&gt;&lt;p&gt;Coba nama lain yang lebih pendek atau tanpa tanda baca.</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Tampilkan Rincian…</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Sembunyikan Rincian…</translation>
    </message>
</context>
<context>
    <name>QProgressDialog</name>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
</context>
</TS>
