<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_AE" sourcelanguage="en_US">
<context>
    <name>ButtonPage</name>
    <message>
        <source>Buttons</source>
        <translation>أزرار</translation>
    </message>
    <message>
        <source>Several states</source>
        <translation>حالات متعددة</translation>
    </message>
    <message>
        <source>Image and text</source>
        <translation>صورة ونص</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>علامات تبويب</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>تسميات</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>آخر إشارة</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>لا شيء بعد</translation>
    </message>
    <message>
        <source>Pressed %1</source>
        <translation>ضُغط %1</translation>
    </message>
    <message>
        <source>Clicked %1 at (%2, %3)</source>
        <translation>نُقر %1 عند (%2, %3)</translation>
    </message>
    <message>
        <source>Entered %1</source>
        <translation>دخل المؤشر %1</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>غادر المؤشر %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>مع أيقونة</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>مفضّلة</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>محدّد</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>Clicked %1, shows %2</source>
        <translation>نُقر %1، ويعرض %2</translation>
    </message>
    <message>
        <source>Clicked %1</source>
        <translation>نُقر %1</translation>
    </message>
    <message>
        <source>Image left</source>
        <translation>الصورة يسارًا</translation>
    </message>
    <message>
        <source>On top</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>Image right</source>
        <translation>الصورة يمينًا</translation>
    </message>
    <message>
        <source>Below</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>الوسائط</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>العناوين</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>المؤثرات</translation>
    </message>
    <message>
        <source>Selected %1</source>
        <translation>حُدِّد %1</translation>
    </message>
    <message>
        <source>for a language from right to left</source>
        <translation>للغة تُكتب من اليمين إلى اليسار</translation>
    </message>
    <message>
        <source>for a language from left to right</source>
        <translation>للغة تُكتب من اليسار إلى اليمين</translation>
    </message>
</context>
<context>
    <name>ClipStrip</name>
    <message>
        <source>Opening</source>
        <translation>الافتتاحية</translation>
    </message>
    <message>
        <source>Harbour at dawn</source>
        <translation>الميناء عند الفجر</translation>
    </message>
    <message>
        <source>Interview, part 1</source>
        <translation>مقابلة، الجزء 1</translation>
    </message>
    <message>
        <source>Market</source>
        <translation>السوق</translation>
    </message>
    <message>
        <source>Interview, part 2</source>
        <translation>مقابلة، الجزء 2</translation>
    </message>
    <message>
        <source>Night drive</source>
        <translation>رحلة ليلية</translation>
    </message>
</context>
<context>
    <name>CommonLibDemo</name>
    <message>
        <source>The log %1 cannot be opened; going on without it.</source>
        <translation>تعذّر فتح السجل %1؛ ستتم المتابعة من دونه.</translation>
    </message>
    <message>
        <source>The engine is missing or does not start: %1</source>
        <translation>المحرّك مفقود أو لا يعمل: %1</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>تعذّر إنشاء المجلد %1.</translation>
    </message>
    <message>
        <source>Tells what media files are and writes a contact sheet of each.</source>
        <translation>يصف ملفات الوسائط ويكتب لوحة صور مصغّرة لكل منها.</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>عرض هذه المساعدة.</translation>
    </message>
    <message>
        <source>Folder for results.</source>
        <translation>مجلد النتائج.</translation>
    </message>
    <message>
        <source>FOLDER</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>Log file, by default %1 among the results.</source>
        <translation>ملف السجل، وهو افتراضيًا %1 بين النتائج.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>Print the log as well.</source>
        <translation>عرض السجل أيضًا.</translation>
    </message>
    <message>
        <source>Media files.</source>
        <translation>ملفات الوسائط.</translation>
    </message>
    <message>
        <source>MEDIA…</source>
        <translation>وسائط…</translation>
    </message>
    <message>
        <source>No media file named.</source>
        <translation>لم يُذكر أي ملف وسائط.</translation>
    </message>
    <message>
        <source>Write a film of all media files to this file, whose suffix chooses how it is encoded.</source>
        <translation>كتابة فيلم من جميع ملفات الوسائط إلى هذا الملف، ويحدد امتداده طريقة الترميز.</translation>
    </message>
    <message>
        <source>Preset that the film is encoded with.</source>
        <translation>الإعداد المسبق الذي يُرمَّز به الفيلم.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>List the presets for films.</source>
        <translation>سرد الإعدادات المسبقة للأفلام.</translation>
    </message>
</context>
<context>
    <name>ContactSheet</name>
    <message>
        <source>no picture</source>
        <translation>لا توجد صورة</translation>
    </message>
</context>
<context>
    <name>DragPage</name>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>الدوران</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>المقياس</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>Last signal</source>
        <translation>آخر إشارة</translation>
    </message>
    <message>
        <source>drag begins at %1</source>
        <translation>يبدأ السحب عند %1</translation>
    </message>
    <message>
        <source>drag ends at %1</source>
        <translation>ينتهي السحب عند %1</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>There is no preset &quot;%1&quot;.</source>
        <translation>لا يوجد إعداد مسبق باسم &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The engine has no presets.</source>
        <translation>لا توجد إعدادات مسبقة في المحرك.</translation>
    </message>
    <message>
        <source>encoded: %1 %</source>
        <translation>تم الترميز: %1 %</translation>
    </message>
    <message>
        <source>%1 is not written; the log tells why.</source>
        <translation>لم يُكتب %1؛ السجل يوضح السبب.</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Ruler</source>
        <translation>المسطرة</translation>
    </message>
    <message>
        <source>Drag the play head; the wheel scrolls, with Ctrl it zooms; a double click fits all.</source>
        <translation>اسحب رأس التشغيل؛ العجلة تمرّر، ومع Ctrl تكبّر؛ والنقر المزدوج يعرض الكل.</translation>
    </message>
    <message>
        <source>Sliders</source>
        <translation>أشرطة التمرير</translation>
    </message>
    <message>
        <source>Drag, use the wheel, or the arrow keys.</source>
        <translation>اسحب أو استخدم العجلة أو مفاتيح الأسهم.</translation>
    </message>
    <message>
        <source>Buttons and labels</source>
        <translation>أزرار وتسميات</translation>
    </message>
    <message>
        <source>The last line tells what they signal.</source>
        <translation>يبيّن السطر الأخير ما ترسله من إشارات.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>Copies media from cameras, phones and cards.</source>
        <translation>ينسخ الوسائط من الكاميرات والهواتف والبطاقات.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>اللغات</translation>
    </message>
    <message>
        <source>A choice reaches every window at once.</source>
        <translation>يصل الاختيار إلى كل النوافذ فورًا.</translation>
    </message>
    <message>
        <source>Shows the library&apos;s widgets.</source>
        <translation>يعرض عناصر واجهة المكتبة.</translation>
    </message>
    <message>
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>البدء بالصفحة &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>سرد أسماء الصفحات.</translation>
    </message>
    <message>
        <source>Write a picture of the page to &lt;file&gt;.</source>
        <translation>كتابة صورة للصفحة في &lt;file&gt;.</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>تعذّرت كتابة %1</translation>
    </message>
    <message>
        <source>no page %1</source>
        <translation>لا توجد صفحة %1</translation>
    </message>
    <message>
        <source>Drag values</source>
        <translation>سحب القيم</translation>
    </message>
    <message>
        <source>Drag on a number, with Shift faster, with Ctrl slower; a click edits it.</source>
        <translation>اسحب رقمًا، ومع Shift أسرع، ومع Ctrl أبطأ؛ والنقرة تتيح تحريره.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>المشغّل</translation>
    </message>
    <message>
        <source>Open a file and play it; K plays and pauses, comma and full stop step a frame.</source>
        <translation>افتح ملفًا وشغّله؛ المفتاح K يشغّل ويوقف مؤقتًا، والفاصلة والنقطة تنتقلان إطارًا واحدًا.</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>CommonLib widgets</source>
        <translation>عناصر واجهة CommonLib</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
</context>
<context>
    <name>HostLanguage</name>
    <message>
        <source>Language of the texts from now on, such as German.</source>
        <translation>لغة النصوص من الآن فصاعدًا، مثل German.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>اسم</translation>
    </message>
    <message>
        <source>There is no language %1. Known are: %2</source>
        <translation>لا توجد لغة باسم %1. اللغات المتاحة: %2</translation>
    </message>
</context>
<context>
    <name>ImportPage</name>
    <message>
        <source>Refresh</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>اختيار…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>استيراد</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>Folder to import into</source>
        <translation>مجلد الاستيراد</translation>
    </message>
    <message>
        <source>Progress of the import</source>
        <translation>تقدّم الاستيراد</translation>
    </message>
    <message>
        <source>Import into</source>
        <translation>الاستيراد إلى</translation>
    </message>
    <message>
        <source>No device found</source>
        <translation>لم يُعثر على جهاز</translation>
    </message>
    <message>
        <source>Connect a camera, a phone or a card reader, switch it on and unlock it.</source>
        <translation>وصّل كاميرا أو هاتفًا أو قارئ بطاقات، ثم شغّله وافتح قفله.</translation>
    </message>
    <message>
        <source>Opening %1…</source>
        <translation>جارٍ فتح %1…</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>تعذّر فتح %1</translation>
    </message>
    <message>
        <source>Unlock the device and allow access to its files, then choose it again.</source>
        <translation>افتح قفل الجهاز واسمح بالوصول إلى ملفاته، ثم اختره من جديد.</translation>
    </message>
    <message>
        <source>%1 was removed</source>
        <translation>أُزيل %1</translation>
    </message>
    <message>
        <source>Connect it again to go on.</source>
        <translation>أعد توصيله للمتابعة.</translation>
    </message>
    <message>
        <source>Chosen files: %1 (%2)</source>
        <translation>الملفات المختارة: %1 (%2)</translation>
    </message>
    <message>
        <source>Reading the content… %1 files</source>
        <translation>جارٍ قراءة المحتوى… الملفات: %1</translation>
    </message>
    <message>
        <source>Unnamed device</source>
        <translation>جهاز بلا اسم</translation>
    </message>
    <message>
        <source>%1 files on the device</source>
        <translation>الملفات على الجهاز: %1</translation>
    </message>
    <message>
        <source>The device stopped answering; this may not be all of it.</source>
        <translation>توقف الجهاز عن الاستجابة؛ قد لا يكون هذا كل المحتوى.</translation>
    </message>
    <message>
        <source>Nothing can be written into this folder.</source>
        <translation>تتعذّر الكتابة في هذا المجلد.</translation>
    </message>
    <message>
        <source>Importing… %1 of %2</source>
        <translation>جارٍ الاستيراد… %1 من %2</translation>
    </message>
    <message>
        <source>Imported files: %1 of %2.</source>
        <translation>الملفات المستوردة: %1 من %2.</translation>
    </message>
    <message>
        <source>The device was removed during the import.</source>
        <translation>أُزيل الجهاز أثناء الاستيراد.</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>أُلغي.</translation>
    </message>
    <message>
        <source>Not imported: %1</source>
        <translation>لم يُستورد: %1</translation>
    </message>
    <message>
        <source>Delete from the device afterwards</source>
        <translation>الحذف من الجهاز بعد ذلك</translation>
    </message>
    <message>
        <source>This folder has room for %1 only.</source>
        <translation>لا يتسع هذا المجلد إلا لـ %1.</translation>
    </message>
</context>
<context>
    <name>ImportTree</name>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Modified</source>
        <translation>تاريخ التعديل</translation>
    </message>
    <message>
        <source>Content of the device</source>
        <translation>محتوى الجهاز</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Import media…</source>
        <translation>استيراد الوسائط…</translation>
    </message>
    <message>
        <source>Split at the play head</source>
        <translation>تقسيم عند رأس التشغيل</translation>
    </message>
    <message>
        <source>Add a transition</source>
        <translation>إضافة انتقال</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>حفظ المشروع</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>اللغة:</translation>
    </message>
    <message>
        <source>Font of the language:</source>
        <translation>خط اللغة:</translation>
    </message>
    <message>
        <source>Drawn in:</source>
        <translation>مرسوم بخط:</translation>
    </message>
    <message>
        <source>Reading direction:</source>
        <translation>اتجاه القراءة:</translation>
    </message>
    <message>
        <source>Clips:</source>
        <translation>المقاطع:</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>right to left</source>
        <translation>من اليمين إلى اليسار</translation>
    </message>
    <message>
        <source>left to right</source>
        <translation>من اليسار إلى اليمين</translation>
    </message>
    <message numerus="yes">
        <source>%Ln clip(s) selected</source>
        <translation>
            <numerusform>لم يُحدَّد أي مقطع</numerusform>
            <numerusform>حُدِّد مقطع واحد</numerusform>
            <numerusform>حُدِّد مقطعان</numerusform>
            <numerusform>حُدِّدت %Ln مقاطع</numerusform>
            <numerusform>حُدِّد %Ln مقطعًا</numerusform>
            <numerusform>حُدِّد %Ln مقطع</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LevelMeter</name>
    <message>
        <source>Level meter</source>
        <translation>مقياس المستوى</translation>
    </message>
</context>
<context>
    <name>MediaJob</name>
    <message>
        <source>does not exist</source>
        <translation>غير موجود</translation>
    </message>
    <message>
        <source>is a folder, not a media file</source>
        <translation>مجلد وليس ملف وسائط</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>ليس ملفًا عاديًا</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>فارغ</translation>
    </message>
    <message>
        <source>may not be read by this user</source>
        <translation>لا يُسمح لهذا المستخدم بقراءته</translation>
    </message>
    <message>
        <source>cannot be read as media</source>
        <translation>تتعذّر قراءته كملف وسائط</translation>
    </message>
    <message>
        <source>holds neither picture nor sound</source>
        <translation>لا يحتوي على صورة ولا صوت</translation>
    </message>
    <message>
        <source>has no frames</source>
        <translation>لا يحتوي على إطارات</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>الإطار %1</translation>
    </message>
    <message>
        <source>picture %1 of %2: frame %3, %4</source>
        <translation>الصورة %1 من %2: الإطار %3، %4</translation>
    </message>
    <message>
        <source>%1, not decoded</source>
        <translation>%1، لم يُفك ترميزها</translation>
    </message>
    <message>
        <source>none of its pictures can be decoded</source>
        <translation>تعذّر فك ترميز أي من صوره</translation>
    </message>
    <message>
        <source>%1 of %2 pictures cannot be decoded; the file may be damaged</source>
        <translation>تعذّر فك ترميز %1 من أصل %2 من الصور؛ قد يكون الملف تالفًا</translation>
    </message>
    <message>
        <source>wave form: part %1 of %2</source>
        <translation>شكل الموجة: الجزء %1 من %2</translation>
    </message>
    <message>
        <source>its sound cannot be decoded</source>
        <translation>تعذّر فك ترميز صوته</translation>
    </message>
    <message>
        <source>the result cannot be written to %1</source>
        <translation>تعذّرت كتابة النتيجة في %1</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>كُتب: %1</translation>
    </message>
</context>
<context>
    <name>MediaReport</name>
    <message>
        <source>unknown codec</source>
        <translation>برنامج ترميز غير معروف</translation>
    </message>
    <message>
        <source>video</source>
        <translation>فيديو</translation>
    </message>
    <message>
        <source>rotated by %1°</source>
        <translation>مدوّر بمقدار %1°</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 إطار/ث</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>صوت</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 هرتز</translation>
    </message>
    <message numerus="yes">
        <source>%n channel(s)</source>
        <translation>
            <numerusform>بلا قنوات</numerusform>
            <numerusform>قناة واحدة</numerusform>
            <numerusform>قناتان</numerusform>
            <numerusform>%n قنوات</numerusform>
            <numerusform>%n قناة</numerusform>
            <numerusform>%n قناة</numerusform>
        </translation>
    </message>
    <message>
        <source>other</source>
        <translation>أخرى</translation>
    </message>
    <message>
        <source>Still picture, %1</source>
        <translation>صورة ثابتة، %1</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>فيديو</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>صوت</translation>
    </message>
    <message>
        <source>No picture and no sound</source>
        <translation>لا صورة ولا صوت</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s)</source>
        <translation>
            <numerusform>بلا إطارات</numerusform>
            <numerusform>إطار واحد</numerusform>
            <numerusform>إطاران</numerusform>
            <numerusform>%n إطارات</numerusform>
            <numerusform>%n إطارًا</numerusform>
            <numerusform>%n إطار</numerusform>
        </translation>
    </message>
    <message>
        <source>stream %1: %2</source>
        <translation>الدفق %1: %2</translation>
    </message>
    <message>
        <source>sample rates: %1</source>
        <translation>معدلات أخذ العينات: %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture</source>
        <translation>الصورة</translation>
    </message>
</context>
<context>
    <name>PlayerPage</name>
    <message>
        <source>Nothing is open.</source>
        <translation>لا شيء مفتوح.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>إطار إلى الخلف</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>إطار إلى الأمام</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>تكرار</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>فتح…</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>المناطق الآمنة</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>ملاءمة</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>ملء</translation>
    </message>
    <message>
        <source>Size of the picture</source>
        <translation>حجم الصورة</translation>
    </message>
    <message>
        <source>Last second: %1 shown, %2 dropped, %3 late, %4 cached, drift %5 ms</source>
        <translation>الثانية الأخيرة: عُرض %1، أُسقط %2، تأخّر %3، من الذاكرة المؤقتة %4، الانحراف %5 م.ث</translation>
    </message>
    <message>
        <source>%1 cannot be played.</source>
        <translation>لا يمكن تشغيل %1.</translation>
    </message>
    <message>
        <source>Ready: %1</source>
        <translation>جاهز: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>إيقاف مؤقت</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>&quot;LTR&quot; where text runs from left to right, &quot;RTL&quot; where it runs from right to left.</extracomment>
        <translation>RTL</translation>
    </message>
</context>
<context>
    <name>ScaleUnitSlider</name>
    <message>
        <source>Zoom out</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>تكبير</translation>
    </message>
</context>
<context>
    <name>SliderPage</name>
    <message>
        <source>Seek bar</source>
        <translation>شريط موضع التشغيل</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>Other chunk and groove</source>
        <translation>تعبئة ومجرى آخران</translation>
    </message>
    <message>
        <source>From right to left</source>
        <translation>من اليمين إلى اليسار</translation>
    </message>
    <message>
        <source>Empty range</source>
        <translation>نطاق فارغ</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
    <message>
        <source>Zoom bar</source>
        <translation>شريط التكبير</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Mirrored layout</source>
        <translation>تخطيط معكوس</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>شريط</translation>
    </message>
    <message>
        <source>Other colours</source>
        <translation>ألوان أخرى</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>عمودي</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>المسطرة</translation>
    </message>
</context>
</TS>
