<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<!-- Every text of the program by its key; code asks for them with qtTrId("key"). Sorted by key in each context. -->
<context>
    <name>store</name>
    <message id="%1 A"><translation>%1 A</translation></message>
    <message id="%1 P"><translation>%1 P</translation></message>
    <message id=", "><translation>, </translation></message>
    <message id="; "><translation>; </translation></message>
    <message id="BackupLast"><translation>%1, %2, the last of %3</translation></message>
    <message id="BackupPatients" numerus="yes"><translation><numerusform>%n patient</numerusform><numerusform>%n patients</numerusform></translation></message>
    <message id="BackupReadings" numerus="yes"><translation><numerusform>%n reading</numerusform><numerusform>%n readings</numerusform></translation></message>
    <message id="ExcludedAsMeasured"><translation>measured by the monitor, too</translation></message>
    <message id="ExcludedWithoutReason"><translation>no reason given</translation></message>
    <message id="ExportAlreadyExists"><translation>There is a file %1 already. It was left as it is.</translation></message>
    <message id="ExportIsDataFile"><translation>The file %1 is the data file itself, which no export replaces. Please choose another folder.</translation></message>
    <message id="ExportNotFlushed"><translation>%1 was written, but the disk did not confirm that it will last: after a power cut it may be missing. Please check the disk.</translation></message>
    <message id="ExportNotWritten"><translation>The file %1 could not be written. Please check that the folder is there, that you may write in it, and that the disk is not full.</translation></message>
    <message id="ExportSameFileName"><translation>The file %1 was not written: this disk takes its name for the one of the file just written for the patient below. Please export to a disk that tells capital letters from small ones.</translation></message>
    <message id="Female"><translation>Female</translation></message>
    <message id="fullName"><translation>%1 %2</translation></message>
    <message id="ImportAlreadyKnown"><translation>%1: a patient with the ID “%2” is already in the list. Patients are never overwritten, so nothing was taken from the file.</translation></message>
    <message id="ImportBadID"><translation>%1: the ID “%2” in the file has a line end or another control character in it, with which it could never be saved or sent to a monitor. Nothing was taken from the file.</translation></message>
    <message id="ImportBadLines"><translation>%1: lines of the table cannot be taken. Nothing was taken from it.</translation></message>
    <message id="ImportMissingColumn"><translation>%1: the table has no column “%2”, or more than one. Nothing was taken from it.</translation></message>
    <message id="ImportNoFile"><translation>It is no regular file.</translation></message>
    <message id="ImportNoID"><translation>%1: a patient in the file has no ID. Nothing was taken from it.</translation></message>
    <message id="ImportNoPatient"><translation>%1: there is no patient in the file. Nothing was taken from it.</translation></message>
    <message id="ImportNoReading"><translation>%1: there is no reading in the table. Nothing was taken from it.</translation></message>
    <message id="ImportNoSuchPatient"><translation>%1: no patient with the ID “%2” is in the list any more. Nothing was taken from the file.</translation></message>
    <message id="ImportNotFlushed"><translation>%1: all of it is stored, but the disk did not confirm that: after a power cut it may be missing.</translation></message>
    <message id="ImportNotReadable"><translation>%1: the file cannot be read, or is none that this program has exported. Nothing was taken from it.</translation></message>
    <message id="ImportNotStored"><translation>%1: what the file holds could not be stored. Nothing was taken from it.</translation></message>
    <message id="ImportOtherNames"><translation>%1: the patient with the ID “%2” has another name in the list than in the table, so the readings may be another person’s. Nothing was taken from the file. To take them all the same, empty the cells with the names.</translation></message>
    <message id="ImportSameIDTwice"><translation>%1: two patients in the file have the same ID, “%2”. Nothing was taken from it.</translation></message>
    <message id="ImportTooLarge"><translation>%1: the file is larger than 512 MiB. Nothing was taken from it.</translation></message>
    <message id="ImportTooManyLines"><translation>%1: the table has more than 200,000 lines. Nothing was taken from it.</translation></message>
    <message id="LanguageMissing"><translation>--language needs a language, one of %1</translation></message>
    <message id="languageTag"><translation>en</translation></message>
    <message id="LanguageTwice"><translation>--language can be given only once</translation></message>
    <message id="LanguageUnknown"><translation>there is no language “%1”; the languages are %2</translation></message>
    <message id="LanguageUnread"><translation>The choice of the language in the file %1 cannot be read. The language of the system is shown until another is chosen in the settings.</translation></message>
    <message id="LimitDiastolic"><translation>The diastolic limit is %1.</translation></message>
    <message id="LimitOrder"><translation>The diastolic limit has to be below the systolic one.</translation></message>
    <message id="LimitSystolic"><translation>The systolic limit is %1.</translation></message>
    <message id="Male"><translation>Male</translation></message>
    <message id="ManualDia"><translation>The diastolic pressure is to be a number from %1 to %2.</translation></message>
    <message id="ManualDiaNotBelowSys"><translation>The diastolic pressure is to be below the systolic one.</translation></message>
    <message id="ManualInFuture"><translation>The date and time are in the future.</translation></message>
    <message id="ManualNoDate"><translation>There is no such date and time. (An hour is left out when clocks are put forward, and 1 January 2000 stands for no date at all.)</translation></message>
    <message id="ManualPulse"><translation>The pulse is to be a number from %1 to %2.</translation></message>
    <message id="ManualSys"><translation>The systolic pressure is to be a number from %1 to %2.</translation></message>
    <message id="ManualTooEarly"><translation>The date is before the year 1900.</translation></message>
    <message id="n.a"><translation>n.a</translation></message>
    <message id="N/A"><translation>N/A</translation></message>
    <message id="NotBackedUp"><translation>No copy of the data file could be made in %1 before this change. %2</translation></message>
    <message id="remarkExcluded"><translation>left out: %1</translation></message>
    <message id="remarkManual"><translation>typed in</translation></message>
    <message id="SecondFolderAway"><translation>The second folder for copies of the data file, %1, is not there, so today's copy is not in it. It is copied with the next change once the folder is back.</translation></message>
    <message id="SecondFolderBroken"><translation>Which second folder copies of the data file go to cannot be read from %1, so they go to none. Please choose it again.</translation></message>
    <message id="SecondFolderFailed"><translation>Today's copy of the data file could not be written to the second folder, %1.</translation></message>
    <message id="SecondFolderNoRoom"><translation>Today's copy of the data file is not in the second folder, %1: all copies there together may take a tenth of its free disk, which is less than the file.</translation></message>
    <message id="SecondFolderNotFlushed"><translation>Today's copy of the data file was written to the second folder, %1, but the disk did not confirm that it will last: after a power cut it may be missing.</translation></message>
    <message id="SecondFolderNotRecorded"><translation>The second folder for copies could not be noted in %1. Nothing was changed.</translation></message>
    <message id="SettingLimit"><translation>0 for none, or a whole number from %1 to %2</translation></message>
    <message id="SettingOneOf"><translation>one of %1</translation></message>
    <message id="SettingQuoted"><translation>“%1”</translation></message>
    <message id="SettingText"><translation>any text without control characters</translation></message>
    <message id="stepAddComment"><translation>new comment of %1</translation></message>
    <message id="stepAddPatient"><translation>new patient %1</translation></message>
    <message id="stepAddReading"><translation>new reading of %1</translation></message>
    <message id="stepDeleteComment"><translation>delete comment of %1</translation></message>
    <message id="stepDeletePatient"><translation>delete patient %1</translation></message>
    <message id="stepDeleteReadings" numerus="yes"><translation><numerusform>delete %n reading of %1</numerusform><numerusform>delete %n readings of %1</numerusform></translation></message>
    <message id="stepEditComment"><translation>change to a comment of %1</translation></message>
    <message id="stepEditPatient"><translation>change to patient %1</translation></message>
    <message id="stepEditReading"><translation>change to a reading of %1</translation></message>
    <message id="stepExcludeReadings" numerus="yes"><translation><numerusform>leave out %n reading of %1</numerusform><numerusform>leave out %n readings of %1</numerusform></translation></message>
    <message id="stepImport"><translation>import of %1</translation></message>
    <message id="stepIncludeReadings" numerus="yes"><translation><numerusform>take in %n reading of %1</numerusform><numerusform>take in %n readings of %1</numerusform></translation></message>
    <message id="stepSettings"><translation>change of settings</translation></message>
    <message id="stillLeftOutRefused" numerus="yes"><translation><numerusform>%n reading that was typed in stays left out. %1</numerusform><numerusform>%n readings that were typed in stay left out. %1</numerusform></translation></message>
    <message id="stillLeftOutTwice" numerus="yes"><translation><numerusform>%n reading that was typed in stays left out: one of that minute with the same values counts already.</numerusform><numerusform>%n readings that were typed in stay left out: ones of the same minutes with the same values count already.</numerusform></translation></message>
    <message id="StoreAlreadyKnown"><translation>A patient with the ID “%1” is already in the list. Nothing was changed.</translation></message>
    <message id="StoreBusy"><translation>Another program is working on the data file %1, on this computer or on another one that shares it. Nothing was changed; please try again in a moment, or in some minutes if that computer has dropped off the network.</translation></message>
    <message id="StoreChangedElsewhere"><translation>Another program changed it in the meantime. Nothing was changed here; please look at it as it is now.</translation></message>
    <message id="StoreDiskFull"><translation>The disk is full: %1 could not be written. What was there is as it was. Please make room on the disk, then try again.</translation></message>
    <message id="StoreInvalidRecord"><translation>A patient needs an ID of its own; “%1” is none. Nothing was changed.</translation></message>
    <message id="StoreLockBlocked"><translation>%1 is in the place where programs note that they work on the data file, and is no such note. Nothing was changed; please move it away, then try again.</translation></message>
    <message id="StoreNoPermissions"><translation>Others on this computer can still read %1: this file system knows no permissions. Please keep the data on another disk.</translation></message>
    <message id="StoreNoReason"><translation>A reading is left out for a reason only; please give one. Nothing was changed.</translation></message>
    <message id="StoreNoRoomForBackup"><translation>No copy of the data file is kept in %1: all copies together may take a tenth of the free disk, which is less than the file.</translation></message>
    <message id="StoreNoStep"><translation>There is nothing to undo or redo.</translation></message>
    <message id="StoreNoSuchBackup"><translation>There is no copy of the data file that is called “%1”.</translation></message>
    <message id="StoreNoSuchRecord"><translation>There is no patient with the ID “%1”.</translation></message>
    <message id="StoreNotCreated"><translation>There is no data file yet, and %1 could not be made. Please check that its folder may be written and the disk is not full, then start the program again.</translation></message>
    <message id="StoreNotFlushed"><translation>%1 was written, but the disk did not confirm that it will last: after a power cut the older content may be there again. Please check the disk; the monitor's readings are kept in the monitor.</translation></message>
    <message id="StoreNotMadePrivate"><translation>Others on this computer can still read %1: its permissions could not be changed.</translation></message>
    <message id="StoreNotManual"><translation>Readings that came from a monitor are neither changed nor deleted; they can be left out, with a reason. Nothing was changed.</translation></message>
    <message id="StoreNotParsed"><translation>The data file %1 is damaged or is no data file of this program. It is left as it is, and nothing can be saved until it is readable again: repair it, put a copy in its place, or move it away to start with a new one.</translation></message>
    <message id="StoreNotReadable"><translation>The data file %1 cannot be read. It is left as it is, and nothing can be saved until it is readable again.</translation></message>
    <message id="StoreNotWritable"><translation>The data file %1 cannot be written. Nothing was changed; please check the permissions of the file and of its folder.</translation></message>
    <message id="StoreQuotaReached"><translation>You may store no more on this disk (its quota is reached): %1 could not be written. What was there is as it was. Please delete what you do not need, or ask for more space, then try again.</translation></message>
    <message id="StoreReadFailed"><translation>The data file %1 cannot be read: the disk reports an error. The file is left as it is, and nothing can be saved until it is readable again. Please have the disk checked.</translation></message>
    <message id="StoreReadingGone"><translation>The reading is no longer there. Nothing was changed.</translation></message>
    <message id="StoreReadingKnown"><translation>There is a reading of that minute with these values already. Nothing was changed.</translation></message>
    <message id="StoreReadingRefused"><translation>The reading was not stored.</translation></message>
    <message id="StoreSizeLimit"><translation>Files may not become so large here: %1 could not be written. What was there is as it was. Please ask who looks after this computer about its limit for the size of files.</translation></message>
    <message id="StoreStepChanged"><translation>What it is about has been changed again since, by another program or by hand. Nothing was changed.</translation></message>
    <message id="StoreStepGone"><translation>What it is about is no longer in the data file. Nothing was changed.</translation></message>
    <message id="StoreStepHasRecords"><translation>The patient with the ID “%1” has got readings or comments since, which would be nobody’s. Nothing was changed.</translation></message>
    <message id="StoreStepPatientGone"><translation>The patient with the ID “%1”, whom the comment belongs to, is no longer in the data file. Nothing was changed.</translation></message>
    <message id="StoreStepPatientKnown"><translation>A patient with the ID “%1” is in the list by now. Nothing was changed.</translation></message>
    <message id="StoreStepThere"><translation>What would come back is in the data file again already. Nothing was changed.</translation></message>
    <message id="StoreTooLarge"><translation>The data file %1 is larger than 512 MiB, which this program does not read. It is left as it is, and nothing can be saved: put a smaller copy in its place, or move it away to start with a new one.</translation></message>
    <message id="StoreUnreadable"><translation>The data file %1 was left as it was: what was to be saved could not be read again afterwards.</translation></message>
    <message id="StoreWriteFailed"><translation>Writing the data file %1 failed, and the file was left as it was. Please check that the disk is not full, then try again.</translation></message>
    <message id="TableCell"><translation>“%1” cannot stand in the column “%2”.</translation></message>
    <message id="TableCells"><translation>It has %1 cells, and the line of titles %2.</translation></message>
    <message id="TableDateOrder"><translation>“%1” is not written as 2026-11-21 is. Say with --dates in which order day, month and year stand: dmy, mdy or ymd.</translation></message>
    <message id="TableLine"><translation>Line %1: %2</translation></message>
    <message id="TableMeanPressure"><translation>A mean arterial pressure of %1 does not go with %2/%3: is each column what it is taken for?</translation></message>
    <message id="TableMoreLines" numerus="yes"><translation><numerusform>… and %n more line</numerusform><numerusform>… and %n more lines</numerusform></translation></message>
    <message id="TableNoTime"><translation>“%1” is no date with a year of four digits and a time.</translation></message>
    <message id="TableNotUtf8"><translation>Its text is not UTF-8. Please save it as “CSV UTF-8” in the program that it comes from.</translation></message>
    <message id="TableOtherNames"><translation>The patient “%1” has another name in an earlier line.</translation></message>
    <message id="TableOtherPatient"><translation>The reading is of the patient “%1”, not of “%2”.</translation></message>
    <message id="TablePulsePressure"><translation>A pulse pressure of %1 does not go with %2/%3: is each column what it is taken for?</translation></message>
    <message id="TableQuotation"><translation>A quotation mark is not closed at the end of its cell.</translation></message>
    <message id="takenInTypedLeftOut" numerus="yes"><translation><numerusform>%n reading that was typed in is left out from now on (measured by the monitor, too).</numerusform><numerusform>%n readings that were typed in are left out from now on (measured by the monitor, too).</numerusform></translation></message>
    <message id="ViewLimitsUnread"><translation>%1, which says from where on values are marked, cannot be read. Until limits are chosen anew, values are marked from %2/%3 mmHg on.</translation></message>
    <message id="Warning"><translation>Warning</translation></message>
    <message id="XmlAttributeTwice"><translation>An element has the same attribute twice.</translation></message>
    <message id="XmlBytesNotInEncoding"><translation>It holds bytes that are not in its encoding, %1.</translation></message>
    <message id="XmlControlCharacter"><translation>It holds a control character, which such a file may not.</translation></message>
    <message id="XmlEncodingUnknown"><translation>Its encoding, %1, is not known.</translation></message>
    <message id="XmlEntityNotTaken"><translation>It refers to an entity or a character that is not taken; only the five of XML itself and its characters are.</translation></message>
    <message id="XmlErrorNearLine"><translation>Near line %1: %2</translation></message>
    <message id="XmlMisplacedDeclaration"><translation>A declaration stands where none may be.</translation></message>
    <message id="XmlNoRoot"><translation>It holds no element.</translation></message>
    <message id="XmlNotWritable"><translation>The data file cannot be written: changes and downloaded readings cannot be saved. Please check the permissions of the file and of its folder.</translation></message>
    <message id="XmlSeveralRoots"><translation>It holds more than one root element.</translation></message>
    <message id="XmlTextOutsideRoot"><translation>It holds text outside its root element.</translation></message>
    <message id="XmlTooDeep"><translation>Its elements lie within each other by more than %1 levels.</translation></message>
    <message id="XmlTooLarge"><translation>It would be larger than 512 MiB.</translation></message>
    <message id="XmlTooManyParts"><translation>It holds more than %1 elements, attributes and texts, which is too many for a file of its size.</translation></message>
    <message id="XmlTooManyRecords"><translation>It holds more than %1 records, which is too many for a file of its size.</translation></message>
    <message id="XmlWrongRoot"><translation>Its root element is “%1”, not “ZEL”.</translation></message>
</context>
<context>
    <name>monitor</name>
    <message id="monitorAccessDenied"><translation>A monitor is connected, but this program may not use it: another program is using it, or permission for the USB device is missing.</translation></message>
    <message id="monitorBadCheckField"><translation>The monitor's answer arrived damaged and was not used. Please try again.</translation></message>
    <message id="monitorBadFixedContent"><translation>The monitor's answer could not be understood and was not used. Please try again.</translation></message>
    <message id="monitorClockNotSet"><translation>The monitor's clock is not set.</translation></message>
    <message id="monitorInterrupted"><translation>The exchange with the monitor was stopped before it was complete.</translation></message>
    <message id="monitorNoAcknowledgement"><translation>The monitor did not accept the command. Please switch it off and on and try again.</translation></message>
    <message id="monitorNoDevice"><translation>No monitor is connected. Please plug it in and try again.</translation></message>
    <message id="monitorNotTaken"><translation>The monitor acknowledged it, but still holds something else. Please try again.</translation></message>
    <message id="monitorReadFailed"><translation>The connection to the monitor broke off. Please check the cable and try again.</translation></message>
    <message id="monitorSuccess"><translation>The monitor did what it was asked.</translation></message>
    <message id="monitorTimeOut"><translation>The monitor did not answer in time. Please check that it is switched on and try again.</translation></message>
    <message id="monitorUnconfirmed"><translation>It was sent to the monitor, but what the monitor holds now could not be read. Please look before you try again.</translation></message>
    <message id="monitorUnfitID"><translation>The monitor cannot keep this ID, so nothing was sent. An ID for the monitor has 1 to 11 letters, digits or signs without accents.</translation></message>
    <message id="monitorWriteFailed"><translation>The monitor does not take what is sent to it. Please unplug it, plug it in again and try once more.</translation></message>
    <message id="simulatedMissing"><translation>The value of “%1” is missing.</translation></message>
    <message id="simulatedNoPlan"><translation>It must hold one JSON object.</translation></message>
    <message id="simulatedNotAllowed"><translation>The value of “%1” must be one of these: %2</translation></message>
    <message id="simulatedNotJson"><translation>It is no valid JSON: near character %1, %2.</translation></message>
    <message id="simulatedNotList"><translation>The value of “%1” must be a list.</translation></message>
    <message id="simulatedNotObject"><translation>The value of “%1” must be an object.</translation></message>
    <message id="simulatedNotText"><translation>The value of “%1” must be a text.</translation></message>
    <message id="simulatedNotTime"><translation>The value of “%1” must be a time such as 2026-11-01T07:12, in the years 2000 to 2099, or the word undated.</translation></message>
    <message id="simulatedNotWhole"><translation>The value of “%1” must be a whole number in the range %2.</translation></message>
    <message id="simulatedRefused"><translation>The simulated monitor's file %1 cannot be used: %2</translation></message>
    <message id="simulatedTooMany"><translation>The list “%1” must have at most %2 entries.</translation></message>
    <message id="simulatedUnencodable"><translation>The value of “%1” has characters that the monitor does not know.</translation></message>
    <message id="simulatedUnknownKey"><translation>The key “%1” is not known.</translation></message>
    <message id="simulatedUnreadable"><translation>The simulated monitor's file %1 cannot be read: %2</translation></message>
    <message id="simulatedWrongLength"><translation>The value of “%1” must have this number of characters: %2</translation></message>
</context>
<context>
    <name>analysis</name>
    <message id="beforeAndSince"><translation>%1 before, %2 since: %3</translation></message>
    <message id="excludedOfDays" numerus="yes"><translation><numerusform>%n left out</numerusform><numerusform>%n left out</numerusform></translation></message>
    <message id="fewBefore"><translation>fewer than %1 readings before</translation></message>
    <message id="fewOnBothSides"><translation>fewer than %1 readings on both sides</translation></message>
    <message id="fewSince"><translation>fewer than %1 readings since</translation></message>
    <message id="highMark"><translation>%1 and bold: at or above %2</translation></message>
    <message id="leftBeforeNoon" numerus="yes"><translation><numerusform>%n before noon</numerusform><numerusform>%n before noon</numerusform></translation></message>
    <message id="leftExcluded" numerus="yes"><translation><numerusform>%n left out</numerusform><numerusform>%n left out</numerusform></translation></message>
    <message id="leftFromNoon" numerus="yes"><translation><numerusform>%n from noon on</numerusform><numerusform>%n from noon on</numerusform></translation></message>
    <message id="leftOut"><translation>%1 not counted</translation></message>
    <message id="leftOutsidePeriod" numerus="yes"><translation><numerusform>%n outside the period</numerusform><numerusform>%n outside the period</numerusform></translation></message>
    <message id="leftUndated" numerus="yes"><translation><numerusform>%n undated one</numerusform><numerusform>%n undated ones</numerusform></translation></message>
    <message id="leftUnmeasured" numerus="yes"><translation><numerusform>%n without pressures</numerusform><numerusform>%n without pressures</numerusform></translation></message>
    <message id="leftWithoutDate" numerus="yes"><translation><numerusform>%n without any date</numerusform><numerusform>%n without any date</numerusform></translation></message>
    <message id="limitDiaAlone"><translation>DIA %1 mmHg</translation></message>
    <message id="limitsBoth"><translation>%1/%2 mmHg</translation></message>
    <message id="limitSysAlone"><translation>SYS %1 mmHg</translation></message>
    <message id="listedExcluded" numerus="yes"><translation><numerusform>, %n of them left out</numerusform><numerusform>, %n of them left out</numerusform></translation></message>
    <message id="missingDays" numerus="yes"><translation><numerusform>%n more day</numerusform><numerusform>%n more days</numerusform></translation></message>
    <message id="missingEvenings" numerus="yes"><translation><numerusform>%n more evening</numerusform><numerusform>%n more evenings</numerusform></translation></message>
    <message id="missingMornings" numerus="yes"><translation><numerusform>%n more morning</numerusform><numerusform>%n more mornings</numerusform></translation></message>
    <message id="missingReadings" numerus="yes"><translation><numerusform>%n more reading</numerusform><numerusform>%n more readings</numerusform></translation></message>
    <message id="noHighMark"><translation>No values are marked as high</translation></message>
    <message id="noneBefore"><translation>no reading in the 14 days before, %1 since</translation></message>
    <message id="noneBeforeOrSince"><translation>no reading before or since</translation></message>
    <message id="noneSince"><translation>%1 before, no reading since</translation></message>
    <message id="otherZoneOfDays" numerus="yes"><translation><numerusform>%n stored in another time zone; times are those of this computer</numerusform><numerusform>%n stored in another time zone; times are those of this computer</numerusform></translation></message>
    <message id="readingCount" numerus="yes"><translation><numerusform>%n reading</numerusform><numerusform>%n readings</numerusform></translation></message>
    <message id="rowsCut"><translation>The comments cover more days without a reading than the list can show: at most %1, so that some are missing.</translation></message>
    <message id="unmeasuredOfDays" numerus="yes"><translation><numerusform>%n without pressures not counted</numerusform><numerusform>%n without pressures not counted</numerusform></translation></message>
</context>
<context>
    <name>app</name>
    <message id="12-hours"><translation>12-hours</translation></message>
    <message id="24-hours"><translation>24-hours</translation></message>
    <message id="aboutData"><translation>Data file: %1</translation></message>
    <message id="aboutLicence"><translation>Licence: MIT. ZEL comes without any warranty. It uses Qt (LGPL 3), hidapi (BSD), pugixml (MIT), ICU (Unicode licence) and expected (CC0), each under its own licence.</translation></message>
    <message id="addComment"><translation>Add a comment</translation></message>
    <message id="addCommentHint"><translation>Drag this to a day in the strip below the pulse chart to add a comment there. With the keyboard, press it or the Insert key.</translation></message>
    <message id="addCommentTooLong"><translation>Comments can be added while the period has 47 days or fewer.</translation></message>
    <message id="addDay"><translation>More days: one more at each end of the period</translation></message>
    <message id="addDayHint"><translation>More days: one more at each end of the period (+)</translation></message>
    <message id="afib"><translation>AFib</translation></message>
    <message id="age"><translation>Age %1</translation></message>
    <message id="answerNo"><translation>No</translation></message>
    <message id="answerYes"><translation>Yes</translation></message>
    <message id="AP_Title"><translation>ZEL – blood pressure readings</translation></message>
    <message id="argumentUnknown"><translation>unexpected argument “%1”; see zel --help</translation></message>
    <message id="argumentWithoutFile"><translation>%1= needs the name of a file; see zel --help</translation></message>
    <message id="backupAlsoTo"><translation>Copies also go to:</translation></message>
    <message id="backupChoose"><translation>C&amp;hoose …</translation></message>
    <message id="backupChooseTitle"><translation>Second folder for copies of the data file</translation></message>
    <message id="backupClose"><translation>&amp;Close</translation></message>
    <message id="backupConfirm"><translation>Go back to this copy? %1. What is there now is kept as another copy, so that you can return to it.</translation></message>
    <message id="backupCreate"><translation>Back up &amp;now</translation></message>
    <message id="backupDaily"><translation>Before the first change of the day</translation></message>
    <message id="backupDamaged"><translation>Damaged data file</translation></message>
    <message id="backupDay"><translation>Day</translation></message>
    <message id="backupExplained"><translation>Copies of the data file, in the folder %1. In case this disk breaks, name a second folder on another one, a stick or a share.</translation></message>
    <message id="backupFar"><translation>Second folder: %1</translation></message>
    <message id="backupKind"><translation>Copy</translation></message>
    <message id="backupMade"><translation>Made by you</translation></message>
    <message id="backupNone"><translation>There is no copy yet. One is made before the first change of each day.</translation></message>
    <message id="backupNoSecondFolder"><translation>no second folder</translation></message>
    <message id="backupOffered"><translation>The newest copy that can be read is %1, with %2. Go back to it? The damaged file is kept as another copy beside it.</translation></message>
    <message id="backupReplaced"><translation>What a restored copy replaced</translation></message>
    <message id="backupRestore"><translation>&amp;Restore …</translation></message>
    <message id="backupRestored"><translation>The copy %1 is in use. What was there before is kept as %2.</translation></message>
    <message id="backupSize"><translation>Size</translation></message>
    <message id="backupStop"><translation>S&amp;top</translation></message>
    <message id="backupTitle"><translation>Backups</translation></message>
    <message id="backupUnreadable"><translation>this copy cannot be read</translation></message>
    <message id="beforeAndSinceHint"><translation>Average pressure in mmHg, and how many readings: the 14 days before the comment, and from its first day on until another comment begins, 28 days at most</translation></message>
    <message id="BeginDate"><translation>The first day has to be before the last one, so that the period spans two days or more. The dates were left as they were.</translation></message>
    <message id="beginEarlier"><translation>Begin a day earlier</translation></message>
    <message id="beginLater"><translation>Begin a day later</translation></message>
    <message id="birthDateIncomplete"><translation>Please give year, month and day, or none of the three.</translation></message>
    <message id="birthDateInFuture"><translation>This day is still to come.</translation></message>
    <message id="birthDateTooOld"><translation>This is more than %1 years ago.</translation></message>
    <message id="birthDayNone"><translation>Day</translation></message>
    <message id="birthDayRefused"><translation>This month has no day %1.</translation></message>
    <message id="birthMonthNone"><translation>Month</translation></message>
    <message id="birthYearNone"><translation>Year</translation></message>
    <message id="birthYearRefused"><translation>Please give the year in four digits, such as 1956.</translation></message>
    <message id="bloodChart"><translation>Blood pressure over time</translation></message>
    <message id="bloodScroller"><translation>Move the pressure scale</translation></message>
    <message id="cancel"><translation>Cancel</translation></message>
    <message id="cancelPrint"><translation>Close without printing</translation></message>
    <message id="cellWithRemark"><translation>%1, %2</translation></message>
    <message id="changeReadingAction"><translation>Change Reading…</translation></message>
    <message id="changeReadingTitle"><translation>Change Reading</translation></message>
    <message id="chartKeys"><translation>%1 in the period. Arrow keys move the period, plus and minus widen and narrow it, Ctrl with the left and right arrow keys goes from reading to reading.</translation></message>
    <message id="cholestrolRefused"><translation>Please give a number of 10 to 5000 mg/dL, such as 200. 1 mmol/L is about 38.7 mg/dL.</translation></message>
    <message id="choosePrinter"><translation>Choose a printer</translation></message>
    <message id="clockAhead"><translation>%1 ahead of this computer</translation></message>
    <message id="clockBehind"><translation>%1 behind this computer</translation></message>
    <message id="clockDays" numerus="yes"><translation><numerusform>%n day</numerusform><numerusform>%n days</numerusform></translation></message>
    <message id="clockHours" numerus="yes"><translation><numerusform>%n hour</numerusform><numerusform>%n hours</numerusform></translation></message>
    <message id="clockMinutes" numerus="yes"><translation><numerusform>%n minute</numerusform><numerusform>%n minutes</numerusform></translation></message>
    <message id="clockNotSet"><translation>that did not work, and it may still be wrong. %1</translation></message>
    <message id="clockNotSetAtGreeting"><translation>The clock of the monitor could not be set. %1</translation></message>
    <message id="clockRight"><translation>In step with this computer</translation></message>
    <message id="clockSet"><translation>done. It shows this computer’s time now.</translation></message>
    <message id="clockUnset"><translation>Not set</translation></message>
    <message id="clockUnsetAsk"><translation>The monitor’s clock is not set, so its readings get no date and time. Set it to this computer’s time?</translation></message>
    <message id="closeWindow"><translation>Close</translation></message>
    <message id="colourAction"><translation>Colour: %1</translation></message>
    <message id="colourBlue"><translation>Blue</translation></message>
    <message id="colourButton"><translation>Colour of the comment</translation></message>
    <message id="colourGrey"><translation>Dark grey</translation></message>
    <message id="colourHint"><translation>Choose the colour for new comments, and for the comment that you selected by a click or a key.</translation></message>
    <message id="colourOrange"><translation>Orange</translation></message>
    <message id="colourPicker"><translation>Colour of the comment</translation></message>
    <message id="colourYellow"><translation>Yellow</translation></message>
    <message id="columnComment"><translation>Comment</translation></message>
    <message id="columnComments"><translation>Comments</translation></message>
    <message id="columnDate"><translation>Date</translation></message>
    <message id="columnDia"><translation>DIA
mmHg</translation></message>
    <message id="columnFile"><translation>File</translation></message>
    <message id="columnMam"><translation>MAM</translation></message>
    <message id="columnPatient"><translation>Patient</translation></message>
    <message id="columnPressure"><translation>%1
mmHg</translation></message>
    <message id="columnPulse"><translation>Pulse
1/min</translation></message>
    <message id="columnReadings"><translation>Readings</translation></message>
    <message id="columnState"><translation>State</translation></message>
    <message id="columnSys"><translation>SYS
mmHg</translation></message>
    <message id="columnTime"><translation>Time</translation></message>
    <message id="commentBegin"><translation>From</translation></message>
    <message id="commentBeginDay"><translation>First day of the comment</translation></message>
    <message id="commentCount" numerus="yes"><translation><numerusform>%n comment</numerusform><numerusform>%n comments</numerusform></translation></message>
    <message id="commentDayFar"><translation>“%1” is more than two years ahead: check the year. The dates were left as they were.</translation></message>
    <message id="commentDayHint"><translation>Type a date and press Enter.</translation></message>
    <message id="commentDayOrder"><translation>The last day of a comment cannot be before its first day. The dates were left as they were.</translation></message>
    <message id="commentDayUnread"><translation>“%1” is no date that a comment can have: type it in the form %2, with a year from 1900. The dates were left as they were.</translation></message>
    <message id="commentEmpty"><translation>The comment for %1 has no text. Remove it?</translation></message>
    <message id="commentEmptyTitle"><translation>Comment without a text</translation></message>
    <message id="commentEnd"><translation>To</translation></message>
    <message id="commentEndDay"><translation>Last day of the comment</translation></message>
    <message id="commentInClipboard"><translation>The comment that was typed when the program was ended could not be saved; its text is in the clipboard now: paste it where you want to keep it. %1</translation></message>
    <message id="commentNotSaved"><translation>The comment was not saved; your text is still in its field. %1</translation></message>
    <message id="commentPanel"><translation>Comment</translation></message>
    <message id="commentPatientGone"><translation>The patient %1 is no longer in the data file, so that the comment that you were typing cannot be stored there. Your text is in the clipboard now: paste it where you want to keep it.</translation></message>
    <message id="commentPosition"><translation>%1 of %2</translation></message>
    <message id="commentStay"><translation>The comment could not be saved. %1

Stay here and keep your text, to try again? With No, the text is given up.</translation></message>
    <message id="commentText"><translation>Text of the comment</translation></message>
    <message id="commentUnchanged"><translation>The comment could not be saved. %1</translation></message>
    <message id="ConfirmDelPatient"><translation>Delete %1 with all readings and comments? Edit &gt; Undo brings them back until ZEL is closed.</translation></message>
    <message id="confirmDropNew"><translation>The data of %1 have not been saved yet. Delete what was typed? It cannot be brought back.</translation></message>
    <message id="confirmPrintSave"><translation>The data of %1 have been changed, and only what is saved is printed or exported. Save the changes first?</translation></message>
    <message id="confirmSendID"><translation>%2 Write the ID %1 into it? From then on its readings belong to this patient.</translation></message>
    <message id="confirmSendSave"><translation>The data of %1 have been changed. Save the changes?</translation></message>
    <message id="copyRows"><translation>Copy</translation></message>
    <message id="correlationView"><translation>Systolic against diastolic pressure</translation></message>
    <message id="dataChangedElsewhere"><translation>Another program changed the data file. It is shown as it is now.</translation></message>
    <message id="dataFile"><translation>Data file</translation></message>
    <message id="dataFileUnreadable"><translation>The data file cannot be used</translation></message>
    <message id="dataPanel"><translation>Data</translation></message>
    <message id="dataUnreadNow"><translation>The data file cannot be read at the moment, and nothing can be saved. What is shown is as it was before.</translation></message>
    <message id="DateError"><translation>Check the dates</translation></message>
    <message id="dayHint"><translation>Type a date and press Enter, or open the calendar with the arrow.</translation></message>
    <message id="dayOfDownload"><translation>%1, day of a download</translation></message>
    <message id="daysButtons"><translation>Days</translation></message>
    <message id="dayUnread"><translation>“%1” is no date: type it in the form %2, with a year from 1900.</translation></message>
    <message id="dayUnreadLeft"><translation>“%1” is no date: type it in the form %2, with a year from 1900. The date was left as it was.</translation></message>
    <message id="dayWithoutReading"><translation>%1, no reading on this day</translation></message>
    <message id="dd mm yyyy"><translation>dd mm yyyy</translation></message>
    <message id="DeleteComment"><translation>Delete comment</translation></message>
    <message id="deleteCommentButton"><translation>Delete…</translation></message>
    <message id="deleteCommentHint"><translation>Delete this comment, after a question.</translation></message>
    <message id="DeletePatient"><translation>Delete patient</translation></message>
    <message id="deletePatientButton"><translation>De&amp;lete</translation></message>
    <message id="deletePatientHint"><translation>Delete this patient with all readings and comments, after a question.</translation></message>
    <message id="deleteReadingsAction"><translation>Delete Reading…</translation></message>
    <message id="deleteReadingsQuestion"><translation>Delete what was typed in (%1)?</translation></message>
    <message id="deleteReadingsTitle"><translation>Delete Reading</translation></message>
    <message id="DeleteTheComment"><translation>Delete this comment? Edit &gt; Undo brings it back until ZEL is closed.</translation></message>
    <message id="demonstrationButton"><translation>Try it with a demonstration monitor</translation></message>
    <message id="demonstrationIsOwnData"><translation>The demonstration keeps its data in the folder %1, but that leads to your own data. Nothing was started, so that no invented readings get among yours.</translation></message>
    <message id="demonstrationNoFolder"><translation>The demonstration keeps its data in the folder %1, which cannot be made.</translation></message>
    <message id="demonstrationNote"><translation>Opens a second window with a simulated monitor and invented readings, which are kept apart from your own data.</translation></message>
    <message id="demonstrationNotStarted"><translation>The demonstration could not be started.</translation></message>
    <message id="demonstrationStarted"><translation>The demonstration opens in a window of its own.</translation></message>
    <message id="demonstrationStrip"><translation>Demonstration: the monitor is simulated; its readings are invented and kept apart from your own data.</translation></message>
    <message id="demonstrationTitle"><translation>Demonstration – %1</translation></message>
    <message id="download"><translation>Download readings</translation></message>
    <message id="downloadAdvice"><translation>Please leave the monitor connected. Its readings are stored when all of them have arrived.</translation></message>
    <message id="downloadButton"><translation>&amp;Download</translation></message>
    <message id="downloadCancel"><translation>Cancel the download</translation></message>
    <message id="downloadCancelled"><translation>Download cancelled. Nothing was stored; the readings are still in the monitor.</translation></message>
    <message id="downloadDayUnknown"><translation>unknown</translation></message>
    <message id="downloadEmpty"><translation>The monitor holds no readings.</translation></message>
    <message id="downloadFailed"><translation>The readings could not be downloaded, and nothing was stored. They are still in the monitor. %1</translation></message>
    <message id="downloadFetched" numerus="yes"><translation><numerusform>%n reading downloaded</numerusform><numerusform>%n readings downloaded</numerusform></translation></message>
    <message id="downloadHint"><translation>Fetch the readings from the monitor (Ctrl+D). The monitor must be connected and hold this patient’s ID.</translation></message>
    <message id="downloadNew" numerus="yes"><translation><numerusform>%1, %n new</numerusform><numerusform>%1, %n new</numerusform></translation></message>
    <message id="downloadNotFlushed"><translation>The readings are stored, but it is not sure that they will last. %1</translation></message>
    <message id="downloadNothingNew"><translation>%1, none new: all of them were stored before</translation></message>
    <message id="downloadNotReadBack"><translation>%1. The data file could not be read afterwards, so that the monitor was not erased. %2</translation></message>
    <message id="downloadNotStored"><translation>The readings could not be stored. They are still in the monitor. %1</translation></message>
    <message id="downloadOtherMonitor"><translation>The readings in the monitor belong to another ID than this patient’s, so nothing was stored. Please connect this patient’s monitor and try again.</translation></message>
    <message id="downloadProgress"><translation>Download progress</translation></message>
    <message id="downloadsNew"><translation>New readings</translation></message>
    <message id="downloadsNone"><translation>%1: nothing has been downloaded from the monitor yet.</translation></message>
    <message id="downloadsSummary" numerus="yes"><translation><numerusform>%1: %n download. New readings: %2.</numerusform><numerusform>%1: %n downloads. New readings: %2.</numerusform></translation></message>
    <message id="downloadStarting"><translation>Asking the monitor …</translation></message>
    <message id="downloadsTitle"><translation>Downloads</translation></message>
    <message id="downloadStopping"><translation>Stopping …</translation></message>
    <message id="downloadTypedLeftOut" numerus="yes"><translation><numerusform>%n that was typed in is left out from now on (measured by the monitor, too)</numerusform><numerusform>%n that were typed in are left out from now on (measured by the monitor, too)</numerusform></translation></message>
    <message id="downloadWaiting" numerus="yes"><translation><numerusform>Nothing comes from the monitor. The download waits for it, for %n second at most. You can cancel it: nothing is lost.</numerusform><numerusform>Nothing comes from the monitor. The download waits for it, for %n seconds at most. You can cancel it: nothing is lost.</numerusform></translation></message>
    <message id="dropLeftOut"><translation>Only XML files on this computer can be imported. Not in the list: %1</translation></message>
    <message id="DupNewPatient"><translation>There is a new patient already that is not saved yet: the first one of the list. Please save or delete it first.</translation></message>
    <message id="EndDate"><translation>The last day has to be after the first one, so that the period spans two days or more. The dates were left as they were.</translation></message>
    <message id="endEarlier"><translation>End a day earlier</translation></message>
    <message id="endLater"><translation>End a day later</translation></message>
    <message id="eraseFailed"><translation>%1. The readings are safely stored, but the monitor could not be emptied: it still holds them. %2</translation></message>
    <message id="eraseNotSeen"><translation>%1. The readings are safely stored, but whether the monitor is empty now could not be seen. %2</translation></message>
    <message id="eraseThem"><translation>&amp;Delete</translation></message>
    <message id="exportAll"><translation>Export all patients as XML files</translation></message>
    <message id="exportAlsoFailed"><translation>The same happened to: %1</translation></message>
    <message id="exportButton"><translation>&amp;Export all …</translation></message>
    <message id="exportCancelled"><translation>Then the export was cancelled; the other patients were not exported.</translation></message>
    <message id="exportCSV"><translation>Export the current patient’s readings as a CSV file</translation></message>
    <message id="exportCSVButton"><translation>Export CS&amp;V …</translation></message>
    <message id="exportCSVFolder"><translation>Choose the folder for the CSV file</translation></message>
    <message id="exportCSVHint"><translation>Writes the current patient and the readings as a table, for a spreadsheet.</translation></message>
    <message id="exportFailed" numerus="yes"><translation><numerusform>%n file could not be written:</numerusform><numerusform>%n files could not be written:</numerusform></translation></message>
    <message id="exportFhirFolder"><translation>Choose the folder for the FHIR file</translation></message>
    <message id="exportFolder"><translation>Choose the folder for the patients’ files</translation></message>
    <message id="exportHint"><translation>Writes a file for each patient, which this program can import again.</translation></message>
    <message id="exporting"><translation>Exporting patients</translation></message>
    <message id="exportKept" numerus="yes"><translation><numerusform>%n file that was there already was left as it was.</numerusform><numerusform>%n files that were there already were left as they were.</numerusform></translation></message>
    <message id="ExportMsg" numerus="yes"><translation><numerusform>%n file was written to the folder %1.</numerusform><numerusform>%n files were written to the folder %1.</numerusform></translation></message>
    <message id="exportNobody"><translation>There is no patient to export yet. Add a patient or import one first.</translation></message>
    <message id="exportNoPatient"><translation>No patient is chosen. Please choose the patient to be exported first.</translation></message>
    <message id="exportReplace" numerus="yes"><translation><numerusform>The folder %1 already holds the file %2. Replace it? With “No” it stays as it is.</numerusform><numerusform>The folder %1 already holds %n of the files (%2). Replace them? With “No” they stay as they are, and only the others are written.</numerusform></translation></message>
    <message id="exportReplaceTitle"><translation>Replace files?</translation></message>
    <message id="ExportTitle"><translation>Export</translation></message>
    <message id="fieldAddress"><translation>Address</translation></message>
    <message id="fieldCholestrol"><translation>Cholesterol (mg/dL)</translation></message>
    <message id="fieldDateOfBirth"><translation>Date of birth</translation></message>
    <message id="fieldDiabetic"><translation>Diabetic</translation></message>
    <message id="fieldFamilyHistory"><translation>Family history</translation></message>
    <message id="fieldFamilyName"><translation>Family name</translation></message>
    <message id="fieldGivenNames"><translation>Given name(s)</translation></message>
    <message id="fieldHeightCm"><translation>Height (cm)</translation></message>
    <message id="fieldHeightFtIn"><translation>Height (feet/inches)</translation></message>
    <message id="fieldID"><translation>ID</translation></message>
    <message id="fieldMissing"><translation>Please fill in this field.</translation></message>
    <message id="fieldPatientNotes"><translation>Notes on this patient</translation></message>
    <message id="fieldPhoneEmail"><translation>Phone / e-mail</translation></message>
    <message id="fieldRequired"><translation>Required</translation></message>
    <message id="fieldSex"><translation>Sex</translation></message>
    <message id="fieldSmoker"><translation>Smoker</translation></message>
    <message id="fieldWeightKg"><translation>Weight (kg)</translation></message>
    <message id="fieldWeightLb"><translation>Weight (lb)</translation></message>
    <message id="fileAlreadyHere"><translation>already here</translation></message>
    <message id="fileAlreadyHereHint"><translation>A patient with this ID is in the list already, and an import would be refused.</translation></message>
    <message id="fileBeingRead"><translation>reading …</translation></message>
    <message id="fileNotImportable"><translation>cannot be imported</translation></message>
    <message id="fileNotReadable"><translation>not readable</translation></message>
    <message id="fileTooLargeToCount"><translation>above 64 MiB: not counted</translation></message>
    <message id="firstCopy"><translation>A copy of earlier data is there: %1, with %2. If the data file was lost, go back to it.</translation></message>
    <message id="firstCopyButton"><translation>Go back to a copy …</translation></message>
    <message id="firstStepDownload"><translation>Press Download. The readings appear in chart and table.</translation></message>
    <message id="firstStepMonitor"><translation>Connect the monitor with its USB cable. If it does not hold this patient’s ID yet, press “Send ID”.</translation></message>
    <message id="firstStepPatient"><translation>Enter the patient whose blood pressure the monitor measures, with an ID, and press Save.</translation></message>
    <message id="firstSteps"><translation>No patients yet: three steps to the first readings</translation></message>
    <message id="heightRefusedCm"><translation>Please give a number of 20 to 300 cm, such as 175.</translation></message>
    <message id="heightRefusedFtIn"><translation>Please give feet and inches with a stroke between them, such as 5/9. Inches go up to 11.</translation></message>
    <message id="highFrom"><translation>Limits from which on values are marked</translation></message>
    <message id="highFromHint"><translation>Values at or above these limits are bold and marked, here and on paper. Chart, statistics, histogram and correlation keep the limits of the settings.</translation></message>
    <message id="highFromLabel"><translation>Mark &amp;values from</translation></message>
    <message id="histogramView"><translation>Distribution of the values</translation></message>
    <message id="IDNotForMonitor"><translation>The ID “%1” does not fit the monitor. A monitor keeps IDs of 1 to 11 plain letters, digits and signs, without accents and without blanks at the ends.</translation></message>
    <message id="IDRefused"><translation>An ID has 1 to 11 plain letters, digits or signs, without accents: more a monitor cannot keep.</translation></message>
    <message id="IDStays"><translation>The ID cannot be changed: the readings and comments belong to it.</translation></message>
    <message id="ihd"><translation>IHD</translation></message>
    <message id="importAll"><translation>&amp;All</translation></message>
    <message id="importAllFiles"><translation>Choose all files</translation></message>
    <message id="importButton"><translation>&amp;Import</translation></message>
    <message id="importButtonFiles" numerus="yes"><translation><numerusform>&amp;Import %n file</numerusform><numerusform>&amp;Import %n files</numerusform></translation></message>
    <message id="importCancelled" numerus="yes"><translation><numerusform>Then the import was cancelled; %n file was not read.</numerusform><numerusform>Then the import was cancelled; %n files were not read.</numerusform></translation></message>
    <message id="importDropped"><translation>Files dropped on the window</translation></message>
    <message id="importedFiles" numerus="yes"><translation><numerusform>%n file was imported:</numerusform><numerusform>%n files were imported:</numerusform></translation></message>
    <message id="importFilesButton"><translation>&amp;Import …</translation></message>
    <message id="importFolder"><translation>Choose the folder to import from</translation></message>
    <message id="importFolderButton"><translation>Choose &amp;folder …</translation></message>
    <message id="importFrom"><translation>Files in %1</translation></message>
    <message id="importHint"><translation>Brings in patients from XML files that were exported before.</translation></message>
    <message id="importing"><translation>Importing patients</translation></message>
    <message id="importList"><translation>List of XML files</translation></message>
    <message id="importNone"><translation>No file was imported.</translation></message>
    <message id="importRefused" numerus="yes"><translation><numerusform>%n file was not imported:</numerusform><numerusform>%n files were not imported:</numerusform></translation></message>
    <message id="importTaken"><translation>%1: %2, %3, %4</translation></message>
    <message id="importTitle"><translation>Import patients</translation></message>
    <message id="includeUndated"><translation>Undated readings</translation></message>
    <message id="includeUndatedHint"><translation>Also show and count the readings that the monitor stored without a date.</translation></message>
    <message id="infoDia"><translation>Diastolic</translation></message>
    <message id="infoLine"><translation>%1: %2</translation></message>
    <message id="infoPulse"><translation>Pulse</translation></message>
    <message id="infoRemark"><translation>Remark</translation></message>
    <message id="infoSys"><translation>Systolic</translation></message>
    <message id="keep"><translation>&amp;Keep</translation></message>
    <message id="keysCloseMonitorBar"><translation>Close the monitor’s bar</translation></message>
    <message id="keysFirstLast"><translation>First, last readings</translation></message>
    <message id="keysFromReading"><translation>From reading to reading</translation></message>
    <message id="keysKey"><translation>Key</translation></message>
    <message id="keysManualHint"><translation>Open the manual (F1).</translation></message>
    <message id="keysMovePeriod"><translation>Move the period</translation></message>
    <message id="keysMoveScale"><translation>Move the scale</translation></message>
    <message id="keysPlace"><translation>Where</translation></message>
    <message id="keysTitle"><translation>Keys</translation></message>
    <message id="keysToMonitorBar"><translation>Go to the monitor’s bar</translation></message>
    <message id="keysWhat"><translation>What it does</translation></message>
    <message id="keysWholePeriod"><translation>A whole period back, on</translation></message>
    <message id="keysWidenPeriod"><translation>Widen, narrow the period</translation></message>
    <message id="languageNotSaved"><translation>The language was not changed; the other settings are stored. %1</translation></message>
    <message id="lastDownload"><translation>Last download</translation></message>
    <message id="lastDownloadNone"><translation>none</translation></message>
    <message id="leaveOutAction"><translation>Leave Out…</translation></message>
    <message id="leaveOutButton"><translation>&amp;Leave Out</translation></message>
    <message id="leaveOutExample"><translation>such as: cuff was loose</translation></message>
    <message id="leaveOutExplained"><translation>%1: to be left out of averages, statistics and pictures. What is left out stays in the list, struck through, with its reason, and can be taken in again.</translation></message>
    <message id="leaveOutNoReason"><translation>Please give a reason.</translation></message>
    <message id="leaveOutReason"><translation>&amp;Reason:</translation></message>
    <message id="leaveOutTitle"><translation>Leave Out</translation></message>
    <message id="limitsHome"><translation>%1/%2 (at home)</translation></message>
    <message id="limitsLow"><translation>%1/%2 (stricter)</translation></message>
    <message id="limitsNotKept"><translation>The limits hold until the program ends. They could not be kept for the next start: %1</translation></message>
    <message id="limitsOffice"><translation>%1/%2 (at a practice)</translation></message>
    <message id="limitsOwn"><translation>own limits</translation></message>
    <message id="mainMenu"><translation>Main menu</translation></message>
    <message id="manualChapters"><translation>Chapters</translation></message>
    <message id="manualTitle"><translation>Manual</translation></message>
    <message id="map"><translation>MAP</translation></message>
    <message id="menuAbout"><translation>&amp;About ZEL</translation></message>
    <message id="menuBackups"><translation>&amp;Backups …</translation></message>
    <message id="menuCopyRows"><translation>Copy rows</translation></message>
    <message id="menuDeleteComment"><translation>Delete comment</translation></message>
    <message id="menuDeletePatient"><translation>Delete patient</translation></message>
    <message id="menuDownload"><translation>Download readings</translation></message>
    <message id="menuDownloads"><translation>Downloads …</translation></message>
    <message id="menuEdit"><translation>&amp;Edit</translation></message>
    <message id="menuExportFhir"><translation>&amp;Export patient as FHIR …</translation></message>
    <message id="menuFewerDays"><translation>Fewer days</translation></message>
    <message id="menuFile"><translation>&amp;File</translation></message>
    <message id="menuFindPatient"><translation>Find patient</translation></message>
    <message id="menuHelp"><translation>&amp;Help</translation></message>
    <message id="menuKeys"><translation>&amp;Keys</translation></message>
    <message id="menuManual"><translation>&amp;Manual</translation></message>
    <message id="menuMoreDays"><translation>More days</translation></message>
    <message id="menuNewPatient"><translation>New patient</translation></message>
    <message id="menuPrint"><translation>&amp;Print …</translation></message>
    <message id="menuQuit"><translation>&amp;Quit</translation></message>
    <message id="menuRedo"><translation>&amp;Redo</translation></message>
    <message id="menuRedoStep"><translation>&amp;Redo %1</translation></message>
    <message id="menuSavePatient"><translation>Save patient</translation></message>
    <message id="menuSavePdf"><translation>Save as P&amp;DF …</translation></message>
    <message id="menuSelectRows"><translation>Select all rows</translation></message>
    <message id="menuSendID"><translation>Send ID to the monitor</translation></message>
    <message id="menuSettings"><translation>&amp;Settings …</translation></message>
    <message id="menuTimeChart"><translation>Chart over time</translation></message>
    <message id="menuUndo"><translation>&amp;Undo</translation></message>
    <message id="menuUndoStep"><translation>&amp;Undo %1</translation></message>
    <message id="menuView"><translation>Vie&amp;w</translation></message>
    <message id="minusDay"><translation>Fewer days: one fewer at each end of the period</translation></message>
    <message id="minusDayHint"><translation>Fewer days: one fewer at each end of the period (−)</translation></message>
    <message id="mm dd yyyy"><translation>mm dd yyyy</translation></message>
    <message id="monitorChangedMeanwhile"><translation>The monitor has been pulled out or changed meanwhile; nothing was downloaded.</translation></message>
    <message id="monitorClock"><translation>Clock</translation></message>
    <message id="monitorConnected"><translation>Monitor connected</translation></message>
    <message id="monitorConnectedID"><translation>The monitor holds the ID %1. Press Download to fetch the readings for this patient.</translation></message>
    <message id="monitorCounting"><translation>Asking the monitor for its readings. This can take up to 20 seconds …</translation></message>
    <message id="monitorDownloading"><translation>Downloading readings …</translation></message>
    <message id="monitorErasing"><translation>Emptying the monitor …</translation></message>
    <message id="monitorGreeting"><translation>Reading the monitor’s clock and ID …</translation></message>
    <message id="monitorHoldsNone"><translation>The monitor holds no ID now.</translation></message>
    <message id="monitorHoldsOther"><translation>The monitor now holds the ID %1, which belongs to no patient here.</translation></message>
    <message id="monitorHoldsPatient"><translation>The monitor now holds the ID %1, of %2.</translation></message>
    <message id="monitorHoldsReadings" numerus="yes"><translation><numerusform>It holds %n reading.</numerusform><numerusform>It holds %n readings.</numerusform></translation></message>
    <message id="monitorHoldsUnknown"><translation>Which ID the monitor holds now could not be read.</translation></message>
    <message id="monitorID"><translation>ID</translation></message>
    <message id="monitorIDSimilar"><translation>The ID %1 of %2 looks much like it, but is another one.</translation></message>
    <message id="monitorLooking"><translation>Looking for a monitor …</translation></message>
    <message id="monitorNotAnswering"><translation>Attached, but not answering as it should. %1</translation></message>
    <message id="monitorNotConnected"><translation>Not connected. Attach the monitor to a USB port.</translation></message>
    <message id="monitorPanel"><translation>Monitor</translation></message>
    <message id="monitorReadingsUnknown"><translation>How many readings it holds could not be read.</translation></message>
    <message id="monitorReady"><translation>Connected</translation></message>
    <message id="monitorSendingID"><translation>Writing the ID into the monitor …</translation></message>
    <message id="monitorSettingClock"><translation>Setting the monitor’s clock …</translation></message>
    <message id="monitorState"><translation>State</translation></message>
    <message id="monitorTrouble"><translation>Connected, but the last exchange failed and is being tried again. %1</translation></message>
    <message id="monitorWithoutID"><translation>The connected monitor holds no ID. Choose a patient and press “Send ID” to make it this patient’s monitor.</translation></message>
    <message id="newIDFromDevice"><translation>The monitor holds the ID %1, which belongs to no patient here. Add a patient with this ID, or choose a patient and press “Send ID”.</translation></message>
    <message id="NewPatient"><translation>New patient</translation></message>
    <message id="newPatientButton"><translation>&amp;New</translation></message>
    <message id="newPatientHint"><translation>Enter a new patient (Ctrl+N).</translation></message>
    <message id="newPatientWithID"><translation>New patient with this ID</translation></message>
    <message id="newReadingAction"><translation>New Reading…</translation></message>
    <message id="newReadingHint"><translation>Type in a reading that no monitor of yours has stored (Ctrl+N).</translation></message>
    <message id="newReadingTitle"><translation>New Reading</translation></message>
    <message id="nextComment"><translation>Next comment</translation></message>
    <message id="nextHint"><translation>Next page (Page Down)</translation></message>
    <message id="nextPage"><translation>Next page</translation></message>
    <message id="no"><translation>&amp;No</translation></message>
    <message id="noCommentPage"><translation>No comments</translation></message>
    <message id="noCommentPageAdvice"><translation>This patient has no comments yet. They are placed on the chart.</translation></message>
    <message id="noComments"><translation>No comment yet. Comments are placed on the chart.</translation></message>
    <message id="NoData"><translation>No readings yet</translation></message>
    <message id="NoDataAdvice"><translation>Connect the monitor, choose the patient on the Patients page and press Download, or type in a reading with Ctrl+N.</translation></message>
    <message id="noDisplay"><translation>there is no display to open a window on. Start zel in a desktop session, or use its commands that need no window: see zel --help</translation></message>
    <message id="noFiles"><translation>No XML files in this folder</translation></message>
    <message id="noFilesAdvice"><translation>Choose the folder that the patients were exported to.</translation></message>
    <message id="noHome"><translation>the environment variable HOME names no folder (an absolute path), so there is no place for the data.</translation></message>
    <message id="noID"><translation>none</translation></message>
    <message id="none"><translation>none</translation></message>
    <message id="noneInPeriod"><translation>No readings in this period</translation></message>
    <message id="noneInPeriodAdvice"><translation>Pick other dates above, or choose All and Whole day. Readings without a date are shown when Undated readings is ticked, too.</translation></message>
    <message id="nonePrintedAdvice"><translation>Close this window and pick other dates on the page Readings or Chart, or choose All and Whole day there. Readings without a date are printed when Undated readings is ticked.</translation></message>
    <message id="noPage"><translation>No page</translation></message>
    <message id="noPatientFound"><translation>No patient found</translation></message>
    <message id="noPatientFoundAdvice"><translation>No name and no ID holds what is searched for.</translation></message>
    <message id="noPatientSelected"><translation>No patient selected</translation></message>
    <message id="noPrinterNote"><translation>This computer knows no printer. You can save the pages as a PDF, or set up a printer in the system’s settings.</translation></message>
    <message id="NoPrnter"><translation>No printer</translation></message>
    <message id="NoPrnterMsg"><translation>This computer knows no printer, so nothing can be printed. Please set one up in the system’s settings and try again, or save the pages as a PDF.</translation></message>
    <message id="notes"><translation>Notes</translation></message>
    <message id="notKnown"><translation>–</translation></message>
    <message id="noValue"><translation>n.a.</translation></message>
    <message id="ok"><translation>&amp;OK</translation></message>
    <message id="openCalendar"><translation>Open the calendar</translation></message>
    <message id="ownDia"><translation>Own diastolic limit in mmHg, 0 for none</translation></message>
    <message id="ownSys"><translation>Own systolic limit in mmHg, 0 for none</translation></message>
    <message id="pad"><translation>PAD</translation></message>
    <message id="pageChart"><translation>Chart</translation></message>
    <message id="pagePatients"><translation>Patients</translation></message>
    <message id="pageReadings"><translation>Readings</translation></message>
    <message id="pageTabs"><translation>Pages</translation></message>
    <message id="pageText"><translation>%1/%2</translation></message>
    <message id="patientCount" numerus="yes"><translation><numerusform>%n patient</numerusform><numerusform>%n patients</numerusform></translation></message>
    <message id="patientDeleted"><translation>%1 has been deleted.</translation></message>
    <message id="patientEditor"><translation>Data of the patient</translation></message>
    <message id="patientGone"><translation>%1 is no longer in the data file: another program removed this patient, or a step was undone here. What you typed is still here, and Save adds the patient again.</translation></message>
    <message id="patientHeading"><translation>%1 %2 (ID %3)</translation></message>
    <message id="patientID"><translation>ID</translation></message>
    <message id="patientIDOnly"><translation>ID %1</translation></message>
    <message id="patientIDTwice"><translation>The data file holds more than one patient with the ID %1. They cannot be told apart, so none of them is changed or deleted.</translation></message>
    <message id="patientList"><translation>List of patients</translation></message>
    <message id="patientName"><translation>Name</translation></message>
    <message id="patientNameless"><translation>Patient without a name</translation></message>
    <message id="patientPartlySaved"><translation>Not all of the data of %1 could be stored: the data file has no place for some of it. What could not be stored still stands in the fields.</translation></message>
    <message id="patientRefused"><translation>Nothing was saved yet. Please correct what is marked:
%1</translation></message>
    <message id="patientReplaced"><translation>%1 is no longer in the data file: another program removed this patient. Another patient is shown now.</translation></message>
    <message id="patientSaved"><translation>%1 has been saved.</translation></message>
    <message id="patientsDetail"><translation>Choose a patient, or enter a new one.</translation></message>
    <message id="patientsInputFields"><translation>Family name, given name and ID are needed. Nothing was saved yet; please fill in what is marked.</translation></message>
    <message id="patientTotal"><translation>Patients</translation></message>
    <message id="pdfChart"><translation>chart</translation></message>
    <message id="pdfComments"><translation>comments</translation></message>
    <message id="pdfCorrelation"><translation>correlation</translation></message>
    <message id="pdfFiles"><translation>PDF files (*.pdf)</translation></message>
    <message id="pdfHistogram"><translation>distribution</translation></message>
    <message id="pdfProfile"><translation>patient profile</translation></message>
    <message id="pdfReadings"><translation>readings</translation></message>
    <message id="pdfStatistics"><translation>statistics and readings</translation></message>
    <message id="pdfSummary"><translation>summary</translation></message>
    <message id="pdfTrend"><translation>trend</translation></message>
    <message id="periodBar"><translation>Period and readings to show</translation></message>
    <message id="periodBegin"><translation>First day of the period</translation></message>
    <message id="periodEnd"><translation>Last day of the period</translation></message>
    <message id="periodFrom"><translation>Fr&amp;om</translation></message>
    <message id="periodTo"><translation>&amp;to</translation></message>
    <message id="personalData"><translation>Personal data</translation></message>
    <message id="pp"><translation>PP</translation></message>
    <message id="previewView"><translation>Page preview</translation></message>
    <message id="previousComment"><translation>Previous comment</translation></message>
    <message id="previousHint"><translation>Previous page (Page Up)</translation></message>
    <message id="previousPage"><translation>Previous page</translation></message>
    <message id="print"><translation>Print</translation></message>
    <message id="printAddAddress"><translation>Print the practitioner’s details at the foot of each page</translation></message>
    <message id="printButton"><translation>&amp;Print</translation></message>
    <message id="printDetails"><translation>Practitioner’s &amp;details</translation></message>
    <message id="printDetailsHint"><translation>Prints the practitioner’s lines from the settings at the foot of each page.</translation></message>
    <message id="printDone"><translation>Handed over to the printer %1</translation></message>
    <message id="printer"><translation>Printer</translation></message>
    <message id="printerButton"><translation>P&amp;rinter …</translation></message>
    <message id="printerGone"><translation>The printer “%1” is not there any more, so nothing was printed. Please check that it is switched on and connected, or choose another one.</translation></message>
    <message id="printerLabel"><translation>P&amp;rinter</translation></message>
    <message id="printerShown"><translation>Printer: %1</translation></message>
    <message id="printFailed"><translation>The pages could not be handed over whole to the printer “%1”. The job was taken back, and nothing is printed. Please check its queue and that the disk is not full, then try again.</translation></message>
    <message id="printNoData"><translation>There is nothing to print: this section holds no data for this patient and period.</translation></message>
    <message id="printNoPatient"><translation>There is no patient whose report could be printed. Please choose one, or enter and save a new one first.</translation></message>
    <message id="printOption"><translation>Section to print</translation></message>
    <message id="printOptionLabel"><translation>&amp;Section</translation></message>
    <message id="privacyAsked"><translation>Other users of this computer can read %1.

Shall they be kept out? Only the permissions of the data file, of its folder and of its copies are changed.</translation></message>
    <message id="privacyAskedMore"><translation>%1 and %2 more</translation></message>
    <message id="privacyMended"><translation>Only you can read the data file and its copies now.</translation></message>
    <message id="privacyTitle"><translation>Others can read the patients' data</translation></message>
    <message id="programName"><translation>ZEL</translation></message>
    <message id="programPurpose"><translation>Blood pressure readings, from the monitor to your records</translation></message>
    <message id="programVersion"><translation>Version %1</translation></message>
    <message id="ProgressPatientInfo"><translation>%1 %2 (ID %3)</translation></message>
    <message id="ProgressProcessInfo"><translation>%1 of %2 readings</translation></message>
    <message id="pulseChart"><translation>Pulse over time, with the comments</translation></message>
    <message id="pulseScroller"><translation>Move the pulse scale</translation></message>
    <message id="readingDay"><translation>Date</translation></message>
    <message id="readingInWords"><translation>%1 %2, %3/%4, pulse %5</translation></message>
    <message id="readingList"><translation>List of readings</translation></message>
    <message id="readingsCounted"><translation>%1. Counted: %2</translation></message>
    <message id="readingsFromTo"><translation>%1, from %2 to %3</translation></message>
    <message id="readingsListed"><translation>%1. Listed: %2</translation></message>
    <message id="readingsNoted"><translation>%1. %2</translation></message>
    <message id="readingsOn"><translation>%1, on %2</translation></message>
    <message id="readingStored"><translation>Stored: %1.</translation></message>
    <message id="readingStoredOtherHalf"><translation>Stored, outside the time of day shown: %1.</translation></message>
    <message id="readingStoredOutside"><translation>Stored, outside the days shown: %1.</translation></message>
    <message id="readingTime"><translation>Time</translation></message>
    <message id="readingTotal"><translation>Readings of this patient</translation></message>
    <message id="redoFailed"><translation>“%1” was not done again. %2</translation></message>
    <message id="redone"><translation>Done again: %1</translation></message>
    <message id="requiredNote"><translation>* has to be filled in</translation></message>
    <message id="riskFactors"><translation>Risk factors</translation></message>
    <message id="sameID"><translation>The ID %1 belongs to another patient of the list. Nothing was saved yet; please choose another ID.</translation></message>
    <message id="sameIDTitle"><translation>ID taken</translation></message>
    <message id="savedPdf"><translation>Saved as %1</translation></message>
    <message id="saveIt"><translation>&amp;Save</translation></message>
    <message id="saveNot"><translation>&amp;Don’t save</translation></message>
    <message id="SavePatient"><translation>Save patient</translation></message>
    <message id="savePatientButton"><translation>Sa&amp;ve</translation></message>
    <message id="savePatientHint"><translation>Save what was typed (Ctrl+S).</translation></message>
    <message id="savePdf"><translation>Save as PDF</translation></message>
    <message id="savePdfButton"><translation>Save as PD&amp;F …</translation></message>
    <message id="saveReading"><translation>&amp;Save</translation></message>
    <message id="searchPatients"><translation>Search name or ID</translation></message>
    <message id="searchPatientsHint"><translation>Show only the patients whose name or ID holds this (Ctrl+F).</translation></message>
    <message id="selectAllRows"><translation>Select all</translation></message>
    <message id="sendClock"><translation>Set the monitor’s clock to this computer’s time</translation></message>
    <message id="sendClockBusy"><translation>Setting the clock …</translation></message>
    <message id="sendClockButton"><translation>Set the &amp;clock</translation></message>
    <message id="sendID"><translation>Send ID to the monitor</translation></message>
    <message id="sendIDButton"><translation>&amp;Send ID</translation></message>
    <message id="SendIDDataMsg" numerus="yes"><translation><numerusform>It still holds %n reading. Before the ID %1 is written into it: keep this reading for the new ID, or delete it from the monitor for good?</numerusform><numerusform>It still holds %n readings. Before the ID %1 is written into it: keep these readings for the new ID, or delete them from the monitor for good?</numerusform></translation></message>
    <message id="SendIDDataTitle"><translation>Readings in the monitor</translation></message>
    <message id="sendIDFailed"><translation>Sending the ID to the monitor failed. %1</translation></message>
    <message id="sendIDFailedErased"><translation>The readings in the monitor were deleted, but sending the ID to it failed. %1</translation></message>
    <message id="sendIDHint"><translation>Write this patient’s ID into the connected monitor, which holds another one or none.</translation></message>
    <message id="settingCancel"><translation>Close without saving</translation></message>
    <message id="settingData"><translation>Patient data</translation></message>
    <message id="settingDate"><translation>Date format</translation></message>
    <message id="settingDateLabel"><translation>&amp;Date format</translation></message>
    <message id="settingDia"><translation>Diastolic limit in mmHg</translation></message>
    <message id="settingDiaLabel"><translation>Di&amp;astolic</translation></message>
    <message id="settingDisplay"><translation>Display</translation></message>
    <message id="settingErase"><translation>Empty the monitor after each download</translation></message>
    <message id="settingEraseButton"><translation>Empt&amp;y the monitor after a download</translation></message>
    <message id="settingEraseHint"><translation>Its readings are deleted from the monitor once all of them are safely stored here.</translation></message>
    <message id="settingLanguage"><translation>Language</translation></message>
    <message id="settingLanguageLabel"><translation>&amp;Language</translation></message>
    <message id="settingLanguageSystem"><translation>As the system</translation></message>
    <message id="settingLanguageWhen"><translation>Another language is shown from the next start on.</translation></message>
    <message id="settingLimits"><translation>Blood pressure limits</translation></message>
    <message id="settingMAP"><translation>Show the mean arterial pressure</translation></message>
    <message id="settingMAPButton"><translation>&amp;Mean arterial pressure (MAP)</translation></message>
    <message id="settingOK"><translation>Save the settings</translation></message>
    <message id="settingPhysician"><translation>Practitioner, for the foot of printed reports</translation></message>
    <message id="settingPhysicianTitle"><translation>Practitioner</translation></message>
    <message id="settingPhysicianUse"><translation>Stands at the foot of printed reports, where the print window asks for it.</translation></message>
    <message id="settingPP"><translation>Show the pulse pressure</translation></message>
    <message id="settingPPButton"><translation>&amp;Pulse pressure (PP)</translation></message>
    <message id="settingPPorMAP"><translation>Show with each reading</translation></message>
    <message id="settings"><translation>Settings</translation></message>
    <message id="settingsButton"><translation>Settings</translation></message>
    <message id="settingsHint"><translation>Settings, export and import (Ctrl+,)</translation></message>
    <message id="settingsNotSaved"><translation>The settings were not saved. %1</translation></message>
    <message id="settingsPartlySaved"><translation>Not all of the settings could be stored: the data file has no place for some of them.</translation></message>
    <message id="settingSys"><translation>Systolic limit in mmHg</translation></message>
    <message id="settingSysLabel"><translation>&amp;Systolic</translation></message>
    <message id="settingTime"><translation>Time format</translation></message>
    <message id="settingTimeLabel"><translation>&amp;Time format</translation></message>
    <message id="settingUnits"><translation>Units of weight and height</translation></message>
    <message id="settingUnitsLabel"><translation>&amp;Units</translation></message>
    <message id="settingWHO"><translation>Use the limits of the World Health Organization</translation></message>
    <message id="settingWHOButton"><translation>&amp;WHO limits (140/90)</translation></message>
    <message id="settingWHOHint"><translation>Sets both limits to those of the World Health Organization: 140 and 90 mmHg.</translation></message>
    <message id="show afib readings"><translation>Show AFib</translation></message>
    <message id="show ihd readings"><translation>Show IHD</translation></message>
    <message id="show pad readings"><translation>Show PAD</translation></message>
    <message id="showCorrelation"><translation>Correlation</translation></message>
    <message id="showGraph"><translation>Chart</translation></message>
    <message id="showHistogram"><translation>Histogram</translation></message>
    <message id="showMam"><translation>Show MAM</translation></message>
    <message id="showTrend"><translation>Trend</translation></message>
    <message id="sideButton"><translation>Statistics and comments</translation></message>
    <message id="sideColumn"><translation>Monitor and data</translation></message>
    <message id="sideHint"><translation>Show or hide the statistics and the comments beside the readings.</translation></message>
    <message id="spokenDia"><translation>Diastolic pressure, mmHg</translation></message>
    <message id="spokenFrequent"><translation>%1: most often %2 to %3, in %4 percent of the readings.</translation></message>
    <message id="spokenMap"><translation>Mean arterial pressure, mmHg</translation></message>
    <message id="spokenMeasure"><translation>%1: average %2, lowest %3, highest %4.</translation></message>
    <message id="spokenPP"><translation>Pulse pressure, mmHg</translation></message>
    <message id="spokenPulse"><translation>Pulse per minute</translation></message>
    <message id="spokenSys"><translation>Systolic pressure, mmHg</translation></message>
    <message id="statisticAll"><translation>All days with readings</translation></message>
    <message id="statisticAllHint"><translation>Take the whole time from the first reading to the last. To take a part of it, pick other dates above.</translation></message>
    <message id="statisticPanel"><translation>Statistics</translation></message>
    <message id="statisticWholeDay"><translation>All times of day: %1</translation></message>
    <message id="statusBroken"><translation>Monitor attached, connection fails</translation></message>
    <message id="statusConnected"><translation>Monitor connected</translation></message>
    <message id="statusDamaged"><translation>Monitor attached, damaged answers</translation></message>
    <message id="statusLocked"><translation>Monitor attached, no permission</translation></message>
    <message id="statusNotConnected"><translation>No monitor</translation></message>
    <message id="statusRefusing"><translation>Monitor attached, refuses commands</translation></message>
    <message id="statusSilent"><translation>Monitor attached, but silent</translation></message>
    <message id="stepProgress"><translation>%1 of %2 files</translation></message>
    <message id="storedNotReadBack"><translation>The change is stored, but the data file could not be read afterwards. %1</translation></message>
    <message id="Synchronization"><translation>Set the monitor’s clock?</translation></message>
    <message id="synctimeAsk"><translation>The monitor’s clock is %1. Set it to this computer’s time, so that new readings get the right date and time?</translation></message>
    <message id="tabChart"><translation>&amp;Chart</translation></message>
    <message id="tabHint"><translation>%1 (Ctrl+%2)</translation></message>
    <message id="tabPatients"><translation>&amp;Patients</translation></message>
    <message id="tabReadings"><translation>&amp;Readings</translation></message>
    <message id="takeInAction"><translation>Take In Again</translation></message>
    <message id="timeScroller"><translation>Move the period through the readings</translation></message>
    <message id="timeScrollerHint"><translation>Move the period through the readings. The mouse wheel over the chart does so too; with Ctrl, turned away from you, it shows fewer days, closer, and turned to you more of them.</translation></message>
    <message id="TimeSync"><translation>Monitor’s clock</translation></message>
    <message id="TimeSyncMsg"><translation>Setting the monitor’s clock: %1</translation></message>
    <message id="timeUnread"><translation>“%1” cannot be read as a time: type it like %2 or %3.</translation></message>
    <message id="trendApart"><translation>Mornings and evenings apart</translation></message>
    <message id="trendApartHint"><translation>Draw the readings before noon and those from noon on as lines of their own.</translation></message>
    <message id="trendApartNeedsDay"><translation>Only one half of the day is shown, so there is nothing to draw apart. Press Whole day first; then this can be chosen.</translation></message>
    <message id="trendDays"><translation>%1 to %2</translation></message>
    <message id="trendFigures"><translation>%1 (%2 to %3)</translation></message>
    <message id="trendInfoEvening"><translation>%1, from noon on</translation></message>
    <message id="trendInfoMorning"><translation>%1, before noon</translation></message>
    <message id="trendKeys"><translation>%1, %2. Left and right show the figures of one point after the other, Home and End those of the first and the last one.</translation></message>
    <message id="trendPeriod"><translation>Days</translation></message>
    <message id="trendReadings"><translation>Readings</translation></message>
    <message id="trendView"><translation>Trend of systolic and diastolic pressure and pulse</translation></message>
    <message id="undoDropped"><translation>

So this step is left out from now on; the others are not concerned.</translation></message>
    <message id="undoFailed"><translation>“%1” was not undone. %2</translation></message>
    <message id="undone"><translation>Undone: %1</translation></message>
    <message id="unitMmHg"><translation>mmHg</translation></message>
    <message id="unitPulse"><translation>beats per minute</translation></message>
    <message id="unsavedDelete"><translation>Delete what was typed for %1? If not, you are asked again at the next start.</translation></message>
    <message id="unsavedFound"><translation>When the program was ended, what was being typed for %1 could not be saved. Go on with it now?</translation></message>
    <message id="unsavedTitle"><translation>Not saved yet</translation></message>
    <message id="usualColumns"><translation>Usual columns and order</translation></message>
    <message id="valueHigh"><translation>%1, at or above the limit</translation></message>
    <message id="valueMmHg"><translation>%1 mmHg</translation></message>
    <message id="valuePulse"><translation>%1 per minute</translation></message>
    <message id="valueWithUnit"><translation>%1, %2</translation></message>
    <message id="viewAll"><translation>&amp;All</translation></message>
    <message id="viewAllHint"><translation>All readings, from the first day to the last.</translation></message>
    <message id="viewAM"><translation>A&amp;M</translation></message>
    <message id="viewAMHint"><translation>The readings before noon, of the days shown.</translation></message>
    <message id="viewBoth"><translation>Who&amp;le day</translation></message>
    <message id="viewBothHint"><translation>The readings of all times of day, of the days shown.</translation></message>
    <message id="viewChoiceNeeded"><translation>Undated readings belong to no day, and can be shown with All only. Press All first; then this can be chosen.</translation></message>
    <message id="viewDays"><translation>Days shown</translation></message>
    <message id="viewHalf"><translation>Time of day shown</translation></message>
    <message id="viewLast"><translation>%1 days</translation></message>
    <message id="viewLastHint"><translation>The %1 days up to the last one with a reading.</translation></message>
    <message id="viewLastName"><translation>Last %1 days</translation></message>
    <message id="viewPM"><translation>PM</translation></message>
    <message id="viewPMHint"><translation>The readings from noon on, of the days shown.</translation></message>
    <message id="viewTabs"><translation>Views</translation></message>
    <message id="viewWeek"><translation>Measuring wee&amp;k</translation></message>
    <message id="viewWeekHint"><translation>The seven days that are averaged as the measuring week.</translation></message>
    <message id="weekBelow"><translation>Below %1 (to a tenth: %2)</translation></message>
    <message id="weekDays" numerus="yes"><translation><numerusform>%1 on %n day</numerusform><numerusform>%1 on %n days</numerusform></translation></message>
    <message id="weekEnd"><translation>Last day of the measuring week</translation></message>
    <message id="weekEvenings"><translation>PM %1</translation></message>
    <message id="weekExcluded" numerus="yes"><translation><numerusform>%n left out</numerusform><numerusform>%n left out</numerusform></translation></message>
    <message id="weekExcludedLater" numerus="yes"><translation><numerusform>%n of later days left out</numerusform><numerusform>%n of later days left out</numerusform></translation></message>
    <message id="weekFirstDay" numerus="yes"><translation><numerusform>%n of the first day not counted</numerusform><numerusform>%n of the first day not counted</numerusform></translation></message>
    <message id="weekMean"><translation>%1 mmHg</translation></message>
    <message id="weekMeanHint"><translation>Mean %1/%2 mmHg, pulse %3</translation></message>
    <message id="weekMissing"><translation>Incomplete, needs %1</translation></message>
    <message id="weekMornings"><translation>AM %1</translation></message>
    <message id="weekNoMean"><translation>No average</translation></message>
    <message id="weekOtherZone" numerus="yes"><translation><numerusform>%n reading was stored in another time zone; its time is that of this computer</numerusform><numerusform>%n readings were stored in another time zone; times are those of this computer</numerusform></translation></message>
    <message id="weekPanel"><translation>Measuring week</translation></message>
    <message id="weekPulse"><translation>pulse %1</translation></message>
    <message id="weekReached"><translation>At or above %1 (to a tenth: %2)</translation></message>
    <message id="weekReadings" numerus="yes"><translation><numerusform>%n reading</numerusform><numerusform>%n readings</numerusform></translation></message>
    <message id="weekRule"><translation>Rule of the average</translation></message>
    <message id="weekRuleAha"><translation>AHA</translation></message>
    <message id="weekRuleEsh"><translation>ESH</translation></message>
    <message id="weekRuleHint"><translation>ESH: first day left out, 12 readings on 2 more days or more
NICE: first day left out, 2 readings each morning and evening of 3 more days or more
AHA: 12 readings on 3 days or more</translation></message>
    <message id="weekRuleNice"><translation>NICE</translation></message>
    <message id="weekTo"><translation>to</translation></message>
    <message id="weekUnmeasured" numerus="yes"><translation><numerusform>%n without pressures not counted</numerusform><numerusform>%n without pressures not counted</numerusform></translation></message>
    <message id="weightRefusedKg"><translation>Please give a number of 0.2 to 1000 kg, such as 72.5.</translation></message>
    <message id="weightRefusedLb"><translation>Please give a number of 0.5 to 2200 lb, such as 160.5.</translation></message>
    <message id="windowNotForgotten"><translation>The file %1 keeps how the window was left. It could not be removed.</translation></message>
    <message id="windowNotReset"><translation>ZEL is open already for this data file; its window has been brought to the front. Please close it, and start again with --reset-view.</translation></message>
    <message id="windowShown"><translation>ZEL is open already for this data file; its window has been brought to the front.</translation></message>
    <message id="windowSilent"><translation>ZEL is open already for this data file, but its window does not answer. It may be busy with a slow disk or printer, or it hangs: if it does not go on in a minute, end it in your computer’s system monitor.

Open another window beside it? That does no harm: what both save is kept.</translation></message>
    <message id="yes"><translation>&amp;Yes</translation></message>
    <message id="yyyy mm dd"><translation>yyyy mm dd</translation></message>
</context>
<context>
    <name>chart</name>
    <message id="abovePoints" numerus="yes"><translation><numerusform>%n point reaches above the scale</numerusform><numerusform>%n points reach above the scale</numerusform></translation></message>
    <message id="aboveScale" numerus="yes"><translation><numerusform>%n reading above the scale</numerusform><numerusform>%n readings above the scale</numerusform></translation></message>
    <message id="aboveScaleShort"><translation>%1 above</translation></message>
    <message id="average"><translation>Average</translation></message>
    <message id="belowPoints" numerus="yes"><translation><numerusform>%n point reaches below the scale</numerusform><numerusform>%n points reach below the scale</numerusform></translation></message>
    <message id="belowScale" numerus="yes"><translation><numerusform>%n reading below the scale</numerusform><numerusform>%n readings below the scale</numerusform></translation></message>
    <message id="belowScaleShort"><translation>%1 below</translation></message>
    <message id="chartExcluded" numerus="yes"><translation><numerusform>○ %n left out</numerusform><numerusform>○ %n left out</numerusform></translation></message>
    <message id="dia"><translation>DIA</translation></message>
    <message id="dia too high"><translation>Diastolic too high</translation></message>
    <message id="evening"><translation>Evening</translation></message>
    <message id="max"><translation>Max</translation></message>
    <message id="min"><translation>Min</translation></message>
    <message id="mmHg"><translation>mmHg</translation></message>
    <message id="monthOfYear"><translation>%1 %2</translation></message>
    <message id="morning"><translation>Morning</translation></message>
    <message id="noEveningReadings"><translation>No readings from noon on in this period</translation></message>
    <message id="noMorningReadings"><translation>No readings before noon in this period</translation></message>
    <message id="noReadingsInPeriod"><translation>No readings in this period</translation></message>
    <message id="normal"><translation>Normal</translation></message>
    <message id="P/min"><translation>1/min</translation></message>
    <message id="pulse"><translation>Pulse</translation></message>
    <message id="sys"><translation>SYS</translation></message>
    <message id="sys and dia too high"><translation>Both too high</translation></message>
    <message id="sys too high"><translation>Systolic too high</translation></message>
    <message id="trendBand"><translation>%1; band: 10th to 90th percentile, or all of fewer than 5 readings</translation></message>
    <message id="trendBandAll"><translation>%1; band: all readings</translation></message>
    <message id="trendBandShort"><translation>%1; band: 10th to 90th percentile</translation></message>
    <message id="trendCoveredComments" numerus="yes"><translation><numerusform>%n comment lies over another</numerusform><numerusform>%n comments lie over others</numerusform></translation></message>
    <message id="trendDay"><translation>Median of each day</translation></message>
    <message id="trendEvening"><translation>%1 evening</translation></message>
    <message id="trendLinked"><translation>%1; dotted: no readings between</translation></message>
    <message id="trendMonth"><translation>Median of each month</translation></message>
    <message id="trendMoreComments" numerus="yes"><translation><numerusform>%n more comment has no room here</numerusform><numerusform>%n more comments have no room here</numerusform></translation></message>
    <message id="trendMorning"><translation>%1 morning</translation></message>
    <message id="trendWeek"><translation>Median of each week</translation></message>
    <message id="trendWordlessComments" numerus="yes"><translation><numerusform>%n more comment without its text</numerusform><numerusform>%n more comments without their text</numerusform></translation></message>
</context>
<context>
    <name>report</name>
    <message id="appDescrption"><translation>Blood-pressure report by ZEL</translation></message>
    <message id="comment"><translation>Comments</translation></message>
    <message id="comments"><translation>Comments</translation></message>
    <message id="correlation"><translation>Systolic against diastolic pressure</translation></message>
    <message id="date"><translation>Date</translation></message>
    <message id="formAddress"><translation>Address</translation></message>
    <message id="formAge"><translation>Age</translation></message>
    <message id="formBirth"><translation>Date of Birth</translation></message>
    <message id="formCholesterol"><translation>Cholesterol(mg/dL)</translation></message>
    <message id="formDay"><translation>Day</translation></message>
    <message id="formDiabetic"><translation>Diabetic</translation></message>
    <message id="formFamilyHistory"><translation>Family history</translation></message>
    <message id="formFamilyName"><translation>Family Name</translation></message>
    <message id="formGivenNames"><translation>Given Name(s)</translation></message>
    <message id="formHeightCm"><translation>Heigt(cm)</translation></message>
    <message id="formHeightFtIn"><translation>Heigt(ft/in)</translation></message>
    <message id="formID"><translation>ID</translation></message>
    <message id="formMonth"><translation>Month</translation></message>
    <message id="formNotes"><translation>Patient Notes</translation></message>
    <message id="formPersonal"><translation>Personal Data</translation></message>
    <message id="formPhoneEmail"><translation>Phone / E-Mail</translation></message>
    <message id="formRisks"><translation>Risk Factor</translation></message>
    <message id="formSex"><translation>Sex</translation></message>
    <message id="formSmoker"><translation>Smoker</translation></message>
    <message id="formWeightKg"><translation>Weight(kg)</translation></message>
    <message id="formWeightLb"><translation>Weight(lb)</translation></message>
    <message id="formYear"><translation>Year</translation></message>
    <message id="formYears" numerus="yes"><translation><numerusform>year</numerusform><numerusform>years</numerusform></translation></message>
    <message id="graph"><translation>Blood-pressure and pulse chart</translation></message>
    <message id="histogram"><translation>Distribution of the readings</translation></message>
    <message id="legendTitle"><translation>%1:</translation></message>
    <message id="mam"><translation>MAM</translation></message>
    <message id="n.a."><translation>n.a.</translation></message>
    <message id="N.A."><translation>N.A.</translation></message>
    <message id="No"><translation>No</translation></message>
    <message id="PatientProfile"><translation>Patient profile</translation></message>
    <message id="reportAllComments"><translation>Comments of all times, not only of this period</translation></message>
    <message id="reportAllTimesOfDay"><translation>%1, all times of day</translation></message>
    <message id="reportAverage"><translation>average of several measurements</translation></message>
    <message id="reportBothAbove"><translation>Both above: %1</translation></message>
    <message id="reportCommentBars"><translation>Bars: comments, by number</translation></message>
    <message id="reportCommentsLeftOut"><translation>A report has room for %1 comments with %2 characters. The latest follow; an export holds all of them.</translation></message>
    <message id="reportContinued"><translation>%1, continued</translation></message>
    <message id="reportCorrelationLimits" numerus="yes"><translation><numerusform>The line is the limit.</numerusform><numerusform>The lines are the limits.</numerusform></translation></message>
    <message id="reportCorrelationNote"><translation>Each square is a reading, or several with the same values, in mmHg.</translation></message>
    <message id="reportCutComments"><translation>…: in full in the section Comments</translation></message>
    <message id="reportCutPractitioner"><translation>…: cut here; the settings hold the whole text.</translation></message>
    <message id="reportCutTexts"><translation>…: cut here; the whole text stands on the next page.</translation></message>
    <message id="reportDays" numerus="yes"><translation><numerusform>%n day</numerusform><numerusform>%n days</numerusform></translation></message>
    <message id="reportDemonstration"><translation>Demonstration: invented data</translation></message>
    <message id="reportDiaAbove"><translation>Only diastolic above: %1</translation></message>
    <message id="reportDocument"><translation>Blood-pressure report: %1 (%2)</translation></message>
    <message id="reportDownloadDay"><translation>↓ yellow: download</translation></message>
    <message id="reportEarlierComments" numerus="yes"><translation><numerusform>%n earlier comment is not printed</numerusform><numerusform>%n earlier comments are not printed</numerusform></translation></message>
    <message id="reportEmptySections"><translation>Empty, so not in this report: %1</translation></message>
    <message id="reportEveningOnly"><translation>Only readings from noon on are shown</translation></message>
    <message id="reportFindingUnknown"><translation>N.A.: not known</translation></message>
    <message id="reportFound"><translation>detected</translation></message>
    <message id="reportGoesOn"><translation>goes on on the next page</translation></message>
    <message id="reportGraphComments"><translation>Numbered boxes: comments.</translation></message>
    <message id="reportGraphDownloads"><translation>↓: day of a download.</translation></message>
    <message id="reportGraphExcluded"><translation>○: reading left out.</translation></message>
    <message id="reportGraphHiddenLimits" numerus="yes"><translation><numerusform>The limit of %1 lies outside the scale.</numerusform><numerusform>The limits of %1 lie outside the scale.</numerusform></translation></message>
    <message id="reportGraphLimits" numerus="yes"><translation><numerusform>Dashed line: the limit of %1.</numerusform><numerusform>Dashed lines: the limits of %1.</numerusform></translation></message>
    <message id="reportGraphNote"><translation>Upper line: systolic pressure, lower line: diastolic pressure.</translation></message>
    <message id="reportHistogramNote"><translation>The length of a bar is the share of all readings, in percent, that lie within its 10 mmHg or 10 beats per minute.</translation></message>
    <message id="reportKeepLimits" numerus="yes"><translation><numerusform>At or below %1: %2</numerusform><numerusform>At or below the limits of %1: %2</numerusform></translation></message>
    <message id="reportLeftOutReading"><translation>%1 %2   %3/%4 mmHg, pulse %5</translation></message>
    <message id="reportLeftOutTitle" numerus="yes"><translation><numerusform>%n reading left out, and why</numerusform><numerusform>%n readings left out, and why</numerusform></translation></message>
    <message id="reportLimitDia"><translation>%1 mmHg diastolic</translation></message>
    <message id="reportLimits"><translation>%1/%2 mmHg</translation></message>
    <message id="reportLimitSys"><translation>%1 mmHg systolic</translation></message>
    <message id="reportMeasured"><translation>Average in mmHg (readings): %1</translation></message>
    <message id="reportMoreNumbers" numerus="yes"><translation><numerusform>and %n more</numerusform><numerusform>and %n more</numerusform></translation></message>
    <message id="reportMorningOnly"><translation>Only readings before noon are shown</translation></message>
    <message id="reportNoData"><translation>There is nothing to print: the chosen sections hold no data for this patient and period. No file was written.</translation></message>
    <message id="reportNoDate"><translation>n.a: no date</translation></message>
    <message id="reportNoFigures"><translation>n/a: no readings</translation></message>
    <message id="reportNoLimits"><translation>No limits are set.</translation></message>
    <message id="reportNoReading"><translation>n.a.: no reading</translation></message>
    <message id="reportNotFound"><translation>not detected</translation></message>
    <message id="reportNotPainted"><translation>The pages could not be turned into a PDF. No file was written.</translation></message>
    <message id="reportNotWritable"><translation>The file %1 could not be written. Please check that its folder is there and that you may write in it.</translation></message>
    <message id="reportPage"><translation>Page %1 of %2</translation></message>
    <message id="reportPatient"><translation>Patient Name=%1 %2  ID=%3</translation></message>
    <message id="reportPeriod"><translation>From: %1 To: %2</translation></message>
    <message id="reportReadings" numerus="yes"><translation><numerusform>%n reading</numerusform><numerusform>%n readings</numerusform></translation></message>
    <message id="reportStruckThrough"><translation>struck through: left out of all that counts; the reasons stand behind the table</translation></message>
    <message id="reportSysAbove"><translation>Only systolic above: %1</translation></message>
    <message id="reportTextTooLong"><translation>… The rest of this text is not printed: %1 more characters.</translation></message>
    <message id="reportTrendLimits" numerus="yes"><translation><numerusform>Fine straight line: the limit of %1.</numerusform><numerusform>Fine straight lines: the limits of %1.</numerusform></translation></message>
    <message id="reportTrendNote"><translation>Thick lines: medians. A line breaks where there is no reading; dots link its ends across 30 days at most.</translation></message>
    <message id="reportWriteFailed"><translation>Writing the file %1 failed, so there is no new file. Please check that the disk is not full, then try again.</translation></message>
    <message id="summary"><translation>Summary</translation></message>
    <message id="summaryAha"><translation>AHA</translation></message>
    <message id="summaryAll"><translation>All</translation></message>
    <message id="summaryBelow"><translation>Below the threshold of %1 (to a tenth: %2/%3)</translation></message>
    <message id="summaryBorn" numerus="yes"><translation><numerusform>Born %1, %n year</numerusform><numerusform>Born %1, %n years</numerusform></translation></message>
    <message id="summaryBornOn"><translation>Born %1</translation></message>
    <message id="summaryComments"><translation>What changed: comments, newest first</translation></message>
    <message id="summaryComplete"><translation>Complete</translation></message>
    <message id="summaryCut"><translation>…: shortened.</translation></message>
    <message id="summaryDia"><translation>DIA, mmHg</translation></message>
    <message id="summaryEither"><translation>SYS or DIA or both</translation></message>
    <message id="summaryEsh"><translation>ESH</translation></message>
    <message id="summaryEvening"><translation>Evening</translation></message>
    <message id="summaryEvenings"><translation>Evening %1</translation></message>
    <message id="summaryExcluded"><translation>%1 %2  %3/%4: %5</translation></message>
    <message id="summaryFirstDay" numerus="yes"><translation><numerusform>%n of the first day not counted</numerusform><numerusform>%n of the first day not counted</numerusform></translation></message>
    <message id="summaryFlagged" numerus="yes"><translation><numerusform>Arrhythmia flagged (%1): %2 of %n reading</numerusform><numerusform>Arrhythmia flagged (%1): %2 of %n readings</numerusform></translation></message>
    <message id="summaryHigh"><translation>At or above %1</translation></message>
    <message id="summaryHighOf" numerus="yes"><translation><numerusform>%1 of %n reading</numerusform><numerusform>%1 of %n readings</numerusform></translation></message>
    <message id="summaryID"><translation>ID %1</translation></message>
    <message id="summaryIncomplete"><translation>Incomplete, needs %1</translation></message>
    <message id="summaryInFull"><translation>…: in full in %1.</translation></message>
    <message id="summaryLastDays" numerus="yes"><translation><numerusform>Last day: mean (readings)</numerusform><numerusform>Last %n days: mean (readings)</numerusform></translation></message>
    <message id="summaryLeftOut"><translation>Left out</translation></message>
    <message id="summaryMax"><translation>Max</translation></message>
    <message id="summaryMean"><translation>Mean</translation></message>
    <message id="summaryMin"><translation>Min</translation></message>
    <message id="summaryMoreComments" numerus="yes"><translation><numerusform>and %n more comment</numerusform><numerusform>and %n more comments</numerusform></translation></message>
    <message id="summaryMoreExcluded" numerus="yes"><translation><numerusform>and %n more left out</numerusform><numerusform>and %n more left out</numerusform></translation></message>
    <message id="summaryMorning"><translation>Morning</translation></message>
    <message id="summaryMornings"><translation>Morning %1</translation></message>
    <message id="summaryNice"><translation>NICE</translation></message>
    <message id="summaryNoBirth"><translation>Date of birth not given</translation></message>
    <message id="summaryNoComments"><translation>No comments in this period</translation></message>
    <message id="summaryNoDated"><translation>No dated readings</translation></message>
    <message id="summaryNone"><translation>No readings in this period</translation></message>
    <message id="summaryNoneCountsYet"><translation>No reading counts yet</translation></message>
    <message id="summaryNoReason"><translation>no reason given</translation></message>
    <message id="summaryNote"><translation>Measuring week: %1 at or above its threshold. %2 Morning: before noon. %3</translation></message>
    <message id="summaryNotExamined"><translation>Arrhythmia: no reading was examined for it</translation></message>
    <message id="summaryNothingLeftOut"><translation>Every reading is counted</translation></message>
    <message id="summaryNoWeek"><translation>No readings in this week</translation></message>
    <message id="summaryOnDays" numerus="yes"><translation><numerusform>%1 on %n day</numerusform><numerusform>%1 on %n days</numerusform></translation></message>
    <message id="summaryOnOtherDays" numerus="yes"><translation><numerusform>%n on other days</numerusform><numerusform>%n on other days</numerusform></translation></message>
    <message id="summaryOtherComments" numerus="yes"><translation><numerusform>%n comment of other days</numerusform><numerusform>%n comments of other days</numerusform></translation></message>
    <message id="summaryOthers" numerus="yes"><translation><numerusform>%n reading was not examined for it</numerusform><numerusform>%n readings were not examined for it</numerusform></translation></message>
    <message id="summaryOtherZone" numerus="yes"><translation><numerusform>%n counted reading was stored in another time zone; times are those of this computer</numerusform><numerusform>%n counted readings were stored in another time zone; times are those of this computer</numerusform></translation></message>
    <message id="summaryPeriod"><translation>From %1 to %2</translation></message>
    <message id="summaryPulse"><translation>Pulse %1</translation></message>
    <message id="summaryRate"><translation>Pulse, 1/min</translation></message>
    <message id="summaryReached"><translation>At or above the threshold of %1 (to a tenth: %2/%3)</translation></message>
    <message id="summaryReadings"><translation>Readings</translation></message>
    <message id="summaryReasonsInFull"><translation>…: shortened; readings left out: in full in %1.</translation></message>
    <message id="summarySD"><translation>SD</translation></message>
    <message id="summarySys"><translation>SYS, mmHg</translation></message>
    <message id="summaryTable"><translation>Readings of the period (SD: of a sample, n − 1)</translation></message>
    <message id="summaryTrend"><translation>Trend</translation></message>
    <message id="summaryTrendComments"><translation>Trend, and below it the comments by number</translation></message>
    <message id="summaryTrendHidden"><translation>Outside the trend’s scale: %1.</translation></message>
    <message id="summaryTrendLimits"><translation>Fine straight lines in the trend: %1.</translation></message>
    <message id="summaryTrendNumberless" numerus="yes"><translation><numerusform>Trend, and below it the comments by number; %n has no room for its number</numerusform><numerusform>Trend, and below it the comments by number; %n have no room for theirs</numerusform></translation></message>
    <message id="summaryTyped" numerus="yes"><translation><numerusform>Typed in: %1 of %n reading</numerusform><numerusform>Typed in: %1 of %n readings</numerusform></translation></message>
    <message id="summaryWeek"><translation>Measuring week (%1)  %2</translation></message>
    <message id="summaryWeekExcluded" numerus="yes"><translation><numerusform>%n of the week left out</numerusform><numerusform>%n of the week left out</numerusform></translation></message>
    <message id="summaryWeekTyped" numerus="yes"><translation><numerusform>%n of the week typed in</numerusform><numerusform>%n of the week typed in</numerusform></translation></message>
    <message id="summaryWeekUnmeasured" numerus="yes"><translation><numerusform>%n of the week without pressures</numerusform><numerusform>%n of the week without pressures</numerusform></translation></message>
    <message id="summaryWeekZone" numerus="yes"><translation><numerusform>%n stored in another time zone; times are those of this computer</numerusform><numerusform>%n stored in another time zone; times are those of this computer</numerusform></translation></message>
    <message id="SWStatistics"><translation>Statistics and readings</translation></message>
    <message id="table"><translation>Readings</translation></message>
    <message id="time"><translation>Time</translation></message>
    <message id="trend"><translation>Trend of blood pressure and pulse</translation></message>
    <message id="Yes"><translation>Yes</translation></message>
</context>
<context>
    <name>cli</name>
    <message id="CliAddMissing"><translation>--id, --family-name and --given-names go with --add.</translation></message>
    <message id="CliAmAndPm"><translation>Give either --am or --pm, not both.</translation></message>
    <message id="CliBackupUsage"><translation>Say list, create, or restore and a copy's name; or folder and, to change it, the folder's name or --none.</translation></message>
    <message id="CliBadDate"><translation>--%1 needs a day of the calendar as yyyy-MM-dd, not '%2'.</translation></message>
    <message id="CliBadDays"><translation>--last needs a whole number of days from 1 to %2, not '%1'.</translation></message>
    <message id="CliBadField"><translation>The value of --%1 must not be '-', must not begin or end with a blank, and must not contain control characters.</translation></message>
    <message id="CliBadID"><translation>The value of --id must be 1 to 11 plain letters, digits or signs, without accents: more a monitor cannot keep.</translation></message>
    <message id="CliBadPaper"><translation>--paper needs A4 or Letter, not '%1'.</translation></message>
    <message id="CliBadWait"><translation>--wait needs a whole number of seconds from 0 to %1.</translation></message>
    <message id="CliChangeOfNothing"><translation>--change needs at least one of --date, --time, --sys, --dia and --pulse.</translation></message>
    <message id="CliClockUnread"><translation>The monitor's clock could not be read. %1</translation></message>
    <message id="CliClockUnset"><translation>The monitor's clock could not be set. %1</translation></message>
    <message id="CliColumnsForm"><translation>--columns takes the titles of the columns, as in date=Date,time=Time,sys=Systolic,dia=Diastolic,pulse=Pulse; only time may be missing.</translation></message>
    <message id="CliColumnsHelp"><translation>For another program’s table, --columns says what its columns are.</translation></message>
    <message id="CliCountUnread"><translation>The number of readings in the monitor could not be read. %1</translation></message>
    <message id="CliDatesForm"><translation>--dates takes dmy, mdy or ymd, not '%1'.</translation></message>
    <message id="CliDemonstrationMonitor"><translation>These data are a demonstration’s, and take no readings from a real monitor. Give --simulated-monitor.</translation></message>
    <message id="CliDownloadFailed"><translation>The readings could not be downloaded, and nothing was stored. %1 They are still in the monitor: please try again.</translation></message>
    <message id="CliDownloadNotReadBack"><translation>The readings are stored, but the data file could not be read afterwards, so that the monitor was not erased. %1</translation></message>
    <message id="CliDownloadUnsaved"><translation>The downloaded readings could not be stored. %1 They are still in the monitor.</translation></message>
    <message id="CliEmptySections"><translation>Empty, so not in the report: %1</translation></message>
    <message id="CliEraseAfterFailed"><translation>The readings are safely stored, but the monitor's memory could not be erased afterwards. %1 You can erase it with 'zel monitor --erase --yes'.</translation></message>
    <message id="CliEraseAfterUnseen"><translation>The readings are safely stored, but whether the monitor is empty now could not be seen. %1 'zel monitor' shows what it holds.</translation></message>
    <message id="CliEraseFailed"><translation>The monitor's memory could not be erased. %1</translation></message>
    <message id="CliEraseNeedsYes"><translation>--erase removes all readings from the monitor for good. Add --yes if you mean it.</translation></message>
    <message id="CliEraseNoID"><translation>The monitor's memory is erased by giving it its own ID again, but it holds none that it could keep. Please give it one first with 'zel monitor --send-id ID'.</translation></message>
    <message id="CliEraseUnseen"><translation>Whether the monitor's memory is empty now could not be seen. %1</translation></message>
    <message id="CliExcludedLater" numerus="yes"><translation><numerusform>%n reading of later days is left out, too.</numerusform><numerusform>%n readings of later days are left out, too.</numerusform></translation></message>
    <message id="CliExcludedLeftOut" numerus="yes"><translation><numerusform>%n reading of the week is left out.</numerusform><numerusform>%n readings of the week are left out.</numerusform></translation></message>
    <message id="CliFilesMissing"><translation>A file to import is missing.</translation></message>
    <message id="CliFirstDayLeftOut" numerus="yes"><translation><numerusform>%n reading of the first measuring day is not counted.</numerusform><numerusform>%n readings of the first measuring day are not counted.</numerusform></translation></message>
    <message id="CliFolderMissing"><translation>The folder to export to is missing.</translation></message>
    <message id="CliForceReplaces"><translation>--force replaces it.</translation></message>
    <message id="CliFromAfterTo"><translation>The day of --from is after the day of --to.</translation></message>
    <message id="CliHelp"><translation>Usage: zel [--simulated-monitor[=FILE] | --demonstration] [--language TAG] [--reset-view]
       zel COMMAND [OPTION]...

Keeps the readings of automatic blood-pressure monitors, patient by patient.
Without a command a window opens. The commands do the same jobs without one, on the same data file:

  monitor      show the attached monitor, or set its clock or ID, or erase its memory
  patients     list the patients, or add one
  download     store the monitor's readings for a patient
  readings     print a patient's readings
  statistics   print the averages, minima and maxima of a patient's readings
  average      print the average of a measuring week, as guidelines for home readings order it
  report       write a patient's report as a PDF
  export-xml   export all patients, or one, as XML files
  export-csv   export a patient and the readings as a CSV file
  export-fhir  export all patients, or one, for other health records, as FHIR files
  export-table export readings as a table for spreadsheets
  import       take in patients from exported XML files, or readings from tables
  settings     show the settings, or change some
  backup       list the copies of the data file, make one, or go back to one
  privacy      tell whether others can read the data file, or keep them out

Options:
  --simulated-monitor[=FILE]   use a monitor in software, described by FILE or built in, instead of a USB one
  --demonstration              a window with a simulated monitor, over data of its own
  --language TAG               the language of messages and reports, such as de or zh_TW
  --reset-view                 forget how the window was left: place, page, patient, columns, folder
  -h, --help                   show this text; 'zel COMMAND --help' tells about a command
  --version                    show the version

Exit status: 0 done, 1 failed (the reason is on standard error), 2 wrong usage.</translation></message>
    <message id="CliHelpAverage"><translation>Usage: zel average --patient ID [--rule esh|nice|aha] [--to DAY]

Prints the average of a patient's readings in a measuring week, the seven days that end with a day, by the
rule of a guideline: which days and readings count, how many are needed, and the threshold of the average.
Numbers only: what they mean for the patient is for a physician to say.

  rule        esh: 3 days or more, the first one left out, then 12 readings or more; threshold 135/85
              nice: 4 days or more, the first one left out, then 2 readings in the morning and 2 in the
              evening of each day; threshold 135/85
              aha: 3 days or more and 12 readings or more; threshold 130/80
  complete    yes, or no where days or readings are missing; the average is printed all the same
  missing     what is missing
  days        with readings that count
  readings    that count
  sys, dia    in mmHg
  pulse       in beats per minute
  morning     sys/dia of those before noon
  evening     sys/dia of those from noon on
  threshold   reached where sys or dia is at its part of it or above, before rounding

Days and times are those of this computer's time zone. A line that has nothing to say is left out. How many
readings of the week do not count, and how many were stored in another time zone, goes to standard error.

Options:
  --patient ID                 whose readings
  --rule RULE                  esh (unless told otherwise), nice or aha
  --to DAY                     the week's last day (yyyy-MM-dd); else the last day with readings
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpBackup"><translation>Usage: zel backup list
       zel backup create
       zel backup restore NAME
       zel backup folder [DIR | --none]

Before the first change of a day the data file is copied into the folder Backups beside it. The copies of
the last 14 days are kept, and one a month for two years, as long as they take no more than a tenth of the
free disk.

list      prints the copies as CSV, the newest first, and what is in them
create    makes another copy now, and prints 'written: FILE'
restore   puts a copy in the data file's place, and prints 'restored: NAME'; what was there is kept as another
          copy, whose name it prints ('kept: NAME'), so that restoring that one takes it back
folder    prints the second folder that copies go to, a stick or a share, as 'folder: DIR', after setting it to
          DIR; its copies are listed by their whole names

Options:
  --none                       no second folder from now on; the copies in it stay
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpDownload"><translation>Usage: zel download --patient ID [--any-monitor] [OPTION]...

Downloads the monitor's readings, stores those that are not stored yet, and prints how many were
downloaded and how many of them are new. Progress goes to standard error. The monitor's memory is erased
only if the settings say so, and only when the readings are safely stored.
Readings that were typed in, and that the monitor measured, too, are left out from then on, and counted as
'left-out' where there are any.

Options:
  --patient ID                 the patient to store them for
  --any-monitor                download even if the monitor holds another ID than the patient's
  --wait SECONDS               how long to wait for the monitor (5 unless told)
  --simulated-monitor[=FILE]   use a monitor in software, described by FILE or built in
  -h, --help                   show this text</translation></message>
    <message id="CliHelpExportCsv"><translation>Usage: zel export-csv DIR --patient ID [--force]

Writes a patient's data and readings as a CSV file, named after the patient's ID, into the folder DIR, and
prints 'written: FILE'. Dates and measures are in the form that the settings ask for. All readings are in it;
behind the last comma of a line stands 'manual' for one that was typed in, and 'excluded: REASON' for one that
is left out of all that counts.

Options:
  --patient ID                 whose file
  --force                      replace the file if it is there already
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpExportFhir"><translation>Usage: zel export-fhir DIR [--patient ID] [--rule esh|nice|aha] [--force]

Writes each patient, with readings and the average of the last measuring week, as an HL7 FHIR R4 bundle of its
own into the folder DIR, for programs that keep health records, and prints a line 'written: FILE' for each.
The files are named after the patients' IDs. All readings are in it; one that is left out has the status
'entered-in-error' and its reason. Comments and addresses are not. A file that cannot be written is named on
standard error, and the others are still written.

Options:
  --patient ID                 only this patient
  --rule esh|nice|aha          the rule of the average; esh unless told otherwise
  --force                      replace files that are there already, instead of leaving them as they are
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpExportTable"><translation>Usage: zel export-table DIR [--patient ID] [--force]
       zel export-table FILE.csv [--patient ID] [--force]

Writes readings as a table for spreadsheets: into the folder DIR a file 'ID.table.csv' for each patient, or as
FILE.csv one table of all patients. Prints 'written: FILE' for each. The table is UTF-8 with one line of titles
and one line a reading, in the order of time, with patient, values, findings, where the reading comes from,
whether and why it is left out, and the comment on its day. Texts that a spreadsheet would calculate begin with
an apostrophe. 'zel import' takes the table in again.

Options:
  --patient ID                 only this patient
  --force                      replace files that are there already, instead of leaving them as they are
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpExportXml"><translation>Usage: zel export-xml DIR [--patient ID] [--force]

Writes each patient, with readings and comments, as an XML file of its own into the folder DIR, and prints
a line 'written: FILE' for each. The files are named after the patients' IDs; 'zel import' takes them in
again. A file that cannot be written is named on standard error, and the others are still written.

Options:
  --patient ID                 only this patient
  --force                      replace files that are there already, instead of leaving them as they are
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpImport"><translation>Usage: zel import FILE...
       zel import FILE... --patient ID [--columns LIST] [--dates dmy|mdy|ymd]

Takes in the patients of XML files that were exported, with their readings and comments, or those of tables that
'zel export-table' wrote. A file is taken as a whole or not at all: not if one of its patients is in the list
already. Files that are not taken are named on standard error, with the reason; of a table every line that is at
fault, by its number. Prints how many files were taken and refused, and how many patients, readings and comments
they brought, one 'key: value' a line; with a table also how many readings were known: they are not doubled.
Readings of the list that were typed in, and that a table has from a monitor, are left out from then on, and
counted as 'left-out'.

With --patient the readings of a table are added to a patient who is in the list. With --columns it is another
program's table, as in --columns "date=Date,time=Time,sys=Systolic,dia=Diastolic,pulse=Pulse", where the titles
are those of its first line; time is left out where it stands behind the date. Such readings count as typed in.
Commas, semicolons and tabs part its columns. Dates are as 2026-11-21 unless --dates says in which order day,
month and year stand.

Options:
  --patient ID                 whose readings a table's are to be
  --columns LIST               the titles of another program's columns
  --dates dmy|mdy|ymd          how its dates are written
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpMonitor"><translation>Usage: zel monitor [OPTION]...
       zel monitor --set-clock [OPTION]...
       zel monitor --send-id ID [OPTION]...
       zel monitor --erase --yes [OPTION]...

Prints the attached monitor's model, arrhythmia detection (pad, afib or none), ID, clock (or 'not set') and
number of readings, one 'key: value' a line. Counting the readings may take up to 20 s. What is changed is
read back; the command fails when it is not so.

Options:
  --set-clock                  set the monitor's clock to this computer's, and print it
  --send-id ID                 write an ID of 1 to 11 plain characters into the monitor, and print it;
                               the readings in its memory stay there
  --erase                      remove all readings from the monitor's memory, and print how many are left
  --yes                        confirms --erase
  --wait SECONDS               how long to wait for the monitor (5 unless told)
  --simulated-monitor[=FILE]   use a monitor in software, described by FILE or built in
  -h, --help                   show this text</translation></message>
    <message id="CliHelpPatients"><translation>Usage: zel patients
       zel patients --add --id ID --family-name NAME --given-names NAMES

Lists the patients as CSV with the header id,family-name,given-names, or adds one.

Options:
  --add                        add a patient; the ID must be a new one
  --id ID                      the patient's ID, as the monitor holds it
  --family-name NAME           the family name
  --given-names NAMES          the given names
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpPrivacy"><translation>Usage: zel privacy [--mend]

Prints which of the data file, what is kept beside it and its copies other users of this computer can read, a
file a line ('readable by others: FILE'), or 'private'.

Options:
  --mend                       keep others out: changes the permissions of these files, of their folder and of
                               the folder of copies, and nothing else
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpReadings"><translation>Usage: zel readings --patient ID [--from DAY | --last N] [--to DAY] [--am | --pm] [--undated]
                    [--numbers]
       zel readings --patient ID --exclude RECORD --reason TEXT
       zel readings --patient ID --include RECORD
       zel readings --patient ID --add --date DAY --time HH:MM --sys N --dia N --pulse N
       zel readings --patient ID --change RECORD [--date DAY] [--time HH:MM] [--sys N] [--dia N] [--pulse N]
       zel readings --patient ID --delete RECORD

Prints a patient's readings as CSV, the oldest first, with the header
date,time,sys,dia,pulse,map,pp,mam,arrhythmia. Pressures are in mmHg, the pulse in beats per minute.
A reading that the monitor stored without a date has n.a and --:-- instead; it is left out when a period,
--am or --pm is given, unless --undated is given, too. A day without readings that a comment covers has a
line with its date, and n.a. for the rest; if there are too many of these to list them all, a sentence on
standard error says so.

With --exclude, --include, --add, --change or --delete, changes the data file instead. A reading that is left
out stays in the file and in the list, with its reason, and counts nowhere; a sentence on standard error says
how many of the readings printed are such. A reading that is typed in is marked as manual; the pressures and
the pulse are whole numbers from 30 to 300, the diastolic pressure is below the systolic one, and the time is
not in the future. --add prints 'record: RECORD'. Only readings that were typed in can be changed or deleted.
With --include, one that was typed in and would count twice, or could not be typed in, stays left out. Where one
that the monitor measured counts again, the same one typed in is left out from then on, and counted as
'left-out'.

Options:
  --patient ID                 whose readings
  --from DAY                   only from this day on (yyyy-MM-dd)
  --to DAY                     only up to the end of this day (yyyy-MM-dd)
  --last N                     instead of --from: N days, up to that of --to, or to the last with a reading
  --am                         only the readings before noon
  --pm                         only the readings from noon on
  --undated                    also the readings without a date
  --numbers                    with two more columns: record, the reading's number in the data file, and
                               excluded, why it is left out (empty: it counts)
  --exclude RECORD             leave the reading with this number out of all that counts
  --reason TEXT                why
  --include RECORD             have it count again
  --add                        store a reading that you type in
  --change RECORD              change one that was typed in; give at least one value; the others stay as they are
  --delete RECORD              delete one that was typed in
  --date DAY                   the day on which it was taken (yyyy-MM-dd)
  --time HH:MM                 the time, from 00:00 to 23:59
  --sys N                      systolic pressure, mmHg
  --dia N                      diastolic pressure, mmHg
  --pulse N                    beats per minute
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpReport"><translation>Usage: zel report --patient ID --section KEY[,KEY...] --output FILE.pdf [OPTION]...

Writes a patient's report as a PDF, replacing FILE.pdf if it is there, and prints 'written: FILE.pdf'.
Values of the readings at or above the limits chosen in the window (135/85 unless chosen) are marked.

Sections:
  summary                      one page for a physician: averages, trend, last days, comments, what was left out
  graph                        blood-pressure and pulse chart
  PatientProfile               the patient's data and notes
  histogram                    how the values are distributed
  correlation                  systolic against diastolic pressure
  trend                        medians and bands by day, week or month
  table                        the readings
  comment                      the comments
  SWStatistics                 averages, limits and the readings
  all                          all of them, in this order

Options:
  --patient ID                 whose report
  --section KEY[,KEY...]       what to print, in the order given
  --from yyyy-MM-dd            the first day of the reporting period (that of the first reading unless told)
  --to yyyy-MM-dd              the last day of it (that of the last reading unless told)
  --last N                     instead of --from: N days, up to that of --to, or to the last with a reading
  --am                         only the readings before noon (statistics and summary take all)
  --pm                         only the readings from noon on (likewise)
  --apart                      the trend has mornings and evenings as lines of their own
  --rule esh|nice|aha          how the summary averages its measuring week, which ends with the period's last day
                               with readings; esh unless told otherwise. 'zel average --help' says what they are
  --practitioner               print the practitioner's details, from the settings, at the foot; at the head of
                               the summary
  --paper A4|Letter            the paper; usually that of LC_PAPER or LANG
  --output FILE.pdf            the file to write
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpSettings"><translation>Usage: zel settings
       zel settings --set KEY=VALUE [--set KEY=VALUE]...

Prints the settings, one 'key: value' a line, or changes some of them and prints those. If one of the
values is refused, none is changed. In texts, \n stands for a line end and \\ for a backslash.

  DateFormat                   dd mm yyyy, mm dd yyyy or yyyy mm dd
  TimeFormat                   12-hours or 24-hours
  MetricFormat                 kg / cm or lb / in
  EraseRecAfterReading         1: erase the monitor's memory after a download that is safely stored; else 0
  ShowPPorMap                  0: show pulse pressure; 1: show mean arterial pressure
  UserWhoStandard              1: the settings dialog shows the limits as those of the WHO; else 0
  SysStandard                  systolic limit, 0 (none) or 60 to 260 mmHg
  DiaStandard                  diastolic limit, 0 (none) or 30 to 160 mmHg, below the systolic one
  PhysicianAddress             the practitioner's lines on printed reports

Options:
  --set KEY=VALUE              change a setting; may be given several times
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliHelpStatistics"><translation>Usage: zel statistics --patient ID [--from DAY | --last N] [--to DAY] [--undated]

Prints the average, the minimum and the maximum of a patient's readings, a measure a line:
'sys: AVERAGE MIN MAX', then dia, pulse, and map or pp as the settings say. Pressures are in mmHg, the
pulse in beats per minute. Where there is no reading, each is n/a. Where readings are left out, how many
are counted, and how many are left out for which reason, goes to standard error.

Options:
  --patient ID                 whose readings
  --from DAY                   only from this day on (yyyy-MM-dd)
  --to DAY                     only up to the end of this day (yyyy-MM-dd)
  --last N                     instead of --from: N days, up to that of --to, or to the last with a reading
  --undated                    also the readings without a date
  --simulated-monitor[=FILE]   accepted as everywhere; this command needs no monitor
  -h, --help                   show this text</translation></message>
    <message id="CliIDDoesNotFit"><translation>The monitor cannot keep the ID '%1': it needs 1 to 11 plain (ASCII) characters without blanks at the ends.</translation></message>
    <message id="CliIDUnread"><translation>The monitor's ID could not be read. %1</translation></message>
    <message id="CliIDUnsent"><translation>The ID could not be written into the monitor. %1</translation></message>
    <message id="CliLastAndFrom"><translation>Give either --from or --last, not both.</translation></message>
    <message id="CliMonitorChanged"><translation>The connection broke off, and the readings that arrived then may come from another monitor than the one that was asked. Nothing was stored; please try again.</translation></message>
    <message id="CliMonitorDenied"><translation>%1 Reading it needs a permission: install packaging/70-zel.rules in /etc/udev/rules.d, run 'udevadm control --reload', and attach the monitor again.</translation></message>
    <message id="CliMonitorSilent"><translation>A monitor is attached, but it did not answer within %1 s. %2</translation></message>
    <message id="CliMonitorWithoutID"><translation>The monitor holds no ID, so its readings may not be those of patient '%1'. Write the ID with 'zel monitor --send-id', or use --any-monitor to download all the same.</translation></message>
    <message id="CliNoCommand"><translation>A command is missing.</translation></message>
    <message id="CliNoFolder"><translation>There is no folder '%1'.</translation></message>
    <message id="CliNoHome"><translation>The environment variable HOME is not set, so there is no place to look for the data file.</translation></message>
    <message id="CliNoLineInTable" numerus="yes"><translation><numerusform>%n patient has no line in the table: no reading is stored for this one, as for anybody without an ID.</numerusform><numerusform>%n patients have no line in the table: no reading is stored for them, as for anybody without an ID.</numerusform></translation></message>
    <message id="CliNoMonitor"><translation>No monitor was found within %1 s. Please attach it by its USB cable, or give it more time with --wait.</translation></message>
    <message id="CliNoSuchPatient"><translation>There is no patient with the ID '%1'. 'zel patients' lists them.</translation></message>
    <message id="CliNoSuchReading"><translation>the patient has no reading with the number %1 (zel readings --numbers prints the numbers)</translation></message>
    <message id="CliNoSuchRule"><translation>There is no rule '%1'. The rules are %2.</translation></message>
    <message id="CliNoSuchSection"><translation>There is no section '%1'. The sections are all, or any of %2, with commas between them.</translation></message>
    <message id="CliNoTable"><translation>%1: --patient is for tables of readings, and this file is none, or cannot be read. Nothing was taken from it.</translation></message>
    <message id="CliNotExcluded"><translation>the reading %1 is not left out</translation></message>
    <message id="CliNotTogether"><translation>--%1 and --%2 do not go together</translation></message>
    <message id="CliOneJob"><translation>Only one of --set-clock, --send-id and --erase can be done at a time.</translation></message>
    <message id="CliOptionMissing"><translation>--%1 is missing, or its value is empty.</translation></message>
    <message id="CliOptionTwice"><translation>--%1 is given more than once.</translation></message>
    <message id="CliOtherMonitor"><translation>The monitor holds the ID '%1', not '%2', so its readings may be another patient's. Use --any-monitor to download them all the same.</translation></message>
    <message id="CliOtherZone" numerus="yes"><translation><numerusform>%n reading of the week was stored in another time zone; its day and time are those of this computer.</numerusform><numerusform>%n readings of the week were stored in another time zone; days and times are those of this computer.</numerusform></translation></message>
    <message id="CliOutputFailed"><translation>The output could not be written.</translation></message>
    <message id="CliPatientKnown"><translation>There is a patient with the ID '%1' already.</translation></message>
    <message id="CliPlanWithoutFile"><translation>--simulated-monitor= needs the name of a file behind it; alone, without '=', it is the built-in monitor.</translation></message>
    <message id="CliProgress"><translation>Received %1 of %2 readings</translation></message>
    <message id="CliReadableByOthers"><translation>Other users of this computer can read %1. 'zel privacy --mend' keeps them out.</translation></message>
    <message id="CliReadingJobMissing"><translation>--reason goes with --exclude; --date, --time, --sys, --dia and --pulse go with --add or --change</translation></message>
    <message id="CliReadingNotUnique"><translation>several readings have the number %1; which one is meant cannot be told</translation></message>
    <message id="CliReadingsExcluded" numerus="yes"><translation><numerusform>%n of these readings is left out and counts nowhere; --numbers tells which, and why</numerusform><numerusform>%n of these readings are left out and count nowhere; --numbers tells which, and why</numerusform></translation></message>
    <message id="CliSameIDLeftOut" numerus="yes"><translation><numerusform>%n patient was left out: another one in the list has the same ID, or none either. Patients need IDs of their own to be told apart.</numerusform><numerusform>%n patients were left out: others in the list have the same IDs, or none either. Patients need IDs of their own to be told apart.</numerusform></translation></message>
    <message id="CliSettingForm"><translation>--set needs KEY=VALUE, not '%1'.</translation></message>
    <message id="CliSettingNotKept"><translation>The data file has no place for the setting %1, so nothing was changed.</translation></message>
    <message id="CliSettingTwice"><translation>The setting %1 is given more than once.</translation></message>
    <message id="CliSettingUnknown"><translation>There is no setting '%1'. These are: %2.</translation></message>
    <message id="CliSettingValue"><translation>%1 takes %2, not '%3'.</translation></message>
    <message id="CliTableAssumed" numerus="yes"><translation><numerusform>A table says nothing of sex, smoking and diabetes: the %n new patient is stored as female, non-smoker and without diabetes. Please check.</numerusform><numerusform>A table says nothing of sex, smoking and diabetes: the %n new patients are stored as female, non-smokers and without diabetes. Please check.</numerusform></translation></message>
    <message id="CliTableKnown"><translation>--patient ID adds the readings of a table to a patient who is in the list.</translation></message>
    <message id="CliTryHelp"><translation>Try '%1'.</translation></message>
    <message id="CliTypedLeftOut" numerus="yes"><translation><numerusform>%n reading that was typed in counts nowhere from now on: the table has the same one from a monitor.</numerusform><numerusform>%n readings that were typed in count nowhere from now on: the table has the same ones from a monitor.</numerusform></translation></message>
    <message id="CliUnexpectedWord"><translation>'%1' is not expected here.</translation></message>
    <message id="CliUnknownCommand"><translation>There is no command '%1'.</translation></message>
    <message id="CliUnmeasured" numerus="yes"><translation><numerusform>%n reading without pressures is not counted.</numerusform><numerusform>%n readings without pressures are not counted.</numerusform></translation></message>
    <message id="CliWaiting"><translation>Waiting for the monitor, for at most another %1 s. Ctrl-C cancels.</translation></message>
    <message id="CliWeekToCome"><translation>The week ends on %1, a day that is yet to come.</translation></message>
    <message id="CliYesAlone"><translation>--yes goes with --erase.</translation></message>
</context>
</TS>
