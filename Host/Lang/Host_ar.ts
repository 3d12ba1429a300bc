<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_AE" sourcelanguage="en_US">
<context>
    <name>AboutBox</name>
    <message>
        <source>Product: %1</source>
        <translation>المنتج: %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول البرنامج</translation>
    </message>
    <message>
        <source>A small editor that shows what the library does.</source>
        <translation>محرّر صغير يبيّن ما تقدّمه المكتبة.</translation>
    </message>
</context>
<context>
    <name>BinCommands</name>
    <message>
        <source>Files…</source>
        <translation>ملفات…</translation>
    </message>
    <message>
        <source>Folder…</source>
        <translation>مجلد…</translation>
    </message>
    <message>
        <source>From a device…</source>
        <translation>من جهاز…</translation>
    </message>
    <message>
        <source>Place at the play head</source>
        <translation>وضع عند رأس التشغيل</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>تعيين نقطة الدخول</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>تعيين نقطة الخروج</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>مسح نقطتي الدخول والخروج</translation>
    </message>
    <message>
        <source>Make a proxy</source>
        <translation>إنشاء ملف وكيل</translation>
    </message>
    <message>
        <source>Cancel the proxy</source>
        <translation>إلغاء إنشاء الملف الوكيل</translation>
    </message>
    <message>
        <source>Use the proxy</source>
        <translation>استخدام الملف الوكيل</translation>
    </message>
    <message>
        <source>Locate…</source>
        <translation>تحديد موقع الملف…</translation>
    </message>
    <message>
        <source>Search a folder for offline media…</source>
        <translation>البحث في مجلد عن الوسائط غير المتصلة…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>Remove all unused</source>
        <translation>إزالة كل غير المستخدم</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>إضافة وسائط</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>إضافة مجلد</translation>
    </message>
    <message>
        <source>Import from a device</source>
        <translation>استيراد من جهاز</translation>
    </message>
    <message>
        <source>None of the files was found.</source>
        <translation>لم يُعثر على أي من الملفات.</translation>
    </message>
    <message>
        <source>The files that were found cannot be read.</source>
        <translation>تتعذّر قراءة الملفات التي عُثر عليها.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) found.</source>
        <translation>
            <numerusform>لم يُعثر على أي ملف.</numerusform>
            <numerusform>عُثر على ملف واحد.</numerusform>
            <numerusform>عُثر على ملفين.</numerusform>
            <numerusform>عُثر على %n ملفات.</numerusform>
            <numerusform>عُثر على %n ملفًا.</numerusform>
            <numerusform>عُثر على %n ملف.</numerusform>
        </translation>
    </message>
    <message>
        <source>Where is %1?</source>
        <translation>أين يوجد %1؟</translation>
    </message>
    <message>
        <source>%1 (%1);;All files (*)</source>
        <translation>%1 (%1);;كل الملفات (*)</translation>
    </message>
    <message>
        <source>Folder with the media</source>
        <translation>مجلد الوسائط</translation>
    </message>
</context>
<context>
    <name>BinDelegate</name>
    <message>
        <source>Proxy</source>
        <translation>وكيل</translation>
    </message>
</context>
<context>
    <name>BinModel</name>
    <message>
        <source>in %1, out %2</source>
        <translation>الدخول %1، الخروج %2</translation>
    </message>
    <message>
        <source>proxy: %1 %</source>
        <translation>الملف الوكيل: %1%</translation>
    </message>
    <message>
        <source>proxy: in use</source>
        <translation>الملف الوكيل: مستخدم</translation>
    </message>
    <message>
        <source>proxy: not in use</source>
        <translation>الملف الوكيل: غير مستخدم</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>جارٍ القراءة…</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>غير متصل</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>تتعذّر قراءته</translation>
    </message>
    <message numerus="yes">
        <source>%n clip(s) on the timeline</source>
        <translation>
            <numerusform>لا مقاطع على المخطط الزمني</numerusform>
            <numerusform>مقطع واحد على المخطط الزمني</numerusform>
            <numerusform>مقطعان على المخطط الزمني</numerusform>
            <numerusform>%n مقاطع على المخطط الزمني</numerusform>
            <numerusform>%n مقطعًا على المخطط الزمني</numerusform>
            <numerusform>%n مقطع على المخطط الزمني</numerusform>
        </translation>
    </message>
    <message>
        <source>not on the timeline</source>
        <translation>ليس على المخطط الزمني</translation>
    </message>
</context>
<context>
    <name>BinPanel</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Search the media</source>
        <translation>البحث في الوسائط</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>شبكة</translation>
    </message>
    <message>
        <source>List</source>
        <translation>قائمة</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>إضافة…</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>الوسائط</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>Drop media here, or add files and folders.</source>
        <translation>أفلت الوسائط هنا، أو أضف ملفات ومجلدات.</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>لم يُعثر على شيء</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) selected</source>
        <translation>
            <numerusform>لم يُحدَّد أي ملف</numerusform>
            <numerusform>حُدِّد ملف واحد</numerusform>
            <numerusform>حُدِّد ملفان</numerusform>
            <numerusform>حُدِّدت %n ملفات</numerusform>
            <numerusform>حُدِّد %n ملفًا</numerusform>
            <numerusform>حُدِّد %n ملف</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n file(s)…</source>
        <translation>
            <numerusform>لا ملفات للقراءة</numerusform>
            <numerusform>جارٍ قراءة ملف واحد…</numerusform>
            <numerusform>جارٍ قراءة ملفين…</numerusform>
            <numerusform>جارٍ قراءة %n ملفات…</numerusform>
            <numerusform>جارٍ قراءة %n ملفًا…</numerusform>
            <numerusform>جارٍ قراءة %n ملف…</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 cannot be read as media.</source>
        <translation>تتعذّر قراءة %1 كملف وسائط.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more cannot be read as media.</source>
        <translation>
            <numerusform>تتعذّر قراءة %1 كملف وسائط.</numerusform>
            <numerusform>تتعذّر قراءة %1 وملف آخر كوسائط.</numerusform>
            <numerusform>تتعذّر قراءة %1 وملفين آخرين كوسائط.</numerusform>
            <numerusform>تتعذّر قراءة %1 و%n ملفات أخرى كوسائط.</numerusform>
            <numerusform>تتعذّر قراءة %1 و%n ملفًا آخر كوسائط.</numerusform>
            <numerusform>تتعذّر قراءة %1 و%n ملف آخر كوسائط.</numerusform>
        </translation>
    </message>
    <message>
        <source>No proxy of %1: %2</source>
        <translation>لا يوجد ملف وكيل لـ %1: ‏%2</translation>
    </message>
</context>
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
    <name>ClipActions</name>
    <message>
        <source>Add transition</source>
        <translation>إضافة انتقال</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>إضافة عنوان</translation>
    </message>
    <message>
        <source>Change speed</source>
        <translation>تغيير السرعة</translation>
    </message>
    <message>
        <source>Add effect</source>
        <translation>إضافة مؤثر</translation>
    </message>
    <message>
        <source>Remove effect</source>
        <translation>إزالة مؤثر</translation>
    </message>
    <message>
        <source>Move effect</source>
        <translation>نقل مؤثر</translation>
    </message>
    <message>
        <source>Switch effect</source>
        <translation>تشغيل المؤثر أو إيقافه</translation>
    </message>
    <message>
        <source>Change transition</source>
        <translation>تغيير الانتقال</translation>
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
        <translation>الملاءمة</translation>
    </message>
    <message>
        <source>Whole picture</source>
        <translation>الصورة كاملة</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>الإطار كاملًا</translation>
    </message>
    <message>
        <source>Stretched</source>
        <translation>تمديد</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>بكسل مقابل بكسل</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> إطار</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>تقليل الضوضاء</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> ديسيبل</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>الدوران</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Centre X</source>
        <translation>المركز X</translation>
    </message>
    <message>
        <source>Centre Y</source>
        <translation>المركز Y</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>الارتفاع</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>النمط</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>ضرب</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>شاشة</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>تراكب</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>تغميق</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>تفتيح</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>جمع</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>فرق</translation>
    </message>
    <message>
        <source>Colour dodge</source>
        <translation>تفتيح اللون الأساسي</translation>
    </message>
    <message>
        <source>Colour burn</source>
        <translation>حرق اللون</translation>
    </message>
    <message>
        <source>Hard light</source>
        <translation>ضوء قوي</translation>
    </message>
    <message>
        <source>Soft light</source>
        <translation>ضوء ناعم</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>استبعاد</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>التوازن</translation>
    </message>
    <message>
        <source>Pitch</source>
        <translation>طبقة الصوت</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>تصاعد تدريجي</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>خفوت تدريجي</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>أحادي</translation>
    </message>
    <message>
        <source> st</source>
        <translation> نصف نغمة</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>اللون</translation>
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
    <name>Editor</name>
    <message>
        <source>A small editor.</source>
        <translation>محرّر صغير.</translation>
    </message>
    <message>
        <source>Write a picture of the window to &lt;file&gt;.</source>
        <translation>كتابة صورة للنافذة في &lt;file&gt;.</translation>
    </message>
    <message>
        <source>A project to open, and media for the bin.</source>
        <translation>مشروع لفتحه، ووسائط لحاوية الوسائط.</translation>
    </message>
    <message>
        <source>The engine is missing.</source>
        <translation>المحرّك مفقود.</translation>
    </message>
    <message>
        <source>Make a small film of the media by itself, and put pictures, the film and a report into &lt;folder&gt;.</source>
        <translation>إنشاء فيلم صغير من الوسائط تلقائيًا ووضع الصور والفيلم وتقرير في &lt;المجلد&gt;.</translation>
    </message>
</context>
<context>
    <name>EditorWindow</name>
    <message>
        <source>Media</source>
        <translation>الوسائط</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>المخطط الزمني</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;تحرير</translation>
    </message>
    <message>
        <source>Lift from in to out point</source>
        <translation>رفع ما بين نقطتي الدخول والخروج</translation>
    </message>
    <message>
        <source>Lift</source>
        <translation>رفع</translation>
    </message>
    <message>
        <source>Extract from in to out point</source>
        <translation>استخراج ما بين نقطتي الدخول والخروج</translation>
    </message>
    <message>
        <source>Extract</source>
        <translation>استخراج</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;الوسائط</translation>
    </message>
    <message>
        <source>&amp;Timeline</source>
        <translation>المخطط ال&amp;زمني</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>ت&amp;شغيل</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول البرنامج</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>شريط الأدوات</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>بلا عنوان</translation>
    </message>
    <message numerus="yes">
        <source>%n remark(s) on the file, in the log</source>
        <translation>
            <numerusform>لا ملاحظات على الملف</numerusform>
            <numerusform>ملاحظة واحدة على الملف، في السجل</numerusform>
            <numerusform>ملاحظتان على الملف، في السجل</numerusform>
            <numerusform>%n ملاحظات على الملف، في السجل</numerusform>
            <numerusform>%n ملاحظة على الملف، في السجل</numerusform>
            <numerusform>%n ملاحظة على الملف، في السجل</numerusform>
        </translation>
    </message>
    <message>
        <source>Set an in and an out point first.</source>
        <translation>عيّن نقطتي الدخول والخروج أولًا.</translation>
    </message>
    <message>
        <source>Recovery</source>
        <translation>الاستعادة</translation>
    </message>
    <message>
        <source>The editor has ended unexpectedly. Changes of %1 until %2 can be opened.</source>
        <translation>انتهى المحرّر بشكل غير متوقع. يمكن فتح تغييرات %1 حتى %2.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>التصدير</translation>
    </message>
    <message>
        <source>Films are being written. End that?</source>
        <translation>تجري كتابة أفلام. هل تريد إنهاء ذلك؟</translation>
    </message>
    <message>
        <source>Render the preview, or stop it</source>
        <translation>تصيير المعاينة أو إيقافه</translation>
    </message>
    <message>
        <source>%1 cannot be written to.</source>
        <translation>تتعذّر الكتابة إلى %1.</translation>
    </message>
    <message>
        <source>Light style</source>
        <translation>نمط فاتح</translation>
    </message>
</context>
<context>
    <name>EffectsSection</name>
    <message>
        <source>Add effect</source>
        <translation>إضافة مؤثر</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>الصورة</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Apply earlier</source>
        <translation>التطبيق أبكر</translation>
    </message>
    <message>
        <source>Apply later</source>
        <translation>التطبيق لاحقًا</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
</context>
<context>
    <name>ExportCheck</name>
    <message>
        <source>This cannot be combined</source>
        <translation>لا يمكن الجمع بين هذه الإعدادات</translation>
    </message>
    <message>
        <source>There is no such preset.</source>
        <translation>لا يوجد إعداد مسبق كهذا.</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>The processor encodes and decodes.</source>
        <translation>يتولى المعالج الترميز وفك الترميز.</translation>
    </message>
    <message>
        <source>The processor encodes; the graphics hardware helps to decode.</source>
        <translation>يتولى المعالج الترميز، ويساعد عتاد الرسوميات في فك الترميز.</translation>
    </message>
    <message>
        <source>Add to the queue</source>
        <translation>إضافة إلى قائمة الانتظار</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>التصدير</translation>
    </message>
    <message>
        <source>Films</source>
        <translation>الأفلام</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>الإعداد المسبق</translation>
    </message>
    <message>
        <source>film</source>
        <translation>فيلم</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>اختيار ملف</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>الارتفاع</translation>
    </message>
    <message>
        <source>As the project</source>
        <translation>كما في المشروع</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 إطار/ث</translation>
    </message>
    <message>
        <source>%1 Hz</source>
        <translation>%1 هرتز</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>معدل الإطارات</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>From in to out</source>
        <translation>من الدخول إلى الخروج</translation>
    </message>
    <message>
        <source>In point</source>
        <translation>نقطة الدخول</translation>
    </message>
    <message>
        <source>Out point</source>
        <translation>نقطة الخروج</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>النطاق</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>العتاد</translation>
    </message>
    <message>
        <source>Still picture…</source>
        <translation>صورة ثابتة…</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Writes the frame under the play head</source>
        <translation>يكتب الإطار الواقع تحت رأس التشغيل</translation>
    </message>
    <message>
        <source>The project cannot be copied.</source>
        <translation>تعذّر نسخ المشروع.</translation>
    </message>
    <message>
        <source>Still picture</source>
        <translation>صورة ثابتة</translation>
    </message>
    <message>
        <source>/frame %1.png</source>
        <translation>/إطار %1.png</translation>
    </message>
    <message>
        <source>Pictures (*.png *.jpg *.tif *.bmp)</source>
        <translation>الصور (*.png *.jpg *.tif *.bmp)</translation>
    </message>
    <message>
        <source>%1 is in the queue already.</source>
        <translation>%1 موجود في قائمة الانتظار بالفعل.</translation>
    </message>
    <message>
        <source>%1 is there already. Replace it?</source>
        <translation>%1 موجود بالفعل. هل تريد استبداله؟</translation>
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
    <name>ExportQueue</name>
    <message>
        <source>%1 is not written</source>
        <translation>لم يُكتب %1</translation>
    </message>
</context>
<context>
    <name>ExportQueueView</name>
    <message>
        <source>No films yet</source>
        <translation>لا أفلام بعد</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>في الانتظار</translation>
    </message>
    <message>
        <source>Being written</source>
        <translation>تجري كتابته</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>يتبقى %1</translation>
    </message>
    <message>
        <source>Written</source>
        <translation>كُتب</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>أُلغي</translation>
    </message>
    <message>
        <source>Take from the list</source>
        <translation>إزالة من القائمة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>FileCommands</name>
    <message>
        <source>Projects</source>
        <translation>المشاريع</translation>
    </message>
    <message>
        <source>New</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>فتح…</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Save as…</source>
        <translation>حفظ باسم…</translation>
    </message>
    <message>
        <source>Open recent</source>
        <translation>فتح الأخيرة</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>بلا عنوان</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>حفظ التغييرات</translation>
    </message>
    <message>
        <source>The project has changes that are not saved.</source>
        <translation>في المشروع تغييرات لم تُحفظ.</translation>
    </message>
</context>
<context>
    <name>FileEditor</name>
    <message>
        <source>No file</source>
        <translation>لا ملف</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>اختيار ملف</translation>
    </message>
</context>
<context>
    <name>FontEditor</name>
    <message>
        <source>System font</source>
        <translation>خط النظام</translation>
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
        <source>Begin with the page &lt;name&gt;.</source>
        <translation>البدء بالصفحة &lt;name&gt;.</translation>
    </message>
    <message>
        <source>List the names of the pages.</source>
        <translation>سرد أسماء الصفحات.</translation>
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
    <message>
        <source>Another window has a device open. Close that window, then choose this device again.</source>
        <translation>نافذة أخرى تستخدم جهازًا. أغلق تلك النافذة، ثم اختر هذا الجهاز من جديد.</translation>
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
    <name>KeyFrameBar</name>
    <message>
        <source>Previous key frame</source>
        <translation>الإطار المفتاحي السابق</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>إطار مفتاحي</translation>
    </message>
    <message>
        <source>Next key frame</source>
        <translation>الإطار المفتاحي التالي</translation>
    </message>
    <message>
        <source>Hold</source>
        <translation>تثبيت</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>خطي</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>سلس</translation>
    </message>
    <message>
        <source>To the next key frame</source>
        <translation>حتى الإطار المفتاحي التالي</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
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
    <name>LevelHeader</name>
    <message>
        <source>Level %1</source>
        <translation>المسار %1</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>قفل</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>إخفاء</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>منفرد</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
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
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>السجل</translation>
    </message>
</context>
<context>
    <name>MediaBin</name>
    <message>
        <source>Add media</source>
        <translation>إضافة وسائط</translation>
    </message>
    <message>
        <source>Remove media</source>
        <translation>إزالة وسائط</translation>
    </message>
    <message>
        <source>Relink media</source>
        <translation>إعادة ربط الوسائط</translation>
    </message>
    <message>
        <source>Use the media itself</source>
        <translation>استخدام الوسائط الأصلية</translation>
    </message>
    <message>
        <source>Use a proxy</source>
        <translation>استخدام ملف وكيل</translation>
    </message>
    <message>
        <source>Set in and out point</source>
        <translation>تعيين نقطتي الدخول والخروج</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>مسح نقطتي الدخول والخروج</translation>
    </message>
    <message>
        <source>Place a clip</source>
        <translation>وضع مقطع</translation>
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
    <name>MovementKeys</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>الدوران</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Shift right</source>
        <translation>الإزاحة إلى اليمين</translation>
    </message>
    <message>
        <source>Shift up</source>
        <translation>الإزاحة إلى الأعلى</translation>
    </message>
    <message>
        <source>Width factor</source>
        <translation>معامل العرض</translation>
    </message>
    <message>
        <source>Height factor</source>
        <translation>معامل الارتفاع</translation>
    </message>
    <message>
        <source>Opacity factor</source>
        <translation>معامل العتامة</translation>
    </message>
</context>
<context>
    <name>MovementSection</name>
    <message>
        <source>Movement</source>
        <translation>الحركة</translation>
    </message>
    <message>
        <source>Key frame</source>
        <translation>إطار مفتاحي</translation>
    </message>
    <message>
        <source>Change movement</source>
        <translation>تغيير الحركة</translation>
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
        <translation> بكسل</translation>
    </message>
    <message>
        <source> EV</source>
        <translation> EV</translation>
    </message>
    <message>
        <source> dB</source>
        <translation> ديسيبل</translation>
    </message>
    <message>
        <source> fr</source>
        <translation> إطار</translation>
    </message>
    <message>
        <source> s</source>
        <translation> ث</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> هرتز</translation>
    </message>
    <message>
        <source> K</source>
        <translation> كلفن</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> م.ث</translation>
    </message>
</context>
<context>
    <name>PictureHandles</name>
    <message>
        <source>Place picture</source>
        <translation>وضع الصورة</translation>
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
    <name>PlayerPanel</name>
    <message>
        <source>Play or pause</source>
        <translation>تشغيل أو إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Play backwards</source>
        <translation>تشغيل إلى الخلف</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Play forwards</source>
        <translation>تشغيل إلى الأمام</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>تكرار</translation>
    </message>
    <message>
        <source>Back one frame</source>
        <translation>إطار إلى الخلف</translation>
    </message>
    <message>
        <source>Forward one frame</source>
        <translation>إطار إلى الأمام</translation>
    </message>
    <message>
        <source>Go to beginning</source>
        <translation>الانتقال إلى البداية</translation>
    </message>
    <message>
        <source>Go to end</source>
        <translation>الانتقال إلى النهاية</translation>
    </message>
    <message>
        <source>Set in point</source>
        <translation>تعيين نقطة الدخول</translation>
    </message>
    <message>
        <source>Set out point</source>
        <translation>تعيين نقطة الخروج</translation>
    </message>
    <message>
        <source>Clear in and out point</source>
        <translation>مسح نقطتي الدخول والخروج</translation>
    </message>
    <message>
        <source>Go to in point</source>
        <translation>الانتقال إلى نقطة الدخول</translation>
    </message>
    <message>
        <source>Go to out point</source>
        <translation>الانتقال إلى نقطة الخروج</translation>
    </message>
    <message>
        <source>Set or remove marker</source>
        <translation>تعيين علامة أو إزالتها</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم</translation>
    </message>
    <message>
        <source>Safe areas</source>
        <translation>المناطق الآمنة</translation>
    </message>
    <message>
        <source>Picture on full screen</source>
        <translation>الصورة على كامل الشاشة</translation>
    </message>
    <message>
        <source>Timecode of the play head</source>
        <translation>رمز الوقت لرأس التشغيل</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>رأس التشغيل</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
</context>
<context>
    <name>Project</name>
    <message>
        <source>The project cannot be made</source>
        <translation>تعذّر إنشاء المشروع</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>تعذّر فتح %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved</source>
        <translation>تعذّر حفظ %1</translation>
    </message>
</context>
<context>
    <name>ProjectFields</name>
    <message>
        <source> px</source>
        <translation> بكسل</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>معدل الإطارات</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> إطار/ث</translation>
    </message>
    <message>
        <source>Preview scale</source>
        <translation>مقياس المعاينة</translation>
    </message>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>الخلفية</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>الارتفاع</translation>
    </message>
    <message>
        <source>Sample rate</source>
        <translation>معدل أخذ العينات</translation>
    </message>
    <message>
        <source> Hz</source>
        <translation> هرتز</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>القنوات</translation>
    </message>
    <message>
        <source>Bits of a colour</source>
        <translation>عدد البتات لكل لون</translation>
    </message>
    <message>
        <source>Smooth scaling</source>
        <translation>تحجيم ناعم</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>مستوى الصوت</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>التوازن</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم</translation>
    </message>
    <message>
        <source>Solo</source>
        <translation>منفرد</translation>
    </message>
</context>
<context>
    <name>PropertiesPanel</name>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>المشروع</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>مقطع</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>التنسيق</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>الرسم</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>المؤثرات</translation>
    </message>
    <message>
        <source>Add title</source>
        <translation>إضافة عنوان</translation>
    </message>
    <message>
        <source>Mixer, level %1</source>
        <translation>المازج، المسار %1</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>انتقال</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>المزج</translation>
    </message>
    <message>
        <source>Movement</source>
        <translation>الحركة</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>الصوت</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>الانتقالات</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>المعلمات</translation>
    </message>
</context>
<context>
    <name>PropertyForm</name>
    <message>
        <source>Back to the preset</source>
        <translation>العودة إلى القيمة الافتراضية</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>تغيير: %1</translation>
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
    <name>ShortcutList</name>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>الأمر</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>المفاتيح</translation>
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
    <name>SpeedSection</name>
    <message>
        <source> %</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>السرعة</translation>
    </message>
    <message>
        <source>Back to the preset</source>
        <translation>العودة إلى القيمة الافتراضية</translation>
    </message>
</context>
<context>
    <name>StillPicture</name>
    <message>
        <source>The frame cannot be drawn</source>
        <translation>تعذّر رسم الإطار</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>لم يُكتب %1: ‏%2</translation>
    </message>
</context>
<context>
    <name>Timeline</name>
    <message>
        <source>Colour</source>
        <translation>لون</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>مقطع مركّب</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>نقل</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>المحاذاة التلقائية</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>تحريك نقطة القطع</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>تشذيب</translation>
    </message>
    <message>
        <source>Slip</source>
        <translation>إزاحة المحتوى</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>انزلاق المقطع</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>لصق بالإدراج</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>حذف مع الإزاحة</translation>
    </message>
    <message>
        <source>Split at play head</source>
        <translation>تقسيم عند رأس التشغيل</translation>
    </message>
    <message>
        <source>Trim begin to play head</source>
        <translation>تشذيب البداية حتى رأس التشغيل</translation>
    </message>
    <message>
        <source>Trim end to play head</source>
        <translation>تشذيب النهاية حتى رأس التشغيل</translation>
    </message>
    <message>
        <source>Close gap at play head</source>
        <translation>سد الفراغ عند رأس التشغيل</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>تجميع</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>فك التجميع</translation>
    </message>
    <message>
        <source>Lock or unlock level</source>
        <translation>قفل المسار أو فتح قفله</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>تحديد الكل</translation>
    </message>
    <message>
        <source>Select at play head</source>
        <translation>تحديد ما عند رأس التشغيل</translation>
    </message>
    <message>
        <source>Select none</source>
        <translation>إلغاء التحديد</translation>
    </message>
    <message>
        <source>Frame earlier</source>
        <translation>أبكر بإطار واحد</translation>
    </message>
    <message>
        <source>Frame later</source>
        <translation>لاحقًا بإطار واحد</translation>
    </message>
    <message>
        <source>Second earlier</source>
        <translation>أبكر بثانية واحدة</translation>
    </message>
    <message>
        <source>Second later</source>
        <translation>لاحقًا بثانية واحدة</translation>
    </message>
    <message>
        <source>Level up</source>
        <translation>مسار إلى الأعلى</translation>
    </message>
    <message>
        <source>Level down</source>
        <translation>مسار إلى الأسفل</translation>
    </message>
    <message>
        <source>Previous cut</source>
        <translation>القطع السابق</translation>
    </message>
    <message>
        <source>Next cut</source>
        <translation>القطع التالي</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>أداة التحديد</translation>
    </message>
    <message>
        <source>Ripple tool</source>
        <translation>أداة التشذيب مع الإزاحة</translation>
    </message>
    <message>
        <source>Roll tool</source>
        <translation>أداة تحريك نقطة القطع</translation>
    </message>
    <message>
        <source>Slip tool</source>
        <translation>أداة إزاحة المحتوى</translation>
    </message>
    <message>
        <source>Slide tool</source>
        <translation>أداة انزلاق المقطع</translation>
    </message>
    <message>
        <source>Razor tool</source>
        <translation>أداة الشفرة</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>تصغير</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>ملاءمة النافذة</translation>
    </message>
    <message>
        <source>Taller levels</source>
        <translation>زيادة ارتفاع المسارات</translation>
    </message>
    <message>
        <source>Lower levels</source>
        <translation>تقليل ارتفاع المسارات</translation>
    </message>
    <message>
        <source>Ripple trim</source>
        <translation>تشذيب مع الإزاحة</translation>
    </message>
    <message>
        <source>Hide or show level</source>
        <translation>إخفاء المسار أو إظهاره</translation>
    </message>
    <message>
        <source>Mute or unmute level</source>
        <translation>كتم صوت المسار أو إعادته</translation>
    </message>
    <message>
        <source>Level solo or not</source>
        <translation>مسار منفرد أو لا</translation>
    </message>
</context>
<context>
    <name>TimelineCommands</name>
    <message>
        <source>Split</source>
        <translation>تقسيم</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>لصق</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>تجميع</translation>
    </message>
    <message>
        <source>Ungroup</source>
        <translation>فك التجميع</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>نقل</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>حذف مع الإزاحة</translation>
    </message>
    <message>
        <source>Paste insert</source>
        <translation>لصق بالإدراج</translation>
    </message>
    <message>
        <source>Close gap</source>
        <translation>سد الفراغ</translation>
    </message>
    <message>
        <source>Lock level</source>
        <translation>قفل المسار</translation>
    </message>
    <message>
        <source>Unlock level</source>
        <translation>فتح قفل المسار</translation>
    </message>
    <message>
        <source>Rename level</source>
        <translation>إعادة تسمية المسار</translation>
    </message>
</context>
<context>
    <name>TimelinePanel</name>
    <message>
        <source>Timeline</source>
        <translation>المخطط الزمني</translation>
    </message>
    <message>
        <source>Play head</source>
        <translation>رأس التشغيل</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>المقاطع</translation>
    </message>
    <message>
        <source>%1, level %2, frames %3 to %4</source>
        <translation>%1، المسار %2، الإطارات من %3 إلى %4</translation>
    </message>
</context>
<context>
    <name>TimelineRuler</name>
    <message>
        <source>Ruler</source>
        <translation>المسطرة</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Split</source>
        <translation>تقسيم</translation>
    </message>
    <message>
        <source>Insert media</source>
        <translation>إدراج وسائط</translation>
    </message>
    <message>
        <source>Add media</source>
        <translation>إضافة وسائط</translation>
    </message>
</context>
<context>
    <name>TransitionForm</name>
    <message>
        <source> s</source>
        <translation> ث</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>المدة</translation>
    </message>
</context>
<context>
    <name>TransitionSection</name>
    <message>
        <source>At the beginning</source>
        <translation>في البداية</translation>
    </message>
    <message>
        <source>At the end</source>
        <translation>في النهاية</translation>
    </message>
</context>
<context>
    <name>Transport</name>
    <message>
        <source>Remove marker</source>
        <translation>إزالة علامة</translation>
    </message>
    <message>
        <source>Set marker</source>
        <translation>تعيين علامة</translation>
    </message>
</context>
</TS>
