<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<!-- Every text of the program by its key; code asks for them with qtTrId("key"). Sorted by key in each context. -->
<context>
    <name>store</name>
    <message id="%1 A"><translation>上午%1</translation></message>
    <message id="%1 P"><translation>下午%1</translation></message>
    <message id=", "><translation>，</translation></message>
    <message id="; "><translation>；</translation></message>
    <message id="BackupLast"><translation>%1、%2，最後一筆在 %3</translation></message>
    <message id="BackupPatients" numerus="yes"><translation><numerusform>%n 位病患</numerusform></translation></message>
    <message id="BackupReadings" numerus="yes"><translation><numerusform>%n 筆量測</numerusform></translation></message>
    <message id="ExcludedAsMeasured"><translation>血壓計也有這筆量測</translation></message>
    <message id="ExcludedWithoutReason"><translation>未填寫原因</translation></message>
    <message id="ExportAlreadyExists"><translation>檔案 %1 已存在，維持原狀未更動。</translation></message>
    <message id="ExportIsDataFile"><translation>檔案 %1 就是資料檔本身，匯出不會取代它。請選擇其他資料夾。</translation></message>
    <message id="ExportNotFlushed"><translation>已寫入 %1，但磁碟未確認已永久保存，斷電後檔案可能遺失。請檢查磁碟。</translation></message>
    <message id="ExportNotWritten"><translation>無法寫入檔案 %1。請確認資料夾存在、您有寫入權限，而且磁碟空間足夠。</translation></message>
    <message id="ExportSameFileName"><translation>未寫入檔案 %1：這個磁碟不區分大小寫，會將它與剛才為下列病患寫入的檔案視為同名。請匯出到區分大小寫的磁碟。</translation></message>
    <message id="Female"><translation>女</translation></message>
    <message id="fullName"><translation>%2 %1</translation></message>
    <message id="ImportAlreadyKnown"><translation>%1：清單中已有 ID 為「%2」的病患。既有病患絕不會被覆寫，因此未匯入此檔案的任何內容。</translation></message>
    <message id="ImportBadID"><translation>%1：檔案中的 ID「%2」含有換行或其他控制字元，無法儲存，也無法傳送到血壓計。未匯入此檔案的任何內容。</translation></message>
    <message id="ImportBadLines"><translation>%1：表格中有無法匯入的列。未匯入任何內容。</translation></message>
    <message id="ImportMissingColumn"><translation>%1：表格沒有「%2」欄，或有不只一個。未匯入任何內容。</translation></message>
    <message id="ImportNoFile"><translation>這不是一般檔案。</translation></message>
    <message id="ImportNoID"><translation>%1：檔案中有一位病患沒有 ID。未匯入此檔案的任何內容。</translation></message>
    <message id="ImportNoPatient"><translation>%1：檔案中沒有病患。未匯入此檔案的任何內容。</translation></message>
    <message id="ImportNoReading"><translation>%1：表格中沒有量測。未匯入任何內容。</translation></message>
    <message id="ImportNoSuchPatient"><translation>%1：清單中已沒有 ID 為「%2」的病患。未匯入此檔案的任何內容。</translation></message>
    <message id="ImportNotFlushed"><translation>%1：內容已全部儲存，但磁碟未確認已永久保存，斷電後可能遺失。</translation></message>
    <message id="ImportNotReadable"><translation>%1：無法讀取此檔案，或它不是由本程式匯出的檔案。未匯入任何內容。</translation></message>
    <message id="ImportNotStored"><translation>%1：無法儲存檔案的內容。未匯入任何內容。</translation></message>
    <message id="ImportOtherNames"><translation>%1：ID 為「%2」的病患在清單中的姓名與表格不同，這些量測可能屬於另一個人。未匯入此檔案的任何內容。若仍要匯入，請清空姓名的儲存格。</translation></message>
    <message id="ImportSameIDTwice"><translation>%1：檔案中有兩位病患的 ID 同為「%2」。未匯入此檔案的任何內容。</translation></message>
    <message id="ImportTooLarge"><translation>%1：檔案大於 512 MiB。未匯入任何內容。</translation></message>
    <message id="ImportTooManyLines"><translation>%1：表格超過 200,000 列。未匯入任何內容。</translation></message>
    <message id="LanguageMissing"><translation>--language 需要指定語言，可用的語言：%1</translation></message>
    <message id="languageTag"><translation>zh_TW</translation></message>
    <message id="LanguageTwice"><translation>--language 只能指定一次</translation></message>
    <message id="LanguageUnknown"><translation>沒有語言「%1」；可用的語言：%2</translation></message>
    <message id="LanguageUnread"><translation>無法讀取檔案 %1 中的語言選擇。在設定中另選語言之前，將以系統語言顯示。</translation></message>
    <message id="LimitDiastolic"><translation>舒張壓上限須為 %1。</translation></message>
    <message id="LimitOrder"><translation>舒張壓上限必須低於收縮壓上限。</translation></message>
    <message id="LimitSystolic"><translation>收縮壓上限須為 %1。</translation></message>
    <message id="Male"><translation>男</translation></message>
    <message id="ManualDia"><translation>舒張壓須為 %1 到 %2 的數字。</translation></message>
    <message id="ManualDiaNotBelowSys"><translation>舒張壓須低於收縮壓。</translation></message>
    <message id="ManualInFuture"><translation>這個日期與時間尚未到來。</translation></message>
    <message id="ManualNoDate"><translation>沒有這個日期與時間。（改為夏令時間時會跳過一小時；2000 年 1 月 1 日則代表沒有日期。）</translation></message>
    <message id="ManualPulse"><translation>脈搏須為 %1 到 %2 的數字。</translation></message>
    <message id="ManualSys"><translation>收縮壓須為 %1 到 %2 的數字。</translation></message>
    <message id="ManualTooEarly"><translation>日期早於 1900 年。</translation></message>
    <message id="n.a"><translation>n.a</translation></message>
    <message id="N/A"><translation>N/A</translation></message>
    <message id="NotBackedUp"><translation>變更前無法在 %1 建立資料檔的備份。%2</translation></message>
    <message id="remarkExcluded"><translation>已排除：%1</translation></message>
    <message id="remarkManual"><translation>手動輸入</translation></message>
    <message id="SecondFolderAway"><translation>資料檔的第二備份資料夾 %1 目前不在，因此其中沒有今天的備份。資料夾恢復後，下次變更時就會補上。</translation></message>
    <message id="SecondFolderBroken"><translation>無法從 %1 讀取第二備份資料夾的位置，因此備份不會另存到其他資料夾。請重新選擇。</translation></message>
    <message id="SecondFolderFailed"><translation>無法將今天的資料檔備份寫入第二備份資料夾 %1。</translation></message>
    <message id="SecondFolderNoRoom"><translation>今天的資料檔備份不在第二備份資料夾 %1：那裡的備份總共只能使用剩餘磁碟空間的十分之一，而資料檔比這更大。</translation></message>
    <message id="SecondFolderNotFlushed"><translation>今天的資料檔備份已寫入第二備份資料夾 %1，但磁碟未確認已永久保存，斷電後可能遺失。</translation></message>
    <message id="SecondFolderNotRecorded"><translation>無法將第二備份資料夾記錄在 %1。未做任何變更。</translation></message>
    <message id="SettingLimit"><translation>0（無上限）或 %1 到 %2 的整數</translation></message>
    <message id="SettingOneOf"><translation>%1（擇一）</translation></message>
    <message id="SettingQuoted"><translation>「%1」</translation></message>
    <message id="SettingText"><translation>不含控制字元的任何文字</translation></message>
    <message id="stepAddComment"><translation>新增 %1 的註記</translation></message>
    <message id="stepAddPatient"><translation>新增病患 %1</translation></message>
    <message id="stepAddReading"><translation>新增 %1 的量測</translation></message>
    <message id="stepDeleteComment"><translation>刪除 %1 的註記</translation></message>
    <message id="stepDeletePatient"><translation>刪除病患 %1</translation></message>
    <message id="stepDeleteReadings" numerus="yes"><translation><numerusform>刪除 %1 的 %n 筆量測</numerusform></translation></message>
    <message id="stepEditComment"><translation>變更 %1 的註記</translation></message>
    <message id="stepEditPatient"><translation>變更病患 %1</translation></message>
    <message id="stepEditReading"><translation>變更 %1 的量測</translation></message>
    <message id="stepExcludeReadings" numerus="yes"><translation><numerusform>排除 %1 的 %n 筆量測</numerusform></translation></message>
    <message id="stepImport"><translation>匯入 %1</translation></message>
    <message id="stepIncludeReadings" numerus="yes"><translation><numerusform>重新計入 %1 的 %n 筆量測</numerusform></translation></message>
    <message id="stepSettings"><translation>變更設定</translation></message>
    <message id="stillLeftOutRefused" numerus="yes"><translation><numerusform>%n 筆手動輸入的量測維持排除。%1</numerusform></translation></message>
    <message id="stillLeftOutTwice" numerus="yes"><translation><numerusform>%n 筆手動輸入的量測維持排除：同一分鐘且數值相同的量測已計入。</numerusform></translation></message>
    <message id="StoreAlreadyKnown"><translation>清單中已有 ID 為「%1」的病患。未做任何變更。</translation></message>
    <message id="StoreBusy"><translation>另一個程式正在使用資料檔 %1，可能在這台電腦上，或在共用此檔案的另一台電腦上。未做任何變更；請稍後再試，若那台電腦已斷線，請過幾分鐘再試。</translation></message>
    <message id="StoreChangedElsewhere"><translation>這期間另一個程式已變更這些資料。此處未做任何變更；請查看目前的內容。</translation></message>
    <message id="StoreDiskFull"><translation>磁碟已滿，無法寫入 %1。原有內容維持不變。請清出磁碟空間後再試一次。</translation></message>
    <message id="StoreInvalidRecord"><translation>每位病患需要自己的 ID，「%1」不是有效的 ID。未做任何變更。</translation></message>
    <message id="StoreLockBlocked"><translation>%1 位於程式標記「資料檔使用中」的位置，但它並不是這種標記。未做任何變更；請將它移走，然後再試一次。</translation></message>
    <message id="StoreNoPermissions"><translation>這台電腦的其他使用者仍可讀取 %1：此檔案系統不支援權限。請將資料存放在其他磁碟。</translation></message>
    <message id="StoreNoReason"><translation>排除量測時須註明原因，請填寫。未做任何變更。</translation></message>
    <message id="StoreNoRoomForBackup"><translation>%1 中沒有保存資料檔的備份：所有備份總共只能使用剩餘磁碟空間的十分之一，而資料檔比這更大。</translation></message>
    <message id="StoreNoStep"><translation>沒有可復原或重做的步驟。</translation></message>
    <message id="StoreNoSuchBackup"><translation>沒有名為「%1」的資料檔備份。</translation></message>
    <message id="StoreNoSuchRecord"><translation>沒有 ID 為「%1」的病患。</translation></message>
    <message id="StoreNotCreated"><translation>目前沒有資料檔，也無法建立 %1。請確認資料夾可以寫入、磁碟空間足夠，然後重新啟動程式。</translation></message>
    <message id="StoreNotFlushed"><translation>已寫入 %1，但磁碟未確認已永久保存，斷電後可能回到舊的內容。請檢查磁碟；血壓計中的量測仍保留在血壓計內。</translation></message>
    <message id="StoreNotMadePrivate"><translation>這台電腦的其他使用者仍可讀取 %1：無法變更它的權限。</translation></message>
    <message id="StoreNotManual"><translation>來自血壓計的量測不能變更或刪除，但可以註明原因後排除。未做任何變更。</translation></message>
    <message id="StoreNotParsed"><translation>資料檔 %1 已損壞，或不是本程式的資料檔。檔案維持原狀，在恢復可讀之前無法儲存任何資料：請修復檔案、以備份取代，或將它移走以建立新的資料檔。</translation></message>
    <message id="StoreNotReadable"><translation>無法讀取資料檔 %1。檔案維持原狀，在恢復可讀之前無法儲存任何資料。</translation></message>
    <message id="StoreNotWritable"><translation>無法寫入資料檔 %1。未做任何變更；請檢查檔案及其資料夾的權限。</translation></message>
    <message id="StoreQuotaReached"><translation>您在這個磁碟上的配額已用完，無法寫入 %1。原有內容維持不變。請刪除不需要的檔案或申請更多空間，然後再試一次。</translation></message>
    <message id="StoreReadFailed"><translation>無法讀取資料檔 %1：磁碟回報錯誤。檔案維持原狀，在恢復可讀之前無法儲存任何資料。請檢查磁碟。</translation></message>
    <message id="StoreReadingGone"><translation>這筆量測已不存在。未做任何變更。</translation></message>
    <message id="StoreReadingKnown"><translation>同一分鐘已有數值相同的量測。未做任何變更。</translation></message>
    <message id="StoreReadingRefused"><translation>未儲存這筆量測。</translation></message>
    <message id="StoreSizeLimit"><translation>此處的檔案大小受到限制，無法寫入 %1。原有內容維持不變。請向這台電腦的管理人員詢問檔案大小的限制。</translation></message>
    <message id="StoreStepChanged"><translation>這個步驟涉及的資料之後又由其他程式或手動變更過。未做任何變更。</translation></message>
    <message id="StoreStepGone"><translation>這個步驟涉及的資料已不在資料檔中。未做任何變更。</translation></message>
    <message id="StoreStepHasRecords"><translation>ID 為「%1」的病患之後已有新的量測或註記，若繼續，這些資料將不屬於任何病患。未做任何變更。</translation></message>
    <message id="StoreStepPatientGone"><translation>這則註記所屬的病患（ID「%1」）已不在資料檔中。未做任何變更。</translation></message>
    <message id="StoreStepPatientKnown"><translation>清單中現在已有 ID 為「%1」的病患。未做任何變更。</translation></message>
    <message id="StoreStepThere"><translation>要恢復的資料已經在資料檔中。未做任何變更。</translation></message>
    <message id="StoreTooLarge"><translation>資料檔 %1 大於 512 MiB，本程式無法讀取。檔案維持原狀，也無法儲存任何資料：請以較小的備份取代，或將它移走以建立新的資料檔。</translation></message>
    <message id="StoreUnreadable"><translation>資料檔 %1 維持原狀：要儲存的內容寫入後無法正確讀回。</translation></message>
    <message id="StoreWriteFailed"><translation>寫入資料檔 %1 失敗，檔案維持原狀。請確認磁碟空間足夠，然後再試一次。</translation></message>
    <message id="TableCell"><translation>「%1」不能填在「%2」欄。</translation></message>
    <message id="TableCells"><translation>此列有 %1 個儲存格，標題列有 %2 個。</translation></message>
    <message id="TableDateOrder"><translation>「%1」的寫法與 2026-11-21 不同。請用 --dates 指定日、月、年的順序：dmy、mdy 或 ymd。</translation></message>
    <message id="TableLine"><translation>第 %1 列：%2</translation></message>
    <message id="TableMeanPressure"><translation>平均動脈壓 %1 與 %2/%3 不符：各欄的對應是否正確？</translation></message>
    <message id="TableMoreLines" numerus="yes"><translation><numerusform>…另有 %n 列</numerusform></translation></message>
    <message id="TableNoTime"><translation>「%1」不是含四位數年份與時間的日期。</translation></message>
    <message id="TableNotUtf8"><translation>檔案的文字不是 UTF-8 編碼。請在原來的程式中另存為「CSV UTF-8」。</translation></message>
    <message id="TableOtherNames"><translation>病患「%1」在前面的列中有不同的姓名。</translation></message>
    <message id="TableOtherPatient"><translation>此量測屬於病患「%1」，不屬於「%2」。</translation></message>
    <message id="TablePulsePressure"><translation>脈壓 %1 與 %2/%3 不符：各欄的對應是否正確？</translation></message>
    <message id="TableQuotation"><translation>引號未在儲存格結尾關閉。</translation></message>
    <message id="takenInTypedLeftOut" numerus="yes"><translation><numerusform>%n 筆手動輸入的量測從此排除（血壓計也有這筆量測）。</numerusform></translation></message>
    <message id="ViewLimitsUnread"><translation>無法讀取 %1，其中記錄了標示數值的上限。在您重新選擇上限之前，達到 %2/%3 mmHg 的數值會加上標示。</translation></message>
    <message id="Warning"><translation>警告</translation></message>
    <message id="XmlAttributeTwice"><translation>有一個元素的同一屬性出現兩次。</translation></message>
    <message id="XmlBytesNotInEncoding"><translation>檔案含有不屬於其編碼 %1 的位元組。</translation></message>
    <message id="XmlControlCharacter"><translation>檔案含有不允許的控制字元。</translation></message>
    <message id="XmlEncodingUnknown"><translation>無法辨識檔案的編碼 %1。</translation></message>
    <message id="XmlEntityNotTaken"><translation>檔案參照了不支援的實體或字元；僅支援 XML 本身的五個實體及其字元。</translation></message>
    <message id="XmlErrorNearLine"><translation>第 %1 行附近：%2</translation></message>
    <message id="XmlMisplacedDeclaration"><translation>宣告出現在不允許的位置。</translation></message>
    <message id="XmlNoRoot"><translation>檔案中沒有任何元素。</translation></message>
    <message id="XmlNotWritable"><translation>無法寫入資料檔：變更與下載的量測無法儲存。請檢查檔案及其資料夾的權限。</translation></message>
    <message id="XmlSeveralRoots"><translation>檔案含有多個根元素。</translation></message>
    <message id="XmlTextOutsideRoot"><translation>根元素之外有文字。</translation></message>
    <message id="XmlTooDeep"><translation>元素的巢狀層數超過 %1 層。</translation></message>
    <message id="XmlTooLarge"><translation>檔案將大於 512 MiB。</translation></message>
    <message id="XmlTooManyParts"><translation>檔案含有超過 %1 個元素、屬性與文字，以其大小而言過多。</translation></message>
    <message id="XmlTooManyRecords"><translation>檔案含有超過 %1 筆紀錄，以其大小而言過多。</translation></message>
    <message id="XmlWrongRoot"><translation>根元素是「%1」，而不是「ZEL」。</translation></message>
</context>
<context>
    <name>monitor</name>
    <message id="monitorAccessDenied"><translation>血壓計已連接，但本程式無法使用：可能另一個程式正在使用，或缺少 USB 裝置的權限。</translation></message>
    <message id="monitorBadCheckField"><translation>血壓計傳回的資料在傳輸中損壞，未予採用。請再試一次。</translation></message>
    <message id="monitorBadFixedContent"><translation>無法解讀血壓計傳回的資料，未予採用。請再試一次。</translation></message>
    <message id="monitorClockNotSet"><translation>血壓計的時鐘尚未設定。</translation></message>
    <message id="monitorInterrupted"><translation>與血壓計的通訊在完成前中止。</translation></message>
    <message id="monitorNoAcknowledgement"><translation>血壓計未接受指令。請將它關機再開機，然後再試一次。</translation></message>
    <message id="monitorNoDevice"><translation>未連接血壓計。請接上血壓計後再試一次。</translation></message>
    <message id="monitorNotTaken"><translation>血壓計已回應，但其中的內容仍未改變。請再試一次。</translation></message>
    <message id="monitorReadFailed"><translation>與血壓計的連線中斷。請檢查傳輸線後再試一次。</translation></message>
    <message id="monitorSuccess"><translation>血壓計已完成要求的動作。</translation></message>
    <message id="monitorTimeOut"><translation>血壓計未在時限內回應。請確認它已開機，然後再試一次。</translation></message>
    <message id="monitorUnconfirmed"><translation>已傳送到血壓計，但無法讀取血壓計目前的內容。請先查看，再決定是否重試。</translation></message>
    <message id="monitorUnfitID"><translation>血壓計無法儲存這個 ID，因此未傳送任何內容。血壓計的 ID 須為 1 到 11 個半形英文字母、數字或符號。</translation></message>
    <message id="monitorWriteFailed"><translation>血壓計無法接收傳送的資料。請拔下後重新接上，再試一次。</translation></message>
    <message id="simulatedMissing"><translation>缺少「%1」的值。</translation></message>
    <message id="simulatedNoPlan"><translation>檔案必須包含一個 JSON 物件。</translation></message>
    <message id="simulatedNotAllowed"><translation>「%1」的值必須是下列之一：%2</translation></message>
    <message id="simulatedNotJson"><translation>不是有效的 JSON：第 %1 個字元附近，%2。</translation></message>
    <message id="simulatedNotList"><translation>「%1」的值必須是清單。</translation></message>
    <message id="simulatedNotObject"><translation>「%1」的值必須是物件。</translation></message>
    <message id="simulatedNotText"><translation>「%1」的值必須是文字。</translation></message>
    <message id="simulatedNotTime"><translation>「%1」的值必須是 2000 到 2099 年間的時間，例如 2026-11-01T07:12，或 undated 這個字。</translation></message>
    <message id="simulatedNotWhole"><translation>「%1」的值必須是 %2 範圍內的整數。</translation></message>
    <message id="simulatedRefused"><translation>無法使用模擬血壓計的檔案 %1：%2</translation></message>
    <message id="simulatedTooMany"><translation>清單「%1」最多只能有 %2 個項目。</translation></message>
    <message id="simulatedUnencodable"><translation>「%1」的值含有血壓計無法辨識的字元。</translation></message>
    <message id="simulatedUnknownKey"><translation>無法辨識鍵名「%1」。</translation></message>
    <message id="simulatedUnreadable"><translation>無法讀取模擬血壓計的檔案 %1：%2</translation></message>
    <message id="simulatedWrongLength"><translation>「%1」的值必須有這個字元數：%2</translation></message>
</context>
<context>
    <name>analysis</name>
    <message id="beforeAndSince"><translation>之前 %1，之後 %2：%3</translation></message>
    <message id="excludedOfDays" numerus="yes"><translation><numerusform>已排除 %n 筆</numerusform></translation></message>
    <message id="fewBefore"><translation>之前的量測少於 %1 筆</translation></message>
    <message id="fewOnBothSides"><translation>前後的量測皆少於 %1 筆</translation></message>
    <message id="fewSince"><translation>之後的量測少於 %1 筆</translation></message>
    <message id="highMark"><translation>%1 與粗體：達到或高於 %2</translation></message>
    <message id="leftBeforeNoon" numerus="yes"><translation><numerusform>中午前 %n 筆</numerusform></translation></message>
    <message id="leftExcluded" numerus="yes"><translation><numerusform>已排除 %n 筆</numerusform></translation></message>
    <message id="leftFromNoon" numerus="yes"><translation><numerusform>中午以後 %n 筆</numerusform></translation></message>
    <message id="leftOut"><translation>未計入：%1</translation></message>
    <message id="leftOutsidePeriod" numerus="yes"><translation><numerusform>期間外 %n 筆</numerusform></translation></message>
    <message id="leftUndated" numerus="yes"><translation><numerusform>無日期的量測 %n 筆</numerusform></translation></message>
    <message id="leftUnmeasured" numerus="yes"><translation><numerusform>沒有血壓值 %n 筆</numerusform></translation></message>
    <message id="leftWithoutDate" numerus="yes"><translation><numerusform>完全沒有日期 %n 筆</numerusform></translation></message>
    <message id="limitDiaAlone"><translation>DIA %1 mmHg</translation></message>
    <message id="limitsBoth"><translation>%1/%2 mmHg</translation></message>
    <message id="limitSysAlone"><translation>SYS %1 mmHg</translation></message>
    <message id="listedExcluded" numerus="yes"><translation><numerusform>，其中 %n 筆已排除</numerusform></translation></message>
    <message id="missingDays" numerus="yes"><translation><numerusform>%n 天</numerusform></translation></message>
    <message id="missingEvenings" numerus="yes"><translation><numerusform>%n 筆晚上量測</numerusform></translation></message>
    <message id="missingMornings" numerus="yes"><translation><numerusform>%n 筆早上量測</numerusform></translation></message>
    <message id="missingReadings" numerus="yes"><translation><numerusform>%n 筆量測</numerusform></translation></message>
    <message id="noHighMark"><translation>未標示偏高的數值</translation></message>
    <message id="noneBefore"><translation>之前 14 天沒有量測，之後 %1</translation></message>
    <message id="noneBeforeOrSince"><translation>前後都沒有量測</translation></message>
    <message id="noneSince"><translation>之前 %1，之後沒有量測</translation></message>
    <message id="otherZoneOfDays" numerus="yes"><translation><numerusform>%n 筆儲存於其他時區；時間以這台電腦為準</numerusform></translation></message>
    <message id="readingCount" numerus="yes"><translation><numerusform>%n 筆量測</numerusform></translation></message>
    <message id="rowsCut"><translation>註記涵蓋的無量測日數超出清單可顯示的範圍（最多 %1 天），因此有些日期未列出。</translation></message>
    <message id="unmeasuredOfDays" numerus="yes"><translation><numerusform>沒有血壓值 %n 筆不計</numerusform></translation></message>
</context>
<context>
    <name>app</name>
    <message id="12-hours"><translation>12 小時制</translation></message>
    <message id="24-hours"><translation>24 小時制</translation></message>
    <message id="aboutData"><translation>資料檔：%1</translation></message>
    <message id="aboutLicence"><translation>授權：MIT。ZEL 不附帶任何擔保。ZEL 使用 Qt（LGPL 3）、hidapi（BSD）、pugixml（MIT）、ICU（Unicode 授權）與 expected（CC0），各依其授權條款。</translation></message>
    <message id="addComment"><translation>新增註記</translation></message>
    <message id="addCommentHint"><translation>將此按鈕拖曳到脈搏圖下方橫條中的某一天，即可在該日新增註記。使用鍵盤時，請按下此按鈕或 Insert 鍵。</translation></message>
    <message id="addCommentTooLong"><translation>期間為 47 天以內時才能新增註記。</translation></message>
    <message id="addDay"><translation>增加天數：期間前後各多一天</translation></message>
    <message id="addDayHint"><translation>增加天數：期間前後各多一天（+）</translation></message>
    <message id="afib"><translation>心房顫動</translation></message>
    <message id="age"><translation>%1 歲</translation></message>
    <message id="answerNo"><translation>否</translation></message>
    <message id="answerYes"><translation>是</translation></message>
    <message id="AP_Title"><translation>ZEL – 血壓量測紀錄</translation></message>
    <message id="argumentUnknown"><translation>無法辨識的引數「%1」；請參閱 zel --help</translation></message>
    <message id="argumentWithoutFile"><translation>%1= 後面需要檔名；請參閱 zel --help</translation></message>
    <message id="backupAlsoTo"><translation>備份另存至:</translation></message>
    <message id="backupChoose"><translation>選擇(&amp;H)…</translation></message>
    <message id="backupChooseTitle"><translation>資料檔的第二備份資料夾</translation></message>
    <message id="backupClose"><translation>關閉(&amp;C)</translation></message>
    <message id="backupConfirm"><translation>要還原到這份備份嗎？%1。目前的內容會另存為一份備份，之後仍可還原回來。</translation></message>
    <message id="backupCreate"><translation>立即備份(&amp;N)</translation></message>
    <message id="backupDaily"><translation>當天首次變更前</translation></message>
    <message id="backupDamaged"><translation>損壞的資料檔</translation></message>
    <message id="backupDay"><translation>日期</translation></message>
    <message id="backupExplained"><translation>資料檔的備份位於資料夾 %1。為防此磁碟損壞，請指定另一個磁碟上的第二備份資料夾，例如隨身碟或網路共用資料夾。</translation></message>
    <message id="backupFar"><translation>第二資料夾：%1</translation></message>
    <message id="backupKind"><translation>備份</translation></message>
    <message id="backupMade"><translation>手動備份</translation></message>
    <message id="backupNone"><translation>目前沒有備份。每天首次變更前會自動備份一次。</translation></message>
    <message id="backupNoSecondFolder"><translation>沒有第二資料夾</translation></message>
    <message id="backupOffered"><translation>最新可讀取的備份是 %1，內容為 %2。要還原到這份備份嗎？損壞的檔案會另存為一份備份，放在資料檔旁。</translation></message>
    <message id="backupReplaced"><translation>還原前的內容</translation></message>
    <message id="backupRestore"><translation>還原(&amp;R)…</translation></message>
    <message id="backupRestored"><translation>目前使用備份 %1。先前的內容保存為 %2。</translation></message>
    <message id="backupSize"><translation>大小</translation></message>
    <message id="backupStop"><translation>停用(&amp;T)</translation></message>
    <message id="backupTitle"><translation>備份</translation></message>
    <message id="backupUnreadable"><translation>無法讀取這份備份</translation></message>
    <message id="beforeAndSinceHint"><translation>平均血壓（mmHg）與量測筆數：註記前的 14 天，以及從註記開始到下一則註記開始為止，最多 28 天</translation></message>
    <message id="BeginDate"><translation>開始日期必須早於結束日期，期間至少兩天。日期維持不變。</translation></message>
    <message id="beginEarlier"><translation>開始日期提早一天</translation></message>
    <message id="beginLater"><translation>開始日期延後一天</translation></message>
    <message id="birthDateIncomplete"><translation>請完整填寫年、月、日，或三者皆留空。</translation></message>
    <message id="birthDateInFuture"><translation>這一天尚未到來。</translation></message>
    <message id="birthDateTooOld"><translation>這是超過 %1 年前的日期。</translation></message>
    <message id="birthDayNone"><translation>日</translation></message>
    <message id="birthDayRefused"><translation>這個月沒有 %1 日。</translation></message>
    <message id="birthMonthNone"><translation>月</translation></message>
    <message id="birthYearNone"><translation>年</translation></message>
    <message id="birthYearRefused"><translation>請以四位數的西元年填寫，例如 1956。</translation></message>
    <message id="bloodChart"><translation>血壓隨時間的變化</translation></message>
    <message id="bloodScroller"><translation>移動血壓刻度</translation></message>
    <message id="cancel"><translation>取消</translation></message>
    <message id="cancelPrint"><translation>關閉而不列印</translation></message>
    <message id="cellWithRemark"><translation>%1，%2</translation></message>
    <message id="changeReadingAction"><translation>變更量測…</translation></message>
    <message id="changeReadingTitle"><translation>變更量測</translation></message>
    <message id="chartKeys"><translation>期間內有 %1。方向鍵可移動期間，加號與減號可加長與縮短期間，Ctrl 加左右方向鍵可逐筆查看量測。</translation></message>
    <message id="cholestrolRefused"><translation>請填寫 10 到 5000 mg/dL 的數字，例如 200。1 mmol/L 約為 38.7 mg/dL。</translation></message>
    <message id="choosePrinter"><translation>選擇印表機</translation></message>
    <message id="clockAhead"><translation>比本電腦快 %1</translation></message>
    <message id="clockBehind"><translation>比本電腦慢 %1</translation></message>
    <message id="clockDays" numerus="yes"><translation><numerusform>%n 天</numerusform></translation></message>
    <message id="clockHours" numerus="yes"><translation><numerusform>%n 小時</numerusform></translation></message>
    <message id="clockMinutes" numerus="yes"><translation><numerusform>%n 分鐘</numerusform></translation></message>
    <message id="clockNotSet"><translation>未成功，時鐘可能仍不正確。%1</translation></message>
    <message id="clockNotSetAtGreeting"><translation>無法設定血壓計的時鐘。%1</translation></message>
    <message id="clockRight"><translation>與本電腦一致</translation></message>
    <message id="clockSet"><translation>已完成，目前顯示本電腦的時間。</translation></message>
    <message id="clockUnset"><translation>未設定</translation></message>
    <message id="clockUnsetAsk"><translation>血壓計的時鐘尚未設定，因此量測不會有日期與時間。要設定為本電腦的時間嗎？</translation></message>
    <message id="closeWindow"><translation>關閉</translation></message>
    <message id="colourAction"><translation>顏色：%1</translation></message>
    <message id="colourBlue"><translation>藍色</translation></message>
    <message id="colourButton"><translation>註記顏色</translation></message>
    <message id="colourGrey"><translation>深灰色</translation></message>
    <message id="colourHint"><translation>選擇新註記的顏色，以及您以滑鼠或鍵盤選取之註記的顏色。</translation></message>
    <message id="colourOrange"><translation>橙色</translation></message>
    <message id="colourPicker"><translation>註記顏色</translation></message>
    <message id="colourYellow"><translation>黃色</translation></message>
    <message id="columnComment"><translation>註記</translation></message>
    <message id="columnComments"><translation>註記</translation></message>
    <message id="columnDate"><translation>日期</translation></message>
    <message id="columnDia"><translation>DIA
mmHg</translation></message>
    <message id="columnFile"><translation>檔案</translation></message>
    <message id="columnMam"><translation>MAM</translation></message>
    <message id="columnPatient"><translation>病患</translation></message>
    <message id="columnPressure"><translation>%1
mmHg</translation></message>
    <message id="columnPulse"><translation>脈搏
次/分</translation></message>
    <message id="columnReadings"><translation>量測</translation></message>
    <message id="columnState"><translation>狀態</translation></message>
    <message id="columnSys"><translation>SYS
mmHg</translation></message>
    <message id="columnTime"><translation>時間</translation></message>
    <message id="commentBegin"><translation>從</translation></message>
    <message id="commentBeginDay"><translation>註記的開始日期</translation></message>
    <message id="commentCount" numerus="yes"><translation><numerusform>%n 則註記</numerusform></translation></message>
    <message id="commentDayFar"><translation>「%1」是兩年多以後的日期，請檢查年份。日期維持不變。</translation></message>
    <message id="commentDayHint"><translation>輸入日期後按 Enter。</translation></message>
    <message id="commentDayOrder"><translation>註記的結束日期不能早於開始日期。日期維持不變。</translation></message>
    <message id="commentDayUnread"><translation>「%1」不是註記可用的日期：請依 %2 的格式輸入，年份須在 1900 年以後（含）。日期維持不變。</translation></message>
    <message id="commentEmpty"><translation>%1 的註記沒有文字。要移除嗎？</translation></message>
    <message id="commentEmptyTitle"><translation>沒有文字的註記</translation></message>
    <message id="commentEnd"><translation>至</translation></message>
    <message id="commentEndDay"><translation>註記的結束日期</translation></message>
    <message id="commentInClipboard"><translation>程式結束時正在輸入的註記無法儲存；文字現在位於剪貼簿，請貼到您要保存的地方。%1</translation></message>
    <message id="commentNotSaved"><translation>註記未儲存，您的文字仍在欄位中。%1</translation></message>
    <message id="commentPanel"><translation>註記</translation></message>
    <message id="commentPatientGone"><translation>病患 %1 已不在資料檔中，因此您正在輸入的註記無法儲存。文字現在位於剪貼簿，請貼到您要保存的地方。</translation></message>
    <message id="commentPosition"><translation>%1 / %2</translation></message>
    <message id="commentStay"><translation>無法儲存註記。%1

要留在這裡並保留文字，以便再試一次嗎？選「否」則放棄這段文字。</translation></message>
    <message id="commentText"><translation>註記內容</translation></message>
    <message id="commentUnchanged"><translation>無法儲存註記。%1</translation></message>
    <message id="ConfirmDelPatient"><translation>要刪除 %1 及其所有量測與註記嗎？在 ZEL 關閉之前，可用「編輯 &gt; 復原」恢復。</translation></message>
    <message id="confirmDropNew"><translation>%1 的資料尚未儲存。要刪除已輸入的內容嗎？刪除後無法復原。</translation></message>
    <message id="confirmPrintSave"><translation>%1 的資料已變更，但只有已儲存的內容才會列印或匯出。要先儲存變更嗎？</translation></message>
    <message id="confirmSendID"><translation>%2要將 ID %1 寫入這台血壓計嗎？此後它的量測都屬於這位病患。</translation></message>
    <message id="confirmSendSave"><translation>%1 的資料已變更。要儲存變更嗎？</translation></message>
    <message id="copyRows"><translation>複製</translation></message>
    <message id="correlationView"><translation>收縮壓與舒張壓相關圖</translation></message>
    <message id="dataChangedElsewhere"><translation>另一個程式變更了資料檔。現在顯示的是目前的內容。</translation></message>
    <message id="dataFile"><translation>資料檔</translation></message>
    <message id="dataFileUnreadable"><translation>無法使用資料檔</translation></message>
    <message id="dataPanel"><translation>資料</translation></message>
    <message id="dataUnreadNow"><translation>目前無法讀取資料檔，也無法儲存任何資料。顯示的是先前的內容。</translation></message>
    <message id="DateError"><translation>請檢查日期</translation></message>
    <message id="dayHint"><translation>輸入日期後按 Enter，或按箭頭開啟月曆。</translation></message>
    <message id="dayOfDownload"><translation>%1，當天有下載</translation></message>
    <message id="daysButtons"><translation>天數</translation></message>
    <message id="dayUnread"><translation>「%1」不是可用的日期：請依 %2 的格式輸入，年份須在 1900 年以後（含）。</translation></message>
    <message id="dayUnreadLeft"><translation>「%1」不是可用的日期：請依 %2 的格式輸入，年份須在 1900 年以後（含）。日期維持不變。</translation></message>
    <message id="dayWithoutReading"><translation>%1，當天沒有量測</translation></message>
    <message id="dd mm yyyy"><translation>日 月 年</translation></message>
    <message id="DeleteComment"><translation>刪除註記</translation></message>
    <message id="deleteCommentButton"><translation>刪除…</translation></message>
    <message id="deleteCommentHint"><translation>確認後刪除這則註記。</translation></message>
    <message id="DeletePatient"><translation>刪除病患</translation></message>
    <message id="deletePatientButton"><translation>刪除(&amp;L)</translation></message>
    <message id="deletePatientHint"><translation>確認後刪除這位病患及其所有量測與註記。</translation></message>
    <message id="deleteReadingsAction"><translation>刪除量測…</translation></message>
    <message id="deleteReadingsQuestion"><translation>要刪除手動輸入的量測（%1）嗎？</translation></message>
    <message id="deleteReadingsTitle"><translation>刪除量測</translation></message>
    <message id="DeleteTheComment"><translation>要刪除這則註記嗎？在 ZEL 關閉之前，可用「編輯 &gt; 復原」恢復。</translation></message>
    <message id="demonstrationButton"><translation>使用示範血壓計試用</translation></message>
    <message id="demonstrationIsOwnData"><translation>示範的資料存放於資料夾 %1，但該資料夾會連到您自己的資料。為避免虛構的量測混入您的資料，並未啟動示範。</translation></message>
    <message id="demonstrationNoFolder"><translation>示範的資料存放於資料夾 %1，但無法建立該資料夾。</translation></message>
    <message id="demonstrationNote"><translation>開啟第二個視窗，使用模擬血壓計與虛構的量測，並與您自己的資料分開存放。</translation></message>
    <message id="demonstrationNotStarted"><translation>無法啟動示範。</translation></message>
    <message id="demonstrationStarted"><translation>示範會在另一個視窗中開啟。</translation></message>
    <message id="demonstrationStrip"><translation>示範：血壓計是模擬的，其量測為虛構，並與您自己的資料分開存放。</translation></message>
    <message id="demonstrationTitle"><translation>示範 – %1</translation></message>
    <message id="download"><translation>下載量測</translation></message>
    <message id="downloadAdvice"><translation>請保持血壓計連接。全部量測傳完後才會儲存。</translation></message>
    <message id="downloadButton"><translation>下載(&amp;D)</translation></message>
    <message id="downloadCancel"><translation>取消下載</translation></message>
    <message id="downloadCancelled"><translation>已取消下載。未儲存任何資料，量測仍在血壓計中。</translation></message>
    <message id="downloadDayUnknown"><translation>不明</translation></message>
    <message id="downloadEmpty"><translation>血壓計中沒有量測。</translation></message>
    <message id="downloadFailed"><translation>無法下載量測，未儲存任何資料。量測仍在血壓計中。%1</translation></message>
    <message id="downloadFetched" numerus="yes"><translation><numerusform>已下載 %n 筆量測</numerusform></translation></message>
    <message id="downloadHint"><translation>從血壓計取得量測（Ctrl+D）。血壓計必須已連接，且其 ID 與這位病患相同。</translation></message>
    <message id="downloadNew" numerus="yes"><translation><numerusform>%1，新增 %n 筆</numerusform></translation></message>
    <message id="downloadNotFlushed"><translation>量測已儲存，但不確定是否已永久保存。%1</translation></message>
    <message id="downloadNothingNew"><translation>%1，沒有新增：先前皆已儲存</translation></message>
    <message id="downloadNotReadBack"><translation>%1。之後無法讀取資料檔，因此未清空血壓計。%2</translation></message>
    <message id="downloadNotStored"><translation>無法儲存量測。量測仍在血壓計中。%1</translation></message>
    <message id="downloadOtherMonitor"><translation>血壓計中的量測屬於另一個 ID，不是這位病患的，因此未儲存任何資料。請連接這位病患的血壓計後再試一次。</translation></message>
    <message id="downloadProgress"><translation>下載進度</translation></message>
    <message id="downloadsNew"><translation>新量測</translation></message>
    <message id="downloadsNone"><translation>%1：尚未從血壓計下載任何資料。</translation></message>
    <message id="downloadsSummary" numerus="yes"><translation><numerusform>%1：已下載 %n 次，新量測：%2。</numerusform></translation></message>
    <message id="downloadStarting"><translation>正在查詢血壓計…</translation></message>
    <message id="downloadsTitle"><translation>下載紀錄</translation></message>
    <message id="downloadStopping"><translation>正在停止…</translation></message>
    <message id="downloadTypedLeftOut" numerus="yes"><translation><numerusform>%n 筆手動輸入的量測從此排除（血壓計也有這筆量測）</numerusform></translation></message>
    <message id="downloadWaiting" numerus="yes"><translation><numerusform>血壓計沒有傳來資料。下載最多再等候 %n 秒。您可以取消，不會遺失任何資料。</numerusform></translation></message>
    <message id="dropLeftOut"><translation>只能匯入這部電腦上的 XML 檔案。未列入清單：%1</translation></message>
    <message id="DupNewPatient"><translation>已有一位尚未儲存的新病患，位於清單最上方。請先儲存或刪除。</translation></message>
    <message id="EndDate"><translation>結束日期必須晚於開始日期，期間至少兩天。日期維持不變。</translation></message>
    <message id="endEarlier"><translation>結束日期提早一天</translation></message>
    <message id="endLater"><translation>結束日期延後一天</translation></message>
    <message id="eraseFailed"><translation>%1。量測已安全儲存，但無法清空血壓計，量測仍在其中。%2</translation></message>
    <message id="eraseNotSeen"><translation>%1。量測已安全儲存，但無法確認血壓計是否已清空。%2</translation></message>
    <message id="eraseThem"><translation>刪除(&amp;D)</translation></message>
    <message id="exportAll"><translation>將所有病患匯出為 XML 檔案</translation></message>
    <message id="exportAlsoFailed"><translation>下列項目也發生相同情況：%1</translation></message>
    <message id="exportButton"><translation>全部匯出(&amp;E)…</translation></message>
    <message id="exportCancelled"><translation>匯出隨後取消，其餘病患未匯出。</translation></message>
    <message id="exportCSV"><translation>將目前病患的量測匯出為 CSV 檔案</translation></message>
    <message id="exportCSVButton"><translation>匯出 CSV(&amp;V)…</translation></message>
    <message id="exportCSVFolder"><translation>選擇 CSV 檔案的資料夾</translation></message>
    <message id="exportCSVHint"><translation>將目前病患的資料與量測寫成表格，供試算表軟體使用。</translation></message>
    <message id="exportFailed" numerus="yes"><translation><numerusform>有 %n 個檔案無法寫入：</numerusform></translation></message>
    <message id="exportFhirFolder"><translation>選擇 FHIR 檔案的資料夾</translation></message>
    <message id="exportFolder"><translation>選擇病患檔案的資料夾</translation></message>
    <message id="exportHint"><translation>為每位病患寫入一個檔案，可由本程式再次匯入。</translation></message>
    <message id="exporting"><translation>正在匯出病患</translation></message>
    <message id="exportKept" numerus="yes"><translation><numerusform>有 %n 個既有檔案維持原狀。</numerusform></translation></message>
    <message id="ExportMsg" numerus="yes"><translation><numerusform>已將 %n 個檔案寫入資料夾 %1。</numerusform></translation></message>
    <message id="exportNobody"><translation>目前沒有可匯出的病患。請先新增或匯入病患。</translation></message>
    <message id="exportNoPatient"><translation>尚未選擇病患。請先選擇要匯出的病患。</translation></message>
    <message id="exportReplace" numerus="yes"><translation><numerusform>資料夾 %1 中已有 %n 個同名檔案（%2）。要取代嗎？選「否」則維持原狀，其餘檔案仍會寫入。</numerusform></translation></message>
    <message id="exportReplaceTitle"><translation>要取代檔案嗎？</translation></message>
    <message id="ExportTitle"><translation>匯出</translation></message>
    <message id="fieldAddress"><translation>地址</translation></message>
    <message id="fieldCholestrol"><translation>膽固醇 (mg/dL)</translation></message>
    <message id="fieldDateOfBirth"><translation>出生日期</translation></message>
    <message id="fieldDiabetic"><translation>糖尿病</translation></message>
    <message id="fieldFamilyHistory"><translation>家族病史</translation></message>
    <message id="fieldFamilyName"><translation>姓氏</translation></message>
    <message id="fieldGivenNames"><translation>名字</translation></message>
    <message id="fieldHeightCm"><translation>身高 (cm)</translation></message>
    <message id="fieldHeightFtIn"><translation>身高（呎/吋）</translation></message>
    <message id="fieldID"><translation>ID</translation></message>
    <message id="fieldMissing"><translation>請填寫此欄位。</translation></message>
    <message id="fieldPatientNotes"><translation>病患備註</translation></message>
    <message id="fieldPhoneEmail"><translation>電話／電子郵件</translation></message>
    <message id="fieldRequired"><translation>必填</translation></message>
    <message id="fieldSex"><translation>性別</translation></message>
    <message id="fieldSmoker"><translation>吸菸</translation></message>
    <message id="fieldWeightKg"><translation>體重 (kg)</translation></message>
    <message id="fieldWeightLb"><translation>體重 (lb)</translation></message>
    <message id="fileAlreadyHere"><translation>已存在</translation></message>
    <message id="fileAlreadyHereHint"><translation>清單中已有此 ID 的病患，匯入將被拒絕。</translation></message>
    <message id="fileBeingRead"><translation>讀取中…</translation></message>
    <message id="fileNotImportable"><translation>無法匯入</translation></message>
    <message id="fileNotReadable"><translation>無法讀取</translation></message>
    <message id="fileTooLargeToCount"><translation>超過 64 MiB，未計算</translation></message>
    <message id="firstCopy"><translation>有一份先前資料的備份：%1，內容為 %2。若資料檔遺失，可還原到這份備份。</translation></message>
    <message id="firstCopyButton"><translation>還原到備份…</translation></message>
    <message id="firstStepDownload"><translation>請按「下載」。量測會顯示在圖表與表格中。</translation></message>
    <message id="firstStepMonitor"><translation>請以 USB 線連接血壓計。如果血壓計尚未存有這位病患的 ID，請按「傳送 ID」。</translation></message>
    <message id="firstStepPatient"><translation>請輸入使用血壓計的病患資料與 ID，然後按「儲存」。</translation></message>
    <message id="firstSteps"><translation>目前沒有病患：三個步驟取得第一批量測</translation></message>
    <message id="heightRefusedCm"><translation>請填寫 20 到 300 cm 的數字，例如 175。</translation></message>
    <message id="heightRefusedFtIn"><translation>請填寫呎與吋，中間以斜線分隔，例如 5/9。吋最大為 11。</translation></message>
    <message id="highFrom"><translation>標示數值的上限</translation></message>
    <message id="highFromHint"><translation>達到或高於這些上限的數值，在此處與紙本上會以粗體加標記顯示。圖表、統計、直方圖與相關圖仍使用設定中的上限。</translation></message>
    <message id="highFromLabel"><translation>標示上限(&amp;V)</translation></message>
    <message id="histogramView"><translation>數值分布</translation></message>
    <message id="IDNotForMonitor"><translation>ID「%1」不適用於血壓計。血壓計的 ID 須為 1 到 11 個半形英文字母、數字與符號，前後不含空白。</translation></message>
    <message id="IDRefused"><translation>ID 須為 1 到 11 個半形英文字母、數字或符號；血壓計無法儲存其他的 ID。</translation></message>
    <message id="IDStays"><translation>ID 無法變更：量測與註記都屬於這個 ID。</translation></message>
    <message id="ihd"><translation>心律不整</translation></message>
    <message id="importAll"><translation>全選(&amp;A)</translation></message>
    <message id="importAllFiles"><translation>選擇所有檔案</translation></message>
    <message id="importButton"><translation>匯入(&amp;I)</translation></message>
    <message id="importButtonFiles" numerus="yes"><translation><numerusform>匯入 %n 個檔案(&amp;I)</numerusform></translation></message>
    <message id="importCancelled" numerus="yes"><translation><numerusform>匯入隨後取消，有 %n 個檔案未讀取。</numerusform></translation></message>
    <message id="importDropped"><translation>拖放到視窗的檔案</translation></message>
    <message id="importedFiles" numerus="yes"><translation><numerusform>已匯入 %n 個檔案：</numerusform></translation></message>
    <message id="importFilesButton"><translation>匯入(&amp;I)…</translation></message>
    <message id="importFolder"><translation>選擇要匯入的資料夾</translation></message>
    <message id="importFolderButton"><translation>選擇資料夾(&amp;F)…</translation></message>
    <message id="importFrom"><translation>%1 中的檔案</translation></message>
    <message id="importHint"><translation>從先前匯出的 XML 檔案匯入病患。</translation></message>
    <message id="importing"><translation>正在匯入病患</translation></message>
    <message id="importList"><translation>XML 檔案清單</translation></message>
    <message id="importNone"><translation>未匯入任何檔案。</translation></message>
    <message id="importRefused" numerus="yes"><translation><numerusform>有 %n 個檔案未匯入：</numerusform></translation></message>
    <message id="importTaken"><translation>%1：%2、%3、%4</translation></message>
    <message id="importTitle"><translation>匯入病患</translation></message>
    <message id="includeUndated"><translation>無日期的量測</translation></message>
    <message id="includeUndatedHint"><translation>一併顯示並計入血壓計未記錄日期的量測。</translation></message>
    <message id="infoDia"><translation>舒張壓</translation></message>
    <message id="infoLine"><translation>%1：%2</translation></message>
    <message id="infoPulse"><translation>脈搏</translation></message>
    <message id="infoRemark"><translation>附註</translation></message>
    <message id="infoSys"><translation>收縮壓</translation></message>
    <message id="keep"><translation>保留(&amp;K)</translation></message>
    <message id="keysCloseMonitorBar"><translation>關閉血壓計列</translation></message>
    <message id="keysFirstLast"><translation>最早、最近的量測</translation></message>
    <message id="keysFromReading"><translation>逐筆查看量測</translation></message>
    <message id="keysKey"><translation>按鍵</translation></message>
    <message id="keysManualHint"><translation>開啟使用手冊（F1）。</translation></message>
    <message id="keysMovePeriod"><translation>移動期間</translation></message>
    <message id="keysMoveScale"><translation>移動刻度</translation></message>
    <message id="keysPlace"><translation>位置</translation></message>
    <message id="keysTitle"><translation>快速鍵</translation></message>
    <message id="keysToMonitorBar"><translation>移到血壓計列</translation></message>
    <message id="keysWhat"><translation>功能</translation></message>
    <message id="keysWholePeriod"><translation>往前、往後移動整段期間</translation></message>
    <message id="keysWidenPeriod"><translation>延長、縮短期間</translation></message>
    <message id="languageNotSaved"><translation>語言未變更；其他設定已儲存。%1</translation></message>
    <message id="lastDownload"><translation>上次下載</translation></message>
    <message id="lastDownloadNone"><translation>尚未下載</translation></message>
    <message id="leaveOutAction"><translation>排除…</translation></message>
    <message id="leaveOutButton"><translation>排除(&amp;L)</translation></message>
    <message id="leaveOutExample"><translation>例如：壓脈帶鬆脫</translation></message>
    <message id="leaveOutExplained"><translation>%1：將從平均、統計與圖形中排除。排除的量測仍留在清單中，以刪除線顯示並註明原因，之後可重新計入。</translation></message>
    <message id="leaveOutNoReason"><translation>請填寫原因。</translation></message>
    <message id="leaveOutReason"><translation>原因(&amp;R):</translation></message>
    <message id="leaveOutTitle"><translation>排除</translation></message>
    <message id="limitsHome"><translation>%1/%2（居家）</translation></message>
    <message id="limitsLow"><translation>%1/%2（較嚴格）</translation></message>
    <message id="limitsNotKept"><translation>這些上限在程式結束前有效，但無法保存供下次啟動使用：%1</translation></message>
    <message id="limitsOffice"><translation>%1/%2（診間）</translation></message>
    <message id="limitsOwn"><translation>自訂上限</translation></message>
    <message id="mainMenu"><translation>主選單</translation></message>
    <message id="manualChapters"><translation>章節</translation></message>
    <message id="manualTitle"><translation>使用手冊</translation></message>
    <message id="map"><translation>MAP</translation></message>
    <message id="menuAbout"><translation>關於 ZEL(&amp;A)</translation></message>
    <message id="menuBackups"><translation>備份(&amp;B)…</translation></message>
    <message id="menuCopyRows"><translation>複製列</translation></message>
    <message id="menuDeleteComment"><translation>刪除註記</translation></message>
    <message id="menuDeletePatient"><translation>刪除病患</translation></message>
    <message id="menuDownload"><translation>下載量測</translation></message>
    <message id="menuDownloads"><translation>下載紀錄…</translation></message>
    <message id="menuEdit"><translation>編輯(&amp;E)</translation></message>
    <message id="menuExportFhir"><translation>將病患匯出為 FHIR(&amp;E)…</translation></message>
    <message id="menuFewerDays"><translation>減少天數</translation></message>
    <message id="menuFile"><translation>檔案(&amp;F)</translation></message>
    <message id="menuFindPatient"><translation>搜尋病患</translation></message>
    <message id="menuHelp"><translation>說明(&amp;H)</translation></message>
    <message id="menuKeys"><translation>快速鍵(&amp;K)</translation></message>
    <message id="menuManual"><translation>使用手冊(&amp;M)</translation></message>
    <message id="menuMoreDays"><translation>增加天數</translation></message>
    <message id="menuNewPatient"><translation>新增病患</translation></message>
    <message id="menuPrint"><translation>列印(&amp;P)…</translation></message>
    <message id="menuQuit"><translation>結束(&amp;Q)</translation></message>
    <message id="menuRedo"><translation>重做(&amp;R)</translation></message>
    <message id="menuRedoStep"><translation>重做：%1(&amp;R)</translation></message>
    <message id="menuSavePatient"><translation>儲存病患</translation></message>
    <message id="menuSavePdf"><translation>儲存為 PDF(&amp;D)…</translation></message>
    <message id="menuSelectRows"><translation>選取所有列</translation></message>
    <message id="menuSendID"><translation>將 ID 傳送到血壓計</translation></message>
    <message id="menuSettings"><translation>設定(&amp;S)…</translation></message>
    <message id="menuTimeChart"><translation>時間變化圖</translation></message>
    <message id="menuUndo"><translation>復原(&amp;U)</translation></message>
    <message id="menuUndoStep"><translation>復原：%1(&amp;U)</translation></message>
    <message id="menuView"><translation>檢視</translation></message>
    <message id="minusDay"><translation>減少天數：期間前後各少一天</translation></message>
    <message id="minusDayHint"><translation>減少天數：期間前後各少一天（−）</translation></message>
    <message id="mm dd yyyy"><translation>月 日 年</translation></message>
    <message id="monitorChangedMeanwhile"><translation>血壓計在此期間已拔除或更換；未下載任何資料。</translation></message>
    <message id="monitorClock"><translation>時鐘</translation></message>
    <message id="monitorConnected"><translation>血壓計已連接</translation></message>
    <message id="monitorConnectedID"><translation>血壓計的 ID 是 %1。請按「下載」以取得這位病患的量測。</translation></message>
    <message id="monitorCounting"><translation>正在向血壓計查詢量測，最多可能需要 20 秒…</translation></message>
    <message id="monitorDownloading"><translation>正在下載量測…</translation></message>
    <message id="monitorErasing"><translation>正在清空血壓計…</translation></message>
    <message id="monitorGreeting"><translation>正在讀取血壓計的時鐘與 ID…</translation></message>
    <message id="monitorHoldsNone"><translation>血壓計目前沒有 ID。</translation></message>
    <message id="monitorHoldsOther"><translation>血壓計目前的 ID 是 %1，不屬於這裡的任何病患。</translation></message>
    <message id="monitorHoldsPatient"><translation>血壓計目前的 ID 是 %1，屬於 %2。</translation></message>
    <message id="monitorHoldsReadings" numerus="yes"><translation><numerusform>其中有 %n 筆量測。</numerusform></translation></message>
    <message id="monitorHoldsUnknown"><translation>無法讀取血壓計目前的 ID。</translation></message>
    <message id="monitorID"><translation>ID</translation></message>
    <message id="monitorIDSimilar"><translation>%2 的 ID %1 與它很相似，但並不相同。</translation></message>
    <message id="monitorLooking"><translation>正在尋找血壓計…</translation></message>
    <message id="monitorNotAnswering"><translation>已接上，但未正常回應。%1</translation></message>
    <message id="monitorNotConnected"><translation>未連接。請將血壓計接到 USB 連接埠。</translation></message>
    <message id="monitorPanel"><translation>血壓計</translation></message>
    <message id="monitorReadingsUnknown"><translation>無法讀取其中的量測筆數。</translation></message>
    <message id="monitorReady"><translation>已連接</translation></message>
    <message id="monitorSendingID"><translation>正在將 ID 寫入血壓計…</translation></message>
    <message id="monitorSettingClock"><translation>正在設定血壓計的時鐘…</translation></message>
    <message id="monitorState"><translation>狀態</translation></message>
    <message id="monitorTrouble"><translation>已連接，但上次通訊失敗，正在重試。%1</translation></message>
    <message id="monitorWithoutID"><translation>連接的血壓計沒有 ID。請選擇病患並按「傳送 ID」，讓它成為這位病患的血壓計。</translation></message>
    <message id="newIDFromDevice"><translation>血壓計的 ID 是 %1，不屬於這裡的任何病患。請以此 ID 新增病患，或選擇病患並按「傳送 ID」。</translation></message>
    <message id="NewPatient"><translation>新病患</translation></message>
    <message id="newPatientButton"><translation>新增(&amp;N)</translation></message>
    <message id="newPatientHint"><translation>新增一位病患（Ctrl+N）。</translation></message>
    <message id="newPatientWithID"><translation>以此 ID 新增病患</translation></message>
    <message id="newReadingAction"><translation>新增量測…</translation></message>
    <message id="newReadingHint"><translation>手動輸入一筆血壓計未儲存的量測（Ctrl+N）。</translation></message>
    <message id="newReadingTitle"><translation>新增量測</translation></message>
    <message id="nextComment"><translation>下一則註記</translation></message>
    <message id="nextHint"><translation>下一頁（Page Down）</translation></message>
    <message id="nextPage"><translation>下一頁</translation></message>
    <message id="no"><translation>否(&amp;N)</translation></message>
    <message id="noCommentPage"><translation>沒有註記</translation></message>
    <message id="noCommentPageAdvice"><translation>這位病患目前沒有註記。註記可在圖表上新增。</translation></message>
    <message id="noComments"><translation>目前沒有註記。註記可在圖表上新增。</translation></message>
    <message id="NoData"><translation>目前沒有量測</translation></message>
    <message id="NoDataAdvice"><translation>請連接血壓計，在「病患」頁選擇病患並按「下載」，或按 Ctrl+N 手動輸入量測。</translation></message>
    <message id="noDisplay"><translation>沒有可開啟視窗的顯示環境。請在桌面工作階段中啟動 zel，或使用不需視窗的指令：請參閱 zel --help</translation></message>
    <message id="noFiles"><translation>此資料夾中沒有 XML 檔案</translation></message>
    <message id="noFilesAdvice"><translation>請選擇匯出病患時使用的資料夾。</translation></message>
    <message id="noHome"><translation>環境變數 HOME 未指定資料夾（絕對路徑），因此沒有存放資料的位置。</translation></message>
    <message id="noID"><translation>無</translation></message>
    <message id="none"><translation>無</translation></message>
    <message id="noneInPeriod"><translation>此期間沒有量測</translation></message>
    <message id="noneInPeriodAdvice"><translation>請在上方選擇其他日期，或選「全部」與「全天」。勾選「無日期的量測」可一併顯示沒有日期的量測。</translation></message>
    <message id="nonePrintedAdvice"><translation>請關閉此視窗，在「量測紀錄」或「圖表」頁選擇其他日期，或在該處選「全部」與「全天」。勾選「無日期的量測」後，沒有日期的量測也會列印。</translation></message>
    <message id="noPage"><translation>沒有頁面</translation></message>
    <message id="noPatientFound"><translation>找不到病患</translation></message>
    <message id="noPatientFoundAdvice"><translation>沒有姓名或 ID 包含搜尋的文字。</translation></message>
    <message id="noPatientSelected"><translation>未選擇病患</translation></message>
    <message id="noPrinterNote"><translation>這台電腦沒有設定印表機。您可以將頁面儲存為 PDF，或在系統設定中新增印表機。</translation></message>
    <message id="NoPrnter"><translation>沒有印表機</translation></message>
    <message id="NoPrnterMsg"><translation>這台電腦沒有設定印表機，因此無法列印。請在系統設定中新增印表機後再試一次，或將頁面儲存為 PDF。</translation></message>
    <message id="notes"><translation>備註</translation></message>
    <message id="notKnown"><translation>–</translation></message>
    <message id="noValue"><translation>無資料</translation></message>
    <message id="ok"><translation>確定(&amp;O)</translation></message>
    <message id="openCalendar"><translation>開啟月曆</translation></message>
    <message id="ownDia"><translation>自訂舒張壓上限（mmHg），0 為無上限</translation></message>
    <message id="ownSys"><translation>自訂收縮壓上限（mmHg），0 為無上限</translation></message>
    <message id="pad"><translation>心律不整</translation></message>
    <message id="pageChart"><translation>圖表</translation></message>
    <message id="pagePatients"><translation>病患</translation></message>
    <message id="pageReadings"><translation>量測紀錄</translation></message>
    <message id="pageTabs"><translation>頁面</translation></message>
    <message id="pageText"><translation>%1/%2</translation></message>
    <message id="patientCount" numerus="yes"><translation><numerusform>%n 位病患</numerusform></translation></message>
    <message id="patientDeleted"><translation>已刪除 %1。</translation></message>
    <message id="patientEditor"><translation>病患資料</translation></message>
    <message id="patientGone"><translation>%1 已不在資料檔中：另一個程式移除了這位病患，或在此復原了某個步驟。您輸入的內容仍在這裡，按「儲存」可重新加入這位病患。</translation></message>
    <message id="patientHeading"><translation>%2 %1（ID %3）</translation></message>
    <message id="patientID"><translation>ID</translation></message>
    <message id="patientIDOnly"><translation>ID %1</translation></message>
    <message id="patientIDTwice"><translation>資料檔中有多位病患的 ID 同為 %1，無法區分，因此不會變更或刪除其中任何一位。</translation></message>
    <message id="patientList"><translation>病患清單</translation></message>
    <message id="patientName"><translation>姓名</translation></message>
    <message id="patientNameless"><translation>無姓名的病患</translation></message>
    <message id="patientPartlySaved"><translation>%1 的部分資料無法儲存：資料檔中沒有可存放的位置。無法儲存的內容仍保留在欄位中。</translation></message>
    <message id="patientRefused"><translation>尚未儲存任何資料。請更正標示的欄位：
%1</translation></message>
    <message id="patientReplaced"><translation>%1 已不在資料檔中：另一個程式移除了這位病患。現在顯示的是另一位病患。</translation></message>
    <message id="patientSaved"><translation>已儲存 %1。</translation></message>
    <message id="patientsDetail"><translation>請選擇病患，或新增一位病患。</translation></message>
    <message id="patientsInputFields"><translation>必須填寫姓氏、名字與 ID。尚未儲存任何資料，請填寫標示的欄位。</translation></message>
    <message id="patientTotal"><translation>病患</translation></message>
    <message id="pdfChart"><translation>圖表</translation></message>
    <message id="pdfComments"><translation>註記</translation></message>
    <message id="pdfCorrelation"><translation>相關圖</translation></message>
    <message id="pdfFiles"><translation>PDF 檔案 (*.pdf)</translation></message>
    <message id="pdfHistogram"><translation>數值分布</translation></message>
    <message id="pdfProfile"><translation>病患基本資料</translation></message>
    <message id="pdfReadings"><translation>量測紀錄</translation></message>
    <message id="pdfStatistics"><translation>統計與量測</translation></message>
    <message id="pdfSummary"><translation>摘要</translation></message>
    <message id="pdfTrend"><translation>趨勢</translation></message>
    <message id="periodBar"><translation>要顯示的期間與量測</translation></message>
    <message id="periodBegin"><translation>期間的開始日期</translation></message>
    <message id="periodEnd"><translation>期間的結束日期</translation></message>
    <message id="periodFrom"><translation>從(&amp;O)</translation></message>
    <message id="periodTo"><translation>至(&amp;T)</translation></message>
    <message id="personalData"><translation>個人資料</translation></message>
    <message id="pp"><translation>PP</translation></message>
    <message id="previewView"><translation>頁面預覽</translation></message>
    <message id="previousComment"><translation>上一則註記</translation></message>
    <message id="previousHint"><translation>上一頁（Page Up）</translation></message>
    <message id="previousPage"><translation>上一頁</translation></message>
    <message id="print"><translation>列印</translation></message>
    <message id="printAddAddress"><translation>在每頁頁尾列印醫師資料</translation></message>
    <message id="printButton"><translation>列印(&amp;P)</translation></message>
    <message id="printDetails"><translation>醫師資料(&amp;D)</translation></message>
    <message id="printDetailsHint"><translation>在每頁頁尾列印設定中的醫師資料。</translation></message>
    <message id="printDone"><translation>已送交印表機 %1</translation></message>
    <message id="printer"><translation>印表機</translation></message>
    <message id="printerButton"><translation>印表機(&amp;R)…</translation></message>
    <message id="printerGone"><translation>已找不到印表機「%1」，因此未列印任何內容。請確認它已開機並連接，或選擇其他印表機。</translation></message>
    <message id="printerLabel"><translation>印表機(&amp;R)</translation></message>
    <message id="printerShown"><translation>印表機：%1</translation></message>
    <message id="printFailed"><translation>無法將頁面完整送交印表機「%1」。列印工作已撤回，未列印任何內容。請檢查列印佇列與磁碟空間，然後再試一次。</translation></message>
    <message id="printNoData"><translation>沒有可列印的內容：這位病患在此期間沒有這個項目的資料。</translation></message>
    <message id="printNoPatient"><translation>沒有可列印報告的病患。請先選擇病患，或新增並儲存一位病患。</translation></message>
    <message id="printOption"><translation>要列印的項目</translation></message>
    <message id="printOptionLabel"><translation>項目(&amp;S)</translation></message>
    <message id="privacyAsked"><translation>這台電腦的其他使用者可讀取 %1。

要禁止他們讀取嗎？只會變更資料檔、其資料夾與備份的權限。</translation></message>
    <message id="privacyAskedMore"><translation>%1 及另外 %2 項</translation></message>
    <message id="privacyMended"><translation>現在只有您可以讀取資料檔及其備份。</translation></message>
    <message id="privacyTitle"><translation>其他使用者可讀取病患資料</translation></message>
    <message id="programName"><translation>ZEL</translation></message>
    <message id="programPurpose"><translation>血壓量測，從血壓計到您的紀錄</translation></message>
    <message id="programVersion"><translation>版本 %1</translation></message>
    <message id="ProgressPatientInfo"><translation>%2 %1（ID %3）</translation></message>
    <message id="ProgressProcessInfo"><translation>%1 / %2 筆量測</translation></message>
    <message id="pulseChart"><translation>脈搏隨時間的變化與註記</translation></message>
    <message id="pulseScroller"><translation>移動脈搏刻度</translation></message>
    <message id="readingDay"><translation>日期</translation></message>
    <message id="readingInWords"><translation>%1 %2，%3/%4，脈搏 %5</translation></message>
    <message id="readingList"><translation>量測清單</translation></message>
    <message id="readingsCounted"><translation>%1。計入：%2</translation></message>
    <message id="readingsFromTo"><translation>%1，%2 至 %3</translation></message>
    <message id="readingsListed"><translation>%1。列出：%2</translation></message>
    <message id="readingsNoted"><translation>%1。%2</translation></message>
    <message id="readingsOn"><translation>%1，%2</translation></message>
    <message id="readingStored"><translation>已儲存：%1。</translation></message>
    <message id="readingStoredOtherHalf"><translation>已儲存，但不在顯示的時段內：%1。</translation></message>
    <message id="readingStoredOutside"><translation>已儲存，但不在顯示的日期內：%1。</translation></message>
    <message id="readingTime"><translation>時間</translation></message>
    <message id="readingTotal"><translation>這位病患的量測</translation></message>
    <message id="redoFailed"><translation>「%1」未能重做。%2</translation></message>
    <message id="redone"><translation>已重做：%1</translation></message>
    <message id="requiredNote"><translation>* 為必填欄位</translation></message>
    <message id="riskFactors"><translation>風險因子</translation></message>
    <message id="sameID"><translation>ID %1 屬於清單中的另一位病患。尚未儲存任何資料，請改用其他 ID。</translation></message>
    <message id="sameIDTitle"><translation>ID 已被使用</translation></message>
    <message id="savedPdf"><translation>已儲存為 %1</translation></message>
    <message id="saveIt"><translation>儲存(&amp;S)</translation></message>
    <message id="saveNot"><translation>不儲存(&amp;D)</translation></message>
    <message id="SavePatient"><translation>儲存病患</translation></message>
    <message id="savePatientButton"><translation>儲存(&amp;V)</translation></message>
    <message id="savePatientHint"><translation>儲存輸入的內容（Ctrl+S）。</translation></message>
    <message id="savePdf"><translation>儲存為 PDF</translation></message>
    <message id="savePdfButton"><translation>儲存為 PDF(&amp;F)…</translation></message>
    <message id="saveReading"><translation>儲存(&amp;S)</translation></message>
    <message id="searchPatients"><translation>搜尋姓名或 ID</translation></message>
    <message id="searchPatientsHint"><translation>只顯示姓名或 ID 包含這些文字的病患（Ctrl+F）。</translation></message>
    <message id="selectAllRows"><translation>全選</translation></message>
    <message id="sendClock"><translation>將血壓計的時鐘設定為本電腦的時間</translation></message>
    <message id="sendClockBusy"><translation>正在設定時鐘…</translation></message>
    <message id="sendClockButton"><translation>設定時鐘(&amp;C)</translation></message>
    <message id="sendID"><translation>將 ID 傳送到血壓計</translation></message>
    <message id="sendIDButton"><translation>傳送 ID(&amp;S)</translation></message>
    <message id="SendIDDataMsg" numerus="yes"><translation><numerusform>血壓計中仍有 %n 筆量測。寫入 ID %1 之前，要將這些量測保留給新的 ID，還是從血壓計中永久刪除？</numerusform></translation></message>
    <message id="SendIDDataTitle"><translation>血壓計中的量測</translation></message>
    <message id="sendIDFailed"><translation>無法將 ID 傳送到血壓計。%1</translation></message>
    <message id="sendIDFailedErased"><translation>血壓計中的量測已刪除，但無法將 ID 傳送到血壓計。%1</translation></message>
    <message id="sendIDHint"><translation>將這位病患的 ID 寫入連接的血壓計（目前為其他 ID 或沒有 ID）。</translation></message>
    <message id="settingCancel"><translation>關閉而不儲存</translation></message>
    <message id="settingData"><translation>病患資料</translation></message>
    <message id="settingDate"><translation>日期格式</translation></message>
    <message id="settingDateLabel"><translation>日期格式(&amp;D)</translation></message>
    <message id="settingDia"><translation>舒張壓上限（mmHg）</translation></message>
    <message id="settingDiaLabel"><translation>舒張壓(&amp;A)</translation></message>
    <message id="settingDisplay"><translation>顯示</translation></message>
    <message id="settingErase"><translation>每次下載後清空血壓計</translation></message>
    <message id="settingEraseButton"><translation>下載後清空血壓計(&amp;Y)</translation></message>
    <message id="settingEraseHint"><translation>所有量測在此安全儲存後，才會從血壓計中刪除。</translation></message>
    <message id="settingLanguage"><translation>語言</translation></message>
    <message id="settingLanguageLabel"><translation>語言(&amp;L)</translation></message>
    <message id="settingLanguageSystem"><translation>與系統相同</translation></message>
    <message id="settingLanguageWhen"><translation>變更語言後，下次啟動時生效。</translation></message>
    <message id="settingLimits"><translation>血壓上限</translation></message>
    <message id="settingMAP"><translation>顯示平均動脈壓</translation></message>
    <message id="settingMAPButton"><translation>平均動脈壓 MAP(&amp;M)</translation></message>
    <message id="settingOK"><translation>儲存設定</translation></message>
    <message id="settingPhysician"><translation>醫師資料，用於列印報告的頁尾</translation></message>
    <message id="settingPhysicianTitle"><translation>醫師</translation></message>
    <message id="settingPhysicianUse"><translation>在列印視窗勾選後，印在報告頁尾。</translation></message>
    <message id="settingPP"><translation>顯示脈壓</translation></message>
    <message id="settingPPButton"><translation>脈壓 PP(&amp;P)</translation></message>
    <message id="settingPPorMAP"><translation>每筆量測顯示</translation></message>
    <message id="settings"><translation>設定</translation></message>
    <message id="settingsButton"><translation>設定</translation></message>
    <message id="settingsHint"><translation>設定、匯出與匯入（Ctrl+,）</translation></message>
    <message id="settingsNotSaved"><translation>設定未儲存。%1</translation></message>
    <message id="settingsPartlySaved"><translation>部分設定無法儲存：資料檔中沒有可存放的位置。</translation></message>
    <message id="settingSys"><translation>收縮壓上限（mmHg）</translation></message>
    <message id="settingSysLabel"><translation>收縮壓(&amp;S)</translation></message>
    <message id="settingTime"><translation>時間格式</translation></message>
    <message id="settingTimeLabel"><translation>時間格式(&amp;T)</translation></message>
    <message id="settingUnits"><translation>體重與身高單位</translation></message>
    <message id="settingUnitsLabel"><translation>單位(&amp;U)</translation></message>
    <message id="settingWHO"><translation>採用世界衛生組織的上限</translation></message>
    <message id="settingWHOButton"><translation>WHO 上限 140/90(&amp;W)</translation></message>
    <message id="settingWHOHint"><translation>將兩項上限設為世界衛生組織的數值：140 與 90 mmHg。</translation></message>
    <message id="show afib readings"><translation>顯示心房顫動</translation></message>
    <message id="show ihd readings"><translation>顯示心律不整</translation></message>
    <message id="show pad readings"><translation>顯示心律不整</translation></message>
    <message id="showCorrelation"><translation>相關圖</translation></message>
    <message id="showGraph"><translation>圖表</translation></message>
    <message id="showHistogram"><translation>直方圖</translation></message>
    <message id="showMam"><translation>顯示 MAM</translation></message>
    <message id="showTrend"><translation>趨勢</translation></message>
    <message id="sideButton"><translation>統計與註記</translation></message>
    <message id="sideColumn"><translation>血壓計與資料</translation></message>
    <message id="sideHint"><translation>顯示或隱藏量測旁的統計與註記。</translation></message>
    <message id="spokenDia"><translation>舒張壓（mmHg）</translation></message>
    <message id="spokenFrequent"><translation>%1：最常見 %2 到 %3，占量測的百分之 %4。</translation></message>
    <message id="spokenMap"><translation>平均動脈壓（mmHg）</translation></message>
    <message id="spokenMeasure"><translation>%1：平均 %2，最低 %3，最高 %4。</translation></message>
    <message id="spokenPP"><translation>脈壓（mmHg）</translation></message>
    <message id="spokenPulse"><translation>脈搏（次/分）</translation></message>
    <message id="spokenSys"><translation>收縮壓（mmHg）</translation></message>
    <message id="statisticAll"><translation>所有量測日</translation></message>
    <message id="statisticAllHint"><translation>採用從第一筆到最後一筆量測的整段時間。若只要其中一段，請在上方選擇其他日期。</translation></message>
    <message id="statisticPanel"><translation>統計</translation></message>
    <message id="statisticWholeDay"><translation>全天：%1</translation></message>
    <message id="statusBroken"><translation>血壓計已接上，連線失敗</translation></message>
    <message id="statusConnected"><translation>血壓計已連接</translation></message>
    <message id="statusDamaged"><translation>血壓計已接上，回應有誤</translation></message>
    <message id="statusLocked"><translation>血壓計已接上，沒有權限</translation></message>
    <message id="statusNotConnected"><translation>沒有血壓計</translation></message>
    <message id="statusRefusing"><translation>血壓計已接上，拒絕指令</translation></message>
    <message id="statusSilent"><translation>血壓計已接上，沒有回應</translation></message>
    <message id="stepProgress"><translation>%1 / %2 個檔案</translation></message>
    <message id="storedNotReadBack"><translation>變更已儲存，但之後無法讀取資料檔。%1</translation></message>
    <message id="Synchronization"><translation>要設定血壓計的時鐘嗎？</translation></message>
    <message id="synctimeAsk"><translation>血壓計的時鐘%1。要設定為本電腦的時間，讓新的量測有正確的日期與時間嗎？</translation></message>
    <message id="tabChart"><translation>圖表(&amp;C)</translation></message>
    <message id="tabHint"><translation>%1（Ctrl+%2）</translation></message>
    <message id="tabPatients"><translation>病患(&amp;P)</translation></message>
    <message id="tabReadings"><translation>量測紀錄(&amp;R)</translation></message>
    <message id="takeInAction"><translation>重新計入</translation></message>
    <message id="timeScroller"><translation>在量測中移動期間</translation></message>
    <message id="timeScrollerHint"><translation>在量測中移動期間。在圖表上轉動滑鼠滾輪也可以；按住 Ctrl 時，往前轉顯示較少天數（放大），往後轉顯示較多天數。</translation></message>
    <message id="TimeSync"><translation>血壓計時鐘</translation></message>
    <message id="TimeSyncMsg"><translation>設定血壓計的時鐘：%1</translation></message>
    <message id="timeUnread"><translation>「%1」無法讀作時間：請依 %2 或 %3 的格式輸入。</translation></message>
    <message id="trendApart"><translation>早晚分開</translation></message>
    <message id="trendApartHint"><translation>將中午前與中午以後的量測畫成不同的線。</translation></message>
    <message id="trendApartNeedsDay"><translation>目前只顯示半天，無可分開。請先按「全天」，才能選擇此項。</translation></message>
    <message id="trendDays"><translation>%1 至 %2</translation></message>
    <message id="trendFigures"><translation>%1 (%2 至 %3)</translation></message>
    <message id="trendInfoEvening"><translation>%1，中午以後</translation></message>
    <message id="trendInfoMorning"><translation>%1，中午前</translation></message>
    <message id="trendKeys"><translation>%1，%2。左右方向鍵可逐點顯示數值，Home 與 End 顯示第一點與最後一點的數值。</translation></message>
    <message id="trendPeriod"><translation>日期</translation></message>
    <message id="trendReadings"><translation>筆數</translation></message>
    <message id="trendView"><translation>收縮壓、舒張壓與脈搏的趨勢</translation></message>
    <message id="undoDropped"><translation>

因此這個步驟從現在起會略過，其他步驟不受影響。</translation></message>
    <message id="undoFailed"><translation>「%1」未能復原。%2</translation></message>
    <message id="undone"><translation>已復原：%1</translation></message>
    <message id="unitMmHg"><translation>mmHg</translation></message>
    <message id="unitPulse"><translation>次/分</translation></message>
    <message id="unsavedDelete"><translation>要刪除為 %1 輸入的內容嗎？若不刪除，下次啟動時會再次詢問。</translation></message>
    <message id="unsavedFound"><translation>上次程式結束時，正在為 %1 輸入的內容未能儲存。要現在繼續輸入嗎？</translation></message>
    <message id="unsavedTitle"><translation>尚未儲存</translation></message>
    <message id="usualColumns"><translation>恢復預設欄位與順序</translation></message>
    <message id="valueHigh"><translation>%1，達到或高於上限</translation></message>
    <message id="valueMmHg"><translation>%1 mmHg</translation></message>
    <message id="valuePulse"><translation>%1 次/分</translation></message>
    <message id="valueWithUnit"><translation>%1，%2</translation></message>
    <message id="viewAll"><translation>全部(&amp;A)</translation></message>
    <message id="viewAllHint"><translation>從第一天到最後一天的所有量測。</translation></message>
    <message id="viewAM"><translation>上午(&amp;M)</translation></message>
    <message id="viewAMHint"><translation>所顯示各日中午前的量測。</translation></message>
    <message id="viewBoth"><translation>全天(&amp;L)</translation></message>
    <message id="viewBothHint"><translation>所顯示各日全天各時段的量測。</translation></message>
    <message id="viewChoiceNeeded"><translation>無日期的量測不屬於任何一天，只能與「全部」一起顯示。請先按「全部」，才能選擇此項。</translation></message>
    <message id="viewDays"><translation>顯示的日期</translation></message>
    <message id="viewHalf"><translation>顯示的時段</translation></message>
    <message id="viewLast"><translation>%1 天</translation></message>
    <message id="viewLastHint"><translation>截至最後一個有量測的日子，共 %1 天。</translation></message>
    <message id="viewLastName"><translation>最近 %1 天</translation></message>
    <message id="viewPM"><translation>下午</translation></message>
    <message id="viewPMHint"><translation>所顯示各日中午以後的量測。</translation></message>
    <message id="viewTabs"><translation>檢視</translation></message>
    <message id="viewWeek"><translation>量測週(&amp;K)</translation></message>
    <message id="viewWeekHint"><translation>用於計算量測週平均的七天。</translation></message>
    <message id="weekBelow"><translation>低於 %1（至小數一位：%2）</translation></message>
    <message id="weekDays" numerus="yes"><translation><numerusform>%n 天共 %1</numerusform></translation></message>
    <message id="weekEnd"><translation>量測週的最後一天</translation></message>
    <message id="weekEvenings"><translation>晚上 %1</translation></message>
    <message id="weekExcluded" numerus="yes"><translation><numerusform>已排除 %n 筆</numerusform></translation></message>
    <message id="weekExcludedLater" numerus="yes"><translation><numerusform>較晚日期排除 %n 筆</numerusform></translation></message>
    <message id="weekFirstDay" numerus="yes"><translation><numerusform>第一天 %n 筆不計</numerusform></translation></message>
    <message id="weekMean"><translation>%1 mmHg</translation></message>
    <message id="weekMeanHint"><translation>平均 %1/%2 mmHg，脈搏 %3</translation></message>
    <message id="weekMissing"><translation>不完整，尚缺 %1</translation></message>
    <message id="weekMornings"><translation>早上 %1</translation></message>
    <message id="weekNoMean"><translation>無平均值</translation></message>
    <message id="weekOtherZone" numerus="yes"><translation><numerusform>%n 筆量測儲存於其他時區；時間以這台電腦為準</numerusform></translation></message>
    <message id="weekPanel"><translation>量測週</translation></message>
    <message id="weekPulse"><translation>脈搏 %1</translation></message>
    <message id="weekReached"><translation>達到或高於 %1（至小數一位：%2）</translation></message>
    <message id="weekReadings" numerus="yes"><translation><numerusform>%n 筆量測</numerusform></translation></message>
    <message id="weekRule"><translation>平均的計算準則</translation></message>
    <message id="weekRuleAha"><translation>AHA</translation></message>
    <message id="weekRuleEsh"><translation>ESH</translation></message>
    <message id="weekRuleHint"><translation>ESH：第一天不計，其後 2 天以上、共 12 筆量測以上
NICE：第一天不計，其後 3 天以上，每天早上與晚上各 2 筆量測以上
AHA：3 天以上、共 12 筆量測以上</translation></message>
    <message id="weekRuleNice"><translation>NICE</translation></message>
    <message id="weekTo"><translation>至</translation></message>
    <message id="weekUnmeasured" numerus="yes"><translation><numerusform>沒有血壓值 %n 筆不計</numerusform></translation></message>
    <message id="weightRefusedKg"><translation>請填寫 0.2 到 1000 kg 的數字，例如 72.5。</translation></message>
    <message id="weightRefusedLb"><translation>請填寫 0.5 到 2200 lb 的數字，例如 160.5。</translation></message>
    <message id="windowNotForgotten"><translation>檔案 %1 保存了視窗上次的狀態，但無法移除此檔案。</translation></message>
    <message id="windowNotReset"><translation>ZEL 已開啟此資料檔，其視窗已移到最前面。請關閉視窗，再以 --reset-view 重新啟動。</translation></message>
    <message id="windowShown"><translation>ZEL 已開啟此資料檔，其視窗已移到最前面。</translation></message>
    <message id="windowSilent"><translation>ZEL 已開啟此資料檔，但視窗沒有回應。它可能正在等候緩慢的磁碟或印表機，也可能已當掉：如果一分鐘後仍無反應，請在電腦的系統監視器中結束它。

要另開一個視窗嗎？這不會造成任何損害：兩邊儲存的內容都會保留。</translation></message>
    <message id="yes"><translation>是(&amp;Y)</translation></message>
    <message id="yyyy mm dd"><translation>年 月 日</translation></message>
</context>
<context>
    <name>chart</name>
    <message id="abovePoints" numerus="yes"><translation><numerusform>%n 個點超出刻度上緣</numerusform></translation></message>
    <message id="aboveScale" numerus="yes"><translation><numerusform>%n 筆量測高於刻度</numerusform></translation></message>
    <message id="aboveScaleShort"><translation>上緣外 %1</translation></message>
    <message id="average"><translation>平均</translation></message>
    <message id="belowPoints" numerus="yes"><translation><numerusform>%n 個點超出刻度下緣</numerusform></translation></message>
    <message id="belowScale" numerus="yes"><translation><numerusform>%n 筆量測低於刻度</numerusform></translation></message>
    <message id="belowScaleShort"><translation>下緣外 %1</translation></message>
    <message id="chartExcluded" numerus="yes"><translation><numerusform>○ 已排除 %n 筆</numerusform></translation></message>
    <message id="dia"><translation>DIA</translation></message>
    <message id="dia too high"><translation>舒張壓過高</translation></message>
    <message id="evening"><translation>晚上</translation></message>
    <message id="max"><translation>最高</translation></message>
    <message id="min"><translation>最低</translation></message>
    <message id="mmHg"><translation>mmHg</translation></message>
    <message id="monthOfYear"><translation>%2年%1</translation></message>
    <message id="morning"><translation>早上</translation></message>
    <message id="noEveningReadings"><translation>此期間中午以後沒有量測</translation></message>
    <message id="noMorningReadings"><translation>此期間中午前沒有量測</translation></message>
    <message id="noReadingsInPeriod"><translation>此期間沒有量測</translation></message>
    <message id="normal"><translation>正常</translation></message>
    <message id="P/min"><translation>次/分</translation></message>
    <message id="pulse"><translation>脈搏</translation></message>
    <message id="sys"><translation>SYS</translation></message>
    <message id="sys and dia too high"><translation>兩者皆過高</translation></message>
    <message id="sys too high"><translation>收縮壓過高</translation></message>
    <message id="trendBand"><translation>%1；色帶：第 10 至第 90 百分位數，少於 5 筆時為全部量測</translation></message>
    <message id="trendBandAll"><translation>%1；色帶：全部量測</translation></message>
    <message id="trendBandShort"><translation>%1；色帶：第 10 至第 90 百分位數</translation></message>
    <message id="trendCoveredComments" numerus="yes"><translation><numerusform>%n 則註記與其他註記重疊</numerusform></translation></message>
    <message id="trendDay"><translation>每日中位數</translation></message>
    <message id="trendEvening"><translation>%1 晚上</translation></message>
    <message id="trendLinked"><translation>%1；點線：其間沒有量測</translation></message>
    <message id="trendMonth"><translation>每月中位數</translation></message>
    <message id="trendMoreComments" numerus="yes"><translation><numerusform>另有 %n 則註記無法顯示於此</numerusform></translation></message>
    <message id="trendMorning"><translation>%1 早上</translation></message>
    <message id="trendWeek"><translation>每週中位數</translation></message>
    <message id="trendWordlessComments" numerus="yes"><translation><numerusform>另有 %n 則註記未顯示文字</numerusform></translation></message>
</context>
<context>
    <name>report</name>
    <message id="appDescrption"><translation>ZEL 血壓報告</translation></message>
    <message id="comment"><translation>註記</translation></message>
    <message id="comments"><translation>註記</translation></message>
    <message id="correlation"><translation>收縮壓與舒張壓相關圖</translation></message>
    <message id="date"><translation>日期</translation></message>
    <message id="formAddress"><translation>地址</translation></message>
    <message id="formAge"><translation>年齡</translation></message>
    <message id="formBirth"><translation>出生日期</translation></message>
    <message id="formCholesterol"><translation>膽固醇 (mg/dL)</translation></message>
    <message id="formDay"><translation>日</translation></message>
    <message id="formDiabetic"><translation>糖尿病</translation></message>
    <message id="formFamilyHistory"><translation>家族病史</translation></message>
    <message id="formFamilyName"><translation>姓氏</translation></message>
    <message id="formGivenNames"><translation>名字</translation></message>
    <message id="formHeightCm"><translation>身高 (cm)</translation></message>
    <message id="formHeightFtIn"><translation>身高（呎/吋）</translation></message>
    <message id="formID"><translation>ID</translation></message>
    <message id="formMonth"><translation>月</translation></message>
    <message id="formNotes"><translation>病患備註</translation></message>
    <message id="formPersonal"><translation>個人資料</translation></message>
    <message id="formPhoneEmail"><translation>電話／電子郵件</translation></message>
    <message id="formRisks"><translation>風險因子</translation></message>
    <message id="formSex"><translation>性別</translation></message>
    <message id="formSmoker"><translation>吸菸</translation></message>
    <message id="formWeightKg"><translation>體重 (kg)</translation></message>
    <message id="formWeightLb"><translation>體重 (lb)</translation></message>
    <message id="formYear"><translation>年</translation></message>
    <message id="formYears" numerus="yes"><translation><numerusform>歲</numerusform></translation></message>
    <message id="graph"><translation>血壓與脈搏圖</translation></message>
    <message id="histogram"><translation>數值分布</translation></message>
    <message id="legendTitle"><translation>%1：</translation></message>
    <message id="mam"><translation>MAM</translation></message>
    <message id="n.a."><translation>n.a.</translation></message>
    <message id="N.A."><translation>N.A.</translation></message>
    <message id="No"><translation>否</translation></message>
    <message id="PatientProfile"><translation>病患基本資料</translation></message>
    <message id="reportAllComments"><translation>所有時間的註記，不限於此期間</translation></message>
    <message id="reportAllTimesOfDay"><translation>%1，全天各時段</translation></message>
    <message id="reportAverage"><translation>多次量測的平均</translation></message>
    <message id="reportBothAbove"><translation>兩者皆超過：%1</translation></message>
    <message id="reportCommentBars"><translation>色條：註記，依編號</translation></message>
    <message id="reportCommentsLeftOut"><translation>報告最多可容納 %1 則註記、%2 個字元。以下為最近的註記；匯出檔包含全部註記。</translation></message>
    <message id="reportContinued"><translation>%1（續）</translation></message>
    <message id="reportCorrelationLimits" numerus="yes"><translation><numerusform>線條為上限。</numerusform></translation></message>
    <message id="reportCorrelationNote"><translation>每個方塊為一筆量測，或數筆數值相同的量測，單位為 mmHg。</translation></message>
    <message id="reportCutComments"><translation>…：全文見「註記」項目</translation></message>
    <message id="reportCutPractitioner"><translation>…：在此截斷；設定中有全文。</translation></message>
    <message id="reportCutTexts"><translation>…：在此截斷；全文見下一頁。</translation></message>
    <message id="reportDays" numerus="yes"><translation><numerusform>%n 天</numerusform></translation></message>
    <message id="reportDemonstration"><translation>示範：虛構資料</translation></message>
    <message id="reportDiaAbove"><translation>僅舒張壓超過：%1</translation></message>
    <message id="reportDocument"><translation>血壓報告：%1（%2）</translation></message>
    <message id="reportDownloadDay"><translation>↓ 黃色：下載</translation></message>
    <message id="reportEarlierComments" numerus="yes"><translation><numerusform>較早的 %n 則註記未列印</numerusform></translation></message>
    <message id="reportEmptySections"><translation>沒有資料，故未列入此報告：%1</translation></message>
    <message id="reportEveningOnly"><translation>僅顯示中午以後的量測</translation></message>
    <message id="reportFindingUnknown"><translation>N.A.：不明</translation></message>
    <message id="reportFound"><translation>偵測到</translation></message>
    <message id="reportGoesOn"><translation>續下頁</translation></message>
    <message id="reportGraphComments"><translation>編號方框：註記。</translation></message>
    <message id="reportGraphDownloads"><translation>↓：下載日。</translation></message>
    <message id="reportGraphExcluded"><translation>○：已排除的量測。</translation></message>
    <message id="reportGraphHiddenLimits" numerus="yes"><translation><numerusform>上限（%1）在刻度範圍之外。</numerusform></translation></message>
    <message id="reportGraphLimits" numerus="yes"><translation><numerusform>虛線：上限（%1）。</numerusform></translation></message>
    <message id="reportGraphNote"><translation>上方線條：收縮壓；下方線條：舒張壓。</translation></message>
    <message id="reportHistogramNote"><translation>長條長度表示該區間（10 mmHg 或每分鐘 10 次）內的量測占全部的百分比。</translation></message>
    <message id="reportKeepLimits" numerus="yes"><translation><numerusform>未超過上限（%1）：%2</numerusform></translation></message>
    <message id="reportLeftOutReading"><translation>%1 %2   %3/%4 mmHg，脈搏 %5</translation></message>
    <message id="reportLeftOutTitle" numerus="yes"><translation><numerusform>已排除的 %n 筆量測及其原因</numerusform></translation></message>
    <message id="reportLimitDia"><translation>舒張壓 %1 mmHg</translation></message>
    <message id="reportLimits"><translation>%1/%2 mmHg</translation></message>
    <message id="reportLimitSys"><translation>收縮壓 %1 mmHg</translation></message>
    <message id="reportMeasured"><translation>平均（mmHg，括號內為筆數）：%1</translation></message>
    <message id="reportMoreNumbers" numerus="yes"><translation><numerusform>及另外 %n 則</numerusform></translation></message>
    <message id="reportMorningOnly"><translation>僅顯示中午前的量測</translation></message>
    <message id="reportNoData"><translation>沒有可列印的內容：所選項目沒有這位病患在此期間的資料。未寫入任何檔案。</translation></message>
    <message id="reportNoDate"><translation>n.a：無日期</translation></message>
    <message id="reportNoFigures"><translation>n/a：沒有量測</translation></message>
    <message id="reportNoLimits"><translation>未設定上限。</translation></message>
    <message id="reportNoReading"><translation>n.a.：沒有量測</translation></message>
    <message id="reportNotFound"><translation>未偵測到</translation></message>
    <message id="reportNotPainted"><translation>無法將頁面轉為 PDF。未寫入任何檔案。</translation></message>
    <message id="reportNotWritable"><translation>無法寫入檔案 %1。請確認其資料夾存在，而且您有寫入權限。</translation></message>
    <message id="reportPage"><translation>第 %1/%2 頁</translation></message>
    <message id="reportPatient"><translation>病患姓名：%2 %1  ID：%3</translation></message>
    <message id="reportPeriod"><translation>期間：%1 至 %2</translation></message>
    <message id="reportReadings" numerus="yes"><translation><numerusform>%n 筆量測</numerusform></translation></message>
    <message id="reportStruckThrough"><translation>刪除線：已排除，不計入任何結果；原因列於表格之後</translation></message>
    <message id="reportSysAbove"><translation>僅收縮壓超過：%1</translation></message>
    <message id="reportTextTooLong"><translation>… 其餘文字未列印：還有 %1 個字元。</translation></message>
    <message id="reportTrendLimits" numerus="yes"><translation><numerusform>細直線：上限（%1）。</numerusform></translation></message>
    <message id="reportTrendNote"><translation>粗線：中位數。沒有量測處線條中斷；間隔最多 30 天時以點線連接兩端。</translation></message>
    <message id="reportWriteFailed"><translation>寫入檔案 %1 失敗，因此沒有新的檔案。請確認磁碟空間足夠，然後再試一次。</translation></message>
    <message id="summary"><translation>摘要</translation></message>
    <message id="summaryAha"><translation>AHA</translation></message>
    <message id="summaryAll"><translation>全部</translation></message>
    <message id="summaryBelow"><translation>低於閾值 %1（至小數一位：%2/%3）</translation></message>
    <message id="summaryBorn" numerus="yes"><translation><numerusform>%1 出生，%n 歲</numerusform></translation></message>
    <message id="summaryBornOn"><translation>%1 出生</translation></message>
    <message id="summaryComments"><translation>有何變化：註記（由新到舊）</translation></message>
    <message id="summaryComplete"><translation>完整</translation></message>
    <message id="summaryCut"><translation>…：已縮短。</translation></message>
    <message id="summaryDia"><translation>DIA (mmHg)</translation></message>
    <message id="summaryEither"><translation>SYS 或 DIA，或兩者</translation></message>
    <message id="summaryEsh"><translation>ESH</translation></message>
    <message id="summaryEvening"><translation>晚上</translation></message>
    <message id="summaryEvenings"><translation>晚上 %1</translation></message>
    <message id="summaryExcluded"><translation>%1 %2  %3/%4：%5</translation></message>
    <message id="summaryFirstDay" numerus="yes"><translation><numerusform>第一天 %n 筆不計</numerusform></translation></message>
    <message id="summaryFlagged" numerus="yes"><translation><numerusform>標示心律不整（%1）：%n 筆量測中有 %2 筆</numerusform></translation></message>
    <message id="summaryHigh"><translation>達到或高於 %1</translation></message>
    <message id="summaryHighOf" numerus="yes"><translation><numerusform>%n 筆量測中有 %1 筆</numerusform></translation></message>
    <message id="summaryID"><translation>ID %1</translation></message>
    <message id="summaryIncomplete"><translation>不完整，尚缺 %1</translation></message>
    <message id="summaryInFull"><translation>…：全文見「%1」。</translation></message>
    <message id="summaryLastDays" numerus="yes"><translation><numerusform>最近 %n 天：平均（筆數）</numerusform></translation></message>
    <message id="summaryLeftOut"><translation>排除與未計入</translation></message>
    <message id="summaryMax"><translation>最高</translation></message>
    <message id="summaryMean"><translation>平均</translation></message>
    <message id="summaryMin"><translation>最低</translation></message>
    <message id="summaryMoreComments" numerus="yes"><translation><numerusform>另有 %n 則註記</numerusform></translation></message>
    <message id="summaryMoreExcluded" numerus="yes"><translation><numerusform>另有 %n 筆已排除</numerusform></translation></message>
    <message id="summaryMorning"><translation>早上</translation></message>
    <message id="summaryMornings"><translation>早上 %1</translation></message>
    <message id="summaryNice"><translation>NICE</translation></message>
    <message id="summaryNoBirth"><translation>未填寫出生日期</translation></message>
    <message id="summaryNoComments"><translation>此期間沒有註記</translation></message>
    <message id="summaryNoDated"><translation>沒有附日期的量測</translation></message>
    <message id="summaryNone"><translation>此期間沒有量測</translation></message>
    <message id="summaryNoneCountsYet"><translation>尚無計入的量測</translation></message>
    <message id="summaryNoReason"><translation>未填寫原因</translation></message>
    <message id="summaryNote"><translation>量測週：%1 達到或高於其閾值。%2 早上：中午前。%3</translation></message>
    <message id="summaryNotExamined"><translation>心律不整：所有量測皆未經偵測</translation></message>
    <message id="summaryNothingLeftOut"><translation>所有量測皆計入</translation></message>
    <message id="summaryNoWeek"><translation>這一週沒有量測</translation></message>
    <message id="summaryOnDays" numerus="yes"><translation><numerusform>%n 天共 %1</numerusform></translation></message>
    <message id="summaryOnOtherDays" numerus="yes"><translation><numerusform>其他日期有 %n 則</numerusform></translation></message>
    <message id="summaryOtherComments" numerus="yes"><translation><numerusform>其他日期的註記 %n 則</numerusform></translation></message>
    <message id="summaryOthers" numerus="yes"><translation><numerusform>%n 筆量測未經偵測</numerusform></translation></message>
    <message id="summaryOtherZone" numerus="yes"><translation><numerusform>計入的量測中有 %n 筆儲存於其他時區；時間以這台電腦為準</numerusform></translation></message>
    <message id="summaryPeriod"><translation>%1 至 %2</translation></message>
    <message id="summaryPulse"><translation>脈搏 %1</translation></message>
    <message id="summaryRate"><translation>脈搏（次/分）</translation></message>
    <message id="summaryReached"><translation>達到或高於閾值 %1（至小數一位：%2/%3）</translation></message>
    <message id="summaryReadings"><translation>筆數</translation></message>
    <message id="summaryReasonsInFull"><translation>…：已縮短；已排除的量測：全文見「%1」。</translation></message>
    <message id="summarySD"><translation>SD</translation></message>
    <message id="summarySys"><translation>SYS (mmHg)</translation></message>
    <message id="summaryTable"><translation>期間內的量測（SD：樣本標準差，n − 1）</translation></message>
    <message id="summaryTrend"><translation>趨勢</translation></message>
    <message id="summaryTrendComments"><translation>趨勢，下方為註記編號</translation></message>
    <message id="summaryTrendHidden"><translation>在趨勢刻度之外：%1。</translation></message>
    <message id="summaryTrendLimits"><translation>趨勢中的細直線：%1。</translation></message>
    <message id="summaryTrendNumberless" numerus="yes"><translation><numerusform>趨勢，下方為註記編號；%n 則的編號無法顯示</numerusform></translation></message>
    <message id="summaryTyped" numerus="yes"><translation><numerusform>手動輸入：%n 筆量測中的 %1 筆</numerusform></translation></message>
    <message id="summaryWeek"><translation>量測週（%1）  %2</translation></message>
    <message id="summaryWeekExcluded" numerus="yes"><translation><numerusform>該週已排除 %n 筆</numerusform></translation></message>
    <message id="summaryWeekTyped" numerus="yes"><translation><numerusform>該週手動輸入 %n 筆</numerusform></translation></message>
    <message id="summaryWeekUnmeasured" numerus="yes"><translation><numerusform>該週沒有血壓值 %n 筆</numerusform></translation></message>
    <message id="summaryWeekZone" numerus="yes"><translation><numerusform>%n 筆儲存於其他時區；時間以這台電腦為準</numerusform></translation></message>
    <message id="SWStatistics"><translation>統計與量測</translation></message>
    <message id="table"><translation>量測紀錄</translation></message>
    <message id="time"><translation>時間</translation></message>
    <message id="trend"><translation>血壓與脈搏趨勢</translation></message>
    <message id="Yes"><translation>是</translation></message>
</context>
<context>
    <name>cli</name>
    <message id="CliAddMissing"><translation>--add 需要同時使用 --id、--family-name 與 --given-names。</translation></message>
    <message id="CliAmAndPm"><translation>--am 與 --pm 只能擇一使用。</translation></message>
    <message id="CliBackupUsage"><translation>請使用 list、create，或 restore 加上備份名稱；或使用 folder，若要變更則加上資料夾名稱或 --none。</translation></message>
    <message id="CliBadDate"><translation>--%1 需要 yyyy-MM-dd 格式的有效日期，不能是「%2」。</translation></message>
    <message id="CliBadDays"><translation>--last 需要 1 到 %2 的整數天數，不能是「%1」。</translation></message>
    <message id="CliBadField"><translation>--%1 的值不能是 '-'，前後不能有空白，也不能含有控制字元。</translation></message>
    <message id="CliBadID"><translation>--id 的值須為 1 到 11 個半形英文字母、數字或符號；血壓計無法儲存其他的 ID。</translation></message>
    <message id="CliBadPaper"><translation>--paper 須為 A4 或 Letter，不能是「%1」。</translation></message>
    <message id="CliBadWait"><translation>--wait 需要 0 到 %1 的整數秒數。</translation></message>
    <message id="CliChangeOfNothing"><translation>--change 至少需要 --date、--time、--sys、--dia 與 --pulse 其中之一。</translation></message>
    <message id="CliClockUnread"><translation>無法讀取血壓計的時鐘。%1</translation></message>
    <message id="CliClockUnset"><translation>無法設定血壓計的時鐘。%1</translation></message>
    <message id="CliColumnsForm"><translation>--columns 需要各欄的標題，例如 date=日期,time=時間,sys=收縮壓,dia=舒張壓,pulse=脈搏；只有 time 可以省略。</translation></message>
    <message id="CliColumnsHelp"><translation>若是其他程式的表格，請用 --columns 指定各欄的意義。</translation></message>
    <message id="CliCountUnread"><translation>無法讀取血壓計中的量測筆數。%1</translation></message>
    <message id="CliDatesForm"><translation>--dates 可為 dmy、mdy 或 ymd，不可為「%1」。</translation></message>
    <message id="CliDemonstrationMonitor"><translation>這是示範資料，不接受真實血壓計的量測。請加上 --simulated-monitor。</translation></message>
    <message id="CliDownloadFailed"><translation>無法下載量測，未儲存任何資料。%1量測仍在血壓計中，請再試一次。</translation></message>
    <message id="CliDownloadNotReadBack"><translation>量測已儲存，但之後無法讀取資料檔，因此未清空血壓計。%1</translation></message>
    <message id="CliDownloadUnsaved"><translation>無法儲存下載的量測。%1量測仍在血壓計中。</translation></message>
    <message id="CliEmptySections"><translation>沒有資料，故未列入報告：%1</translation></message>
    <message id="CliEraseAfterFailed"><translation>量測已安全儲存，但之後無法清空血壓計的記憶體。%1您可以使用 'zel monitor --erase --yes' 清空。</translation></message>
    <message id="CliEraseAfterUnseen"><translation>量測已安全儲存，但無法確認血壓計是否已清空。%1'zel monitor' 可顯示其中的內容。</translation></message>
    <message id="CliEraseFailed"><translation>無法清空血壓計的記憶體。%1</translation></message>
    <message id="CliEraseNeedsYes"><translation>--erase 會永久移除血壓計中的所有量測。如果確定，請加上 --yes。</translation></message>
    <message id="CliEraseNoID"><translation>清空血壓計記憶體的方法是重新寫入它自己的 ID，但它沒有可儲存的 ID。請先以 'zel monitor --send-id ID' 寫入 ID。</translation></message>
    <message id="CliEraseUnseen"><translation>無法確認血壓計的記憶體是否已清空。%1</translation></message>
    <message id="CliExcludedLater" numerus="yes"><translation><numerusform>另有 %n 筆較晚日期的量測也已排除。</numerusform></translation></message>
    <message id="CliExcludedLeftOut" numerus="yes"><translation><numerusform>該週有 %n 筆量測已排除。</numerusform></translation></message>
    <message id="CliFilesMissing"><translation>未指定要匯入的檔案。</translation></message>
    <message id="CliFirstDayLeftOut" numerus="yes"><translation><numerusform>第一個量測日的 %n 筆量測不計入。</numerusform></translation></message>
    <message id="CliFolderMissing"><translation>未指定匯出的目的資料夾。</translation></message>
    <message id="CliForceReplaces"><translation>使用 --force 可取代它。</translation></message>
    <message id="CliFromAfterTo"><translation>--from 的日期晚於 --to 的日期。</translation></message>
    <message id="CliHelp"><translation>用法：zel [--simulated-monitor[=FILE] | --demonstration] [--language TAG] [--reset-view]
      zel COMMAND [OPTION]...

依病患分別保存自動血壓計的量測。
不加指令時會開啟視窗。各指令不需視窗即可完成相同的工作，並使用同一個資料檔：

  monitor      顯示連接的血壓計，或設定其時鐘或 ID，或清空其記憶體
  patients     列出病患，或新增一位病患
  download     將血壓計的量測存入某位病患的紀錄
  readings     輸出病患的量測
  statistics   輸出病患量測的平均值、最小值與最大值
  average      依居家量測指引的準則，輸出量測週的平均
  report       將病患的報告寫成 PDF
  export-xml   將所有病患或一位病患匯出為 XML 檔案
  export-csv   將一位病患及其量測匯出為 CSV 檔案
  export-fhir  將所有病患或一位病患匯出為 FHIR 檔案，供其他病歷系統使用
  export-table 將量測匯出為試算表用的表格
  import       從匯出的 XML 檔案匯入病患，或從表格匯入量測
  settings     顯示設定，或變更部分設定
  backup       列出資料檔的備份、建立備份，或還原到某份備份
  privacy      檢查其他使用者能否讀取資料檔，或禁止他們讀取

選項：
  --simulated-monitor[=FILE]   使用軟體模擬的血壓計（由 FILE 描述或內建），不使用 USB 血壓計
  --demonstration              開啟使用模擬血壓計與獨立資料的視窗
  --language TAG               訊息與報告的語言，例如 zh_TW
  --reset-view                 忘記視窗上次的狀態：位置、頁面、病患、欄位、資料夾
  -h, --help                   顯示此說明；'zel COMMAND --help' 顯示指令的說明
  --version                    顯示版本

結束狀態：0 完成，1 失敗（原因輸出至標準錯誤），2 用法錯誤。</translation></message>
    <message id="CliHelpAverage"><translation>用法：zel average --patient ID [--rule esh|nice|aha] [--to DAY]

依指引的準則，輸出病患在量測週內的平均。量測週是以指定日期結束的七天；準則決定哪些日期與量測計入、
需要多少筆，以及平均的閾值。僅提供數字：對病患的意義應由醫師判斷。

  rule        esh：3 天以上，第一天不計，其後 12 筆量測以上；閾值 135/85
              nice：4 天以上，第一天不計，其後每天早上與晚上各 2 筆量測以上；閾值 135/85
              aha：3 天以上、12 筆量測以上；閾值 130/80
  complete    yes；缺少日期或量測時為 no，但仍會輸出平均
  missing     缺少的部分
  days        有計入量測的天數
  readings    計入的量測筆數
  sys, dia    單位 mmHg
  pulse       單位為每分鐘次數
  morning     中午前量測的 sys/dia
  evening     中午以後量測的 sys/dia
  threshold   以四捨五入前的 sys 或 dia 判斷，任一達到或高於其閾值即為 reached

日期與時間以這台電腦的時區為準。沒有內容的行會省略。該週不計的量測筆數，以及儲存於其他時區的筆數，
輸出至標準錯誤。

選項：
  --patient ID                 病患的 ID
  --rule RULE                  esh（預設）、nice 或 aha
  --to DAY                     量測週的最後一天（yyyy-MM-dd）；未指定時為最後一個有量測的日子
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpBackup"><translation>用法：zel backup list
      zel backup create
      zel backup restore NAME
      zel backup folder [DIR | --none]

每天首次變更前，資料檔會複製到旁邊的資料夾 Backups。在不超過剩餘磁碟空間十分之一的前提下，
最近 14 天的備份會保留，並每月保留一份，為期兩年。

list      以 CSV 輸出各備份及其內容，由新到舊
create    立即建立另一份備份，並輸出 'written: FILE'
restore   以備份取代資料檔，並輸出 'restored: NAME'；原有內容保存為另一份備份，並輸出其名稱
          （'kept: NAME'），還原該份備份即可回到先前的狀態
folder    以 'folder: DIR' 輸出第二備份資料夾（隨身碟或網路共用資料夾）；指定 DIR 時先將它設為
          DIR。其中的備份以完整名稱列出

選項：
  --none                       從現在起不使用第二資料夾；其中的備份會保留
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpDownload"><translation>用法：zel download --patient ID [--any-monitor] [OPTION]...

下載血壓計的量測，儲存其中尚未儲存的部分，並輸出下載的筆數與新增的筆數。進度輸出至標準錯誤。
只有在設定如此指定、而且量測已安全儲存時，才會清空血壓計的記憶體。
手動輸入的量測，若血壓計也有，從此予以排除；有這類量測時，計入 'left-out'。

選項：
  --patient ID                 量測所屬的病患
  --any-monitor                即使血壓計的 ID 與病患不同，仍然下載
  --wait SECONDS               等候血壓計的秒數（預設 5）
  --simulated-monitor[=FILE]   使用軟體模擬的血壓計（由 FILE 描述或內建）
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpExportCsv"><translation>用法：zel export-csv DIR --patient ID [--force]

將病患的資料與量測寫成 CSV 檔案，以病患的 ID 命名，存入資料夾 DIR，並輸出 'written: FILE'。
日期與度量單位採用設定中的格式。檔案包含所有量測；每行最後一個逗號之後，手動輸入的量測標有 'manual'，
已排除而不計入任何結果的量測標有 'excluded: REASON'。

選項：
  --patient ID                 要匯出的病患
  --force                      檔案已存在時予以取代
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpExportFhir"><translation>用法：zel export-fhir DIR [--patient ID] [--rule esh|nice|aha] [--force]

將每位病患連同量測與最近一個量測週的平均各寫成一個 HL7 FHIR R4 bundle 檔案，存入資料夾 DIR，供病歷系統
使用，並為每個檔案輸出一行 'written: FILE'。檔案以病患的 ID 命名，包含所有量測；已排除的量測狀態為
'entered-in-error' 並附原因。不含註記與地址。無法寫入的檔案會列在標準錯誤，其他檔案仍會寫入。

選項：
  --patient ID                 只匯出這位病患
  --rule esh|nice|aha          平均的準則；預設為 esh
  --force                      取代已存在的檔案；未指定時保留原檔
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpExportTable"><translation>用法：zel export-table DIR [--patient ID] [--force]
      zel export-table FILE.csv [--patient ID] [--force]

將量測寫成試算表用的表格：在資料夾 DIR 中為每位病患各寫一個檔案 'ID.table.csv'，或將所有病患寫成一個
表格 FILE.csv。每個檔案輸出一行 'written: FILE'。表格為 UTF-8，有一列標題，其後每筆量測一列，依時間排序，
包含病患、數值、檢出結果、量測來源、是否排除及原因，以及當天的註記。試算表會當成公式計算的文字以單引號
開頭。可用 'zel import' 再次匯入此表格。

選項：
  --patient ID                 只匯出這位病患
  --force                      取代已存在的檔案；未指定時保留原檔
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpExportXml"><translation>用法：zel export-xml DIR [--patient ID] [--force]

將每位病患連同量測與註記各寫成一個 XML 檔案，存入資料夾 DIR，並為每個檔案輸出一行
'written: FILE'。檔案以病患的 ID 命名，可用 'zel import' 再次匯入。無法寫入的檔案會列在標準錯誤，
其他檔案仍會寫入。

選項：
  --patient ID                 只匯出這位病患
  --force                      取代已存在的檔案；未指定時保留原檔
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpImport"><translation>用法：zel import FILE...
      zel import FILE... --patient ID [--columns LIST] [--dates dmy|mdy|ymd]

從匯出的 XML 檔案匯入病患及其量測與註記，或從 'zel export-table' 寫出的表格匯入病患。每個檔案只會全部
匯入或完全不匯入：只要其中一位病患已在清單中，該檔案就不會匯入。未匯入的檔案會連同原因列在標準錯誤；
表格則列出每一個有錯的列號。輸出匯入與拒絕的檔案數，以及匯入的病患、量測與註記數，每行一個
'key: value'；有表格時也輸出已有的量測數，這些量測不會重複。
清單中手動輸入的量測，若表格中有來自血壓計的相同量測，從此予以排除，並計入 'left-out'。

使用 --patient 時，表格中的量測會加入清單中的病患。使用 --columns 時，檔案是其他程式的表格，例如
--columns "date=日期,time=時間,sys=收縮壓,dia=舒張壓,pulse=脈搏"，標題取自其第一列；時間接在日期之後時
省略 time。這些量測視為手動輸入。各欄以逗號、分號或定位字元分隔。日期格式為 2026-11-21，除非以
--dates 指定日、月、年的順序。

選項：
  --patient ID                 表格中的量測要加入哪位病患
  --columns LIST               其他程式各欄的標題
  --dates dmy|mdy|ymd          其日期的寫法
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpMonitor"><translation>用法：zel monitor [OPTION]...
      zel monitor --set-clock [OPTION]...
      zel monitor --send-id ID [OPTION]...
      zel monitor --erase --yes [OPTION]...

輸出所連接血壓計的型號、心律不整偵測（pad、afib 或 none）、ID、時鐘（或 'not set'）與量測筆數，
每行一個 'key: value'。計算量測筆數最多可能需要 20 秒。變更後會讀回確認，若不相符，指令即失敗。

選項：
  --set-clock                  將血壓計的時鐘設定為本電腦的時間，並輸出時間
  --send-id ID                 將 1 到 11 個半形字元的 ID 寫入血壓計，並輸出 ID；
                               記憶體中的量測會保留
  --erase                      移除血壓計記憶體中的所有量測，並輸出剩餘筆數
  --yes                        確認 --erase
  --wait SECONDS               等候血壓計的秒數（預設 5）
  --simulated-monitor[=FILE]   使用軟體模擬的血壓計（由 FILE 描述或內建）
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpPatients"><translation>用法：zel patients
      zel patients --add --id ID --family-name NAME --given-names NAMES

以 CSV 列出病患，標題列為 id,family-name,given-names；或新增一位病患。

選項：
  --add                        新增病患；ID 不能與既有的相同
  --id ID                      病患的 ID，與血壓計中的相同
  --family-name NAME           姓氏
  --given-names NAMES          名字
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpPrivacy"><translation>用法：zel privacy [--mend]

輸出資料檔、與其存放在一起的檔案，以及備份之中，有哪些可供這台電腦的其他使用者讀取，每行一個檔案
（'readable by others: FILE'）；若都無法讀取，則輸出 'private'。

選項：
  --mend                       禁止其他使用者讀取：只變更這些檔案、其資料夾與備份資料夾的權限
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpReadings"><translation>用法：zel readings --patient ID [--from DAY | --last N] [--to DAY] [--am | --pm] [--undated]
                   [--numbers]
      zel readings --patient ID --exclude RECORD --reason TEXT
      zel readings --patient ID --include RECORD
      zel readings --patient ID --add --date DAY --time HH:MM --sys N --dia N --pulse N
      zel readings --patient ID --change RECORD [--date DAY] [--time HH:MM] [--sys N] [--dia N] [--pulse N]
      zel readings --patient ID --delete RECORD

以 CSV 輸出病患的量測，由舊到新，標題列為
date,time,sys,dia,pulse,map,pp,mam,arrhythmia。壓力單位為 mmHg，脈搏單位為每分鐘次數。
血壓計未記錄日期的量測以 n.a 與 --:-- 表示；指定期間、--am 或 --pm 時會略過，除非同時指定 --undated。
註記涵蓋但沒有量測的日子會有一行，列出日期，其餘為 n.a.；若這類日子太多而無法全部列出，
標準錯誤會有一句說明。

使用 --exclude、--include、--add、--change 或 --delete 時，改為變更資料檔。已排除的量測連同原因仍留在
檔案與清單中，但不計入任何結果；標準錯誤會說明輸出的量測中有幾筆已排除。手動輸入的量測會標記為
manual；壓力與脈搏為 30 到 300 的整數，舒張壓低於收縮壓，而且時間不能在未來。--add 會輸出
'record: RECORD'。只有手動輸入的量測可以變更或刪除。
使用 --include 時，手動輸入的量測若會重複計入，或無法以手動輸入，則維持排除。重新計入血壓計的量測時，
相同的手動輸入量測從此予以排除，並計入 'left-out'。

選項：
  --patient ID                 病患的 ID
  --from DAY                   只輸出此日起的量測（yyyy-MM-dd）
  --to DAY                     只輸出至此日結束為止的量測（yyyy-MM-dd）
  --last N                     取代 --from：到 --to 的日期，共 N 天；未指定 --to 時，到最後一個有量測的日子
  --am                         只輸出中午前的量測
  --pm                         只輸出中午以後的量測
  --undated                    也輸出沒有日期的量測
  --numbers                    增加兩欄：record 為量測在資料檔中的編號，
                               excluded 為排除的原因（空白：計入）
  --exclude RECORD             排除此編號的量測，不計入任何結果
  --reason TEXT                原因
  --include RECORD             重新計入此量測
  --add                        儲存一筆手動輸入的量測
  --change RECORD              變更一筆手動輸入的量測；至少指定一個值，其餘維持不變
  --delete RECORD              刪除一筆手動輸入的量測
  --date DAY                   量測日期（yyyy-MM-dd）
  --time HH:MM                 時間，00:00 到 23:59
  --sys N                      收縮壓，mmHg
  --dia N                      舒張壓，mmHg
  --pulse N                    每分鐘次數
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpReport"><translation>用法：zel report --patient ID --section KEY[,KEY...] --output FILE.pdf [OPTION]...

將病患的報告寫成 PDF；若 FILE.pdf 已存在則取代，並輸出 'written: FILE.pdf'。
達到或高於視窗中所選上限（預設 135/85）的量測數值會加上標示。

項目：
  summary                      供醫師參閱的一頁：平均、趨勢、最近幾天、註記、排除的量測
  graph                        血壓與脈搏圖
  PatientProfile               病患的資料與備註
  histogram                    數值的分布
  correlation                  收縮壓與舒張壓相關圖
  trend                        依日、週或月的中位數與色帶
  table                        量測
  comment                      註記
  SWStatistics                 平均、上限與量測
  all                          以上全部，依此順序

選項：
  --patient ID                 病患的 ID
  --section KEY[,KEY...]       要列印的項目，依指定的順序
  --from yyyy-MM-dd            報告期間的第一天（預設為第一筆量測的日期）
  --to yyyy-MM-dd              報告期間的最後一天（預設為最後一筆量測的日期）
  --last N                     取代 --from：到 --to 的日期，共 N 天；未指定 --to 時，到最後一個有量測的日子
  --am                         只列中午前的量測（統計與摘要採用全部）
  --pm                         只列中午以後的量測（同上）
  --apart                      趨勢圖將早上與晚上畫成不同的線
  --rule esh|nice|aha          摘要計算量測週平均的準則；量測週以期間內最後一個有量測的日子結束；
                               預設為 esh。'zel average --help' 有各準則的說明
  --practitioner               將設定中的醫師資料印在頁尾；摘要則印在頁首
  --paper A4|Letter            紙張；預設依 LC_PAPER 或 LANG 的慣例
  --output FILE.pdf            要寫入的檔案
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpSettings"><translation>用法：zel settings
      zel settings --set KEY=VALUE [--set KEY=VALUE]...

輸出設定，每行一個 'key: value'；或變更部分設定並輸出這些設定。只要有一個值不被接受，就不做任何變更。
在文字中，\n 代表換行，\\ 代表反斜線。

  DateFormat                   dd mm yyyy、mm dd yyyy 或 yyyy mm dd
  TimeFormat                   12-hours 或 24-hours
  MetricFormat                 kg / cm 或 lb / in
  EraseRecAfterReading         1：下載並安全儲存後清空血壓計的記憶體；否則為 0
  ShowPPorMap                  0：顯示脈壓；1：顯示平均動脈壓
  UserWhoStandard              1：設定視窗將上限顯示為 WHO 的上限；否則為 0
  SysStandard                  收縮壓上限，0（無上限）或 60 到 260 mmHg
  DiaStandard                  舒張壓上限，0（無上限）或 30 到 160 mmHg，且低於收縮壓上限
  PhysicianAddress             列印報告上的醫師資料

選項：
  --set KEY=VALUE              變更一項設定；可指定多次
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliHelpStatistics"><translation>用法：zel statistics --patient ID [--from DAY | --last N] [--to DAY] [--undated]

輸出病患量測的平均值、最小值與最大值，每行一個項目：先是 'sys: AVERAGE MIN MAX'，接著是 dia、pulse，
以及依設定而定的 map 或 pp。壓力單位為 mmHg，脈搏單位為每分鐘次數。沒有量測時，各值為 n/a。
若有量測未計入，計入的筆數，以及各原因未計入的筆數，會輸出至標準錯誤。

選項：
  --patient ID                 病患的 ID
  --from DAY                   只採用此日起的量測（yyyy-MM-dd）
  --to DAY                     只採用至此日結束為止的量測（yyyy-MM-dd）
  --last N                     取代 --from：到 --to 的日期，共 N 天；未指定 --to 時，到最後一個有量測的日子
  --undated                    也採用沒有日期的量測
  --simulated-monitor[=FILE]   各指令皆可指定；此指令不需要血壓計
  -h, --help                   顯示此說明</translation></message>
    <message id="CliIDDoesNotFit"><translation>血壓計無法儲存 ID「%1」：須為 1 到 11 個半形（ASCII）字元，前後不含空白。</translation></message>
    <message id="CliIDUnread"><translation>無法讀取血壓計的 ID。%1</translation></message>
    <message id="CliIDUnsent"><translation>無法將 ID 寫入血壓計。%1</translation></message>
    <message id="CliLastAndFrom"><translation>--from 與 --last 只能擇一使用。</translation></message>
    <message id="CliMonitorChanged"><translation>連線中斷，之後收到的量測可能來自另一台血壓計。未儲存任何資料，請再試一次。</translation></message>
    <message id="CliMonitorDenied"><translation>%1讀取血壓計需要權限：請將 packaging/70-zel.rules 安裝到 /etc/udev/rules.d，執行 'udevadm control --reload'，然後重新連接血壓計。</translation></message>
    <message id="CliMonitorSilent"><translation>血壓計已接上，但在 %1 秒內沒有回應。%2</translation></message>
    <message id="CliMonitorWithoutID"><translation>血壓計沒有 ID，其中的量測可能不屬於病患「%1」。請用 'zel monitor --send-id' 寫入 ID；使用 --any-monitor 則仍可下載。</translation></message>
    <message id="CliNoCommand"><translation>未指定指令。</translation></message>
    <message id="CliNoFolder"><translation>沒有資料夾「%1」。</translation></message>
    <message id="CliNoHome"><translation>未設定環境變數 HOME，因此無法尋找資料檔。</translation></message>
    <message id="CliNoLineInTable" numerus="yes"><translation><numerusform>有 %n 位病患在表格中沒有任何一列：沒有儲存其量測（沒有 ID 的病患都是如此）。</numerusform></translation></message>
    <message id="CliNoMonitor"><translation>在 %1 秒內找不到血壓計。請用 USB 傳輸線連接，或用 --wait 延長等候時間。</translation></message>
    <message id="CliNoSuchPatient"><translation>沒有 ID 為「%1」的病患。'zel patients' 可列出所有病患。</translation></message>
    <message id="CliNoSuchReading"><translation>這位病患沒有編號 %1 的量測（zel readings --numbers 可輸出編號）</translation></message>
    <message id="CliNoSuchRule"><translation>沒有準則「%1」。可用的準則為 %2。</translation></message>
    <message id="CliNoSuchSection"><translation>沒有項目「%1」。可用 all，或下列任意項目，以逗號分隔：%2。</translation></message>
    <message id="CliNoTable"><translation>%1：--patient 只用於量測表格；此檔案不是表格，或無法讀取。未匯入任何內容。</translation></message>
    <message id="CliNotExcluded"><translation>量測 %1 並未排除</translation></message>
    <message id="CliNotTogether"><translation>--%1 與 --%2 不能同時使用</translation></message>
    <message id="CliOneJob"><translation>--set-clock、--send-id 與 --erase 一次只能使用一項。</translation></message>
    <message id="CliOptionMissing"><translation>未指定 --%1，或其值為空。</translation></message>
    <message id="CliOptionTwice"><translation>--%1 指定了不只一次。</translation></message>
    <message id="CliOtherMonitor"><translation>血壓計的 ID 是「%1」，不是「%2」，其中的量測可能屬於另一位病患。使用 --any-monitor 仍可下載。</translation></message>
    <message id="CliOtherZone" numerus="yes"><translation><numerusform>該週有 %n 筆量測儲存於其他時區；日期與時間以這台電腦為準。</numerusform></translation></message>
    <message id="CliOutputFailed"><translation>無法寫入輸出。</translation></message>
    <message id="CliPatientKnown"><translation>已有 ID 為「%1」的病患。</translation></message>
    <message id="CliPlanWithoutFile"><translation>--simulated-monitor= 後面需要檔名；不加 '=' 單獨使用時，即為內建的模擬血壓計。</translation></message>
    <message id="CliProgress"><translation>已收到 %1 / %2 筆量測</translation></message>
    <message id="CliReadableByOthers"><translation>這台電腦的其他使用者可讀取 %1。'zel privacy --mend' 可禁止他們讀取。</translation></message>
    <message id="CliReadingJobMissing"><translation>--reason 須與 --exclude 一起使用；--date、--time、--sys、--dia 與 --pulse 須與 --add 或 --change 一起使用</translation></message>
    <message id="CliReadingNotUnique"><translation>有多筆量測的編號為 %1，無法判斷是哪一筆</translation></message>
    <message id="CliReadingsExcluded" numerus="yes"><translation><numerusform>這些量測中有 %n 筆已排除，不計入任何結果；--numbers 可顯示是哪些量測及其原因</numerusform></translation></message>
    <message id="CliSameIDLeftOut" numerus="yes"><translation><numerusform>已略過 %n 位病患：清單中另有病患的 ID 相同，或同樣沒有 ID。每位病患都需要自己的 ID 才能區分。</numerusform></translation></message>
    <message id="CliSettingForm"><translation>--set 需要 KEY=VALUE，不能是「%1」。</translation></message>
    <message id="CliSettingNotKept"><translation>資料檔中沒有可存放設定 %1 的位置，因此未做任何變更。</translation></message>
    <message id="CliSettingTwice"><translation>設定 %1 指定了不只一次。</translation></message>
    <message id="CliSettingUnknown"><translation>沒有設定「%1」。可用的設定為：%2。</translation></message>
    <message id="CliSettingValue"><translation>%1 可用的值：%2；不接受「%3」。</translation></message>
    <message id="CliTableAssumed" numerus="yes"><translation><numerusform>表格沒有性別、吸菸與糖尿病的資料：%n 位新病患已存為女性、不吸菸且無糖尿病，請確認。</numerusform></translation></message>
    <message id="CliTableKnown"><translation>--patient ID 可將表格中的量測加入清單中的病患。</translation></message>
    <message id="CliTryHelp"><translation>請試試 '%1'。</translation></message>
    <message id="CliTypedLeftOut" numerus="yes"><translation><numerusform>%n 筆手動輸入的量測從此不再計入任何結果：表格中有來自血壓計的相同量測。</numerusform></translation></message>
    <message id="CliUnexpectedWord"><translation>此處不應出現「%1」。</translation></message>
    <message id="CliUnknownCommand"><translation>沒有指令「%1」。</translation></message>
    <message id="CliUnmeasured" numerus="yes"><translation><numerusform>%n 筆沒有血壓值的量測不計入。</numerusform></translation></message>
    <message id="CliWaiting"><translation>正在等候血壓計，最多再等 %1 秒。按 Ctrl-C 可取消。</translation></message>
    <message id="CliWeekToCome"><translation>該週結束於 %1，這一天尚未到來。</translation></message>
    <message id="CliYesAlone"><translation>--yes 須與 --erase 一起使用。</translation></message>
</context>
</TS>
