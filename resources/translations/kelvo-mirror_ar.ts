<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>ActivityTab</name>
    <message>
        <source>&amp;Arrived</source>
        <translation>&amp;وصل</translation>
    </message>
    <message>
        <source>Shows the movies that have arrived</source>
        <translation>يعرض الأفلام التي وصلت</translation>
    </message>
    <message>
        <source>A&amp;ll Passes</source>
        <translation>&amp;كل الجولات</translation>
    </message>
    <message>
        <source>Shows every pass with its outcome</source>
        <translation>يعرض كل جولة ونتيجتها</translation>
    </message>
    <message>
        <source>Arrived per day, 30 days</source>
        <translation>ما وصل كل يوم، 30 يومًا</translation>
    </message>
</context>
<context>
    <name>ArrivalsView</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Search what has arrived</source>
        <translation>بحث في ما وصل</translation>
    </message>
    <message>
        <source>Shows the movies with this text in their path</source>
        <translation>يعرض الأفلام التي يحتوي مسارها على هذا النص</translation>
    </message>
    <message>
        <source>Arrived movies</source>
        <translation>الأفلام التي وصلت</translation>
    </message>
    <message>
        <source>By day, newest first; the Return key opens one</source>
        <translation>حسب اليوم، الأحدث أولًا؛ مفتاح الإدخال يفتح الفيلم</translation>
    </message>
</context>
<context>
    <name>BonjourSheet</name>
    <message>
        <source>Choose the Remote Mac</source>
        <translation>اختيار جهاز Mac البعيد</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>جارٍ البحث</translation>
    </message>
    <message>
        <source>Computers found</source>
        <translation>الحواسيب التي عُثر عليها</translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation>إعادة ال&amp;بحث</translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation>إعادة البحث</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <translation>ا&amp;ختيار</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>اختيار</translation>
    </message>
    <message>
        <source>Copy C&amp;ommand</source>
        <translation>&amp;نسخ الأمر</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>نسخ الأمر</translation>
    </message>
</context>
<context>
    <name>DiagnosticsTab</name>
    <message>
        <source>Folders and window</source>
        <translation>المجلدات والنافذة</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>Looks one second for Macs that share files and lists all of them below</source>
        <translation>يبحث ثانية واحدة عن أجهزة Mac التي تشارك ملفات ويسردها كلها في الأسفل</translation>
    </message>
    <message>
        <source>Writes what the last search found to the log</source>
        <translation>يكتب ما وجده البحث الأخير في السجل</translation>
    </message>
    <message>
        <source>Found &amp;Macs</source>
        <translation>أجهزة Mac التي عُ&amp;ثر عليها</translation>
    </message>
    <message>
        <source>Found Macs</source>
        <translation>أجهزة Mac التي عُثر عليها</translation>
    </message>
    <message>
        <source>Remote Mac and program</source>
        <translation>جهاز Mac البعيد والبرنامج</translation>
    </message>
    <message>
        <source>These buttons help to find out why something does not work. What they find out is written to the log: Help, Open Log Folder.</source>
        <translation>تساعد هذه الأزرار في معرفة سبب تعطل شيء ما. تُكتب النتائج في السجل: «مساعدة»، «فتح مجلد السجل».</translation>
    </message>
    <message>
        <source>Passes and heartbeat</source>
        <translation>الجولات والنبض</translation>
    </message>
    <message>
        <source>Sync Two Folders Here</source>
        <translation>مزامنة مجلدين هنا</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes between two folders on this computer, whatever Settings says</source>
        <translation>يشغّل المزامنة أو يوقفها، بجولات بين مجلدين على هذا الحاسوب، أيًا كانت الإعدادات</translation>
    </message>
    <message>
        <source>Sync from the Mac</source>
        <translation>المزامنة من جهاز Mac</translation>
    </message>
    <message>
        <source>Switches syncing on or off, with passes from the remote Mac, whatever Settings says</source>
        <translation>يشغّل المزامنة أو يوقفها، بجولات من جهاز Mac البعيد، أيًا كانت الإعدادات</translation>
    </message>
    <message>
        <source>Start Heartbeat</source>
        <translation>بدء النبض</translation>
    </message>
    <message>
        <source>Writes a line to the log each second, as a sign that the program is alive</source>
        <translation>يكتب سطرًا في السجل كل ثانية، علامةً على أن البرنامج يعمل</translation>
    </message>
    <message>
        <source>Pause Heartbeat</source>
        <translation>إيقاف النبض مؤقتًا</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the heartbeat is started again</source>
        <translation>لا يكتب المزيد من هذه الأسطر حتى يُبدأ النبض مجددًا</translation>
    </message>
    <message>
        <source>End Heartbeat</source>
        <translation>إنهاء النبض</translation>
    </message>
    <message>
        <source>Writes no more of these lines until the program starts again</source>
        <translation>لا يكتب المزيد من هذه الأسطر حتى يُشغّل البرنامج مجددًا</translation>
    </message>
    <message>
        <source>Show Source Folder</source>
        <translation>إظهار مجلد المصدر</translation>
    </message>
    <message>
        <source>Shows the source folder on the Sync tab and writes its parts to the log; where none is chosen, the Desktop folder becomes the source</source>
        <translation>يعرض مجلد المصدر في تبويب «المزامنة» ويكتب أجزاءه في السجل؛ وإن لم يُختر مجلد يصبح مجلد سطح المكتب هو المصدر</translation>
    </message>
    <message>
        <source>Open Test Folder</source>
        <translation>فتح مجلد الاختبار</translation>
    </message>
    <message>
        <source>Opens /Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer, a folder for tests that few computers have; source and destination must be chosen first</source>
        <translation>يفتح ⁨/Volumes/Macintosh%20HD-2/Users/support/Desktop/FolderOnRemoteServer⁩، وهو مجلد للاختبار لا يوجد إلا على القليل من الحواسيب؛ يجب اختيار المصدر والوجهة أولًا</translation>
    </message>
    <message>
        <source>Open Scripts Folder</source>
        <translation>فتح مجلد النصوص البرمجية</translation>
    </message>
    <message>
        <source>Opens the temporary folder in which the program keeps the scripts for a terminal</source>
        <translation>يفتح المجلد المؤقت الذي يحفظ فيه البرنامج النصوص البرمجية للطرفية</translation>
    </message>
    <message>
        <source>Leave All Fields</source>
        <translation>مغادرة كل الحقول</translation>
    </message>
    <message>
        <source>Takes the keyboard away from every field and button until another one is chosen</source>
        <translation>ينزع تركيز لوحة المفاتيح من كل الحقول والأزرار حتى يُختار غيرها</translation>
    </message>
    <message>
        <source>Search for Macs</source>
        <translation>البحث عن أجهزة Mac</translation>
    </message>
    <message>
        <source>Log Found Macs</source>
        <translation>تسجيل أجهزة Mac التي عُثر عليها</translation>
    </message>
    <message>
        <source>Copy to a Mac</source>
        <translation>النسخ إلى جهاز Mac</translation>
    </message>
    <message>
        <source>Writes a line to the log and nothing else: the destination is always a folder on this computer</source>
        <translation>يكتب سطرًا في السجل ولا شيء غير ذلك: الوجهة دائمًا مجلد على هذا الحاسوب</translation>
    </message>
    <message>
        <source>Watch for Shares</source>
        <translation>مراقبة المشاركات</translation>
    </message>
    <message>
        <source>Looks for shared folders and writes each one that comes or goes to the log</source>
        <translation>يبحث عن المجلدات المشتركة ويكتب في السجل كل مجلد يظهر أو يختفي</translation>
    </message>
    <message>
        <source>Open the Share</source>
        <translation>فتح المشاركة</translation>
    </message>
    <message>
        <source>Asks the desktop to open the shared folder of the Mac and writes the open shares to the log</source>
        <translation>يطلب من سطح المكتب فتح المجلد المشترك لجهاز Mac ويكتب المشاركات المفتوحة في السجل</translation>
    </message>
    <message>
        <source>Find Folder, Older Way</source>
        <translation>البحث عن المجلد بالطريقة القديمة</translation>
    </message>
    <message>
        <source>Opens the shared folder of the Mac and looks for the folder in it without waiting</source>
        <translation>يفتح المجلد المشترك لجهاز Mac ويبحث عن المجلد فيه دون انتظار</translation>
    </message>
    <message>
        <source>New Key, Older Way</source>
        <translation>مفتاح جديد بالطريقة القديمة</translation>
    </message>
    <message>
        <source>Removes the key and makes a new one in a terminal window; the Mac must be given the new one with Set Up Key</source>
        <translation>يزيل المفتاح وينشئ مفتاحًا جديدًا في نافذة طرفية؛ يجب تثبيت المفتاح الجديد على جهاز Mac عبر «إعداد المفتاح»</translation>
    </message>
    <message>
        <source>Quit and Relaunch</source>
        <translation>إنهاء وإعادة تشغيل</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>ينهي البرنامج ويشغّله مجددًا</translation>
    </message>
</context>
<context>
    <name>FixedWords</name>
    <message>
        <source>Start rsync with bonjour</source>
        <translation>بدء rsync عبر Bonjour</translation>
    </message>
    <message>
        <source>Start rsync with afp path</source>
        <translation>بدء rsync عبر مسار AFP</translation>
    </message>
    <message>
        <source>click to stop bonjour rsync</source>
        <translation>انقر لإيقاف rsync عبر Bonjour</translation>
    </message>
    <message>
        <source>click to stop rsync</source>
        <translation>انقر لإيقاف rsync</translation>
    </message>
    <message>
        <source>click to start rsync using bonjour</source>
        <translation>انقر لبدء rsync عبر Bonjour</translation>
    </message>
    <message>
        <source>click to start rsync</source>
        <translation>انقر لبدء rsync</translation>
    </message>
    <message>
        <source>click to restart rsync using bonjour</source>
        <translation>انقر لإعادة بدء rsync عبر Bonjour</translation>
    </message>
    <message>
        <source>click to restart rsync</source>
        <translation>انقر لإعادة بدء rsync</translation>
    </message>
    <message>
        <source>Trying to rsync From Destination to Source...</source>
        <translation>جارٍ محاولة rsync من الوجهة إلى المصدر...</translation>
    </message>
    <message>
        <source>Resting a bit ...</source>
        <translation>استراحة قصيرة ...</translation>
    </message>
    <message>
        <source>The settings file cannot be read - waiting...</source>
        <translation>لا يمكن قراءة ملف الإعدادات - جارٍ الانتظار...</translation>
    </message>
    <message>
        <source>oops - something went wrong - check settings and hardware connections - then try again...</source>
        <translation>عفوًا - حدث خطأ ما - تحقق من الإعدادات وتوصيلات العتاد - ثم حاول مجددًا...</translation>
    </message>
    <message>
        <source>Unable to Reach Remote Host</source>
        <translation>تعذر الوصول إلى المضيف البعيد</translation>
    </message>
    <message>
        <source>Missing ssh keys -
Please generate ssh keys
 and 
 try again...
</source>
        <translation>مفاتيح ssh مفقودة -
يرجى توليد مفاتيح ssh
 ثم 
 المحاولة مجددًا...
</translation>
    </message>
    <message>
        <source>SUCCESS...</source>
        <translation>نجاح...</translation>
    </message>
    <message>
        <source>remote seem to be alive?...</source>
        <translation>يبدو أن الجهاز البعيد يستجيب...</translation>
    </message>
    <message>
        <source>Oh OH...</source>
        <translation>عفوًا...</translation>
    </message>
    <message>
        <source>ssh identity file is invalid or missing ???...</source>
        <translation>ملف هوية ssh غير صالح أو مفقود...</translation>
    </message>
    <message>
        <source>ssh remote has issues - please check network connection or remote username@domain parameters...</source>
        <translation>هناك مشكلة في ssh البعيد - تحقق من اتصال الشبكة أو من معاملات المستخدم@النطاق...</translation>
    </message>
    <message>
        <source>Please Wait - Scanning for smb machines on network...</source>
        <translation>يرجى الانتظار - جارٍ البحث عن أجهزة smb على الشبكة...</translation>
    </message>
    <message>
        <source>Bonjour List...</source>
        <translation>قائمة Bonjour...</translation>
    </message>
    <message>
        <source>No network connection</source>
        <translation>لا يوجد اتصال بالشبكة</translation>
    </message>
    <message>
        <source>Connected to the local network only</source>
        <translation>متصل بالشبكة المحلية فقط</translation>
    </message>
    <message>
        <source>Connected to the network</source>
        <translation>متصل بالشبكة</translation>
    </message>
    <message>
        <source>the user name holds a zero</source>
        <translation>اسم المستخدم يحتوي على المحرف NUL</translation>
    </message>
    <message>
        <source>the user name holds a line break</source>
        <translation>اسم المستخدم يحتوي على فاصل أسطر</translation>
    </message>
    <message>
        <source>the user name holds signs that are no text</source>
        <translation>اسم المستخدم يحتوي على رموز لا تصلح نصًا</translation>
    </message>
    <message>
        <source>the user name begins with &quot;-&quot;</source>
        <translation>اسم المستخدم يبدأ بـ «-»</translation>
    </message>
    <message>
        <source>the user name holds &quot;:&quot; or &quot;/&quot;</source>
        <translation>اسم المستخدم يحتوي على «:» أو «/»</translation>
    </message>
    <message>
        <source>the host name holds a zero</source>
        <translation>اسم المضيف يحتوي على المحرف NUL</translation>
    </message>
    <message>
        <source>the host name holds a line break</source>
        <translation>اسم المضيف يحتوي على فاصل أسطر</translation>
    </message>
    <message>
        <source>the host name holds signs that are no text</source>
        <translation>اسم المضيف يحتوي على رموز لا تصلح نصًا</translation>
    </message>
    <message>
        <source>the host name begins with &quot;-&quot;</source>
        <translation>اسم المضيف يبدأ بـ «-»</translation>
    </message>
    <message>
        <source>the host name holds &quot;/&quot;</source>
        <translation>اسم المضيف يحتوي على «/»</translation>
    </message>
    <message>
        <source>the path of the key file holds a line break</source>
        <translation>مسار ملف المفتاح يحتوي على فاصل أسطر</translation>
    </message>
    <message>
        <source>the path of the key file holds signs that are no text</source>
        <translation>مسار ملف المفتاح يحتوي على رموز لا تصلح نصًا</translation>
    </message>
    <message>
        <source>the source holds a zero</source>
        <translation>المصدر يحتوي على المحرف NUL</translation>
    </message>
    <message>
        <source>the source holds a line break</source>
        <translation>المصدر يحتوي على فاصل أسطر</translation>
    </message>
    <message>
        <source>the source holds signs that are no text</source>
        <translation>المصدر يحتوي على رموز لا تصلح نصًا</translation>
    </message>
    <message>
        <source>the source begins with &quot;-&quot;</source>
        <translation>المصدر يبدأ بـ «-»</translation>
    </message>
    <message>
        <source>the host of the source begins with &quot;-&quot;</source>
        <translation>مضيف المصدر يبدأ بـ «-»</translation>
    </message>
    <message>
        <source>the source would be read as a module of an rsync daemon</source>
        <translation>سيُقرأ المصدر كوحدة لخادم rsync</translation>
    </message>
    <message>
        <source>the destination holds a zero</source>
        <translation>الوجهة تحتوي على المحرف NUL</translation>
    </message>
    <message>
        <source>the destination holds a line break</source>
        <translation>الوجهة تحتوي على فاصل أسطر</translation>
    </message>
    <message>
        <source>the destination holds signs that are no text</source>
        <translation>الوجهة تحتوي على رموز لا تصلح نصًا</translation>
    </message>
    <message>
        <source>the destination begins with &quot;-&quot;</source>
        <translation>الوجهة تبدأ بـ «-»</translation>
    </message>
    <message>
        <source>the destination would be read as the name of a host</source>
        <translation>ستُقرأ الوجهة كاسم مضيف</translation>
    </message>
    <message>
        <source>the command puts a text where it cannot be kept in one word</source>
        <translation>يضع الأمر نصًا حيث لا يمكن أن يبقى كلمة واحدة</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>تجاوز حصة القرص</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>خطأ في الإدخال/الإخراج</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>هو مجلد</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>لا توجد مساحة متبقية على القرص</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>لا يوجد ملف أو مجلد كهذا</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>ليس مجلدًا</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>الإذن مرفوض</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>نظام ملفات للقراءة فقط</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>عدد الملفات المفتوحة كبير جدًا</translation>
    </message>
    <message>
        <source>Trying to rsync with option = %1...</source>
        <translation>جارٍ محاولة rsync بالخيار = %1...</translation>
    </message>
    <message>
        <source>something went wrong - waiting to retry again... [%1]</source>
        <translation>حدث خطأ ما - جارٍ انتظار إعادة المحاولة... [%1]</translation>
    </message>
    <message>
        <source>Please make sure remote host is on this network
or
Please check username...

%1
</source>
        <translation>تحقق من أن المضيف البعيد على هذه الشبكة
أو
تحقق من اسم المستخدم...

%1
</translation>
    </message>
    <message>
        <source>Settings cannot be saved to %1: %2</source>
        <translation>لا يمكن حفظ الإعدادات في %1: %2</translation>
    </message>
    <message>
        <source>The settings in %1 are not known: %2</source>
        <translation>تعذرت معرفة الإعدادات في %1: %2</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Kelvo Mirror</source>
        <translation>Kelvo Mirror</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>صفحات</translation>
    </message>
</context>
<context>
    <name>PassesView</name>
    <message>
        <source>&amp;Brought files</source>
        <translation>جل&amp;بت ملفات</translation>
    </message>
    <message>
        <source>Shows the passes that brought files</source>
        <translation>يعرض الجولات التي جلبت ملفات</translation>
    </message>
    <message>
        <source>In tro&amp;uble</source>
        <translation>&amp;فيها مشكلة</translation>
    </message>
    <message>
        <source>Shows the passes that were in trouble</source>
        <translation>يعرض الجولات التي واجهت مشكلة</translation>
    </message>
    <message>
        <source>Passes</source>
        <translation>الجولات</translation>
    </message>
    <message>
        <source>Newest first; the selected pass is told below. The right arrow key unfolds a row that stands for several passes.</source>
        <translation>الأحدث أولًا؛ تفاصيل الجولة المحددة في الأسفل. مفتاح السهم الأيسر يفتح السطر الذي يمثل عدة جولات.</translation>
    </message>
    <message>
        <source>Select a pass to read what its commands said.</source>
        <translation>حدد جولة لقراءة ما قالته أوامرها.</translation>
    </message>
    <message>
        <source>The selected pass</source>
        <translation>الجولة المحددة</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>Copy the selected pass</source>
        <translation>نسخ الجولة المحددة</translation>
    </message>
    <message>
        <source>Puts the selected pass&apos;s text on the clipboard</source>
        <translation>يضع نص الجولة المحددة في الحافظة</translation>
    </message>
    <message>
        <source>E&amp;xport…</source>
        <translation>ت&amp;صدير…</translation>
    </message>
    <message>
        <source>Export all passes</source>
        <translation>تصدير كل الجولات</translation>
    </message>
    <message>
        <source>Writes all passes to a file of comma-separated values</source>
        <translation>يكتب كل الجولات في ملف قيم مفصولة بفواصل</translation>
    </message>
</context>
<context>
    <name>ProfilesSheet</name>
    <message>
        <source>Another Mac</source>
        <translation>جهاز Mac آخر</translation>
    </message>
    <message>
        <source>Each further Mac gets a name here. Under it the program keeps settings, a record of passes and a window of their own; the key is shared.</source>
        <translation>يُعطى كل جهاز Mac إضافي اسمًا هنا. وتحت هذا الاسم يحتفظ البرنامج بإعدادات وسجل جولات ونافذة خاصة به؛ أما المفتاح فمشترك.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>الا&amp;سم:</translation>
    </message>
    <message>
        <source>Letters, digits, “-” and “_”</source>
        <translation>حروف لاتينية وأرقام و“-” و“_”</translation>
    </message>
    <message>
        <source>Names there are</source>
        <translation>الأسماء الموجودة</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>جهاز Mac</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>آخر نجاح</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;فتح</translation>
    </message>
    <message>
        <source>Opens the window of this name, or brings it to the front</source>
        <translation>يفتح نافذة هذا الاسم أو يجلبها إلى الأمام</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>About Kelvo Mirror</source>
        <translation>حول Kelvo Mirror</translation>
    </message>
    <message>
        <source>Kelvo Mirror %1</source>
        <translation>Kelvo Mirror %1</translation>
    </message>
    <message>
        <source>Keeps a local folder supplied with movie files from a remote Mac.</source>
        <translation>يزوّد مجلدًا محليًا بملفات الأفلام من جهاز Mac بعيد.</translation>
    </message>
    <message>
        <source>Do not ask again</source>
        <translation>لا تسأل مجددًا</translation>
    </message>
    <message>
        <source>Show Remote Mac</source>
        <translation>عرض جهاز Mac البعيد</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>اختيار…</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>نسخ الأمر</translation>
    </message>
    <message>
        <source>Check Again</source>
        <translation>تحقق مجددًا</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>التفاصيل</translation>
    </message>
    <message>
        <source>Open the Log</source>
        <translation>فتح السجل</translation>
    </message>
    <message>
        <source>Without an answer, it tries again in %1 s.</source>
        <translation>دون إجابة، تُعاد المحاولة بعد %1 ث.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;فتح</translation>
    </message>
    <message>
        <source>Choose the Mac</source>
        <translation>اختيار جهاز Mac</translation>
    </message>
    <message>
        <source>Enter the Account</source>
        <translation>إدخال الحساب</translation>
    </message>
    <message>
        <source>Set Up the Key</source>
        <translation>إعداد المفتاح</translation>
    </message>
    <message>
        <source>&amp;Folder or file:</source>
        <translation>الم&amp;جلد أو الملف:</translation>
    </message>
</context>
<context>
    <name>RemoteTab</name>
    <message>
        <source>Host &amp;name</source>
        <translation>اسم الم&amp;ضيف</translation>
    </message>
    <message>
        <source>Studio-Mac.local</source>
        <translation>Studio-Mac.local</translation>
    </message>
    <message>
        <source>Host name</source>
        <translation>اسم المضيف</translation>
    </message>
    <message>
        <source>The name of the remote Mac on this network</source>
        <translation>اسم جهاز Mac البعيد على هذه الشبكة</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>ا&amp;ختيار…</translation>
    </message>
    <message>
        <source>Choose the remote Mac</source>
        <translation>اختيار جهاز Mac البعيد</translation>
    </message>
    <message>
        <source>Lists the Macs on this network that share files</source>
        <translation>يسرد أجهزة Mac على هذه الشبكة التي تشارك ملفات</translation>
    </message>
    <message>
        <source>&amp;User name</source>
        <translation>اسم المس&amp;تخدم</translation>
    </message>
    <message>
        <source>name of an account on the remote Mac</source>
        <translation>اسم حساب على جهاز Mac البعيد</translation>
    </message>
    <message>
        <source>User name</source>
        <translation>اسم المستخدم</translation>
    </message>
    <message>
        <source>An account on the remote Mac with Remote Login</source>
        <translation>حساب على جهاز Mac البعيد يُسمح له بتسجيل الدخول عن بُعد</translation>
    </message>
    <message>
        <source>Fol&amp;der</source>
        <translation>المجل&amp;د</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>أفلام</translation>
    </message>
    <message>
        <source>Remote folder</source>
        <translation>المجلد البعيد</translation>
    </message>
    <message>
        <source>The folder on the remote Mac to pull from, from its home folder or from /</source>
        <translation>المجلد على جهاز Mac البعيد الذي يُسحب منه، بدءًا من مجلده الرئيسي أو من ⁨/⁩</translation>
    </message>
    <message>
        <source>Source in use</source>
        <translation>المصدر المستخدم</translation>
    </message>
    <message>
        <source>Set Up &amp;Key…</source>
        <translation>إعداد المفت&amp;اح…</translation>
    </message>
    <message>
        <source>Makes a key for this program and installs it on the remote Mac; asks for the password there</source>
        <translation>ينشئ مفتاحًا لهذا البرنامج ويثبّته على جهاز Mac البعيد؛ يطلب كلمة السر هناك</translation>
    </message>
    <message>
        <source>Te&amp;st Connection</source>
        <translation>اخت&amp;بار الاتصال</translation>
    </message>
    <message>
        <source>Asks the remote Mac for an answer over ssh</source>
        <translation>يطلب من جهاز Mac البعيد إجابة عبر ssh</translation>
    </message>
    <message>
        <source>The connection test is running</source>
        <translation>اختبار الاتصال جارٍ</translation>
    </message>
    <message>
        <source>&amp;Make a New Key</source>
        <translation>إنشاء مفتاح جد&amp;يد</translation>
    </message>
    <message>
        <source>Replaces the key of this program; it must be installed again</source>
        <translation>يستبدل مفتاح هذا البرنامج؛ ويجب تثبيته من جديد</translation>
    </message>
    <message>
        <source>Check Ke&amp;y Again</source>
        <translation>التح&amp;قق من المفتاح مجددًا</translation>
    </message>
    <message>
        <source>Asks the remote Mac whether it accepts the key</source>
        <translation>يسأل جهاز Mac البعيد هل يقبل المفتاح</translation>
    </message>
    <message>
        <source>&amp;Open Remote Folder</source>
        <translation>&amp;فتح المجلد البعيد</translation>
    </message>
    <message>
        <source>Opens the remote folder in the file browser</source>
        <translation>يفتح المجلد البعيد في متصفح الملفات</translation>
    </message>
    <message>
        <source>Mount and F&amp;ind Folder</source>
        <translation>و&amp;صل المشاركة والعثور على المجلد</translation>
    </message>
    <message>
        <source>Opens the share, looks where it was mounted and opens the folder there</source>
        <translation>يفتح المشاركة، ويبحث عن موضع وصلها، ويفتح المجلد هناك</translation>
    </message>
    <message>
        <source>1. Mac</source>
        <translation>1. جهاز Mac</translation>
    </message>
    <message>
        <source>2. Account and folder</source>
        <translation>2. الحساب والمجلد</translation>
    </message>
    <message>
        <source>Use This Source No&amp;w</source>
        <translation>ا&amp;ستخدام هذا المصدر الآن</translation>
    </message>
    <message>
        <source>Passes pull from this account and folder from now on</source>
        <translation>تسحب الجولات من هذا الحساب والمجلد من الآن فصاعدًا</translation>
    </message>
    <message>
        <source>3. Key</source>
        <translation>3. المفتاح</translation>
    </message>
    <message>
        <source>4. Connection</source>
        <translation>4. الاتصال</translation>
    </message>
    <message>
        <source>More</source>
        <translation>المزيد</translation>
    </message>
</context>
<context>
    <name>SettingsTab</name>
    <message>
        <source>Kind of pass</source>
        <translation>نوع الجولة</translation>
    </message>
    <message>
        <source>Pull from the &amp;remote Mac over ssh</source>
        <translation>ال&amp;سحب من جهاز Mac البعيد عبر ssh</translation>
    </message>
    <message>
        <source>Copy &amp;between two folders of this computer</source>
        <translation>ال&amp;نسخ بين مجلدين على هذا الحاسوب</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>الأمر</translation>
    </message>
    <message>
        <source>Te&amp;mplate</source>
        <translation>ال&amp;قالب</translation>
    </message>
    <message>
        <source>Command template</source>
        <translation>قالب الأمر</translation>
    </message>
    <message>
        <source>&amp;Option</source>
        <translation>ال&amp;خيار</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>الخيار</translation>
    </message>
    <message>
        <source>Which files a pass touches</source>
        <translation>الملفات التي تشملها الجولة</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>مثال</translation>
    </message>
    <message>
        <source>Behaviour</source>
        <translation>السلوك</translation>
    </message>
    <message>
        <source>Rest between p&amp;asses</source>
        <translation>الاس&amp;تراحة بين الجولات</translation>
    </message>
    <message>
        <source> s</source>
        <translation> ث</translation>
    </message>
    <message>
        <source>3.0 s (automatic)</source>
        <translation>3.0 ث (تلقائي)</translation>
    </message>
    <message>
        <source>Rest between passes</source>
        <translation>الاستراحة بين الجولات</translation>
    </message>
    <message>
        <source>Seconds between two passes</source>
        <translation>عدد الثواني بين جولتين</translation>
    </message>
    <message>
        <source>&amp;Start syncing at launch</source>
        <translation>&amp;بدء المزامنة عند التشغيل</translation>
    </message>
    <message>
        <source>Hide the &amp;window at launch</source>
        <translation>إخ&amp;فاء النافذة عند التشغيل</translation>
    </message>
    <message>
        <source>Show a noti&amp;ce when movies have arrived</source>
        <translation>إ&amp;ظهار إشعار عند وصول أفلام</translation>
    </message>
    <message>
        <source>&amp;Quit without asking while movies are being copied</source>
        <translation>الإن&amp;هاء دون سؤال أثناء نسخ الأفلام</translation>
    </message>
    <message>
        <source>Start Kelvo Mirror when I &amp;log in</source>
        <translation>تشغيل Kelvo Mirror عند تسجيل ال&amp;دخول</translation>
    </message>
    <message>
        <source>R&amp;un after arrivals</source>
        <translation>التشغيل بعد الو&amp;صول</translation>
    </message>
    <message>
        <source>no command</source>
        <translation>لا أمر</translation>
    </message>
    <message>
        <source>Command to run after arrivals</source>
        <translation>الأمر الذي يُشغّل بعد الوصول</translation>
    </message>
    <message>
        <source>Run after each pass that has brought movies; empty for none</source>
        <translation>يُشغّل بعد كل جولة جلبت أفلامًا؛ اتركه فارغًا لعدم تشغيل شيء</translation>
    </message>
    <message>
        <source>It reads the paths of the movies on its standard input, each ended by a NUL; KELVO_MIRROR_ARRIVALS says how many.</source>
        <translation>يقرأ الأمر مسارات الأفلام من دخله القياسي، وينتهي كل منها بالمحرف NUL؛ ويذكر KELVO_MIRROR_ARRIVALS عددها.</translation>
    </message>
    <message>
        <source>Show a &amp;notice when passes turn bad and when they are well again</source>
        <translation>إظهار إشعا&amp;ر عند تعثر الجولات وعند عودتها إلى حالة سليمة</translation>
    </message>
    <message>
        <source>Kinds of movies</source>
        <translation>أنواع الأفلام</translation>
    </message>
    <message>
        <source>A&amp;dvanced</source>
        <translation>خ&amp;يارات متقدمة</translation>
    </message>
    <message>
        <source>Shows the command that a pass runs, and hides it again</source>
        <translation>يعرض الأمر الذي تشغّله الجولة، ويخفيه مجددًا</translation>
    </message>
    <message>
        <source>The template with the option filled in</source>
        <translation>القالب بعد ملء الخيار</translation>
    </message>
    <message>
        <source>&amp;Keep the connection to the Mac between passes</source>
        <translation>إبقاء ا&amp;لاتصال بجهاز Mac بين الجولات</translation>
    </message>
    <message>
        <source>Saves the logins of passes that follow each other within a minute; it ends with syncing, and after an hour at most</source>
        <translation>يوفّر تسجيل الدخول على الجولات التي يتبع بعضها بعضًا خلال دقيقة؛ وينتهي مع المزامنة، وبعد ساعة على الأكثر</translation>
    </message>
</context>
<context>
    <name>SyncTab</name>
    <message>
        <source>From</source>
        <translation>من</translation>
    </message>
    <message>
        <source>Remote source</source>
        <translation>المصدر البعيد</translation>
    </message>
    <message>
        <source>Chan&amp;ge…</source>
        <translation>تغيي&amp;ر…</translation>
    </message>
    <message>
        <source>Change the remote Mac</source>
        <translation>تغيير جهاز Mac البعيد</translation>
    </message>
    <message>
        <source>Shows the tab where the remote Mac is chosen</source>
        <translation>يعرض التبويب الذي يُختار فيه جهاز Mac البعيد</translation>
    </message>
    <message>
        <source>Source folder</source>
        <translation>مجلد المصدر</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>ا&amp;ختيار…</translation>
    </message>
    <message>
        <source>Choose the source folder</source>
        <translation>اختيار مجلد المصدر</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>إ&amp;ظهار</translation>
    </message>
    <message>
        <source>Reveal the source folder</source>
        <translation>إظهار مجلد المصدر</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser; a right click asks how</source>
        <translation>يفتح المجلد في متصفح الملفات؛ النقر بالزر الأيمن يسأل عن الطريقة</translation>
    </message>
    <message>
        <source>To</source>
        <translation>إلى</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>مجلد الوجهة</translation>
    </message>
    <message>
        <source>Ch&amp;oose…</source>
        <translation>اختي&amp;ار…</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>اختيار مجلد الوجهة</translation>
    </message>
    <message>
        <source>Revea&amp;l</source>
        <translation>إظ&amp;هار</translation>
    </message>
    <message>
        <source>Reveal the destination folder</source>
        <translation>إظهار مجلد الوجهة</translation>
    </message>
    <message>
        <source>Opens the folder in the file browser</source>
        <translation>يفتح المجلد في متصفح الملفات</translation>
    </message>
    <message>
        <source>Start rsync</source>
        <translation>بدء rsync</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>يشغّل المزامنة ويوقفها</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>مزامنة الآ&amp;ن</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>يبدأ الجولة التالية الآن</translation>
    </message>
    <message>
        <source>C&amp;ancel This Pass</source>
        <translation>إل&amp;غاء هذه الجولة</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>ينهي الجولة الجارية؛ ما بدأت نسخه يُحفظ للجولة التالية</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>وصل</translation>
    </message>
    <message>
        <source>All Arr&amp;ivals</source>
        <translation>كل ما &amp;وصل</translation>
    </message>
    <message>
        <source>Shows the Activity tab</source>
        <translation>يعرض تبويب «النشاط»</translation>
    </message>
    <message>
        <source>Whether this computer has a network connection</source>
        <translation>هل لهذا الحاسوب اتصال بالشبكة</translation>
    </message>
    <message>
        <source>&amp;Use This Source Now</source>
        <translation>ا&amp;ستخدام هذا المصدر الآن</translation>
    </message>
    <message>
        <source>Passes pull from the host and folder that are set now</source>
        <translation>تسحب الجولات من المضيف والمجلد المحددين الآن</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>%Ln passes written.</source>
        <translation>
            <numerusform>لم تُكتب جولات.</numerusform>
            <numerusform>كُتبت جولة واحدة.</numerusform>
            <numerusform>كُتبت جولتان.</numerusform>
            <numerusform>كُتبت %Ln جولات.</numerusform>
            <numerusform>كُتبت %Ln جولة.</numerusform>
            <numerusform>كُتبت %Ln جولة.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln movies</source>
        <translation>
            <numerusform>لا أفلام</numerusform>
            <numerusform>فيلم واحد</numerusform>
            <numerusform>فيلمان</numerusform>
            <numerusform>%Ln أفلام</numerusform>
            <numerusform>%Ln فيلمًا</numerusform>
            <numerusform>%Ln فيلم</numerusform>
        </translation>
    </message>
    <message>
        <source>exit status %1</source>
        <translation>حالة الخروج %1</translation>
    </message>
    <message>
        <source>ended when the pass was cancelled</source>
        <translation>انتهى عند إلغاء الجولة</translation>
    </message>
    <message>
        <source>given up when the program ended</source>
        <translation>تُرك عند انتهاء البرنامج</translation>
    </message>
    <message>
        <source>by rsync&apos;s own figures</source>
        <translation>حسب أرقام rsync نفسه</translation>
    </message>
    <message>
        <source>counted from its lines</source>
        <translation>محسوب من أسطره</translation>
    </message>
    <message>
        <source>the command did not say</source>
        <translation>لم يقل الأمر ذلك</translation>
    </message>
    <message>
        <source>Run after arrivals:</source>
        <translation>الأمر بعد الوصول:</translation>
    </message>
    <message>
        <source>… %L1 bytes left out …</source>
        <translation>… حُذف %L1 بايت …</translation>
    </message>
    <message>
        <source>Arrived:</source>
        <translation>وصل:</translation>
    </message>
    <message numerus="yes">
        <source>… and %Ln more</source>
        <translation>
            <numerusform>… ولا غيره</numerusform>
            <numerusform>… وواحد آخر</numerusform>
            <numerusform>… واثنان آخران</numerusform>
            <numerusform>… و%Ln غيرها</numerusform>
            <numerusform>… و%Ln غيرها</numerusform>
            <numerusform>… و%Ln غيرها</numerusform>
        </translation>
    </message>
    <message>
        <source>Next step: %1</source>
        <translation>الخطوة التالية: %1</translation>
    </message>
    <message>
        <source>Remote pass</source>
        <translation>جولة بعيدة</translation>
    </message>
    <message>
        <source>Plain pass</source>
        <translation>جولة محلية</translation>
    </message>
    <message numerus="yes">
        <source>%Ln passes, nothing new, %1 to %2</source>
        <translation>
            <numerusform>لا جولات، لا جديد، %1 إلى %2</numerusform>
            <numerusform>جولة واحدة، لا جديد، %1 إلى %2</numerusform>
            <numerusform>جولتان، لا جديد، %1 إلى %2</numerusform>
            <numerusform>%Ln جولات، لا جديد، %1 إلى %2</numerusform>
            <numerusform>%Ln جولة، لا جديد، %1 إلى %2</numerusform>
            <numerusform>%Ln جولة، لا جديد، %1 إلى %2</numerusform>
        </translation>
    </message>
    <message>
        <source>Running</source>
        <translation>جارية</translation>
    </message>
    <message>
        <source>being cancelled</source>
        <translation>جارٍ الإلغاء</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>أمس</translation>
    </message>
    <message>
        <source>nothing new</source>
        <translation>لا جديد</translation>
    </message>
    <message>
        <source>%1; a pass was in trouble</source>
        <translation>%1؛ واجهت جولة مشكلة</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %Ln days</source>
        <translation>
            <numerusform>%1 خلال %Ln يوم</numerusform>
            <numerusform>%1 خلال يوم واحد</numerusform>
            <numerusform>%1 خلال يومين</numerusform>
            <numerusform>%1 خلال %Ln أيام</numerusform>
            <numerusform>%1 خلال %Ln يومًا</numerusform>
            <numerusform>%1 خلال %Ln يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>Open in Finder</source>
        <translation>فتح في Finder</translation>
    </message>
    <message>
        <source>Show Enclosing</source>
        <translation>إظهار المجلد الحاوي</translation>
    </message>
    <message>
        <source>Retry Again...</source>
        <translation>إعادة المحاولة...</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>The Mac has not accepted the program&apos;s key yet.</source>
        <translation>لم يقبل جهاز Mac مفتاح البرنامج بعد.</translation>
    </message>
    <message>
        <source>No Mac is chosen yet.</source>
        <translation>لم يُختر جهاز Mac بعد.</translation>
    </message>
    <message>
        <source>The user name on the Mac is missing.</source>
        <translation>اسم المستخدم على جهاز Mac مفقود.</translation>
    </message>
    <message>
        <source>The program has no ssh key of its own yet.</source>
        <translation>ليس للبرنامج مفتاح ssh خاص به بعد.</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine.</source>
        <translation>لم يُثبَّت ssh على هذا الجهاز.</translation>
    </message>
    <message>
        <source>No source folder is chosen yet.</source>
        <translation>لم يُختر مجلد المصدر بعد.</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet.</source>
        <translation>لم يُختر مجلد الوجهة بعد.</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written.</source>
        <translation>مجلد الوجهة مفقود أو لا يمكن الكتابة فيه.</translation>
    </message>
    <message>
        <source>rsync is not installed on this machine.</source>
        <translation>لم يُثبَّت rsync على هذا الجهاز.</translation>
    </message>
    <message>
        <source>Kelvo Mirror keeps running</source>
        <translation>يستمر Kelvo Mirror في العمل</translation>
    </message>
    <message>
        <source>There is no tray icon to bring the window back with. To see the window again, start Kelvo Mirror once more. To end the program, choose Quit from the File menu instead.</source>
        <translation>لا توجد أيقونة في شريط النظام لاستعادة النافذة. لرؤية النافذة مجددًا، شغّل Kelvo Mirror مرة أخرى. لإنهاء البرنامج، اختر «إنهاء» من قائمة «ملف» بدلًا من ذلك.</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message>
        <source>Keep Open</source>
        <translation>إبقاؤها مفتوحة</translation>
    </message>
    <message>
        <source>Quit while movies are being copied?</source>
        <translation>إنهاء أثناء نسخ الأفلام؟</translation>
    </message>
    <message>
        <source>The pass that runs will be ended: %1. The next start goes on from there.</source>
        <translation>ستُنهى الجولة الجارية: %1. يستأنف التشغيل التالي من هناك.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>متابعة العمل</translation>
    </message>
    <message>
        <source>Last success: %1, %2</source>
        <translation>آخر نجاح: %1، %2</translation>
    </message>
    <message>
        <source>No pass has ended yet. How it went will stand here.</source>
        <translation>لم تنتهِ أي جولة بعد. ستظهر النتيجة هنا.</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%Ln passes)</source>
        <translation>
            <numerusform>%1 (%Ln جولة)</numerusform>
            <numerusform>%1 (جولة واحدة)</numerusform>
            <numerusform>%1 (جولتان)</numerusform>
            <numerusform>%1 (%Ln جولات)</numerusform>
            <numerusform>%1 (%Ln جولة)</numerusform>
            <numerusform>%1 (%Ln جولة)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1.</source>
        <comment>a sentence without its full stop</comment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>The record of passes cannot be kept: %1</source>
        <translation>لا يمكن حفظ سجل الجولات: %1</translation>
    </message>
    <message>
        <source>The settings file was damaged. It is kept as %1</source>
        <translation>كان ملف الإعدادات تالفًا. حُفظ باسم ⁨%1⁩</translation>
    </message>
    <message>
        <source>The record of passes was damaged. It is kept as %1</source>
        <translation>كان سجل الجولات تالفًا. حُفظ باسم ⁨%1⁩</translation>
    </message>
    <message>
        <source>The record of passes was removed or replaced. The passes since the start were written again</source>
        <translation>أُزيل سجل الجولات أو استُبدل. كُتبت الجولات منذ التشغيل من جديد</translation>
    </message>
    <message>
        <source>No key yet. Set one up to be let in by the remote Mac.</source>
        <translation>لا مفتاح بعد. أنشئ مفتاحًا ليسمح لك جهاز Mac البعيد بالدخول.</translation>
    </message>
    <message>
        <source>Key made. Fill in host name and user to have it accepted.</source>
        <translation>أُنشئ المفتاح. املأ اسم المضيف والمستخدم ليُقبل.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac has not been asked yet.</source>
        <translation>أُنشئ المفتاح. لم يُسأل جهاز Mac البعيد بعد.</translation>
    </message>
    <message>
        <source>Asking the remote Mac…</source>
        <translation>جارٍ سؤال جهاز Mac البعيد…</translation>
    </message>
    <message>
        <source>Key accepted by the remote Mac.</source>
        <translation>قبل جهاز Mac البعيد المفتاح.</translation>
    </message>
    <message>
        <source>Key made, not accepted by the remote Mac yet.</source>
        <translation>أُنشئ المفتاح، ولم يقبله جهاز Mac البعيد بعد.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac is not on the network right now.</source>
        <translation>أُنشئ المفتاح. جهاز Mac البعيد ليس على الشبكة الآن.</translation>
    </message>
    <message>
        <source>%1 was not written by Kelvo Mirror and is left alone. Move it away to switch this on here.</source>
        <translation>لم يكتب Kelvo Mirror الملف ⁨%1⁩ فتُرك كما هو. انقله بعيدًا لتشغيل هذا هنا.</translation>
    </message>
    <message>
        <source>%1 cannot be changed: %2</source>
        <translation>لا يمكن تغيير ⁨%1⁩: %2</translation>
    </message>
    <message>
        <source>Kelvo Mirror is well again</source>
        <translation>عاد Kelvo Mirror إلى حالة سليمة</translation>
    </message>
    <message>
        <source>The last pass went well: %1.</source>
        <translation>سارت الجولة الأخيرة جيدًا: %1.</translation>
    </message>
    <message>
        <source>Kelvo Mirror is in trouble</source>
        <translation>يواجه Kelvo Mirror مشكلة</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new movies</source>
        <translation>
            <numerusform>لا أفلام جديدة</numerusform>
            <numerusform>فيلم جديد واحد</numerusform>
            <numerusform>فيلمان جديدان</numerusform>
            <numerusform>%Ln أفلام جديدة</numerusform>
            <numerusform>%Ln فيلمًا جديدًا</numerusform>
            <numerusform>%Ln فيلم جديد</numerusform>
        </translation>
    </message>
    <message>
        <source>All is well.</source>
        <translation>كل شيء على ما يرام.</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network.</source>
        <translation>لا يستجيب أي جهاز Mac لهذا الاسم على الشبكة.</translation>
    </message>
    <message>
        <source>No Mac answers to this name on the network since %1.</source>
        <translation>لا يستجيب أي جهاز Mac لهذا الاسم على الشبكة منذ %1.</translation>
    </message>
    <message>
        <source>Check the host name, and that the Mac is switched on and in this network.</source>
        <translation>تحقق من اسم المضيف، ومن أن جهاز Mac مشغّل وعلى هذه الشبكة.</translation>
    </message>
    <message>
        <source>The Mac is away or asleep.</source>
        <translation>جهاز Mac في وضع الإسبات أو ليس على الشبكة.</translation>
    </message>
    <message>
        <source>The Mac is away or asleep since %1.</source>
        <translation>جهاز Mac في وضع الإسبات أو ليس على الشبكة منذ %1.</translation>
    </message>
    <message>
        <source>Wake the Mac; in its energy settings, let it wake for network access.</source>
        <translation>أيقظ جهاز Mac؛ واسمح في إعدادات الطاقة بالإيقاظ للوصول إلى الشبكة.</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins.</source>
        <translation>جهاز Mac موجود لكنه يرفض تسجيل الدخول.</translation>
    </message>
    <message>
        <source>The Mac is there but refuses logins since %1.</source>
        <translation>جهاز Mac موجود لكنه يرفض تسجيل الدخول منذ %1.</translation>
    </message>
    <message>
        <source>On the Mac, switch on Remote Login (System Settings, General, Sharing).</source>
        <translation>على جهاز Mac، شغّل تسجيل الدخول عن بُعد (إعدادات النظام، عام، المشاركة).</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before.</source>
        <translation>لم يتصل هذا الجهاز بجهاز Mac من قبل.</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before since %1.</source>
        <translation>لم يتصل هذا الجهاز بجهاز Mac بعد، منذ %1.</translation>
    </message>
    <message>
        <source>Log in once with ssh in a terminal and accept the Mac&apos;s key.</source>
        <translation>سجّل الدخول مرة واحدة عبر ssh في طرفية واقبل مفتاح جهاز Mac.</translation>
    </message>
    <message>
        <source>The Mac shows another key than before: it was set up anew, or another machine has taken its name.</source>
        <translation>يعرض جهاز Mac مفتاحًا مختلفًا عن السابق: إما أُعدّ من جديد، أو أخذ جهاز آخر اسمه.</translation>
    </message>
    <message>
        <source>The Mac shows another key than before since %1: it was set up anew, or another machine has taken its name.</source>
        <translation>يعرض جهاز Mac مفتاحًا مختلفًا عن السابق منذ %1: إما أُعدّ من جديد، أو أخذ جهاز آخر اسمه.</translation>
    </message>
    <message>
        <source>If you know why, remove the old key with ssh-keygen -R and the host name, then accept the new one.</source>
        <translation>إن كنت تعرف السبب، فأزل المفتاح القديم بالأمر ⁨ssh-keygen -R⁩ مع اسم المضيف، ثم اقبل الجديد.</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user.</source>
        <translation>لا يقبل جهاز Mac هذا المفتاح لهذا المستخدم.</translation>
    </message>
    <message>
        <source>The Mac does not take this key for this user since %1.</source>
        <translation>لا يقبل جهاز Mac هذا المفتاح لهذا المستخدم منذ %1.</translation>
    </message>
    <message>
        <source>Check the user name, then install the key on the Mac again.</source>
        <translation>تحقق من اسم المستخدم، ثم ثبّت المفتاح على جهاز Mac مجددًا.</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here.</source>
        <translation>مفتاح ssh الخاص بالبرنامج مفقود على هذا الجهاز.</translation>
    </message>
    <message>
        <source>The program&apos;s own ssh key is missing here since %1.</source>
        <translation>مفتاح ssh الخاص بالبرنامج مفقود على هذا الجهاز منذ %1.</translation>
    </message>
    <message>
        <source>Make the key and install it on the Mac.</source>
        <translation>أنشئ المفتاح وثبّته على جهاز Mac.</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name.</source>
        <translation>يسمّي جهاز Mac هذا المستخدم باسم آخر.</translation>
    </message>
    <message>
        <source>The Mac calls this user by another name since %1.</source>
        <translation>يسمّي جهاز Mac هذا المستخدم باسم آخر منذ %1.</translation>
    </message>
    <message>
        <source>Enter the account name that whoami prints on the Mac.</source>
        <translation>أدخل اسم الحساب الذي يطبعه whoami على جهاز Mac.</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login, which hides its answer.</source>
        <translation>يطبع جهاز Mac نصًا عند كل تسجيل دخول، مما يخفي إجابته.</translation>
    </message>
    <message>
        <source>The Mac prints a text at each login since %1, which hides its answer.</source>
        <translation>يطبع جهاز Mac نصًا عند كل تسجيل دخول منذ %1، مما يخفي إجابته.</translation>
    </message>
    <message>
        <source>On the Mac, remove what the shell&apos;s start file (.zshenv, .bashrc) prints.</source>
        <translation>على جهاز Mac، أزل ما يطبعه ملف بدء الصدفة (⁨.zshenv⁩، ⁨.bashrc⁩).</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac.</source>
        <translation>لا يوجد rsync على جهاز Mac.</translation>
    </message>
    <message>
        <source>There is no rsync on the Mac since %1.</source>
        <translation>لا يوجد rsync على جهاز Mac منذ %1.</translation>
    </message>
    <message>
        <source>Install rsync on the Mac, or give its place in the template with --rsync-path.</source>
        <translation>ثبّت rsync على جهاز Mac، أو اذكر مكانه في القالب بالخيار ⁨--rsync-path⁩.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template.</source>
        <translation>إصدار rsync على جهاز Mac أقدم من أن يدعم أحد خيارات القالب.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for an option of the template since %1.</source>
        <translation>إصدار rsync على جهاز Mac أقدم من أن يدعم أحد خيارات القالب منذ %1.</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or take the option out of the template.</source>
        <translation>حدّث rsync على جهاز Mac، أو احذف الخيار من القالب.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command: only what the template takes has arrived.</source>
        <translation>إصدار rsync على جهاز Mac أقدم من أن يدعم أمر الأفلام المدمج: لم يصل إلا ما يأخذه القالب.</translation>
    </message>
    <message>
        <source>The rsync on the Mac is too old for the built-in movie command since %1: only what the template takes has arrived.</source>
        <translation>إصدار rsync على جهاز Mac أقدم من أن يدعم أمر الأفلام المدمج منذ %1: لم يصل إلا ما يأخذه القالب.</translation>
    </message>
    <message>
        <source>Update rsync on the Mac, or let the template take every movie: without filters, and with -r.</source>
        <translation>حدّث rsync على جهاز Mac، أو دع القالب يأخذ كل الأفلام: بلا مرشحات ومع ⁨-r⁩.</translation>
    </message>
    <message>
        <source>The source folder is not there.</source>
        <translation>مجلد المصدر غير موجود.</translation>
    </message>
    <message>
        <source>The source folder is not there since %1.</source>
        <translation>مجلد المصدر غير موجود منذ %1.</translation>
    </message>
    <message>
        <source>Check the remote path, and that the disk with it is connected.</source>
        <translation>تحقق من المسار البعيد، ومن أن قرصه متصل.</translation>
    </message>
    <message>
        <source>A source folder may not be read.</source>
        <translation>لا يُسمح بقراءة أحد مجلدات المصدر.</translation>
    </message>
    <message>
        <source>A source folder may not be read since %1.</source>
        <translation>لا يُسمح بقراءة أحد مجلدات المصدر منذ %1.</translation>
    </message>
    <message>
        <source>On the Mac, allow full disk access for remote users (in Remote Login), or change the folder&apos;s permissions.</source>
        <translation>على جهاز Mac، اسمح للمستخدمين البعيدين بالوصول الكامل إلى القرص (في تسجيل الدخول عن بُعد)، أو غيّر أذونات المجلد.</translation>
    </message>
    <message>
        <source>The disk here is full.</source>
        <translation>القرص على هذا الجهاز ممتلئ.</translation>
    </message>
    <message>
        <source>The disk here is full since %1.</source>
        <translation>القرص على هذا الجهاز ممتلئ منذ %1.</translation>
    </message>
    <message>
        <source>Make room on the disk of the destination folder.</source>
        <translation>أفسح مساحة على قرص مجلد الوجهة.</translation>
    </message>
    <message>
        <source>The destination folder is missing or cannot be written since %1.</source>
        <translation>مجلد الوجهة مفقود أو لا يمكن الكتابة فيه منذ %1.</translation>
    </message>
    <message>
        <source>Connect its disk, or choose another destination folder.</source>
        <translation>صِل قرصه، أو اختر مجلد وجهة آخر.</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder.</source>
        <translation>برنامج آخر ينسخ إلى هذا المجلد.</translation>
    </message>
    <message>
        <source>Another program is pulling into this folder since %1.</source>
        <translation>برنامج آخر ينسخ إلى هذا المجلد منذ %1.</translation>
    </message>
    <message>
        <source>Give each program a destination folder of its own, or end the other one.</source>
        <translation>أعطِ كل برنامج مجلد وجهة خاصًا به، أو أنهِ البرنامج الآخر.</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here.</source>
        <translation>أحد أوامر الجولة غير مثبت على هذا الجهاز.</translation>
    </message>
    <message>
        <source>A command of the pass is not installed here since %1.</source>
        <translation>أحد أوامر الجولة غير مثبت على هذا الجهاز منذ %1.</translation>
    </message>
    <message>
        <source>Install rsync and ssh on this machine, or correct the command template.</source>
        <translation>ثبّت rsync وssh على هذا الجهاز، أو صحّح قالب الأمر.</translation>
    </message>
    <message>
        <source>The command template cannot be run.</source>
        <translation>لا يمكن تشغيل قالب الأمر.</translation>
    </message>
    <message>
        <source>The command template cannot be run since %1.</source>
        <translation>لا يمكن تشغيل قالب الأمر منذ %1.</translation>
    </message>
    <message>
        <source>Correct the rsync command template in the settings.</source>
        <translation>صحّح قالب أمر rsync في الإعدادات.</translation>
    </message>
    <message>
        <source>Some files vanished from the source while they were copied.</source>
        <translation>اختفت بعض الملفات من المصدر أثناء نسخها.</translation>
    </message>
    <message>
        <source>Nothing: the next pass brings what is there then.</source>
        <translation>لا شيء: الجولة التالية تجلب ما يوجد حينها.</translation>
    </message>
    <message>
        <source>Some files could not be taken.</source>
        <translation>تعذر أخذ بعض الملفات.</translation>
    </message>
    <message>
        <source>Some files could not be taken since %1.</source>
        <translation>تعذر أخذ بعض الملفات منذ %1.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for their names and reasons.</source>
        <translation>انظر نص الجولة لمعرفة أسمائها والأسباب.</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer.</source>
        <translation>انقطع الاتصال في منتصف النقل.</translation>
    </message>
    <message>
        <source>The connection gave way in the middle of the transfer since %1.</source>
        <translation>انقطع الاتصال في منتصف النقل منذ %1.</translation>
    </message>
    <message>
        <source>Check the network; the next pass goes on where this one stopped.</source>
        <translation>تحقق من الشبكة؛ الجولة التالية تستأنف من حيث توقفت هذه.</translation>
    </message>
    <message>
        <source>The pass cannot run: a folder, the host or the user is not set.</source>
        <translation>لا يمكن تشغيل الجولة: لم يُحدد أحد المجلدين أو المضيف أو المستخدم.</translation>
    </message>
    <message>
        <source>The pass cannot run since %1: a folder, the host or the user is not set.</source>
        <translation>لا يمكن تشغيل الجولة منذ %1: لم يُحدد أحد المجلدين أو المضيف أو المستخدم.</translation>
    </message>
    <message>
        <source>Choose the Mac, the user name and both folders.</source>
        <translation>اختر جهاز Mac واسم المستخدم والمجلدين.</translation>
    </message>
    <message>
        <source>The pass was not begun: a text in the settings cannot stand in a command.</source>
        <translation>لم تبدأ الجولة: هناك نص في الإعدادات لا يصلح في أمر.</translation>
    </message>
    <message>
        <source>The pass was not begun since %1: a text in the settings cannot stand in a command.</source>
        <translation>لم تبدأ الجولة منذ %1: هناك نص في الإعدادات لا يصلح في أمر.</translation>
    </message>
    <message>
        <source>Choose another folder, user name or host: without a line break, and no &quot;-&quot; in front.</source>
        <translation>اختر مجلدًا أو اسم مستخدم أو مضيفًا آخر: بلا فاصل أسطر وبلا «-» في البداية.</translation>
    </message>
    <message>
        <source>The program was ended during the pass.</source>
        <translation>أُنهي البرنامج أثناء الجولة.</translation>
    </message>
    <message>
        <source>Nothing: start it again.</source>
        <translation>لا شيء: شغّله مجددًا.</translation>
    </message>
    <message>
        <source>Cancelled by you.</source>
        <translation>ألغيتها أنت.</translation>
    </message>
    <message>
        <source>Nothing: the next pass goes on where this one stopped.</source>
        <translation>لا شيء: الجولة التالية تستأنف من حيث توقفت هذه.</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed.</source>
        <translation>وصلت الملفات، لكن الأمر الذي يُشغّل بعد الوصول فشل.</translation>
    </message>
    <message>
        <source>The files have arrived, but the command that is run after arrivals failed since %1.</source>
        <translation>وصلت الملفات، لكن الأمر الذي يُشغّل بعد الوصول يفشل منذ %1.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what it said, or correct it in the settings.</source>
        <translation>انظر نص الجولة لمعرفة ما قاله، أو صحّحه في الإعدادات.</translation>
    </message>
    <message>
        <source>Something went wrong.</source>
        <translation>حدث خطأ ما.</translation>
    </message>
    <message>
        <source>Something went wrong since %1.</source>
        <translation>حدث خطأ ما منذ %1.</translation>
    </message>
    <message>
        <source>See the pass&apos;s text for what the commands said.</source>
        <translation>انظر نص الجولة لمعرفة ما قالته الأوامر.</translation>
    </message>
    <message>
        <source>The last line was: %1</source>
        <translation>كان السطر الأخير: %1</translation>
    </message>
    <message>
        <source>The reason: %1.</source>
        <translation>السبب: %1.</translation>
    </message>
    <message>
        <source>files unknown</source>
        <translation>عدد الملفات غير معروف</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>لا ملفات</numerusform>
            <numerusform>ملف واحد</numerusform>
            <numerusform>ملفان</numerusform>
            <numerusform>%Ln ملفات</numerusform>
            <numerusform>%Ln ملفًا</numerusform>
            <numerusform>%Ln ملف</numerusform>
        </translation>
    </message>
    <message>
        <source>no transfer</source>
        <translation>لا نقل</translation>
    </message>
    <message>
        <source>%L1 s</source>
        <translation>%L1 ث</translation>
    </message>
    <message>
        <source>%L1 min %L2 s</source>
        <translation>%L1 د %L2 ث</translation>
    </message>
    <message>
        <source>%L1 h %L2 min</source>
        <translation>%L1 س %L2 د</translation>
    </message>
    <message>
        <source>just now</source>
        <translation>الآن</translation>
    </message>
    <message numerus="yes">
        <source>%Ln minutes ago</source>
        <translation>
            <numerusform>قبل %Ln دقيقة</numerusform>
            <numerusform>قبل دقيقة واحدة</numerusform>
            <numerusform>قبل دقيقتين</numerusform>
            <numerusform>قبل %Ln دقائق</numerusform>
            <numerusform>قبل %Ln دقيقة</numerusform>
            <numerusform>قبل %Ln دقيقة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln hours ago</source>
        <translation>
            <numerusform>قبل %Ln ساعة</numerusform>
            <numerusform>قبل ساعة واحدة</numerusform>
            <numerusform>قبل ساعتين</numerusform>
            <numerusform>قبل %Ln ساعات</numerusform>
            <numerusform>قبل %Ln ساعة</numerusform>
            <numerusform>قبل %Ln ساعة</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days ago</source>
        <translation>
            <numerusform>قبل %Ln يوم</numerusform>
            <numerusform>قبل يوم واحد</numerusform>
            <numerusform>قبل يومين</numerusform>
            <numerusform>قبل %Ln أيام</numerusform>
            <numerusform>قبل %Ln يومًا</numerusform>
            <numerusform>قبل %Ln يوم</numerusform>
        </translation>
    </message>
    <message>
        <source>Reveal In Finder</source>
        <translation>إظهار في Finder</translation>
    </message>
    <message>
        <source>path:
%1</source>
        <translation>المسار:
⁨%1⁩</translation>
    </message>
    <message>
        <source>Stop Syncing</source>
        <translation>إيقاف المزامنة</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>بدء المزامنة</translation>
    </message>
    <message>
        <source>Copy Command</source>
        <translation>نسخ الأمر</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>No Terminal Found</source>
        <translation>لم يُعثر على طرفية</translation>
    </message>
    <message>
        <source>Please run this command in a terminal and answer what it asks:

%1</source>
        <translation>يرجى تشغيل هذا الأمر في طرفية والإجابة عما يسأله:

%1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>two facts, as in: 3 files, 1.2 GB</comment>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%L1 %</source>
        <comment>percent</comment>
        <translation>%L1 %</translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation>المزامنة متوقفة</translation>
    </message>
    <message>
        <source>Waiting for what is missing</source>
        <translation>في انتظار ما ينقص</translation>
    </message>
    <message>
        <source>Finishing this pass…</source>
        <translation>جارٍ إنهاء هذه الجولة…</translation>
    </message>
    <message>
        <source>Cancelling this pass…</source>
        <translation>جارٍ إلغاء هذه الجولة…</translation>
    </message>
    <message>
        <source>%L1 min</source>
        <translation>%L1 د</translation>
    </message>
    <message>
        <source>%L1 h</source>
        <translation>%L1 س</translation>
    </message>
    <message>
        <source>Syncing: asking the Mac</source>
        <translation>مزامنة: سؤال جهاز Mac</translation>
    </message>
    <message>
        <source>Syncing: first pull</source>
        <translation>مزامنة: السحب الأول</translation>
    </message>
    <message>
        <source>Syncing: copying</source>
        <translation>مزامنة: نسخ</translation>
    </message>
    <message>
        <source>Syncing: movies</source>
        <translation>مزامنة: أفلام</translation>
    </message>
    <message>
        <source>Syncing: after arrivals</source>
        <translation>مزامنة: بعد الوصول</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>مزامنة</translation>
    </message>
    <message>
        <source>a few seconds</source>
        <translation>بضع ثوانٍ</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>نحو %1</translation>
    </message>
    <message>
        <source>Asking the Mac</source>
        <translation>سؤال جهاز Mac</translation>
    </message>
    <message>
        <source>First pull</source>
        <translation>السحب الأول</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>نسخ</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>أفلام</translation>
    </message>
    <message>
        <source>After arrivals</source>
        <translation>بعد الوصول</translation>
    </message>
    <message>
        <source>file %L1 of %L2</source>
        <translation>الملف %L1 من %L2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>as in: 18.2 of 37.6 GB</comment>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>%1/s</source>
        <comment>as in: 92.0 MB/s</comment>
        <translation>%1/ث</translation>
    </message>
    <message>
        <source>Next pass in %1</source>
        <translation>الجولة التالية بعد %1</translation>
    </message>
    <message>
        <source>Syncing: %1</source>
        <translation>مزامنة: %1</translation>
    </message>
    <message>
        <source>Syncing: %1, %2</source>
        <translation>مزامنة: %1، %2</translation>
    </message>
    <message>
        <source>All is well, next pass in %1</source>
        <translation>كل شيء على ما يرام، الجولة التالية بعد %1</translation>
    </message>
    <message>
        <source>All is well</source>
        <translation>كل شيء على ما يرام</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>two movies</comment>
        <translation>⁨%1⁩ و⁨%2⁩</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <translation>
            <numerusform>⁨%1⁩ و⁨%2⁩ ولا غيرهما</numerusform>
            <numerusform>⁨%1⁩ و⁨%2⁩ وفيلم آخر</numerusform>
            <numerusform>⁨%1⁩ و⁨%2⁩ وفيلمان آخران</numerusform>
            <numerusform>⁨%1⁩ و⁨%2⁩ و%Ln أفلام أخرى</numerusform>
            <numerusform>⁨%1⁩ و⁨%2⁩ و%Ln فيلمًا آخر</numerusform>
            <numerusform>⁨%1⁩ و⁨%2⁩ و%Ln فيلم آخر</numerusform>
        </translation>
    </message>
    <message>
        <source>… 1 byte left out …</source>
        <translation>… حُذف بايت واحد …</translation>
    </message>
    <message>
        <source>Make a new key?</source>
        <translation>إنشاء مفتاح جديد؟</translation>
    </message>
    <message>
        <source>The Mac will not let Kelvo Mirror in until the new key is installed there with Set Up Key…, which asks for the password on the Mac. Until then no pass brings movies.

The key of today is kept beside the new one, under a name with the date, and is not used any more.</source>
        <translation>لن يسمح جهاز Mac لبرنامج Kelvo Mirror بالدخول حتى يُثبَّت عليه المفتاح الجديد عبر «إعداد المفتاح…»، الذي يطلب كلمة السر على جهاز Mac. وحتى ذلك الحين لا تجلب أي جولة أفلامًا.

يُحفظ المفتاح الحالي بجانب الجديد باسم يتضمن التاريخ، ولا يُستخدم بعد ذلك.</translation>
    </message>
    <message>
        <source>Make a New Key</source>
        <translation>إنشاء مفتاح جديد</translation>
    </message>
    <message>
        <source>Keep the Key</source>
        <translation>الاحتفاظ بالمفتاح</translation>
    </message>
    <message>
        <source>The key was not replaced</source>
        <translation>لم يُستبدل المفتاح</translation>
    </message>
    <message>
        <source>The key of today could not be kept, so nothing was changed.

%1</source>
        <translation>تعذر حفظ المفتاح الحالي، لذا لم يتغير شيء.

%1</translation>
    </message>
    <message>
        <source>No new key was made</source>
        <translation>لم يُنشأ مفتاح جديد</translation>
    </message>
    <message>
        <source>The key that was there before could not be put back. It lies at %1.

%2</source>
        <translation>تعذرت إعادة المفتاح السابق إلى مكانه. إنه موجود في ⁨%1⁩.

%2</translation>
    </message>
    <message>
        <source>The key that was there before is in its place again.</source>
        <translation>عاد المفتاح السابق إلى مكانه.</translation>
    </message>
    <message>
        <source>No Mac chosen yet.</source>
        <translation>لم يُختر جهاز Mac بعد.</translation>
    </message>
    <message>
        <source>Choose the Mac from the list of those in this network, or type its host name.</source>
        <translation>اختر جهاز Mac من قائمة الأجهزة على هذه الشبكة، أو اكتب اسم مضيفه.</translation>
    </message>
    <message>
        <source>%1, folder %2</source>
        <translation>⁨%1⁩، المجلد ⁨%2⁩</translation>
    </message>
    <message>
        <source>An account on the Mac that may log in there, and the folder with the movies.</source>
        <translation>حساب على جهاز Mac يُسمح له بتسجيل الدخول هناك، والمجلد الذي يحتوي على الأفلام.</translation>
    </message>
    <message>
        <source>Key made, and accepted by the remote Mac before.</source>
        <translation>أُنشئ المفتاح، وقد قبله جهاز Mac البعيد من قبل.</translation>
    </message>
    <message>
        <source>Key made. The remote Mac could not be asked about it.</source>
        <translation>أُنشئ المفتاح. تعذر سؤال جهاز Mac البعيد عنه.</translation>
    </message>
    <message>
        <source>The key is installed on the Mac, so choose that and enter the account first.</source>
        <translation>يُثبَّت المفتاح على جهاز Mac، لذا اختر الجهاز وأدخل الحساب أولًا.</translation>
    </message>
    <message>
        <source>A terminal opens and asks for the password of %1 on %2; it is typed there and kept nowhere. When the two machines meet for the first time it asks before that whether to go on connecting: answer yes.</source>
        <translation>تُفتح طرفية وتطلب كلمة سر ⁨%1⁩ على ⁨%2⁩؛ تُكتب هناك ولا تُحفظ في أي مكان. عندما يتصل الجهازان لأول مرة، تسأل الطرفية قبل ذلك هل تريد متابعة الاتصال: أجب بكلمة yes.</translation>
    </message>
    <message>
        <source>The Mac lets this program in.</source>
        <translation>يسمح جهاز Mac لهذا البرنامج بالدخول.</translation>
    </message>
    <message>
        <source>ssh is not installed on this machine. Install it with: %1</source>
        <translation>لم يُثبَّت ssh على هذا الجهاز. ثبّته بالأمر: ⁨%1⁩</translation>
    </message>
    <message>
        <source>The Mac was not asked, because %1.</source>
        <translation>لم يُسأل جهاز Mac، والسبب: %1.</translation>
    </message>
    <message>
        <source>The Mac was not reached, or did not say a word. Test it once more, or log in with ssh in a terminal and see what it says.</source>
        <translation>تعذر الوصول إلى جهاز Mac، أو لم تصل منه أي إجابة. أعد الاختبار، أو سجّل الدخول عبر ssh في طرفية واقرأ ما يظهر.</translation>
    </message>
    <message>
        <source>The Mac did not answer as it should. The last line was: %1</source>
        <translation>لم يُجب جهاز Mac كما ينبغي. كان السطر الأخير: ⁨%1⁩</translation>
    </message>
    <message>
        <source>This machine has not met the Mac before. Set up the key: the terminal asks whether to trust the Mac.</source>
        <translation>لم يتصل هذا الجهاز بجهاز Mac من قبل. أعدّ المفتاح: ستسأل الطرفية هل تثق بجهاز Mac.</translation>
    </message>
    <message>
        <source>The Mac does not let this program in yet.</source>
        <translation>لا يسمح جهاز Mac لهذا البرنامج بالدخول بعد.</translation>
    </message>
    <message>
        <source>Not tried yet.</source>
        <translation>لم يُجرَّب بعد.</translation>
    </message>
    <message>
        <source>Asked at %1.</source>
        <translation>وقت السؤال: %1.</translation>
    </message>
    <message>
        <source>The message &quot;SUCCESS...&quot; only means that ssh named neither a missing key file nor an unknown host name; this line says what came of it.</source>
        <translation>لا تعني رسالة «نجاح...» إلا أن ssh لم يبلّغ عن ملف مفتاح مفقود ولا عن اسم مضيف مجهول؛ أما النتيجة الفعلية فيذكرها هذا السطر.</translation>
    </message>
    <message>
        <source>Kelvo Mirror: the password of %1 on %2</source>
        <translation>Kelvo Mirror: كلمة سر %1 على %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln Macs found.</source>
        <translation>
            <numerusform>لم يُعثر على أي جهاز Mac.</numerusform>
            <numerusform>عُثر على جهاز Mac واحد.</numerusform>
            <numerusform>عُثر على جهازَي Mac.</numerusform>
            <numerusform>عُثر على %Ln أجهزة Mac.</numerusform>
            <numerusform>عُثر على %Ln جهاز Mac.</numerusform>
            <numerusform>عُثر على %Ln جهاز Mac.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its icon in the tray brings the window back; the icon&apos;s menu ends the program.</source>
        <translation>تعيد أيقونته في شريط النظام إظهار النافذة؛ وتُنهي قائمة الأيقونة البرنامج.</translation>
    </message>
</context>
<context>
    <name>kelvo::ApplicationMenu</name>
    <message>
        <source>Application menu</source>
        <translation>قائمة التطبيق</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>م&amp;لف</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>إ&amp;غلاق النافذة</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>إنهاء وإعادة ت&amp;شغيل</translation>
    </message>
    <message>
        <source>Ends the program and starts it again</source>
        <translation>ينهي البرنامج ويشغّله مجددًا</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إن&amp;هاء</translation>
    </message>
    <message>
        <source>&amp;Settings…</source>
        <translation>الإعدا&amp;دات…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>&amp;Passes</source>
        <translation>ال&amp;جولات</translation>
    </message>
    <message>
        <source>&amp;Start Syncing</source>
        <translation>&amp;بدء المزامنة</translation>
    </message>
    <message>
        <source>Switches syncing on and off</source>
        <translation>يشغّل المزامنة ويوقفها</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>مزامنة &amp;الآن</translation>
    </message>
    <message>
        <source>Begins the next pass now</source>
        <translation>يبدأ الجولة التالية الآن</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>إل&amp;غاء هذه الجولة</translation>
    </message>
    <message>
        <source>Ends the pass that runs; what it has begun to copy is kept for the next one</source>
        <translation>ينهي الجولة الجارية؛ ما بدأت نسخه يُحفظ للجولة التالية</translation>
    </message>
    <message>
        <source>&amp;Stop Syncing</source>
        <translation>إ&amp;يقاف المزامنة</translation>
    </message>
    <message>
        <source>&amp;Tray</source>
        <translation>&amp;شريط النظام</translation>
    </message>
    <message>
        <source>&amp;Set Up Tray Icon</source>
        <translation>إ&amp;عداد الأيقونة</translation>
    </message>
    <message>
        <source>Shows the program&apos;s icon in the tray</source>
        <translation>يعرض أيقونة البرنامج في شريط النظام</translation>
    </message>
    <message>
        <source>&amp;Remove Tray Icon</source>
        <translation>إ&amp;زالة الأيقونة</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray; the program keeps running</source>
        <translation>يزيل الأيقونة من شريط النظام؛ يستمر البرنامج في العمل</translation>
    </message>
    <message>
        <source>Remove Tray Icon as &amp;Before a Relaunch</source>
        <translation>إزالة الأيقونة كما &amp;قبل إعادة التشغيل</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;مساعدة</translation>
    </message>
    <message>
        <source>Open &amp;Log Folder</source>
        <translation>فتح مجلد ال&amp;سجل</translation>
    </message>
    <message>
        <source>&amp;About Kelvo Mirror</source>
        <translation>&amp;حول Kelvo Mirror</translation>
    </message>
    <message>
        <source>Syncing is off</source>
        <translation>المزامنة متوقفة</translation>
    </message>
    <message>
        <source>A pass begins as soon as nothing is missing</source>
        <translation>تبدأ الجولة حالما يكتمل ما ينقص</translation>
    </message>
    <message>
        <source>A pass runs already</source>
        <translation>هناك جولة جارية بالفعل</translation>
    </message>
    <message>
        <source>The next pass begins in a moment</source>
        <translation>تبدأ الجولة التالية بعد لحظات</translation>
    </message>
    <message>
        <source>The pass is being cancelled already</source>
        <translation>إلغاء الجولة جارٍ بالفعل</translation>
    </message>
    <message>
        <source>No pass runs</source>
        <translation>لا توجد جولة جارية</translation>
    </message>
    <message>
        <source>The icon is in the tray already</source>
        <translation>الأيقونة موجودة في شريط النظام بالفعل</translation>
    </message>
    <message>
        <source>The icon appears as soon as the desktop has a tray for it</source>
        <translation>تظهر الأيقونة حالما يتوفر لها شريط نظام على سطح المكتب</translation>
    </message>
    <message>
        <source>The icon is not in the tray</source>
        <translation>الأيقونة ليست في شريط النظام</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>ال&amp;تشخيص</translation>
    </message>
    <message>
        <source>A tab and menu entries for finding out why something does not work</source>
        <translation>تبويب وبنود في القوائم لمعرفة سبب تعطل شيء ما</translation>
    </message>
    <message>
        <source>Takes the icon out of the tray as Quit and Relaunch does; the program keeps running</source>
        <translation>يزيل الأيقونة من شريط النظام كما يفعل «إنهاء وإعادة تشغيل»؛ يستمر البرنامج في العمل</translation>
    </message>
    <message>
        <source>Start Again After a &amp;Crash</source>
        <translation>إعادة التشغيل بعد الا&amp;نهيار</translation>
    </message>
    <message>
        <source>Has the program started again should it crash; each start does this by itself</source>
        <translation>يجعل البرنامج يُشغَّل مجددًا إذا انهار؛ يحدث ذلك تلقائيًا عند كل تشغيل</translation>
    </message>
    <message>
        <source>&amp;Another Mac…</source>
        <translation>&amp;جهاز Mac آخر…</translation>
    </message>
    <message>
        <source>Opens a window of its own for one more Mac</source>
        <translation>يفتح نافذة مستقلة لجهاز Mac آخر</translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalRows</name>
    <message>
        <source>%1 (%2)</source>
        <comment>a movie, what is the matter with it</comment>
        <translation>⁨%1⁩ (%2)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
</context>
<context>
    <name>kelvo::ArrivalsView</name>
    <message>
        <source>not there any more</source>
        <translation>لم يعد موجودًا</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;فتح</translation>
    </message>
    <message>
        <source>&amp;Reveal</source>
        <translation>إ&amp;ظهار</translation>
    </message>
    <message>
        <source>&amp;Copy Path</source>
        <translation>&amp;نسخ المسار</translation>
    </message>
    <message>
        <source>Nothing has arrived yet.

The movies that a pass brings will stand here.</source>
        <translation>لم يصل شيء بعد.

ستظهر هنا الأفلام التي تجلبها الجولات.</translation>
    </message>
    <message>
        <source>No movie with this text in its path has arrived.</source>
        <translation>لم يصل أي فيلم يحتوي مساره على هذا النص.</translation>
    </message>
    <message>
        <source>its name is not UTF-8</source>
        <translation>اسمه ليس بترميز UTF-8</translation>
    </message>
</context>
<context>
    <name>kelvo::BonjourSheet</name>
    <message>
        <source>Discovery is not installed on this computer. Install it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>خدمة الاكتشاف غير مثبتة على هذا الحاسوب. ثبّتها بالأمر:

%1

تمتلئ القائمة تلقائيًا حالما تعمل الخدمة. ومن دونها، اكتب اسم مضيف جهاز Mac في تبويب «جهاز Mac البعيد».</translation>
    </message>
    <message>
        <source>Discovery is not running on this computer. Start it with:

%1

The list fills by itself once discovery runs. Without it, type the Mac&apos;s host name on the Remote Mac tab.</source>
        <translation>خدمة الاكتشاف لا تعمل على هذا الحاسوب. شغّلها بالأمر:

%1

تمتلئ القائمة تلقائيًا حالما تعمل الخدمة. ومن دونها، اكتب اسم مضيف جهاز Mac في تبويب «جهاز Mac البعيد».</translation>
    </message>
    <message>
        <source>This computer is not connected to a network.

Connect it to the network of the Mac. Then choose Rescan.</source>
        <translation>هذا الحاسوب غير متصل بشبكة.

صِله بشبكة جهاز Mac، ثم اختر «إعادة البحث».</translation>
    </message>
    <message>
        <source>No Mac has answered yet.

Discovery has only just started; the search goes on.</source>
        <translation>لم يُجب أي جهاز Mac بعد.

بدأ الاكتشاف للتو؛ والبحث مستمر.</translation>
    </message>
    <message>
        <source>No Mac was found.

On the Mac, open System Settings, General, Sharing, and check that File Sharing and Remote Login are on.
Check that both computers are on the same network.
Then choose Rescan.

The Mac&apos;s host name can also be typed on the Remote Mac tab.</source>
        <translation>لم يُعثر على أي جهاز Mac.

على جهاز Mac، افتح إعدادات النظام، عام، المشاركة، وتحقق من تشغيل مشاركة الملفات وتسجيل الدخول عن بُعد.
تحقق من أن الحاسوبين على الشبكة نفسها.
ثم اختر «إعادة البحث».

يمكن أيضًا كتابة اسم مضيف جهاز Mac في تبويب «جهاز Mac البعيد».</translation>
    </message>
</context>
<context>
    <name>kelvo::BusNotices</name>
    <message>
        <source>Show</source>
        <translation>إظهار</translation>
    </message>
</context>
<context>
    <name>kelvo::BusyRow</name>
    <message>
        <source>Cance&amp;l</source>
        <translation>إل&amp;غاء</translation>
    </message>
    <message>
        <source>Working</source>
        <translation>جارٍ العمل</translation>
    </message>
    <message>
        <source>Ends what the program is doing for this tab</source>
        <translation>ينهي ما يفعله البرنامج لهذا التبويب</translation>
    </message>
    <message>
        <source>Opening the remote folder…</source>
        <translation>جارٍ فتح المجلد البعيد…</translation>
    </message>
    <message>
        <source>Setting up the key…</source>
        <translation>جارٍ إعداد المفتاح…</translation>
    </message>
    <message>
        <source>Making a new key…</source>
        <translation>جارٍ إنشاء مفتاح جديد…</translation>
    </message>
    <message>
        <source>Being cancelled…</source>
        <translation>جارٍ الإلغاء…</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>أُلغي.</translation>
    </message>
    <message>
        <source>Finished.</source>
        <translation>انتهى.</translation>
    </message>
</context>
<context>
    <name>kelvo::ChecklistView</name>
    <message>
        <source>What is missing before a pass</source>
        <translation>ما ينقص قبل الجولة</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>الخطوة التالية</translation>
    </message>
</context>
<context>
    <name>kelvo::DayChart</name>
    <message>
        <source>Day</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>أفلام</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>in trouble</source>
        <translation>فيه مشكلة</translation>
    </message>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>a day, what came on it</comment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Nothing has arrived. The arrow keys go from day to day.</source>
        <translation>لم يصل شيء. تنتقل مفاتيح الأسهم من يوم إلى يوم.</translation>
    </message>
    <message>
        <source>%1. The most came on this day: %2, %3. The arrow keys go from day to day.</source>
        <translation>%1. أكثر ما وصل كان في هذا اليوم: %2، %3. تنتقل مفاتيح الأسهم من يوم إلى يوم.</translation>
    </message>
</context>
<context>
    <name>kelvo::EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>ت&amp;حرير</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إ&amp;عادة</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;قص</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;لصق</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>تحديد ال&amp;كل</translation>
    </message>
</context>
<context>
    <name>kelvo::ElidedLabel</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
</context>
<context>
    <name>kelvo::HealthView</name>
    <message>
        <source>All is well</source>
        <translation>كل شيء على ما يرام</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>Not known yet</source>
        <translation>غير معروف بعد</translation>
    </message>
    <message>
        <source>Next step</source>
        <translation>الخطوة التالية</translation>
    </message>
    <message>
        <source>Does the next step</source>
        <translation>ينفذ الخطوة التالية</translation>
    </message>
    <message>
        <source>How the last pass went will stand here.</source>
        <translation>ستظهر هنا نتيجة الجولة الأخيرة.</translation>
    </message>
</context>
<context>
    <name>kelvo::MainWindow</name>
    <message>
        <source>Sync</source>
        <translation>المزامنة</translation>
    </message>
    <message>
        <source>Remote Mac</source>
        <translation>جهاز Mac البعيد</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>التشخيص</translation>
    </message>
    <message>
        <source>Activity</source>
        <translation>النشاط</translation>
    </message>
</context>
<context>
    <name>kelvo::PassRows</name>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>When</source>
        <translation>متى</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>النتيجة</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>المدة</translation>
    </message>
</context>
<context>
    <name>kelvo::PassesView</name>
    <message>
        <source>Export passes</source>
        <translation>تصدير الجولات</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>قيم مفصولة بفواصل (*.csv)</translation>
    </message>
    <message>
        <source>Not written: %1</source>
        <translation>لم يُكتب: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::PathControlView</name>
    <message>
        <source>Folders above</source>
        <translation>المجلدات الأعلى</translation>
    </message>
    <message>
        <source>Open %1</source>
        <translation>فتح ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>kelvo::ProfilesSheet</name>
    <message>
        <source>Without a name</source>
        <translation>بلا اسم</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>لا شيء بعد</translation>
    </message>
    <message>
        <source>This window</source>
        <translation>هذه النافذة</translation>
    </message>
    <message>
        <source>Running, in trouble</source>
        <translation>يعمل، مع مشكلة</translation>
    </message>
    <message>
        <source>Not running, in trouble</source>
        <translation>لا يعمل، مع مشكلة</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>يعمل</translation>
    </message>
    <message>
        <source>Not running</source>
        <translation>لا يعمل</translation>
    </message>
    <message>
        <source>A name has 1 to 64 letters (A to Z), digits, “-” and “_”, and no blank.</source>
        <translation>يتكون الاسم من 1 إلى 64 حرفًا لاتينيًا (A إلى Z) أو رقمًا أو “-” أو “_”، دون مسافات.</translation>
    </message>
    <message>
        <source>No window could be opened: %1</source>
        <translation>تعذّر فتح نافذة: %1</translation>
    </message>
</context>
<context>
    <name>kelvo::ProgressView</name>
    <message>
        <source>Progress of the pass</source>
        <translation>تقدم الجولة</translation>
    </message>
    <message>
        <source>The movie that is being copied will stand here.</source>
        <translation>سيظهر هنا الفيلم الذي يُنسخ.</translation>
    </message>
</context>
<context>
    <name>kelvo::RecentArrivals</name>
    <message>
        <source>Movies that have arrived will stand here, the newest first. A double click opens one.</source>
        <translation>ستظهر هنا الأفلام التي وصلت، الأحدث أولًا. النقر المزدوج يفتح الفيلم.</translation>
    </message>
    <message>
        <source>Movies that arrived last</source>
        <translation>آخر الأفلام وصولًا</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>وصل</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
</context>
<context>
    <name>kelvo::RemoteTab</name>
    <message>
        <source>none yet</source>
        <translation>لا شيء بعد</translation>
    </message>
</context>
<context>
    <name>kelvo::ServiceRows</name>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>المضيف</translation>
    </message>
</context>
<context>
    <name>kelvo::SettingsTab</name>
    <message>
        <source>Every file that differs</source>
        <translation>كل ملف مختلف</translation>
    </message>
    <message>
        <source>Only files newer than here (--update)</source>
        <translation>الملفات الأحدث مما هنا فقط (⁨--update⁩)</translation>
    </message>
    <message>
        <source>Only files not here yet (--ignore-existing)</source>
        <translation>الملفات غير الموجودة هنا بعد فقط (⁨--ignore-existing⁩)</translation>
    </message>
    <message>
        <source>Every file that differs (stored as 105)</source>
        <translation>كل ملف مختلف (محفوظ كـ 105)</translation>
    </message>
    <message>
        <source>Not a valid option (%1)</source>
        <translation>خيار غير صالح (%1)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>The template lacks %@1, the source: its command does not read the source that is chosen.</source>
        <translation>ينقص القالبَ ⁨%@1⁩، أي المصدر: لا يقرأ أمره المصدر المختار.</translation>
    </message>
    <message>
        <source>The template lacks %@2, the destination: its command does not fill the folder that is chosen.</source>
        <translation>ينقص القالبَ ⁨%@2⁩، أي الوجهة: لا يملأ أمره المجلد المختار.</translation>
    </message>
    <message>
        <source>The template lacks %@98, the options of ssh: its command does not use the key that was set up.</source>
        <translation>ينقص القالبَ ⁨%@98⁩، أي خيارات ssh: لا يستخدم أمره المفتاح الذي أُعدّ.</translation>
    </message>
    <message>
        <source>The template lacks %@99, the option: the option that is chosen changes nothing.</source>
        <translation>ينقص القالبَ ⁨%@99⁩، أي الخيار: لا يغيّر الخيار المختار شيئًا.</translation>
    </message>
    <message>
        <source>The template has a folder where its name may fall apart: passes are refused when the name holds blanks, quotes or the like.</source>
        <translation>في القالب مجلد في موضع قد يتجزأ فيه اسمه: تُرفض الجولات إذا احتوى الاسم على مسافات أو علامات اقتباس أو ما شابه.</translation>
    </message>
    <message>
        <source>The template under Advanced is your own and is left alone: the kinds of movies are written there.</source>
        <translation>القالب في «خيارات متقدمة» قالبك الخاص ويُترك كما هو: أنواع الأفلام مكتوبة فيه.</translation>
    </message>
    <message>
        <source>Movies of the kinds .mov and .mp4 always come from the remote Mac.</source>
        <translation>تأتي الأفلام من النوعين ⁨.mov⁩ و⁨.mp4⁩ دائمًا من جهاز Mac البعيد.</translation>
    </message>
    <message>
        <source>No kind is ticked: passes bring nothing.</source>
        <translation>لم يُحدد أي نوع: لن تجلب الجولات شيئًا.</translation>
    </message>
    <message>
        <source>The rsync command with the places %@1 source, %@2 destination, %@3 key, %@98 ssh, %@99 option</source>
        <translation>أمر rsync مع المواضع ⁨%@1⁩ المصدر، ⁨%@2⁩ الوجهة، ⁨%@3⁩ المفتاح، ⁨%@98⁩ ‏ssh، ⁨%@99⁩ الخيار</translation>
    </message>
    <message>
        <source>Back to My Template</source>
        <translation>العودة إلى قالبي</translation>
    </message>
    <message>
        <source>Back to the Factory Template</source>
        <translation>العودة إلى القالب الافتراضي</translation>
    </message>
    <message>
        <source>Brings back the template that the factory&apos;s took the place of</source>
        <translation>يعيد القالب الذي حل القالب الافتراضي محله</translation>
    </message>
    <message>
        <source>Takes the template that Kelvo Mirror comes with; asks before it replaces one that was changed by hand</source>
        <translation>يأخذ القالب الذي يأتي مع Kelvo Mirror؛ ويسأل قبل استبدال قالب عُدّل يدويًا</translation>
    </message>
    <message>
        <source>Go back to the factory template?</source>
        <translation>العودة إلى القالب الافتراضي؟</translation>
    </message>
    <message>
        <source>Your own template is replaced. “Back to My Template” brings it back until the program ends.</source>
        <translation>سيُستبدل قالبك الخاص. يعيده «العودة إلى قالبي» حتى ينتهي البرنامج.</translation>
    </message>
    <message>
        <source>Keep My Template</source>
        <translation>الاحتفاظ بقالبي</translation>
    </message>
</context>
<context>
    <name>kelvo::SshLineBox</name>
    <message>
        <source>%1 was not changed: %2</source>
        <translation>لم يُغيَّر %1: ‏%2</translation>
    </message>
    <message>
        <source>A line in %1 tells ssh of the connection.</source>
        <translation>سطر في %1 يُعلم ssh بالاتصال.</translation>
    </message>
    <message>
        <source>ssh does not know of the connection yet: passes log in each time.</source>
        <translation>لا يعرف ssh الاتصال بعد: تسجّل كل جولة الدخول من جديد.</translation>
    </message>
    <message>
        <source>Take the Line Away</source>
        <translation>إزالة السطر</translation>
    </message>
    <message>
        <source>Tell ssh…</source>
        <translation>إعلام ssh…</translation>
    </message>
    <message>
        <source>Removes the line that Kelvo Mirror has put into your configuration of ssh</source>
        <translation>يزيل السطر الذي أضافه Kelvo Mirror إلى إعدادات ssh لديك</translation>
    </message>
    <message>
        <source>Shows the line that your configuration of ssh needs, and asks before it is put there</source>
        <translation>يعرض السطر الذي تحتاجه إعدادات ssh لديك، ويسأل قبل إضافته</translation>
    </message>
    <message>
        <source>Tell ssh of the connection?</source>
        <translation>هل يُعلَم ssh بالاتصال؟</translation>
    </message>
    <message>
        <source>This line is put at the top of %1. It concerns no commands but those of passes.
%2</source>
        <translation>يوضع هذا السطر في أول %1. ولا يخصّ سوى أوامر الجولات.
%2</translation>
    </message>
    <message>
        <source>Add the Line</source>
        <translation>إضافة السطر</translation>
    </message>
    <message>
        <source>Leave It as It Is</source>
        <translation>تركه كما هو</translation>
    </message>
</context>
<context>
    <name>kelvo::StatusFieldView</name>
    <message>
        <source>Trouble</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>What the program is doing</source>
        <translation>ما يفعله البرنامج</translation>
    </message>
</context>
<context>
    <name>kelvo::StepHead</name>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Trouble</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>لاحقًا</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>تغيير</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>kelvo::SyncTab</name>
    <message>
        <source>No source folder chosen yet</source>
        <translation>لم يُختر مجلد المصدر بعد</translation>
    </message>
    <message>
        <source>No destination folder chosen yet</source>
        <translation>لم يُختر مجلد الوجهة بعد</translation>
    </message>
    <message>
        <source>No remote Mac chosen yet</source>
        <translation>لم يُختر جهاز Mac البعيد بعد</translation>
    </message>
    <message>
        <source>The pass went well: %1.</source>
        <translation>سارت الجولة جيدًا: %1.</translation>
    </message>
</context>
<context>
    <name>kelvo::TrayIcon</name>
    <message>
        <source>Syncing is off</source>
        <translation>المزامنة متوقفة</translation>
    </message>
    <message>
        <source>Waiting for the next pass</source>
        <translation>في انتظار الجولة التالية</translation>
    </message>
    <message>
        <source>Syncing now</source>
        <translation>المزامنة جارية</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>يتطلب الانتباه</translation>
    </message>
    <message>
        <source>Start Syncing</source>
        <translation>بدء المزامنة</translation>
    </message>
    <message>
        <source>Sync &amp;Now</source>
        <translation>مزامنة &amp;الآن</translation>
    </message>
    <message>
        <source>&amp;Cancel This Pass</source>
        <translation>إل&amp;غاء هذه الجولة</translation>
    </message>
    <message>
        <source>Open &amp;Window</source>
        <translation>&amp;فتح النافذة</translation>
    </message>
    <message>
        <source>&amp;Activity</source>
        <translation>ال&amp;نشاط</translation>
    </message>
    <message>
        <source>Reveal &amp;Folder</source>
        <translation>إظهار الم&amp;جلد</translation>
    </message>
    <message>
        <source>Quit and &amp;Relaunch</source>
        <translation>إنهاء وإعادة ت&amp;شغيل</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إن&amp;هاء</translation>
    </message>
    <message>
        <source>No destination folder is chosen yet</source>
        <translation>لم يُختر مجلد الوجهة بعد</translation>
    </message>
</context>
<context>
    <name>sourceNotice</name>
    <message>
        <source>Choose the remote Mac on the Remote Mac tab.</source>
        <translation>اختر جهاز Mac البعيد في تبويب «جهاز Mac البعيد».</translation>
    </message>
    <message>
        <source>Enter the user name on the Remote Mac tab.</source>
        <translation>أدخل اسم المستخدم في تبويب «جهاز Mac البعيد».</translation>
    </message>
    <message>
        <source>Enter the remote folder on the Remote Mac tab.</source>
        <translation>أدخل المجلد البعيد في تبويب «جهاز Mac البعيد».</translation>
    </message>
    <message>
        <source>Passes still pull from the source above. The new host or folder takes effect with &quot;Use This Source Now&quot;, or else when the user name changes or the program starts again.</source>
        <translation>ما زالت الجولات تسحب من المصدر أعلاه. يسري المضيف أو المجلد الجديد عند اختيار «استخدام هذا المصدر الآن»، أو عند تغيير اسم المستخدم أو تشغيل البرنامج مجددًا.</translation>
    </message>
</context>
</TS>
