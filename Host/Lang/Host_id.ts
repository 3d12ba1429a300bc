<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id_ID" sourcelanguage="en_US">
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
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>tidak ada gambar</translation>
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
        <source>%n clip(s) selected</source>
        <translation>
            <numerusform>%n klip dipilih</numerusform>
        </translation>
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
