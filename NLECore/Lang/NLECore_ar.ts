<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar_AE" sourcelanguage="en_US">
<context>
    <name>NLECore</name>
    <message>
        <source>Uncompressed 4:2:2, 10 bits</source>
        <translation>غير مضغوط 4:2:2، ‏10 بت</translation>
    </message>
    <message>
        <source>MPEG transport stream</source>
        <translation>دفق نقل MPEG</translation>
    </message>
    <message>
        <source>MPEG program stream</source>
        <translation>دفق برنامج MPEG</translation>
    </message>
    <message>
        <source>Animated GIF</source>
        <translation>صورة GIF متحركة</translation>
    </message>
    <message>
        <source>PNG sequence</source>
        <translation>تسلسل PNG</translation>
    </message>
    <message>
        <source>TIFF sequence</source>
        <translation>تسلسل TIFF</translation>
    </message>
    <message>
        <source>JPEG sequence</source>
        <translation>تسلسل JPEG</translation>
    </message>
    <message>
        <source>MPEG-4 sound</source>
        <translation>صوت MPEG-4</translation>
    </message>
    <message>
        <source>Ogg sound</source>
        <translation>صوت Ogg</translation>
    </message>
    <message>
        <source>Windows Media sound</source>
        <translation>صوت Windows Media</translation>
    </message>
    <message>
        <source>H.264 for archives</source>
        <translation>H.264 للأرشفة</translation>
    </message>
    <message>
        <source>H.264 for streaming</source>
        <translation>H.264 للبث</translation>
    </message>
    <message>
        <source>H.264 lossless</source>
        <translation>H.264 بلا فقدان</translation>
    </message>
    <message>
        <source>H.265 10 bits</source>
        <translation>H.265 بعمق 10 بت</translation>
    </message>
    <message>
        <source>VP9 with alpha</source>
        <translation>VP9 مع قناة ألفا</translation>
    </message>
    <message>
        <source>TIFF sequence 16 bits</source>
        <translation>تسلسل TIFF بعمق 16 بت</translation>
    </message>
    <message>
        <source>MPEG-2 interlaced</source>
        <translation>MPEG-2 متشابك</translation>
    </message>
    <message>
        <source>WAV 24 bits</source>
        <translation>WAV بعمق 24 بت</translation>
    </message>
    <message>
        <source>No failure</source>
        <translation>لا يوجد خطأ</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشلت العملية</translation>
    </message>
    <message>
        <source>Something that has to be given is missing</source>
        <translation>عنصر مطلوب مفقود</translation>
    </message>
    <message>
        <source>A value that is not accepted</source>
        <translation>قيمة غير مقبولة</translation>
    </message>
    <message>
        <source>Outside of the range</source>
        <translation>خارج النطاق</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>لا يوجد شيء بهذا الاسم</translation>
    </message>
    <message>
        <source>There is nothing of this number</source>
        <translation>لا يوجد شيء بهذا الرقم</translation>
    </message>
    <message>
        <source>Not possible at this time</source>
        <translation>غير ممكن في الوقت الحالي</translation>
    </message>
    <message>
        <source>Not offered</source>
        <translation>غير متاح</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>الذاكرة غير كافية</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>أُلغي</translation>
    </message>
    <message>
        <source>A value that cannot be changed</source>
        <translation>قيمة لا يمكن تغييرها</translation>
    </message>
    <message>
        <source>There is no such value</source>
        <translation>لا توجد قيمة كهذه</translation>
    </message>
    <message>
        <source>There is nothing to show or to write</source>
        <translation>لا يوجد ما يُعرض أو يُكتب</translation>
    </message>
    <message>
        <source>This object cannot be used there</source>
        <translation>لا يمكن استخدام هذا الكائن هناك</translation>
    </message>
    <message>
        <source>There is no such file</source>
        <translation>الملف غير موجود</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>تتعذّر قراءة الملف</translation>
    </message>
    <message>
        <source>The file is damaged or of no known format</source>
        <translation>الملف تالف أو بتنسيق غير معروف</translation>
    </message>
    <message>
        <source>The file or folder cannot be written</source>
        <translation>تتعذّر الكتابة في الملف أو المجلد</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>القرص ممتلئ</translation>
    </message>
    <message>
        <source>There is no format of this name to write</source>
        <translation>لا يوجد تنسيق للكتابة بهذا الاسم</translation>
    </message>
    <message>
        <source>The format does not take these settings</source>
        <translation>لا يقبل التنسيق هذه الإعدادات</translation>
    </message>
    <message>
        <source>Exposure</source>
        <translation>التعريض الضوئي</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>مستوى الأسود</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>التباين</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>السطوع</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>نقطة الارتكاز</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>التشبع</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>توازن اللون الأبيض</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>درجة حرارة اللون</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>الصبغة</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>المنحنيات</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>رئيسي</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>Lookup table</source>
        <translation>جدول بحث الألوان (LUT)</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>المقدار</translation>
    </message>
    <message>
        <source>Chroma key</source>
        <translation>مفتاح الكروما</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Tolerance</source>
        <translation>التفاوت المسموح</translation>
    </message>
    <message>
        <source>Softness</source>
        <translation>نعومة الحواف</translation>
    </message>
    <message>
        <source>Spill removal</source>
        <translation>إزالة انسكاب اللون</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>اقتصاص</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>أسفل</translation>
    </message>
    <message>
        <source>Vignette</source>
        <translation>تظليل الحواف</translation>
    </message>
    <message>
        <source>Centre across</source>
        <translation>المركز أفقيًا</translation>
    </message>
    <message>
        <source>Centre down</source>
        <translation>المركز رأسيًا</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>أبيض وأسود</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>التردد</translation>
    </message>
    <message>
        <source>Resonance</source>
        <translation>الرنين</translation>
    </message>
    <message>
        <source>Target loudness</source>
        <translation>جهارة الصوت المستهدفة</translation>
    </message>
    <message>
        <source>Highest true peak</source>
        <translation>أعلى ذروة حقيقية</translation>
    </message>
    <message>
        <source>Measured loudness</source>
        <translation>جهارة الصوت المقيسة</translation>
    </message>
    <message>
        <source>Measured loudness range</source>
        <translation>نطاق جهارة الصوت المقيس</translation>
    </message>
    <message>
        <source>Measured true peak</source>
        <translation>الذروة الحقيقية المقيسة</translation>
    </message>
    <message>
        <source>Attack</source>
        <translation>زمن الاستجابة</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>زمن التحرير</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>العتبة</translation>
    </message>
    <message>
        <source>Compressor</source>
        <translation>ضاغط الصوت</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>نسبة الضغط</translation>
    </message>
    <message>
        <source>Make-up gain</source>
        <translation>كسب التعويض</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>محدِّد الصوت</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>الحد الأقصى</translation>
    </message>
    <message>
        <source>Noise gate</source>
        <translation>بوابة الضوضاء</translation>
    </message>
    <message>
        <source>Reduction</source>
        <translation>التخفيض</translation>
    </message>
    <message>
        <source>Reverb</source>
        <translation>الارتداد الصوتي</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>زمن الارتداد</translation>
    </message>
    <message>
        <source>First reflection</source>
        <translation>أول انعكاس</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>المزج</translation>
    </message>
    <message>
        <source>Echo</source>
        <translation>الصدى</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>التأخير</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>المستوى</translation>
    </message>
    <message>
        <source>Repeats</source>
        <translation>عدد التكرارات</translation>
    </message>
    <message>
        <source>High pass</source>
        <translation>تمرير الترددات العالية</translation>
    </message>
    <message>
        <source>Low pass</source>
        <translation>تمرير الترددات المنخفضة</translation>
    </message>
    <message>
        <source>De-esser</source>
        <translation>مزيل أصوات الصفير</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>العمق</translation>
    </message>
    <message>
        <source>Loudness normalisation</source>
        <translation>تسوية جهارة الصوت</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>تمويه</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>زيادة الحدة</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>انعكاس المرآة</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>أفقيًا</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>رأسيًا</translation>
    </message>
    <message>
        <source>Noise reduction</source>
        <translation>تقليل التشويش</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>القوة</translation>
    </message>
    <message>
        <source>Drop shadow</source>
        <translation>الظل المُسقَط</translation>
    </message>
    <message>
        <source>Offset across</source>
        <translation>الإزاحة أفقيًا</translation>
    </message>
    <message>
        <source>Offset down</source>
        <translation>الإزاحة رأسيًا</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>الخط</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>غامق</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>مائل</translation>
    </message>
    <message>
        <source>Letter spacing</source>
        <translation>تباعد الأحرف</translation>
    </message>
    <message>
        <source>Line spacing</source>
        <translation>تباعد الأسطر</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>من اليسار إلى اليمين</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>من اليمين إلى اليسار</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>المحاذاة</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>توسيط</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>الموضع الرأسي</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>الوسط</translation>
    </message>
    <message>
        <source>Shift to the right</source>
        <translation>الإزاحة إلى اليمين</translation>
    </message>
    <message>
        <source>Shift downwards</source>
        <translation>الإزاحة إلى الأسفل</translation>
    </message>
    <message>
        <source>Longest line</source>
        <translation>أقصى طول للسطر</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>الهامش</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>الحد الخارجي</translation>
    </message>
    <message>
        <source>Outline colour</source>
        <translation>لون الحد الخارجي</translation>
    </message>
    <message>
        <source>Shadow colour</source>
        <translation>لون الظل</translation>
    </message>
    <message>
        <source>Shadow to the right</source>
        <translation>الظل إلى اليمين</translation>
    </message>
    <message>
        <source>Shadow downwards</source>
        <translation>الظل إلى الأسفل</translation>
    </message>
    <message>
        <source>Shadow blur</source>
        <translation>تمويه الظل</translation>
    </message>
    <message>
        <source>Box colour</source>
        <translation>لون المربع</translation>
    </message>
    <message>
        <source>Box padding</source>
        <translation>المسافة داخل المربع</translation>
    </message>
    <message>
        <source>Box corners</source>
        <translation>استدارة زوايا المربع</translation>
    </message>
    <message>
        <source>Fade in</source>
        <translation>ظهور تدريجي</translation>
    </message>
    <message>
        <source>Fade out</source>
        <translation>اختفاء تدريجي</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>حركة النص</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>إلى الأعلى</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>إلى الأسفل</translation>
    </message>
    <message>
        <source>To the left</source>
        <translation>إلى اليسار</translation>
    </message>
    <message>
        <source>To the right</source>
        <translation>إلى اليمين</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>تلاشي الصوت</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>خطي</translation>
    </message>
    <message>
        <source>Equal power</source>
        <translation>قدرة ثابتة</translation>
    </message>
    <message>
        <source>No fade</source>
        <translation>بلا تلاشٍ</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>عكس</translation>
    </message>
    <message>
        <source>Down right</source>
        <translation>إلى أسفل اليمين</translation>
    </message>
    <message>
        <source>Down left</source>
        <translation>إلى أسفل اليسار</translation>
    </message>
    <message>
        <source>Up right</source>
        <translation>إلى أعلى اليمين</translation>
    </message>
    <message>
        <source>Up left</source>
        <translation>إلى أعلى اليسار</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>أفقي</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>رأسي</translation>
    </message>
    <message>
        <source>Dissolve</source>
        <translation>تداخل تدريجي</translation>
    </message>
    <message>
        <source>Dip to colour</source>
        <translation>التلاشي عبر لون</translation>
    </message>
    <message>
        <source>Wipe</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>دائرة</translation>
    </message>
    <message>
        <source>Diamond</source>
        <translation>معيّن</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>ساعة</translation>
    </message>
    <message>
        <source>Barn doors</source>
        <translation>باب بمصراعين</translation>
    </message>
    <message>
        <source>Push</source>
        <translation>دفع</translation>
    </message>
    <message>
        <source>Slide</source>
        <translation>انزلاق</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>تكبير</translation>
    </message>
    <message>
        <source>An effect was left out</source>
        <translation>أُهمل أحد المؤثرات</translation>
    </message>
    <message>
        <source>A transition was left out</source>
        <translation>أُهمل أحد الانتقالات</translation>
    </message>
    <message>
        <source>A clip of an unknown kind shows an empty picture</source>
        <translation>مقطع من نوع غير معروف يعرض صورة فارغة</translation>
    </message>
    <message>
        <source>A clip that plays backwards plays forwards</source>
        <translation>مقطع يُشغَّل بالعكس يُشغَّل هنا إلى الأمام</translation>
    </message>
    <message>
        <source>A change of speed was left out or is only close</source>
        <translation>تغيير في السرعة أُهمل أو هو تقريبي فقط</translation>
    </message>
    <message>
        <source>A file is missing; its clip is offline</source>
        <translation>ملف مفقود؛ مقطعه غير متصل</translation>
    </message>
    <message>
        <source>A part of the document cannot be used</source>
        <translation>يتعذّر استخدام جزء من المستند</translation>
    </message>
    <message>
        <source>Markers are kept as text only</source>
        <translation>تُحفظ العلامات كنص فقط</translation>
    </message>
    <message>
        <source>A volume, balance or opacity is only close</source>
        <translation>مستوى صوت أو توازن أو عتامة بقيمة تقريبية</translation>
    </message>
    <message>
        <source>There is no such device</source>
        <translation>الجهاز غير موجود</translation>
    </message>
    <message>
        <source>The track is locked</source>
        <translation>المسار مقفل</translation>
    </message>
    <message>
        <source>Clips would overlap</source>
        <translation>ستتداخل المقاطع</translation>
    </message>
    <message>
        <source>The clip has no more material</source>
        <translation>لا توجد مادة إضافية في المقطع</translation>
    </message>
    <message>
        <source>Nothing would be left of the clip</source>
        <translation>لن يتبقى شيء من المقطع</translation>
    </message>
    <message>
        <source>A transition cannot be cut</source>
        <translation>لا يمكن قص الانتقال</translation>
    </message>
</context>
</TS>
