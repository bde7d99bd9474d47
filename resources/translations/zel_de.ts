<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<!-- Every text of the program by its key; code asks for them with qtTrId("key"). Sorted by key in each context. -->
<context>
    <name>store</name>
    <message id="%1 A"><translation>%1 AM</translation></message>
    <message id="%1 P"><translation>%1 PM</translation></message>
    <message id=", "><translation>, </translation></message>
    <message id="; "><translation>; </translation></message>
    <message id="BackupLast"><translation>%1, %2, die letzte vom %3</translation></message>
    <message id="BackupPatients" numerus="yes"><translation><numerusform>%n Patient</numerusform><numerusform>%n Patienten</numerusform></translation></message>
    <message id="BackupReadings" numerus="yes"><translation><numerusform>%n Messung</numerusform><numerusform>%n Messungen</numerusform></translation></message>
    <message id="ExcludedAsMeasured"><translation>auch vom Messgerät gemessen</translation></message>
    <message id="ExcludedWithoutReason"><translation>kein Grund angegeben</translation></message>
    <message id="ExportAlreadyExists"><translation>Eine Datei %1 gibt es schon. Sie wurde nicht verändert.</translation></message>
    <message id="ExportIsDataFile"><translation>Die Datei %1 ist die Datendatei selbst; sie wird durch keinen Export ersetzt. Bitte wählen Sie einen anderen Ordner.</translation></message>
    <message id="ExportNotFlushed"><translation>%1 wurde geschrieben, aber der Datenträger hat das dauerhafte Speichern nicht bestätigt: Nach einem Stromausfall könnte die Datei fehlen. Bitte prüfen Sie den Datenträger.</translation></message>
    <message id="ExportNotWritten"><translation>Die Datei %1 konnte nicht geschrieben werden. Bitte prüfen Sie, ob der Ordner vorhanden ist, ob Sie darin schreiben dürfen und ob der Datenträger voll ist.</translation></message>
    <message id="ExportSameFileName"><translation>Die Datei %1 wurde nicht geschrieben: Für diesen Datenträger hat sie denselben Namen wie die Datei, die gerade für den unten genannten Patienten geschrieben wurde. Bitte exportieren Sie auf einen Datenträger, der Groß- und Kleinbuchstaben unterscheidet.</translation></message>
    <message id="Female"><translation>Weiblich</translation></message>
    <message id="fullName"><translation>%1 %2</translation></message>
    <message id="ImportAlreadyKnown"><translation>%1: Ein Patient mit der ID „%2“ ist schon in der Liste. Patienten werden nie überschrieben; aus der Datei wurde deshalb nichts übernommen.</translation></message>
    <message id="ImportBadID"><translation>%1: Die ID „%2“ in der Datei enthält einen Zeilenumbruch oder ein anderes Steuerzeichen. Damit ließe sie sich weder speichern noch an ein Messgerät senden. Aus der Datei wurde nichts übernommen.</translation></message>
    <message id="ImportBadLines"><translation>%1: Nicht alle Zeilen der Tabelle lassen sich übernehmen. Aus ihr wurde nichts übernommen.</translation></message>
    <message id="ImportMissingColumn"><translation>%1: Die Tabelle hat keine Spalte „%2“ oder mehr als eine. Aus ihr wurde nichts übernommen.</translation></message>
    <message id="ImportNoFile"><translation>Das ist keine gewöhnliche Datei.</translation></message>
    <message id="ImportNoID"><translation>%1: Ein Patient in der Datei hat keine ID. Aus der Datei wurde nichts übernommen.</translation></message>
    <message id="ImportNoPatient"><translation>%1: Die Datei enthält keinen Patienten. Es wurde nichts übernommen.</translation></message>
    <message id="ImportNoReading"><translation>%1: Die Tabelle enthält keine Messung. Es wurde nichts übernommen.</translation></message>
    <message id="ImportNoSuchPatient"><translation>%1: Die Liste enthält keinen Patienten mit der ID „%2“ mehr. Aus der Datei wurde nichts übernommen.</translation></message>
    <message id="ImportNotFlushed"><translation>%1: Alles ist gespeichert, aber der Datenträger hat das nicht bestätigt: Nach einem Stromausfall könnte es fehlen.</translation></message>
    <message id="ImportNotReadable"><translation>%1: Die Datei ist nicht lesbar oder wurde nicht von diesem Programm exportiert. Aus ihr wurde nichts übernommen.</translation></message>
    <message id="ImportNotStored"><translation>%1: Der Inhalt der Datei konnte nicht gespeichert werden. Aus ihr wurde nichts übernommen.</translation></message>
    <message id="ImportOtherNames"><translation>%1: Der Patient mit der ID „%2“ heißt in der Liste anders als in der Tabelle; die Messungen könnten von jemand anderem sein. Aus der Datei wurde nichts übernommen. Um sie dennoch zu übernehmen, leeren Sie die Zellen mit den Namen.</translation></message>
    <message id="ImportSameIDTwice"><translation>%1: Zwei Patienten in der Datei haben dieselbe ID, „%2“. Aus der Datei wurde nichts übernommen.</translation></message>
    <message id="ImportTooLarge"><translation>%1: Die Datei ist größer als 512 MiB. Aus ihr wurde nichts übernommen.</translation></message>
    <message id="ImportTooManyLines"><translation>%1: Die Tabelle hat mehr als 200.000 Zeilen. Aus ihr wurde nichts übernommen.</translation></message>
    <message id="LanguageMissing"><translation>--language braucht eine der Sprachen %1</translation></message>
    <message id="languageTag"><translation>de</translation></message>
    <message id="LanguageTwice"><translation>--language kann nur einmal angegeben werden</translation></message>
    <message id="LanguageUnknown"><translation>es gibt keine Sprache „%1“; verfügbar sind %2</translation></message>
    <message id="LanguageUnread"><translation>Die Wahl der Sprache in der Datei %1 ist nicht lesbar. Bis in den Einstellungen eine andere gewählt wird, gilt die Sprache des Systems.</translation></message>
    <message id="LimitDiastolic"><translation>Diastolischer Grenzwert: %1.</translation></message>
    <message id="LimitOrder"><translation>Der diastolische Grenzwert muss unter dem systolischen liegen.</translation></message>
    <message id="LimitSystolic"><translation>Systolischer Grenzwert: %1.</translation></message>
    <message id="Male"><translation>Männlich</translation></message>
    <message id="ManualDia"><translation>Bitte geben Sie für den diastolischen Blutdruck eine Zahl von %1 bis %2 ein.</translation></message>
    <message id="ManualDiaNotBelowSys"><translation>Der diastolische Blutdruck muss unter dem systolischen liegen.</translation></message>
    <message id="ManualInFuture"><translation>Datum und Uhrzeit liegen in der Zukunft.</translation></message>
    <message id="ManualNoDate"><translation>Diesen Zeitpunkt gibt es nicht. (Bei der Umstellung auf Sommerzeit entfällt eine Stunde, und der 1. Januar 2000 steht für „kein Datum“.)</translation></message>
    <message id="ManualPulse"><translation>Bitte geben Sie für den Puls eine Zahl von %1 bis %2 ein.</translation></message>
    <message id="ManualSys"><translation>Bitte geben Sie für den systolischen Blutdruck eine Zahl von %1 bis %2 ein.</translation></message>
    <message id="ManualTooEarly"><translation>Das Datum liegt vor dem Jahr 1900.</translation></message>
    <message id="n.a"><translation>n.a</translation></message>
    <message id="N/A"><translation>k. A.</translation></message>
    <message id="NotBackedUp"><translation>Vor dieser Änderung konnte in %1 keine Sicherung der Datendatei angelegt werden. %2</translation></message>
    <message id="remarkExcluded"><translation>ausgeschlossen: %1</translation></message>
    <message id="remarkManual"><translation>eingegeben</translation></message>
    <message id="SecondFolderAway"><translation>Der zweite Ordner für Sicherungen der Datendatei, %1, ist nicht erreichbar; die heutige Sicherung fehlt dort deshalb. Sie wird mit der nächsten Änderung kopiert, sobald der Ordner wieder da ist.</translation></message>
    <message id="SecondFolderBroken"><translation>Aus %1 lässt sich nicht lesen, in welchen zweiten Ordner Sicherungen der Datendatei kopiert werden; sie werden deshalb in keinen kopiert. Bitte wählen Sie den Ordner neu.</translation></message>
    <message id="SecondFolderFailed"><translation>Die heutige Sicherung der Datendatei konnte nicht in den zweiten Ordner, %1, geschrieben werden.</translation></message>
    <message id="SecondFolderNoRoom"><translation>Die heutige Sicherung der Datendatei liegt nicht im zweiten Ordner, %1: Alle Sicherungen dort dürfen zusammen ein Zehntel des freien Speicherplatzes belegen, und das ist weniger, als die Datei braucht.</translation></message>
    <message id="SecondFolderNotFlushed"><translation>Die heutige Sicherung der Datendatei wurde in den zweiten Ordner, %1, geschrieben, aber der Datenträger hat das dauerhafte Speichern nicht bestätigt: Nach einem Stromausfall könnte sie fehlen.</translation></message>
    <message id="SecondFolderNotRecorded"><translation>Der zweite Ordner für Sicherungen konnte nicht in %1 vermerkt werden. Es wurde nichts geändert.</translation></message>
    <message id="SettingLimit"><translation>0 (kein Grenzwert) oder eine ganze Zahl von %1 bis %2</translation></message>
    <message id="SettingOneOf"><translation>einer der Werte %1</translation></message>
    <message id="SettingQuoted"><translation>„%1“</translation></message>
    <message id="SettingText"><translation>ein beliebiger Text ohne Steuerzeichen</translation></message>
    <message id="stepAddComment"><translation>Neuer Kommentar zu %1</translation></message>
    <message id="stepAddPatient"><translation>Anlegen von Patient %1</translation></message>
    <message id="stepAddReading"><translation>Neue Messung von %1</translation></message>
    <message id="stepDeleteComment"><translation>Löschen eines Kommentars zu %1</translation></message>
    <message id="stepDeletePatient"><translation>Löschen von Patient %1</translation></message>
    <message id="stepDeleteReadings" numerus="yes"><translation><numerusform>Löschen von %n Messung von %1</numerusform><numerusform>Löschen von %n Messungen von %1</numerusform></translation></message>
    <message id="stepEditComment"><translation>Änderung eines Kommentars zu %1</translation></message>
    <message id="stepEditPatient"><translation>Änderung an Patient %1</translation></message>
    <message id="stepEditReading"><translation>Änderung einer Messung von %1</translation></message>
    <message id="stepExcludeReadings" numerus="yes"><translation><numerusform>Ausschluss von %n Messung von %1</numerusform><numerusform>Ausschluss von %n Messungen von %1</numerusform></translation></message>
    <message id="stepImport"><translation>Import von %1</translation></message>
    <message id="stepIncludeReadings" numerus="yes"><translation><numerusform>Aufheben des Ausschlusses von %n Messung von %1</numerusform><numerusform>Aufheben des Ausschlusses von %n Messungen von %1</numerusform></translation></message>
    <message id="stepSettings"><translation>Änderung der Einstellungen</translation></message>
    <message id="stillLeftOutRefused" numerus="yes"><translation><numerusform>%n von Hand eingegebene Messung bleibt ausgeschlossen. %1</numerusform><numerusform>%n von Hand eingegebene Messungen bleiben ausgeschlossen. %1</numerusform></translation></message>
    <message id="stillLeftOutTwice" numerus="yes"><translation><numerusform>%n von Hand eingegebene Messung bleibt ausgeschlossen: Eine aus derselben Minute mit denselben Werten zählt schon mit.</numerusform><numerusform>%n von Hand eingegebene Messungen bleiben ausgeschlossen: Messungen aus denselben Minuten mit denselben Werten zählen schon mit.</numerusform></translation></message>
    <message id="StoreAlreadyKnown"><translation>Ein Patient mit der ID „%1“ ist schon in der Liste. Es wurde nichts geändert.</translation></message>
    <message id="StoreBusy"><translation>Ein anderes Programm arbeitet gerade mit der Datendatei %1, auf diesem Computer oder auf einem anderen, der sie mitbenutzt. Es wurde nichts geändert. Bitte versuchen Sie es gleich noch einmal, oder in einigen Minuten, falls der andere Computer die Netzwerkverbindung verloren hat.</translation></message>
    <message id="StoreChangedElsewhere"><translation>Ein anderes Programm hat die Daten inzwischen geändert. Hier wurde nichts geändert; bitte sehen Sie sich den jetzigen Stand an.</translation></message>
    <message id="StoreDiskFull"><translation>Der Datenträger ist voll: %1 konnte nicht geschrieben werden. Der bisherige Inhalt ist unverändert. Bitte schaffen Sie Platz auf dem Datenträger und versuchen Sie es dann noch einmal.</translation></message>
    <message id="StoreInvalidRecord"><translation>Ein Patient braucht eine eigene ID; „%1“ ist keine. Es wurde nichts geändert.</translation></message>
    <message id="StoreLockBlocked"><translation>Wo Programme vermerken, dass sie mit der Datendatei arbeiten, liegt %1, und das ist kein solcher Vermerk. Es wurde nichts geändert. Bitte verschieben Sie es an einen anderen Ort und versuchen Sie es dann noch einmal.</translation></message>
    <message id="StoreNoPermissions"><translation>Andere können auf diesem Computer weiterhin %1 lesen: Dieses Dateisystem kennt keine Zugriffsrechte. Bitte bewahren Sie die Daten auf einem anderen Datenträger auf.</translation></message>
    <message id="StoreNoReason"><translation>Eine Messung wird nur mit Grund ausgeschlossen; bitte geben Sie einen an. Es wurde nichts geändert.</translation></message>
    <message id="StoreNoRoomForBackup"><translation>In %1 wird keine Sicherung der Datendatei angelegt: Alle Sicherungen zusammen dürfen ein Zehntel des freien Speicherplatzes belegen, und das ist weniger, als die Datei braucht.</translation></message>
    <message id="StoreNoStep"><translation>Es gibt nichts rückgängig zu machen oder zu wiederholen.</translation></message>
    <message id="StoreNoSuchBackup"><translation>Es gibt keine Sicherung der Datendatei mit dem Namen „%1“.</translation></message>
    <message id="StoreNoSuchRecord"><translation>Es gibt keinen Patienten mit der ID „%1“.</translation></message>
    <message id="StoreNotCreated"><translation>Es gibt noch keine Datendatei, und %1 konnte nicht angelegt werden. Bitte prüfen Sie, ob in ihrem Ordner geschrieben werden darf und ob der Datenträger voll ist, und starten Sie das Programm dann neu.</translation></message>
    <message id="StoreNotFlushed"><translation>%1 wurde geschrieben, aber der Datenträger hat das dauerhafte Speichern nicht bestätigt: Nach einem Stromausfall könnte wieder der ältere Inhalt da sein. Bitte prüfen Sie den Datenträger; die Messungen bleiben im Messgerät erhalten.</translation></message>
    <message id="StoreNotMadePrivate"><translation>Andere können auf diesem Computer weiterhin %1 lesen: Die Zugriffsrechte ließen sich nicht ändern.</translation></message>
    <message id="StoreNotManual"><translation>Messungen aus einem Messgerät werden weder geändert noch gelöscht; sie lassen sich mit Grund ausschließen. Es wurde nichts geändert.</translation></message>
    <message id="StoreNotParsed"><translation>Die Datendatei %1 ist beschädigt oder keine Datendatei dieses Programms. Sie bleibt unverändert, und es kann nichts gespeichert werden, bis sie wieder lesbar ist: Reparieren Sie sie, legen Sie eine Sicherung an ihre Stelle, oder verschieben Sie sie, um mit einer neuen zu beginnen.</translation></message>
    <message id="StoreNotReadable"><translation>Die Datendatei %1 ist nicht lesbar. Sie bleibt unverändert, und es kann nichts gespeichert werden, bis sie wieder lesbar ist.</translation></message>
    <message id="StoreNotWritable"><translation>Die Datendatei %1 kann nicht geschrieben werden. Es wurde nichts geändert; bitte prüfen Sie die Zugriffsrechte der Datei und ihres Ordners.</translation></message>
    <message id="StoreQuotaReached"><translation>Auf diesem Datenträger dürfen Sie nichts mehr speichern (das Kontingent ist erreicht): %1 konnte nicht geschrieben werden. Der bisherige Inhalt ist unverändert. Bitte löschen Sie, was Sie nicht brauchen, oder bitten Sie um mehr Speicherplatz, und versuchen Sie es dann noch einmal.</translation></message>
    <message id="StoreReadFailed"><translation>Die Datendatei %1 ist nicht lesbar: Der Datenträger meldet einen Fehler. Die Datei bleibt unverändert, und es kann nichts gespeichert werden, bis sie wieder lesbar ist. Bitte lassen Sie den Datenträger überprüfen.</translation></message>
    <message id="StoreReadingGone"><translation>Die Messung ist nicht mehr vorhanden. Es wurde nichts geändert.</translation></message>
    <message id="StoreReadingKnown"><translation>Zu dieser Minute gibt es schon eine Messung mit diesen Werten. Es wurde nichts geändert.</translation></message>
    <message id="StoreReadingRefused"><translation>Die Messung wurde nicht gespeichert.</translation></message>
    <message id="StoreSizeLimit"><translation>So große Dateien sind hier nicht zugelassen: %1 konnte nicht geschrieben werden. Der bisherige Inhalt ist unverändert. Bitte fragen Sie die für diesen Computer zuständige Person nach der erlaubten Dateigröße.</translation></message>
    <message id="StoreStepChanged"><translation>Was der Schritt betrifft, wurde seither noch einmal geändert, von einem anderen Programm oder von Hand. Es wurde nichts geändert.</translation></message>
    <message id="StoreStepGone"><translation>Was der Schritt betrifft, ist nicht mehr in der Datendatei. Es wurde nichts geändert.</translation></message>
    <message id="StoreStepHasRecords"><translation>Für den Patienten mit der ID „%1“ sind seither Messungen oder Kommentare hinzugekommen, die dann zu niemandem mehr gehören würden. Es wurde nichts geändert.</translation></message>
    <message id="StoreStepPatientGone"><translation>Der Patient mit der ID „%1“, zu dem der Kommentar gehört, ist nicht mehr in der Datendatei. Es wurde nichts geändert.</translation></message>
    <message id="StoreStepPatientKnown"><translation>Ein Patient mit der ID „%1“ ist inzwischen in der Liste. Es wurde nichts geändert.</translation></message>
    <message id="StoreStepThere"><translation>Was wiederhergestellt werden soll, ist schon wieder in der Datendatei. Es wurde nichts geändert.</translation></message>
    <message id="StoreTooLarge"><translation>Die Datendatei %1 ist größer als 512 MiB; solche Dateien liest dieses Programm nicht. Sie bleibt unverändert, und es kann nichts gespeichert werden: Legen Sie eine kleinere Sicherung an ihre Stelle, oder verschieben Sie sie, um mit einer neuen zu beginnen.</translation></message>
    <message id="StoreUnreadable"><translation>Die Datendatei %1 wurde nicht verändert: Was gespeichert werden sollte, ließ sich anschließend nicht wieder lesen.</translation></message>
    <message id="StoreWriteFailed"><translation>Das Schreiben der Datendatei %1 ist fehlgeschlagen; die Datei wurde nicht verändert. Bitte prüfen Sie, ob der Datenträger voll ist, und versuchen Sie es dann noch einmal.</translation></message>
    <message id="TableCell"><translation>„%1“ ist in der Spalte „%2“ nicht zulässig.</translation></message>
    <message id="TableCells"><translation>Sie hat %1 Zellen, die Titelzeile %2.</translation></message>
    <message id="TableDateOrder"><translation>„%1“ ist nicht wie 2026-11-21 geschrieben. Geben Sie mit --dates an, in welcher Reihenfolge Tag, Monat und Jahr stehen: dmy, mdy oder ymd.</translation></message>
    <message id="TableLine"><translation>Zeile %1: %2</translation></message>
    <message id="TableMeanPressure"><translation>Ein mittlerer arterieller Druck von %1 passt nicht zu %2/%3: Ist jede Spalte richtig zugeordnet?</translation></message>
    <message id="TableMoreLines" numerus="yes"><translation><numerusform>… und %n weitere Zeile</numerusform><numerusform>… und %n weitere Zeilen</numerusform></translation></message>
    <message id="TableNoTime"><translation>„%1“ ist kein Datum mit vierstelligem Jahr und Uhrzeit.</translation></message>
    <message id="TableNotUtf8"><translation>Ihr Text ist nicht UTF-8. Bitte speichern Sie sie in dem Programm, aus dem sie stammt, als „CSV UTF-8“.</translation></message>
    <message id="TableOtherNames"><translation>Der Patient „%1“ heißt in einer früheren Zeile anders.</translation></message>
    <message id="TableOtherPatient"><translation>Die Messung gehört zum Patienten „%1“, nicht zu „%2“.</translation></message>
    <message id="TablePulsePressure"><translation>Ein Pulsdruck von %1 passt nicht zu %2/%3: Ist jede Spalte richtig zugeordnet?</translation></message>
    <message id="TableQuotation"><translation>Ein Anführungszeichen ist am Ende seiner Zelle nicht geschlossen.</translation></message>
    <message id="takenInTypedLeftOut" numerus="yes"><translation><numerusform>%n von Hand eingegebene Messung ist ab jetzt ausgeschlossen (auch vom Messgerät gemessen).</numerusform><numerusform>%n von Hand eingegebene Messungen sind ab jetzt ausgeschlossen (auch vom Messgerät gemessen).</numerusform></translation></message>
    <message id="ViewLimitsUnread"><translation>%1 ist nicht lesbar; darin steht, ab welchen Grenzwerten Werte markiert werden. Bis neue Grenzwerte gewählt sind, werden Werte ab %2/%3 mmHg markiert.</translation></message>
    <message id="Warning"><translation>Warnung</translation></message>
    <message id="XmlAttributeTwice"><translation>Ein Element hat dasselbe Attribut zweimal.</translation></message>
    <message id="XmlBytesNotInEncoding"><translation>Die Datei enthält Bytes, die in ihrer Zeichenkodierung, %1, nicht vorkommen.</translation></message>
    <message id="XmlControlCharacter"><translation>Die Datei enthält ein Steuerzeichen, das in einer solchen Datei nicht stehen darf.</translation></message>
    <message id="XmlEncodingUnknown"><translation>Die Zeichenkodierung der Datei, %1, ist nicht bekannt.</translation></message>
    <message id="XmlEntityNotTaken"><translation>Die Datei verweist auf eine Entität oder ein Zeichen, das nicht angenommen wird; angenommen werden nur die fünf Entitäten von XML selbst und die in XML erlaubten Zeichen.</translation></message>
    <message id="XmlErrorNearLine"><translation>Bei Zeile %1: %2</translation></message>
    <message id="XmlMisplacedDeclaration"><translation>Eine Deklaration steht an einer Stelle, an der keine stehen darf.</translation></message>
    <message id="XmlNoRoot"><translation>Die Datei enthält kein Element.</translation></message>
    <message id="XmlNotWritable"><translation>Die Datendatei kann nicht geschrieben werden: Änderungen und ausgelesene Messungen lassen sich nicht speichern. Bitte prüfen Sie die Zugriffsrechte der Datei und ihres Ordners.</translation></message>
    <message id="XmlSeveralRoots"><translation>Die Datei enthält mehr als ein Wurzelelement.</translation></message>
    <message id="XmlTextOutsideRoot"><translation>Die Datei enthält Text außerhalb ihres Wurzelelements.</translation></message>
    <message id="XmlTooDeep"><translation>Die Elemente der Datei sind mehr als %1 Ebenen tief verschachtelt.</translation></message>
    <message id="XmlTooLarge"><translation>Die Datei wäre größer als 512 MiB.</translation></message>
    <message id="XmlTooManyParts"><translation>Die Datei enthält mehr als %1 Elemente, Attribute und Texte; das ist zu viel für eine Datei ihrer Größe.</translation></message>
    <message id="XmlTooManyRecords"><translation>Die Datei enthält mehr als %1 Datensätze; das ist zu viel für eine Datei ihrer Größe.</translation></message>
    <message id="XmlWrongRoot"><translation>Das Wurzelelement der Datei ist „%1“ statt „ZEL“.</translation></message>
</context>
<context>
    <name>monitor</name>
    <message id="monitorAccessDenied"><translation>Ein Messgerät ist angeschlossen, aber dieses Programm kann nicht darauf zugreifen: Ein anderes Programm benutzt es, oder die Berechtigung für das USB-Gerät fehlt.</translation></message>
    <message id="monitorBadCheckField"><translation>Die Antwort des Messgeräts kam beschädigt an und wurde verworfen. Bitte versuchen Sie es noch einmal.</translation></message>
    <message id="monitorBadFixedContent"><translation>Die Antwort des Messgeräts war nicht verständlich und wurde verworfen. Bitte versuchen Sie es noch einmal.</translation></message>
    <message id="monitorClockNotSet"><translation>Die Uhr des Messgeräts ist nicht gestellt.</translation></message>
    <message id="monitorInterrupted"><translation>Der Datenaustausch mit dem Messgerät wurde abgebrochen, bevor er vollständig war.</translation></message>
    <message id="monitorNoAcknowledgement"><translation>Das Messgerät hat den Befehl nicht angenommen. Bitte schalten Sie es aus und wieder ein und versuchen Sie es dann noch einmal.</translation></message>
    <message id="monitorNoDevice"><translation>Es ist kein Messgerät angeschlossen. Bitte schließen Sie es an und versuchen Sie es noch einmal.</translation></message>
    <message id="monitorNotTaken"><translation>Das Messgerät hat den Befehl bestätigt, enthält aber weiterhin etwas anderes. Bitte versuchen Sie es noch einmal.</translation></message>
    <message id="monitorReadFailed"><translation>Die Verbindung zum Messgerät ist abgebrochen. Bitte prüfen Sie das Kabel und versuchen Sie es noch einmal.</translation></message>
    <message id="monitorSuccess"><translation>Das Messgerät hat den Auftrag ausgeführt.</translation></message>
    <message id="monitorTimeOut"><translation>Das Messgerät hat nicht rechtzeitig geantwortet. Bitte prüfen Sie, ob es eingeschaltet ist, und versuchen Sie es noch einmal.</translation></message>
    <message id="monitorUnconfirmed"><translation>Die Daten wurden an das Messgerät gesendet, aber was es jetzt enthält, konnte nicht gelesen werden. Bitte sehen Sie nach, bevor Sie es noch einmal versuchen.</translation></message>
    <message id="monitorUnfitID"><translation>Das Messgerät kann diese ID nicht speichern; deshalb wurde nichts gesendet. Eine ID für das Messgerät besteht aus 1 bis 11 Buchstaben, Ziffern oder Zeichen, ohne Umlaute und Akzente.</translation></message>
    <message id="monitorWriteFailed"><translation>Das Messgerät nimmt keine Daten an. Bitte trennen Sie es vom Computer, schließen Sie es wieder an und versuchen Sie es noch einmal.</translation></message>
    <message id="simulatedMissing"><translation>Der Wert von „%1“ fehlt.</translation></message>
    <message id="simulatedNoPlan"><translation>Die Datei muss genau ein JSON-Objekt enthalten.</translation></message>
    <message id="simulatedNotAllowed"><translation>Der Wert von „%1“ muss einer von diesen sein: %2</translation></message>
    <message id="simulatedNotJson"><translation>Das ist kein gültiges JSON: bei Zeichen %1, %2.</translation></message>
    <message id="simulatedNotList"><translation>Der Wert von „%1“ muss eine Liste sein.</translation></message>
    <message id="simulatedNotObject"><translation>Der Wert von „%1“ muss ein Objekt sein.</translation></message>
    <message id="simulatedNotText"><translation>Der Wert von „%1“ muss ein Text sein.</translation></message>
    <message id="simulatedNotTime"><translation>Der Wert von „%1“ muss ein Zeitpunkt wie 2026-11-01T07:12 in den Jahren 2000 bis 2099 sein oder das Wort undated.</translation></message>
    <message id="simulatedNotWhole"><translation>Der Wert von „%1“ muss eine ganze Zahl im Bereich %2 sein.</translation></message>
    <message id="simulatedRefused"><translation>Die Datei %1 des simulierten Messgeräts ist nicht verwendbar: %2</translation></message>
    <message id="simulatedTooMany"><translation>Die Liste „%1“ darf höchstens %2 Einträge haben.</translation></message>
    <message id="simulatedUnencodable"><translation>Der Wert von „%1“ enthält Zeichen, die das Messgerät nicht kennt.</translation></message>
    <message id="simulatedUnknownKey"><translation>Der Schlüssel „%1“ ist nicht bekannt.</translation></message>
    <message id="simulatedUnreadable"><translation>Die Datei %1 des simulierten Messgeräts ist nicht lesbar: %2</translation></message>
    <message id="simulatedWrongLength"><translation>Der Wert von „%1“ muss diese Anzahl von Zeichen haben: %2</translation></message>
</context>
<context>
    <name>analysis</name>
    <message id="beforeAndSince"><translation>%1 vorher, %2 seither: %3</translation></message>
    <message id="excludedOfDays" numerus="yes"><translation><numerusform>%n ausgeschlossen</numerusform><numerusform>%n ausgeschlossen</numerusform></translation></message>
    <message id="fewBefore"><translation>weniger als %1 Messungen vorher</translation></message>
    <message id="fewOnBothSides"><translation>vorher wie seither weniger als %1 Messungen</translation></message>
    <message id="fewSince"><translation>weniger als %1 Messungen seither</translation></message>
    <message id="highMark"><translation>%1 und fett: ab %2</translation></message>
    <message id="leftBeforeNoon" numerus="yes"><translation><numerusform>%n vor 12 Uhr</numerusform><numerusform>%n vor 12 Uhr</numerusform></translation></message>
    <message id="leftExcluded" numerus="yes"><translation><numerusform>%n ausgeschlossen</numerusform><numerusform>%n ausgeschlossen</numerusform></translation></message>
    <message id="leftFromNoon" numerus="yes"><translation><numerusform>%n ab 12 Uhr</numerusform><numerusform>%n ab 12 Uhr</numerusform></translation></message>
    <message id="leftOut"><translation>nicht gezählt: %1</translation></message>
    <message id="leftOutsidePeriod" numerus="yes"><translation><numerusform>%n außerhalb des Zeitraums</numerusform><numerusform>%n außerhalb des Zeitraums</numerusform></translation></message>
    <message id="leftUndated" numerus="yes"><translation><numerusform>%n undatiert</numerusform><numerusform>%n undatiert</numerusform></translation></message>
    <message id="leftUnmeasured" numerus="yes"><translation><numerusform>%n ohne Druckwerte</numerusform><numerusform>%n ohne Druckwerte</numerusform></translation></message>
    <message id="leftWithoutDate" numerus="yes"><translation><numerusform>%n ganz ohne Datum</numerusform><numerusform>%n ganz ohne Datum</numerusform></translation></message>
    <message id="limitDiaAlone"><translation>DIA %1 mmHg</translation></message>
    <message id="limitsBoth"><translation>%1/%2 mmHg</translation></message>
    <message id="limitSysAlone"><translation>SYS %1 mmHg</translation></message>
    <message id="listedExcluded" numerus="yes"><translation><numerusform>, davon %n ausgeschlossen</numerusform><numerusform>, davon %n ausgeschlossen</numerusform></translation></message>
    <message id="missingDays" numerus="yes"><translation><numerusform>%n Tag</numerusform><numerusform>%n Tage</numerusform></translation></message>
    <message id="missingEvenings" numerus="yes"><translation><numerusform>%n Abend</numerusform><numerusform>%n Abende</numerusform></translation></message>
    <message id="missingMornings" numerus="yes"><translation><numerusform>%n Morgen</numerusform><numerusform>%n Morgen</numerusform></translation></message>
    <message id="missingReadings" numerus="yes"><translation><numerusform>%n Messung</numerusform><numerusform>%n Messungen</numerusform></translation></message>
    <message id="noHighMark"><translation>Keine Werte als hoch markiert</translation></message>
    <message id="noneBefore"><translation>keine Messung in den 14 Tagen vorher, %1 seither</translation></message>
    <message id="noneBeforeOrSince"><translation>keine Messung vorher oder seither</translation></message>
    <message id="noneSince"><translation>%1 vorher, keine Messung seither</translation></message>
    <message id="otherZoneOfDays" numerus="yes"><translation><numerusform>%n in anderer Zeitzone gespeichert; Zeiten sind die dieses Computers</numerusform><numerusform>%n in anderer Zeitzone gespeichert; Zeiten sind die dieses Computers</numerusform></translation></message>
    <message id="readingCount" numerus="yes"><translation><numerusform>%n Messung</numerusform><numerusform>%n Messungen</numerusform></translation></message>
    <message id="rowsCut"><translation>Die Kommentare umfassen mehr Tage ohne Messung, als die Liste zeigen kann: Es sind höchstens %1, einige fehlen deshalb.</translation></message>
    <message id="unmeasuredOfDays" numerus="yes"><translation><numerusform>%n ohne Druckwerte nicht gezählt</numerusform><numerusform>%n ohne Druckwerte nicht gezählt</numerusform></translation></message>
</context>
<context>
    <name>app</name>
    <message id="12-hours"><translation>12 Stunden</translation></message>
    <message id="24-hours"><translation>24 Stunden</translation></message>
    <message id="aboutData"><translation>Datendatei: %1</translation></message>
    <message id="aboutLicence"><translation>Lizenz: MIT. Für ZEL wird keinerlei Gewähr übernommen. ZEL verwendet Qt (LGPL 3), hidapi (BSD), pugixml (MIT), ICU (Unicode-Lizenz) und expected (CC0), jeweils unter eigener Lizenz.</translation></message>
    <message id="addComment"><translation>Kommentar hinzufügen</translation></message>
    <message id="addCommentHint"><translation>Ziehen Sie das Symbol auf einen Tag im Streifen unter dem Pulsdiagramm, um dort einen Kommentar hinzuzufügen. Mit der Tastatur: Drücken Sie die Schaltfläche oder die Taste Einfg.</translation></message>
    <message id="addCommentTooLong"><translation>Kommentare lassen sich hinzufügen, solange der Zeitraum höchstens 47 Tage umfasst.</translation></message>
    <message id="addDay"><translation>Mehr Tage: an jedem Ende des Zeitraums einer mehr</translation></message>
    <message id="addDayHint"><translation>Mehr Tage: an jedem Ende des Zeitraums einer mehr (+)</translation></message>
    <message id="afib"><translation>VHF</translation></message>
    <message id="age"><translation>Alter: %1</translation></message>
    <message id="answerNo"><translation>Nein</translation></message>
    <message id="answerYes"><translation>Ja</translation></message>
    <message id="AP_Title"><translation>ZEL – Blutdruckmessungen</translation></message>
    <message id="argumentUnknown"><translation>unerwartetes Argument „%1“; siehe zel --help</translation></message>
    <message id="argumentWithoutFile"><translation>%1= braucht den Namen einer Datei; siehe zel --help</translation></message>
    <message id="backupAlsoTo"><translation>Sicherungen auch in:</translation></message>
    <message id="backupChoose"><translation>&amp;Auswählen …</translation></message>
    <message id="backupChooseTitle"><translation>Zweiter Ordner für Sicherungen der Datendatei</translation></message>
    <message id="backupClose"><translation>S&amp;chließen</translation></message>
    <message id="backupConfirm"><translation>Zu dieser Sicherung zurückkehren? %1. Der jetzige Stand bleibt als weitere Sicherung erhalten, sodass Sie zu ihm zurückkehren können.</translation></message>
    <message id="backupCreate"><translation>Jetzt &amp;sichern</translation></message>
    <message id="backupDaily"><translation>Vor der ersten Änderung des Tages</translation></message>
    <message id="backupDamaged"><translation>Beschädigte Datendatei</translation></message>
    <message id="backupDay"><translation>Tag</translation></message>
    <message id="backupExplained"><translation>Sicherungen der Datendatei im Ordner %1. Für den Fall, dass dieser Datenträger ausfällt, können Sie einen zweiten Ordner auf einem anderen angeben, etwa auf einem USB-Stick oder einer Netzwerkfreigabe.</translation></message>
    <message id="backupFar"><translation>Zweiter Ordner: %1</translation></message>
    <message id="backupKind"><translation>Sicherung</translation></message>
    <message id="backupMade"><translation>Von Ihnen angelegt</translation></message>
    <message id="backupNone"><translation>Es gibt noch keine Sicherung. Vor der ersten Änderung jedes Tages wird eine angelegt.</translation></message>
    <message id="backupNoSecondFolder"><translation>kein zweiter Ordner</translation></message>
    <message id="backupOffered"><translation>Die neueste lesbare Sicherung ist %1 (%2). Zu ihr zurückkehren? Die beschädigte Datei bleibt daneben als weitere Sicherung erhalten.</translation></message>
    <message id="backupReplaced"><translation>Stand vor einer Wiederherstellung</translation></message>
    <message id="backupRestore"><translation>&amp;Wiederherstellen …</translation></message>
    <message id="backupRestored"><translation>Die Sicherung %1 ist jetzt in Gebrauch. Der vorherige Stand bleibt als %2 erhalten.</translation></message>
    <message id="backupSize"><translation>Größe</translation></message>
    <message id="backupStop"><translation>A&amp;bschalten</translation></message>
    <message id="backupTitle"><translation>Sicherungen</translation></message>
    <message id="backupUnreadable"><translation>diese Sicherung ist nicht lesbar</translation></message>
    <message id="beforeAndSinceHint"><translation>Mittlerer Blutdruck in mmHg und Anzahl der Messungen: in den 14 Tagen vor dem Kommentar und von seinem ersten Tag an, bis ein anderer Kommentar beginnt, höchstens 28 Tage</translation></message>
    <message id="BeginDate"><translation>Der erste Tag muss vor dem letzten liegen, damit der Zeitraum mindestens zwei Tage umfasst. Die Datumsangaben wurden nicht geändert.</translation></message>
    <message id="beginEarlier"><translation>Einen Tag früher beginnen</translation></message>
    <message id="beginLater"><translation>Einen Tag später beginnen</translation></message>
    <message id="birthDateIncomplete"><translation>Bitte geben Sie Jahr, Monat und Tag an oder keines davon.</translation></message>
    <message id="birthDateInFuture"><translation>Dieser Tag liegt in der Zukunft.</translation></message>
    <message id="birthDateTooOld"><translation>Das ist mehr als %1 Jahre her.</translation></message>
    <message id="birthDayNone"><translation>Tag</translation></message>
    <message id="birthDayRefused"><translation>Den %1. gibt es in diesem Monat nicht.</translation></message>
    <message id="birthMonthNone"><translation>Monat</translation></message>
    <message id="birthYearNone"><translation>Jahr</translation></message>
    <message id="birthYearRefused"><translation>Bitte geben Sie das Jahr mit vier Ziffern an, z. B. 1956.</translation></message>
    <message id="bloodChart"><translation>Blutdruck im Verlauf</translation></message>
    <message id="bloodScroller"><translation>Blutdruckskala verschieben</translation></message>
    <message id="cancel"><translation>Abbrechen</translation></message>
    <message id="cancelPrint"><translation>Schließen, ohne zu drucken</translation></message>
    <message id="cellWithRemark"><translation>%1, %2</translation></message>
    <message id="changeReadingAction"><translation>Messung ändern …</translation></message>
    <message id="changeReadingTitle"><translation>Messung ändern</translation></message>
    <message id="chartKeys"><translation>%1 im Zeitraum. Die Pfeiltasten verschieben den Zeitraum, Plus und Minus vergrößern und verkleinern ihn, Strg mit Pfeil links oder rechts geht von Messung zu Messung.</translation></message>
    <message id="cholestrolRefused"><translation>Bitte geben Sie eine Zahl von 10 bis 5000 mg/dl ein, z. B. 200. 1 mmol/l sind etwa 38,7 mg/dl.</translation></message>
    <message id="choosePrinter"><translation>Drucker auswählen</translation></message>
    <message id="clockAhead"><translation>geht %1 vor</translation></message>
    <message id="clockBehind"><translation>geht %1 nach</translation></message>
    <message id="clockDays" numerus="yes"><translation><numerusform>%n Tag</numerusform><numerusform>%n Tage</numerusform></translation></message>
    <message id="clockHours" numerus="yes"><translation><numerusform>%n Stunde</numerusform><numerusform>%n Stunden</numerusform></translation></message>
    <message id="clockMinutes" numerus="yes"><translation><numerusform>%n Minute</numerusform><numerusform>%n Minuten</numerusform></translation></message>
    <message id="clockNotSet"><translation>nicht gelungen; die Uhr geht vielleicht weiterhin falsch. %1</translation></message>
    <message id="clockNotSetAtGreeting"><translation>Die Uhr des Messgeräts konnte nicht gestellt werden. %1</translation></message>
    <message id="clockRight"><translation>geht richtig</translation></message>
    <message id="clockSet"><translation>erledigt. Sie zeigt jetzt die Zeit dieses Computers.</translation></message>
    <message id="clockUnset"><translation>nicht gestellt</translation></message>
    <message id="clockUnsetAsk"><translation>Die Uhr des Messgeräts ist nicht gestellt; seine Messungen erhalten deshalb weder Datum noch Uhrzeit. Die Uhr auf die Zeit dieses Computers stellen?</translation></message>
    <message id="closeWindow"><translation>Schließen</translation></message>
    <message id="colourAction"><translation>Farbe: %1</translation></message>
    <message id="colourBlue"><translation>Blau</translation></message>
    <message id="colourButton"><translation>Farbe des Kommentars</translation></message>
    <message id="colourGrey"><translation>Dunkelgrau</translation></message>
    <message id="colourHint"><translation>Wählen Sie die Farbe für neue Kommentare und für den Kommentar, den Sie mit einem Klick oder einer Taste ausgewählt haben.</translation></message>
    <message id="colourOrange"><translation>Orange</translation></message>
    <message id="colourPicker"><translation>Farbe des Kommentars</translation></message>
    <message id="colourYellow"><translation>Gelb</translation></message>
    <message id="columnComment"><translation>Kommentar</translation></message>
    <message id="columnComments"><translation>Kommentare</translation></message>
    <message id="columnDate"><translation>Datum</translation></message>
    <message id="columnDia"><translation>DIA
mmHg</translation></message>
    <message id="columnFile"><translation>Datei</translation></message>
    <message id="columnMam"><translation>MAM</translation></message>
    <message id="columnPatient"><translation>Patient</translation></message>
    <message id="columnPressure"><translation>%1
mmHg</translation></message>
    <message id="columnPulse"><translation>Puls
1/min</translation></message>
    <message id="columnReadings"><translation>Messungen</translation></message>
    <message id="columnState"><translation>Status</translation></message>
    <message id="columnSys"><translation>SYS
mmHg</translation></message>
    <message id="columnTime"><translation>Uhrzeit</translation></message>
    <message id="commentBegin"><translation>Von</translation></message>
    <message id="commentBeginDay"><translation>Erster Tag des Kommentars</translation></message>
    <message id="commentCount" numerus="yes"><translation><numerusform>%n Kommentar</numerusform><numerusform>%n Kommentare</numerusform></translation></message>
    <message id="commentDayFar"><translation>„%1“ liegt mehr als zwei Jahre in der Zukunft: Bitte prüfen Sie das Jahr. Die Datumsangaben wurden nicht geändert.</translation></message>
    <message id="commentDayHint"><translation>Geben Sie ein Datum ein und drücken Sie die Eingabetaste.</translation></message>
    <message id="commentDayOrder"><translation>Der letzte Tag eines Kommentars kann nicht vor dem ersten liegen. Die Datumsangaben wurden nicht geändert.</translation></message>
    <message id="commentDayUnread"><translation>„%1“ ist kein gültiges Datum für einen Kommentar: Bitte geben Sie es in der Form %2 ein, mit einem Jahr ab 1900. Die Datumsangaben wurden nicht geändert.</translation></message>
    <message id="commentEmpty"><translation>Der Kommentar zum %1 hat keinen Text. Soll er entfernt werden?</translation></message>
    <message id="commentEmptyTitle"><translation>Kommentar ohne Text</translation></message>
    <message id="commentEnd"><translation>Bis</translation></message>
    <message id="commentEndDay"><translation>Letzter Tag des Kommentars</translation></message>
    <message id="commentInClipboard"><translation>Der Kommentar, der beim Beenden des Programms gerade eingegeben wurde, konnte nicht gespeichert werden. Sein Text liegt jetzt in der Zwischenablage: Fügen Sie ihn dort ein, wo Sie ihn aufbewahren möchten. %1</translation></message>
    <message id="commentNotSaved"><translation>Der Kommentar wurde nicht gespeichert; Ihr Text steht noch in seinem Feld. %1</translation></message>
    <message id="commentPanel"><translation>Kommentar</translation></message>
    <message id="commentPatientGone"><translation>Der Patient %1 ist nicht mehr in der Datendatei; der Kommentar, den Sie gerade eingeben, lässt sich dort deshalb nicht speichern. Ihr Text liegt jetzt in der Zwischenablage: Fügen Sie ihn dort ein, wo Sie ihn aufbewahren möchten.</translation></message>
    <message id="commentPosition"><translation>%1 von %2</translation></message>
    <message id="commentStay"><translation>Der Kommentar konnte nicht gespeichert werden. %1

Hier bleiben und den Text behalten, um es noch einmal zu versuchen? Bei „Nein“ wird der Text verworfen.</translation></message>
    <message id="commentText"><translation>Text des Kommentars</translation></message>
    <message id="commentUnchanged"><translation>Der Kommentar konnte nicht gespeichert werden. %1</translation></message>
    <message id="ConfirmDelPatient"><translation>%1 mit allen Messungen und Kommentaren löschen? Solange ZEL geöffnet ist, stellt „Bearbeiten“ &gt; „Rückgängig“ alles wieder her.</translation></message>
    <message id="confirmDropNew"><translation>Die Daten von %1 sind noch nicht gespeichert. Die Eingaben löschen? Sie lassen sich nicht wiederherstellen.</translation></message>
    <message id="confirmPrintSave"><translation>Die Daten von %1 wurden geändert, und nur Gespeichertes wird gedruckt oder exportiert. Die Änderungen zuerst speichern?</translation></message>
    <message id="confirmSendID"><translation>%2 Die ID %1 in das Messgerät schreiben? Von da an gehören seine Messungen zu diesem Patienten.</translation></message>
    <message id="confirmSendSave"><translation>Die Daten von %1 wurden geändert. Die Änderungen speichern?</translation></message>
    <message id="copyRows"><translation>Kopieren</translation></message>
    <message id="correlationView"><translation>Systolischer gegen diastolischen Blutdruck</translation></message>
    <message id="dataChangedElsewhere"><translation>Ein anderes Programm hat die Datendatei geändert. Angezeigt wird jetzt der neue Stand.</translation></message>
    <message id="dataFile"><translation>Datendatei</translation></message>
    <message id="dataFileUnreadable"><translation>Die Datendatei ist nicht verwendbar</translation></message>
    <message id="dataPanel"><translation>Daten</translation></message>
    <message id="dataUnreadNow"><translation>Die Datendatei ist zurzeit nicht lesbar, und es kann nichts gespeichert werden. Angezeigt wird der vorherige Stand.</translation></message>
    <message id="DateError"><translation>Datumsangaben prüfen</translation></message>
    <message id="dayHint"><translation>Geben Sie ein Datum ein und drücken Sie die Eingabetaste, oder öffnen Sie den Kalender mit dem Pfeil.</translation></message>
    <message id="dayOfDownload"><translation>%1, an diesem Tag ausgelesen</translation></message>
    <message id="daysButtons"><translation>Tage</translation></message>
    <message id="dayUnread"><translation>„%1“ ist kein gültiges Datum: Bitte geben Sie es in der Form %2 ein, mit einem Jahr ab 1900.</translation></message>
    <message id="dayUnreadLeft"><translation>„%1“ ist kein gültiges Datum: Bitte geben Sie es in der Form %2 ein, mit einem Jahr ab 1900. Das Datum wurde nicht geändert.</translation></message>
    <message id="dayWithoutReading"><translation>%1, keine Messung an diesem Tag</translation></message>
    <message id="dd mm yyyy"><translation>TT MM JJJJ</translation></message>
    <message id="DeleteComment"><translation>Kommentar löschen</translation></message>
    <message id="deleteCommentButton"><translation>Löschen …</translation></message>
    <message id="deleteCommentHint"><translation>Diesen Kommentar nach Rückfrage löschen.</translation></message>
    <message id="DeletePatient"><translation>Patienten löschen</translation></message>
    <message id="deletePatientButton"><translation>&amp;Löschen</translation></message>
    <message id="deletePatientHint"><translation>Diesen Patienten mit allen Messungen und Kommentaren nach Rückfrage löschen.</translation></message>
    <message id="deleteReadingsAction"><translation>Messung löschen …</translation></message>
    <message id="deleteReadingsQuestion"><translation>Die von Hand eingegebenen Werte löschen (%1)?</translation></message>
    <message id="deleteReadingsTitle"><translation>Messung löschen</translation></message>
    <message id="DeleteTheComment"><translation>Diesen Kommentar löschen? Solange ZEL geöffnet ist, stellt „Bearbeiten“ &gt; „Rückgängig“ ihn wieder her.</translation></message>
    <message id="demonstrationButton"><translation>Mit simuliertem Messgerät ausprobieren</translation></message>
    <message id="demonstrationIsOwnData"><translation>Die Demonstration bewahrt ihre Daten im Ordner %1 auf, der aber zu Ihren eigenen Daten führt. Es wurde nichts gestartet, damit keine erfundenen Messungen unter Ihre geraten.</translation></message>
    <message id="demonstrationNoFolder"><translation>Die Demonstration bewahrt ihre Daten im Ordner %1 auf, der sich nicht anlegen lässt.</translation></message>
    <message id="demonstrationNote"><translation>Öffnet ein zweites Fenster mit einem simulierten Messgerät und erfundenen Messungen, die von Ihren eigenen Daten getrennt bleiben.</translation></message>
    <message id="demonstrationNotStarted"><translation>Die Demonstration konnte nicht gestartet werden.</translation></message>
    <message id="demonstrationStarted"><translation>Die Demonstration öffnet sich in einem eigenen Fenster.</translation></message>
    <message id="demonstrationStrip"><translation>Demonstration: Das Messgerät ist simuliert; seine Messungen sind erfunden und bleiben von Ihren eigenen Daten getrennt.</translation></message>
    <message id="demonstrationTitle"><translation>Demonstration – %1</translation></message>
    <message id="download"><translation>Messungen auslesen</translation></message>
    <message id="downloadAdvice"><translation>Bitte lassen Sie das Messgerät angeschlossen. Seine Messungen werden gespeichert, sobald alle angekommen sind.</translation></message>
    <message id="downloadButton"><translation>A&amp;uslesen</translation></message>
    <message id="downloadCancel"><translation>Auslesen abbrechen</translation></message>
    <message id="downloadCancelled"><translation>Auslesen abgebrochen. Es wurde nichts gespeichert; die Messungen sind weiterhin im Messgerät.</translation></message>
    <message id="downloadDayUnknown"><translation>unbekannt</translation></message>
    <message id="downloadEmpty"><translation>Das Messgerät enthält keine Messungen.</translation></message>
    <message id="downloadFailed"><translation>Die Messungen konnten nicht ausgelesen werden, und es wurde nichts gespeichert. Sie sind weiterhin im Messgerät. %1</translation></message>
    <message id="downloadFetched" numerus="yes"><translation><numerusform>%n Messung ausgelesen</numerusform><numerusform>%n Messungen ausgelesen</numerusform></translation></message>
    <message id="downloadHint"><translation>Messungen aus dem Messgerät holen (Strg+D). Das Messgerät muss angeschlossen sein und die ID dieses Patienten enthalten.</translation></message>
    <message id="downloadNew" numerus="yes"><translation><numerusform>%1, davon %n neu</numerusform><numerusform>%1, davon %n neu</numerusform></translation></message>
    <message id="downloadNotFlushed"><translation>Die Messungen sind gespeichert, aber es ist nicht sicher, dass sie erhalten bleiben. %1</translation></message>
    <message id="downloadNothingNew"><translation>%1, keine neu: Alle waren schon gespeichert</translation></message>
    <message id="downloadNotReadBack"><translation>%1. Die Datendatei konnte anschließend nicht gelesen werden; das Messgerät wurde deshalb nicht geleert. %2</translation></message>
    <message id="downloadNotStored"><translation>Die Messungen konnten nicht gespeichert werden. Sie sind weiterhin im Messgerät. %1</translation></message>
    <message id="downloadOtherMonitor"><translation>Die Messungen im Messgerät gehören zu einer anderen ID als der dieses Patienten; deshalb wurde nichts gespeichert. Bitte schließen Sie das Messgerät dieses Patienten an und versuchen Sie es noch einmal.</translation></message>
    <message id="downloadProgress"><translation>Fortschritt des Auslesens</translation></message>
    <message id="downloadsNew"><translation>Neue Messungen</translation></message>
    <message id="downloadsNone"><translation>%1: Es wurde noch nichts aus dem Messgerät ausgelesen.</translation></message>
    <message id="downloadsSummary" numerus="yes"><translation><numerusform>%1: %n-mal ausgelesen. Neue Messungen: %2.</numerusform><numerusform>%1: %n-mal ausgelesen. Neue Messungen: %2.</numerusform></translation></message>
    <message id="downloadStarting"><translation>Messgerät wird abgefragt …</translation></message>
    <message id="downloadsTitle"><translation>Auslesevorgänge</translation></message>
    <message id="downloadStopping"><translation>Wird abgebrochen …</translation></message>
    <message id="downloadTypedLeftOut" numerus="yes"><translation><numerusform>%n von Hand eingegebene ist ab jetzt ausgeschlossen (auch vom Messgerät gemessen)</numerusform><numerusform>%n von Hand eingegebene sind ab jetzt ausgeschlossen (auch vom Messgerät gemessen)</numerusform></translation></message>
    <message id="downloadWaiting" numerus="yes"><translation><numerusform>Vom Messgerät kommt nichts an. Das Auslesen wartet noch höchstens %n Sekunde darauf. Sie können es abbrechen: Es geht nichts verloren.</numerusform><numerusform>Vom Messgerät kommt nichts an. Das Auslesen wartet noch höchstens %n Sekunden darauf. Sie können es abbrechen: Es geht nichts verloren.</numerusform></translation></message>
    <message id="dropLeftOut"><translation>Importieren lassen sich nur XML-Dateien auf diesem Computer. Nicht in der Liste: %1</translation></message>
    <message id="DupNewPatient"><translation>Es gibt schon einen neuen Patienten, der noch nicht gespeichert ist: den ersten der Liste. Bitte speichern oder löschen Sie ihn zuerst.</translation></message>
    <message id="EndDate"><translation>Der letzte Tag muss nach dem ersten liegen, damit der Zeitraum mindestens zwei Tage umfasst. Die Datumsangaben wurden nicht geändert.</translation></message>
    <message id="endEarlier"><translation>Einen Tag früher enden</translation></message>
    <message id="endLater"><translation>Einen Tag später enden</translation></message>
    <message id="eraseFailed"><translation>%1. Die Messungen sind sicher gespeichert, aber das Messgerät konnte nicht geleert werden: Es enthält sie weiterhin. %2</translation></message>
    <message id="eraseNotSeen"><translation>%1. Die Messungen sind sicher gespeichert, aber es war nicht zu erkennen, ob das Messgerät jetzt leer ist. %2</translation></message>
    <message id="eraseThem"><translation>&amp;Löschen</translation></message>
    <message id="exportAll"><translation>Alle Patienten als XML-Dateien exportieren</translation></message>
    <message id="exportAlsoFailed"><translation>Ebenso bei: %1</translation></message>
    <message id="exportButton"><translation>Alle &amp;exportieren …</translation></message>
    <message id="exportCancelled"><translation>Danach wurde der Export abgebrochen; die übrigen Patienten wurden nicht exportiert.</translation></message>
    <message id="exportCSV"><translation>Messungen des aktuellen Patienten als CSV-Datei exportieren</translation></message>
    <message id="exportCSVButton"><translation>CS&amp;V exportieren …</translation></message>
    <message id="exportCSVFolder"><translation>Ordner für die CSV-Datei wählen</translation></message>
    <message id="exportCSVHint"><translation>Schreibt die Daten und Messungen des aktuellen Patienten als Tabelle für eine Tabellenkalkulation.</translation></message>
    <message id="exportFailed" numerus="yes"><translation><numerusform>%n Datei konnte nicht geschrieben werden:</numerusform><numerusform>%n Dateien konnten nicht geschrieben werden:</numerusform></translation></message>
    <message id="exportFhirFolder"><translation>Ordner für die FHIR-Datei wählen</translation></message>
    <message id="exportFolder"><translation>Ordner für die Dateien der Patienten wählen</translation></message>
    <message id="exportHint"><translation>Schreibt für jeden Patienten eine Datei, die dieses Programm wieder importieren kann.</translation></message>
    <message id="exporting"><translation>Patienten werden exportiert</translation></message>
    <message id="exportKept" numerus="yes"><translation><numerusform>%n Datei war schon vorhanden und wurde nicht verändert.</numerusform><numerusform>%n Dateien waren schon vorhanden und wurden nicht verändert.</numerusform></translation></message>
    <message id="ExportMsg" numerus="yes"><translation><numerusform>%n Datei wurde in den Ordner %1 geschrieben.</numerusform><numerusform>%n Dateien wurden in den Ordner %1 geschrieben.</numerusform></translation></message>
    <message id="exportNobody"><translation>Es gibt noch keinen Patienten zum Exportieren. Legen Sie zuerst einen Patienten an, oder importieren Sie einen.</translation></message>
    <message id="exportNoPatient"><translation>Es ist kein Patient ausgewählt. Bitte wählen Sie zuerst den Patienten, der exportiert werden soll.</translation></message>
    <message id="exportReplace" numerus="yes"><translation><numerusform>Der Ordner %1 enthält die Datei %2 schon. Soll sie ersetzt werden? Bei „Nein“ bleibt sie unverändert.</numerusform><numerusform>Der Ordner %1 enthält %n der Dateien schon (%2). Sollen sie ersetzt werden? Bei „Nein“ bleiben sie unverändert, und nur die übrigen werden geschrieben.</numerusform></translation></message>
    <message id="exportReplaceTitle"><translation>Dateien ersetzen?</translation></message>
    <message id="ExportTitle"><translation>Export</translation></message>
    <message id="fieldAddress"><translation>Adresse</translation></message>
    <message id="fieldCholestrol"><translation>Cholesterin (mg/dl)</translation></message>
    <message id="fieldDateOfBirth"><translation>Geburtsdatum</translation></message>
    <message id="fieldDiabetic"><translation>Diabetes</translation></message>
    <message id="fieldFamilyHistory"><translation>Familienanamnese</translation></message>
    <message id="fieldFamilyName"><translation>Nachname</translation></message>
    <message id="fieldGivenNames"><translation>Vorname(n)</translation></message>
    <message id="fieldHeightCm"><translation>Größe (cm)</translation></message>
    <message id="fieldHeightFtIn"><translation>Größe (Fuß/Zoll)</translation></message>
    <message id="fieldID"><translation>ID</translation></message>
    <message id="fieldMissing"><translation>Bitte füllen Sie dieses Feld aus.</translation></message>
    <message id="fieldPatientNotes"><translation>Notizen zu diesem Patienten</translation></message>
    <message id="fieldPhoneEmail"><translation>Telefon / E-Mail</translation></message>
    <message id="fieldRequired"><translation>Pflichtfeld</translation></message>
    <message id="fieldSex"><translation>Geschlecht</translation></message>
    <message id="fieldSmoker"><translation>Rauchen</translation></message>
    <message id="fieldWeightKg"><translation>Gewicht (kg)</translation></message>
    <message id="fieldWeightLb"><translation>Gewicht (lb)</translation></message>
    <message id="fileAlreadyHere"><translation>schon vorhanden</translation></message>
    <message id="fileAlreadyHereHint"><translation>Ein Patient mit dieser ID steht schon in der Liste; ein Import würde abgelehnt.</translation></message>
    <message id="fileBeingRead"><translation>wird gelesen …</translation></message>
    <message id="fileNotImportable"><translation>nicht importierbar</translation></message>
    <message id="fileNotReadable"><translation>nicht lesbar</translation></message>
    <message id="fileTooLargeToCount"><translation>über 64 MiB: nicht gezählt</translation></message>
    <message id="firstCopy"><translation>Eine Sicherung früherer Daten ist vorhanden: %1 (%2). Falls die Datendatei verloren ging, kehren Sie zu ihr zurück.</translation></message>
    <message id="firstCopyButton"><translation>Zu einer Sicherung zurückkehren …</translation></message>
    <message id="firstStepDownload"><translation>Drücken Sie „Auslesen“. Die Messungen erscheinen in Diagramm und Tabelle.</translation></message>
    <message id="firstStepMonitor"><translation>Schließen Sie das Messgerät mit seinem USB-Kabel an. Ist die ID dieses Patienten noch nicht darin gespeichert, drücken Sie „ID senden“.</translation></message>
    <message id="firstStepPatient"><translation>Legen Sie den Patienten an, dessen Blutdruck das Messgerät misst, geben Sie ihm eine ID und drücken Sie „Speichern“.</translation></message>
    <message id="firstSteps"><translation>Noch keine Patienten: drei Schritte zu den ersten Messungen</translation></message>
    <message id="heightRefusedCm"><translation>Bitte geben Sie eine Zahl von 20 bis 300 cm ein, z. B. 175.</translation></message>
    <message id="heightRefusedFtIn"><translation>Bitte geben Sie Fuß und Zoll mit einem Schrägstrich dazwischen ein, z. B. 5/9. Zoll: höchstens 11.</translation></message>
    <message id="highFrom"><translation>Grenzwerte, ab denen Werte markiert werden</translation></message>
    <message id="highFromHint"><translation>Werte ab diesen Grenzwerten sind hier und auf Papier fett und markiert. Für Diagramm, Statistik, Histogramm und Korrelation gelten weiterhin die Grenzwerte aus den Einstellungen.</translation></message>
    <message id="highFromLabel"><translation>Werte mar&amp;kieren ab</translation></message>
    <message id="histogramView"><translation>Verteilung der Werte</translation></message>
    <message id="IDNotForMonitor"><translation>Die ID „%1“ passt nicht in das Messgerät. Ein Messgerät speichert IDs aus 1 bis 11 einfachen Buchstaben, Ziffern und Zeichen, ohne Umlaute und Akzente und ohne Leerzeichen am Anfang oder Ende.</translation></message>
    <message id="IDRefused"><translation>Eine ID besteht aus 1 bis 11 einfachen Buchstaben, Ziffern oder Zeichen, ohne Umlaute und Akzente: Mehr kann ein Messgerät nicht speichern.</translation></message>
    <message id="IDStays"><translation>Die ID lässt sich nicht ändern: Die Messungen und Kommentare gehören zu ihr.</translation></message>
    <message id="ihd"><translation>IHD</translation></message>
    <message id="importAll"><translation>&amp;Alle</translation></message>
    <message id="importAllFiles"><translation>Alle Dateien auswählen</translation></message>
    <message id="importButton"><translation>&amp;Importieren</translation></message>
    <message id="importButtonFiles" numerus="yes"><translation><numerusform>%n Datei &amp;importieren</numerusform><numerusform>%n Dateien &amp;importieren</numerusform></translation></message>
    <message id="importCancelled" numerus="yes"><translation><numerusform>Danach wurde der Import abgebrochen; %n Datei wurde nicht gelesen.</numerusform><numerusform>Danach wurde der Import abgebrochen; %n Dateien wurden nicht gelesen.</numerusform></translation></message>
    <message id="importDropped"><translation>Auf das Fenster gezogene Dateien</translation></message>
    <message id="importedFiles" numerus="yes"><translation><numerusform>%n Datei wurde importiert:</numerusform><numerusform>%n Dateien wurden importiert:</numerusform></translation></message>
    <message id="importFilesButton"><translation>&amp;Importieren …</translation></message>
    <message id="importFolder"><translation>Ordner für den Import wählen</translation></message>
    <message id="importFolderButton"><translation>&amp;Ordner wählen …</translation></message>
    <message id="importFrom"><translation>Dateien in %1</translation></message>
    <message id="importHint"><translation>Übernimmt Patienten aus früher exportierten XML-Dateien.</translation></message>
    <message id="importing"><translation>Patienten werden importiert</translation></message>
    <message id="importList"><translation>Liste der XML-Dateien</translation></message>
    <message id="importNone"><translation>Es wurde keine Datei importiert.</translation></message>
    <message id="importRefused" numerus="yes"><translation><numerusform>%n Datei wurde nicht importiert:</numerusform><numerusform>%n Dateien wurden nicht importiert:</numerusform></translation></message>
    <message id="importTaken"><translation>%1: %2, %3, %4</translation></message>
    <message id="importTitle"><translation>Patienten importieren</translation></message>
    <message id="includeUndated"><translation>Undatierte Messungen</translation></message>
    <message id="includeUndatedHint"><translation>Auch Messungen anzeigen und zählen, die das Messgerät ohne Datum gespeichert hat.</translation></message>
    <message id="infoDia"><translation>Diastolisch</translation></message>
    <message id="infoLine"><translation>%1: %2</translation></message>
    <message id="infoPulse"><translation>Puls</translation></message>
    <message id="infoRemark"><translation>Bemerkung</translation></message>
    <message id="infoSys"><translation>Systolisch</translation></message>
    <message id="keep"><translation>&amp;Behalten</translation></message>
    <message id="keysCloseMonitorBar"><translation>Leiste des Messgeräts schließen</translation></message>
    <message id="keysFirstLast"><translation>Erste, letzte Messungen</translation></message>
    <message id="keysFromReading"><translation>Von Messung zu Messung</translation></message>
    <message id="keysKey"><translation>Taste</translation></message>
    <message id="keysManualHint"><translation>Das Handbuch öffnen (F1).</translation></message>
    <message id="keysMovePeriod"><translation>Zeitraum verschieben</translation></message>
    <message id="keysMoveScale"><translation>Skala verschieben</translation></message>
    <message id="keysPlace"><translation>Wo</translation></message>
    <message id="keysTitle"><translation>Tastenkürzel</translation></message>
    <message id="keysToMonitorBar"><translation>Zur Leiste des Messgeräts</translation></message>
    <message id="keysWhat"><translation>Was geschieht</translation></message>
    <message id="keysWholePeriod"><translation>Einen ganzen Zeitraum zurück, weiter</translation></message>
    <message id="keysWidenPeriod"><translation>Zeitraum verlängern, verkürzen</translation></message>
    <message id="languageNotSaved"><translation>Die Sprache wurde nicht geändert; die übrigen Einstellungen sind gespeichert. %1</translation></message>
    <message id="lastDownload"><translation>Zuletzt ausgelesen</translation></message>
    <message id="lastDownloadNone"><translation>noch nie</translation></message>
    <message id="leaveOutAction"><translation>Ausschließen …</translation></message>
    <message id="leaveOutButton"><translation>&amp;Ausschließen</translation></message>
    <message id="leaveOutExample"><translation>z. B. Manschette saß locker</translation></message>
    <message id="leaveOutExplained"><translation>%1: von Mittelwerten, Statistik und Diagrammen ausschließen. Ausgeschlossenes bleibt durchgestrichen und mit seinem Grund in der Liste; der Ausschluss lässt sich wieder aufheben.</translation></message>
    <message id="leaveOutNoReason"><translation>Bitte geben Sie einen Grund an.</translation></message>
    <message id="leaveOutReason"><translation>&amp;Grund:</translation></message>
    <message id="leaveOutTitle"><translation>Ausschließen</translation></message>
    <message id="limitsHome"><translation>%1/%2 (zu Hause)</translation></message>
    <message id="limitsLow"><translation>%1/%2 (strenger)</translation></message>
    <message id="limitsNotKept"><translation>Die Grenzwerte gelten, bis das Programm beendet wird. Sie konnten nicht für den nächsten Start gespeichert werden: %1</translation></message>
    <message id="limitsOffice"><translation>%1/%2 (in der Praxis)</translation></message>
    <message id="limitsOwn"><translation>eigene Grenzwerte</translation></message>
    <message id="mainMenu"><translation>Hauptmenü</translation></message>
    <message id="manualChapters"><translation>Kapitel</translation></message>
    <message id="manualTitle"><translation>Handbuch</translation></message>
    <message id="map"><translation>MAP</translation></message>
    <message id="menuAbout"><translation>Ü&amp;ber ZEL</translation></message>
    <message id="menuBackups"><translation>&amp;Sicherungen …</translation></message>
    <message id="menuCopyRows"><translation>Zeilen kopieren</translation></message>
    <message id="menuDeleteComment"><translation>Kommentar löschen</translation></message>
    <message id="menuDeletePatient"><translation>Patienten löschen</translation></message>
    <message id="menuDownload"><translation>Messungen auslesen</translation></message>
    <message id="menuDownloads"><translation>Auslesevorgänge …</translation></message>
    <message id="menuEdit"><translation>&amp;Bearbeiten</translation></message>
    <message id="menuExportFhir"><translation>Patienten als F&amp;HIR exportieren …</translation></message>
    <message id="menuFewerDays"><translation>Weniger Tage</translation></message>
    <message id="menuFile"><translation>&amp;Datei</translation></message>
    <message id="menuFindPatient"><translation>Patienten suchen</translation></message>
    <message id="menuHelp"><translation>&amp;Hilfe</translation></message>
    <message id="menuKeys"><translation>&amp;Tastenkürzel</translation></message>
    <message id="menuManual"><translation>&amp;Handbuch</translation></message>
    <message id="menuMoreDays"><translation>Mehr Tage</translation></message>
    <message id="menuNewPatient"><translation>Neuer Patient</translation></message>
    <message id="menuPrint"><translation>&amp;Drucken …</translation></message>
    <message id="menuQuit"><translation>&amp;Beenden</translation></message>
    <message id="menuRedo"><translation>&amp;Wiederholen</translation></message>
    <message id="menuRedoStep"><translation>&amp;Wiederholen: %1</translation></message>
    <message id="menuSavePatient"><translation>Patienten speichern</translation></message>
    <message id="menuSavePdf"><translation>Als PD&amp;F speichern …</translation></message>
    <message id="menuSelectRows"><translation>Alle Zeilen auswählen</translation></message>
    <message id="menuSendID"><translation>ID an das Messgerät senden</translation></message>
    <message id="menuSettings"><translation>&amp;Einstellungen …</translation></message>
    <message id="menuTimeChart"><translation>Zeitlicher Verlauf</translation></message>
    <message id="menuUndo"><translation>&amp;Rückgängig</translation></message>
    <message id="menuUndoStep"><translation>&amp;Rückgängig: %1</translation></message>
    <message id="menuView"><translation>Ansicht</translation></message>
    <message id="minusDay"><translation>Weniger Tage: an jedem Ende des Zeitraums einer weniger</translation></message>
    <message id="minusDayHint"><translation>Weniger Tage: an jedem Ende des Zeitraums einer weniger (−)</translation></message>
    <message id="mm dd yyyy"><translation>MM TT JJJJ</translation></message>
    <message id="monitorChangedMeanwhile"><translation>Das Messgerät wurde inzwischen abgezogen oder gewechselt; es wurde nichts ausgelesen.</translation></message>
    <message id="monitorClock"><translation>Uhr</translation></message>
    <message id="monitorConnected"><translation>Messgerät verbunden</translation></message>
    <message id="monitorConnectedID"><translation>Im Messgerät ist die ID %1 gespeichert. Drücken Sie „Auslesen“, um die Messungen für diesen Patienten zu holen.</translation></message>
    <message id="monitorCounting"><translation>Die Messungen im Messgerät werden abgefragt. Das kann bis zu 20 Sekunden dauern …</translation></message>
    <message id="monitorDownloading"><translation>Messungen werden ausgelesen …</translation></message>
    <message id="monitorErasing"><translation>Messgerät wird geleert …</translation></message>
    <message id="monitorGreeting"><translation>Uhr und ID des Messgeräts werden gelesen …</translation></message>
    <message id="monitorHoldsNone"><translation>Im Messgerät ist jetzt keine ID gespeichert.</translation></message>
    <message id="monitorHoldsOther"><translation>Im Messgerät ist jetzt die ID %1 gespeichert, die hier zu keinem Patienten gehört.</translation></message>
    <message id="monitorHoldsPatient"><translation>Im Messgerät ist jetzt die ID %1 von %2 gespeichert.</translation></message>
    <message id="monitorHoldsReadings" numerus="yes"><translation><numerusform>Darin ist %n Messung.</numerusform><numerusform>Darin sind %n Messungen.</numerusform></translation></message>
    <message id="monitorHoldsUnknown"><translation>Welche ID jetzt im Messgerät gespeichert ist, konnte nicht gelesen werden.</translation></message>
    <message id="monitorID"><translation>ID</translation></message>
    <message id="monitorIDSimilar"><translation>Die ID %1 von %2 sieht ähnlich aus, ist aber eine andere.</translation></message>
    <message id="monitorLooking"><translation>Messgerät wird gesucht …</translation></message>
    <message id="monitorNotAnswering"><translation>Angeschlossen, antwortet aber nicht wie erwartet. %1</translation></message>
    <message id="monitorNotConnected"><translation>Nicht verbunden. Schließen Sie das Messgerät an einen USB-Anschluss an.</translation></message>
    <message id="monitorPanel"><translation>Messgerät</translation></message>
    <message id="monitorReadingsUnknown"><translation>Wie viele Messungen darin sind, konnte nicht gelesen werden.</translation></message>
    <message id="monitorReady"><translation>Verbunden</translation></message>
    <message id="monitorSendingID"><translation>ID wird in das Messgerät geschrieben …</translation></message>
    <message id="monitorSettingClock"><translation>Uhr des Messgeräts wird gestellt …</translation></message>
    <message id="monitorState"><translation>Status</translation></message>
    <message id="monitorTrouble"><translation>Verbunden, aber der letzte Datenaustausch ist fehlgeschlagen und wird noch einmal versucht. %1</translation></message>
    <message id="monitorWithoutID"><translation>Im angeschlossenen Messgerät ist keine ID gespeichert. Wählen Sie einen Patienten und drücken Sie „ID senden“, um es zum Messgerät dieses Patienten zu machen.</translation></message>
    <message id="newIDFromDevice"><translation>Im Messgerät ist die ID %1 gespeichert, die hier zu keinem Patienten gehört. Legen Sie einen Patienten mit dieser ID an, oder wählen Sie einen Patienten und drücken Sie „ID senden“.</translation></message>
    <message id="NewPatient"><translation>Neuer Patient</translation></message>
    <message id="newPatientButton"><translation>&amp;Neu</translation></message>
    <message id="newPatientHint"><translation>Neuen Patienten anlegen (Strg+N).</translation></message>
    <message id="newPatientWithID"><translation>Neuer Patient mit dieser ID</translation></message>
    <message id="newReadingAction"><translation>Neue Messung …</translation></message>
    <message id="newReadingHint"><translation>Eine Messung von Hand eingeben, die keines Ihrer Messgeräte gespeichert hat (Strg+N).</translation></message>
    <message id="newReadingTitle"><translation>Neue Messung</translation></message>
    <message id="nextComment"><translation>Nächster Kommentar</translation></message>
    <message id="nextHint"><translation>Nächste Seite (Bild ab)</translation></message>
    <message id="nextPage"><translation>Nächste Seite</translation></message>
    <message id="no"><translation>&amp;Nein</translation></message>
    <message id="noCommentPage"><translation>Keine Kommentare</translation></message>
    <message id="noCommentPageAdvice"><translation>Für diesen Patienten gibt es noch keine Kommentare. Sie werden im Diagramm hinzugefügt.</translation></message>
    <message id="noComments"><translation>Noch kein Kommentar. Kommentare werden im Diagramm hinzugefügt.</translation></message>
    <message id="NoData"><translation>Noch keine Messungen</translation></message>
    <message id="NoDataAdvice"><translation>Schließen Sie das Messgerät an, wählen Sie auf der Seite „Patienten“ den Patienten und drücken Sie „Auslesen“, oder geben Sie mit Strg+N eine Messung von Hand ein.</translation></message>
    <message id="noDisplay"><translation>es gibt keine grafische Anzeige, auf der sich ein Fenster öffnen lässt. Starten Sie zel in einer grafischen Sitzung, oder verwenden Sie die Befehle, die kein Fenster brauchen: siehe zel --help</translation></message>
    <message id="noFiles"><translation>Keine XML-Dateien in diesem Ordner</translation></message>
    <message id="noFilesAdvice"><translation>Wählen Sie den Ordner, in den die Patienten exportiert wurden.</translation></message>
    <message id="noHome"><translation>die Umgebungsvariable HOME nennt keinen Ordner (als absoluten Pfad); für die Daten gibt es deshalb keinen Platz.</translation></message>
    <message id="noID"><translation>keine</translation></message>
    <message id="none"><translation>keine Angabe</translation></message>
    <message id="noneInPeriod"><translation>Keine Messungen in diesem Zeitraum</translation></message>
    <message id="noneInPeriodAdvice"><translation>Wählen Sie oben andere Tage oder „Alle“ und „Ganzer Tag“. Messungen ohne Datum werden angezeigt, wenn auch „Undatierte Messungen“ angekreuzt ist.</translation></message>
    <message id="nonePrintedAdvice"><translation>Schließen Sie dieses Fenster und wählen Sie auf der Seite „Messungen“ oder „Diagramm“ andere Tage oder dort „Alle“ und „Ganzer Tag“. Messungen ohne Datum werden gedruckt, wenn „Undatierte Messungen“ angekreuzt ist.</translation></message>
    <message id="noPage"><translation>Keine Seite</translation></message>
    <message id="noPatientFound"><translation>Kein Patient gefunden</translation></message>
    <message id="noPatientFoundAdvice"><translation>Kein Name und keine ID enthält den Suchtext.</translation></message>
    <message id="noPatientSelected"><translation>Kein Patient ausgewählt</translation></message>
    <message id="noPrinterNote"><translation>Auf diesem Computer ist kein Drucker eingerichtet. Sie können die Seiten als PDF speichern oder in den Systemeinstellungen einen Drucker einrichten.</translation></message>
    <message id="NoPrnter"><translation>Kein Drucker</translation></message>
    <message id="NoPrnterMsg"><translation>Auf diesem Computer ist kein Drucker eingerichtet; deshalb kann nichts gedruckt werden. Bitte richten Sie in den Systemeinstellungen einen ein und versuchen Sie es noch einmal, oder speichern Sie die Seiten als PDF.</translation></message>
    <message id="notes"><translation>Notizen</translation></message>
    <message id="notKnown"><translation>–</translation></message>
    <message id="noValue"><translation>n.a.</translation></message>
    <message id="ok"><translation>&amp;OK</translation></message>
    <message id="openCalendar"><translation>Kalender öffnen</translation></message>
    <message id="ownDia"><translation>Eigener diastolischer Grenzwert in mmHg, 0 für keinen</translation></message>
    <message id="ownSys"><translation>Eigener systolischer Grenzwert in mmHg, 0 für keinen</translation></message>
    <message id="pad"><translation>PAD</translation></message>
    <message id="pageChart"><translation>Diagramm</translation></message>
    <message id="pagePatients"><translation>Patienten</translation></message>
    <message id="pageReadings"><translation>Messungen</translation></message>
    <message id="pageTabs"><translation>Seiten</translation></message>
    <message id="pageText"><translation>%1/%2</translation></message>
    <message id="patientCount" numerus="yes"><translation><numerusform>%n Patient</numerusform><numerusform>%n Patienten</numerusform></translation></message>
    <message id="patientDeleted"><translation>%1 wurde gelöscht.</translation></message>
    <message id="patientEditor"><translation>Daten des Patienten</translation></message>
    <message id="patientGone"><translation>%1 ist nicht mehr in der Datendatei: Ein anderes Programm hat diesen Patienten entfernt, oder ein Schritt wurde hier rückgängig gemacht. Was Sie eingegeben haben, ist noch da; „Speichern“ legt den Patienten wieder an.</translation></message>
    <message id="patientHeading"><translation>%1 %2 (ID %3)</translation></message>
    <message id="patientID"><translation>ID</translation></message>
    <message id="patientIDOnly"><translation>ID %1</translation></message>
    <message id="patientIDTwice"><translation>Die Datendatei enthält mehr als einen Patienten mit der ID %1. Sie lassen sich nicht unterscheiden; deshalb wird keiner von ihnen geändert oder gelöscht.</translation></message>
    <message id="patientList"><translation>Patientenliste</translation></message>
    <message id="patientName"><translation>Name</translation></message>
    <message id="patientNameless"><translation>Patient ohne Namen</translation></message>
    <message id="patientPartlySaved"><translation>Die Daten von %1 konnten nicht vollständig gespeichert werden: Für einen Teil davon hat die Datendatei keinen Platz. Was nicht gespeichert werden konnte, steht noch in den Feldern.</translation></message>
    <message id="patientRefused"><translation>Es wurde noch nichts gespeichert. Bitte berichtigen Sie die markierten Angaben:
%1</translation></message>
    <message id="patientReplaced"><translation>%1 ist nicht mehr in der Datendatei: Ein anderes Programm hat diesen Patienten entfernt. Jetzt wird ein anderer Patient angezeigt.</translation></message>
    <message id="patientSaved"><translation>%1 wurde gespeichert.</translation></message>
    <message id="patientsDetail"><translation>Wählen Sie einen Patienten aus, oder legen Sie einen neuen an.</translation></message>
    <message id="patientsInputFields"><translation>Nachname, Vorname und ID sind erforderlich. Es wurde noch nichts gespeichert; bitte füllen Sie die markierten Felder aus.</translation></message>
    <message id="patientTotal"><translation>Patienten</translation></message>
    <message id="pdfChart"><translation>Diagramm</translation></message>
    <message id="pdfComments"><translation>Kommentare</translation></message>
    <message id="pdfCorrelation"><translation>Korrelation</translation></message>
    <message id="pdfFiles"><translation>PDF-Dateien (*.pdf)</translation></message>
    <message id="pdfHistogram"><translation>Verteilung</translation></message>
    <message id="pdfProfile"><translation>Patientendaten</translation></message>
    <message id="pdfReadings"><translation>Messungen</translation></message>
    <message id="pdfStatistics"><translation>Statistik und Messungen</translation></message>
    <message id="pdfSummary"><translation>Übersicht</translation></message>
    <message id="pdfTrend"><translation>Trend</translation></message>
    <message id="periodBar"><translation>Zeitraum und angezeigte Messungen</translation></message>
    <message id="periodBegin"><translation>Erster Tag des Zeitraums</translation></message>
    <message id="periodEnd"><translation>Letzter Tag des Zeitraums</translation></message>
    <message id="periodFrom"><translation>&amp;Von</translation></message>
    <message id="periodTo"><translation>bi&amp;s</translation></message>
    <message id="personalData"><translation>Persönliche Daten</translation></message>
    <message id="pp"><translation>PP</translation></message>
    <message id="previewView"><translation>Seitenvorschau</translation></message>
    <message id="previousComment"><translation>Vorheriger Kommentar</translation></message>
    <message id="previousHint"><translation>Vorherige Seite (Bild auf)</translation></message>
    <message id="previousPage"><translation>Vorherige Seite</translation></message>
    <message id="print"><translation>Drucken</translation></message>
    <message id="printAddAddress"><translation>Praxisangaben in der Fußzeile jeder Seite drucken</translation></message>
    <message id="printButton"><translation>&amp;Drucken</translation></message>
    <message id="printDetails"><translation>Praxis&amp;angaben</translation></message>
    <message id="printDetailsHint"><translation>Druckt die Praxisangaben aus den Einstellungen in der Fußzeile jeder Seite.</translation></message>
    <message id="printDone"><translation>An den Drucker %1 übergeben</translation></message>
    <message id="printer"><translation>Drucker</translation></message>
    <message id="printerButton"><translation>D&amp;rucker …</translation></message>
    <message id="printerGone"><translation>Der Drucker „%1“ ist nicht mehr da; deshalb wurde nichts gedruckt. Bitte prüfen Sie, ob er eingeschaltet und angeschlossen ist, oder wählen Sie einen anderen.</translation></message>
    <message id="printerLabel"><translation>D&amp;rucker</translation></message>
    <message id="printerShown"><translation>Drucker: %1</translation></message>
    <message id="printFailed"><translation>Die Seiten konnten nicht vollständig an den Drucker „%1“ übergeben werden. Der Auftrag wurde zurückgenommen, und es wird nichts gedruckt. Bitte prüfen Sie die Druckerwarteschlange und ob der Datenträger voll ist, und versuchen Sie es dann noch einmal.</translation></message>
    <message id="printNoData"><translation>Es gibt nichts zu drucken: Dieser Abschnitt enthält für diesen Patienten und Zeitraum keine Daten.</translation></message>
    <message id="printNoPatient"><translation>Es gibt keinen Patienten, dessen Bericht gedruckt werden könnte. Bitte wählen Sie einen aus, oder legen Sie zuerst einen an und speichern Sie ihn.</translation></message>
    <message id="printOption"><translation>Zu druckender Abschnitt</translation></message>
    <message id="printOptionLabel"><translation>Ab&amp;schnitt</translation></message>
    <message id="privacyAsked"><translation>Andere Benutzer dieses Computers können %1 lesen.

Soll ihnen der Zugriff verwehrt werden? Geändert werden nur die Zugriffsrechte der Datendatei, ihres Ordners und ihrer Sicherungen.</translation></message>
    <message id="privacyAskedMore"><translation>%1 und %2 weitere</translation></message>
    <message id="privacyMended"><translation>Nur Sie können jetzt die Datendatei und ihre Sicherungen lesen.</translation></message>
    <message id="privacyTitle"><translation>Andere können die Patientendaten lesen</translation></message>
    <message id="programName"><translation>ZEL</translation></message>
    <message id="programPurpose"><translation>Blutdruckmessungen, vom Messgerät in Ihre Unterlagen</translation></message>
    <message id="programVersion"><translation>Version %1</translation></message>
    <message id="ProgressPatientInfo"><translation>%1 %2 (ID %3)</translation></message>
    <message id="ProgressProcessInfo"><translation>%1 von %2 Messungen</translation></message>
    <message id="pulseChart"><translation>Puls im Verlauf, mit den Kommentaren</translation></message>
    <message id="pulseScroller"><translation>Pulsskala verschieben</translation></message>
    <message id="readingDay"><translation>Datum</translation></message>
    <message id="readingInWords"><translation>%1 %2, %3/%4, Puls %5</translation></message>
    <message id="readingList"><translation>Liste der Messungen</translation></message>
    <message id="readingsCounted"><translation>%1. Gezählt: %2</translation></message>
    <message id="readingsFromTo"><translation>%1, vom %2 bis %3</translation></message>
    <message id="readingsListed"><translation>%1. In der Liste: %2</translation></message>
    <message id="readingsNoted"><translation>%1. %2</translation></message>
    <message id="readingsOn"><translation>%1, am %2</translation></message>
    <message id="readingStored"><translation>Gespeichert: %1.</translation></message>
    <message id="readingStoredOtherHalf"><translation>Gespeichert, außerhalb der angezeigten Tageszeit: %1.</translation></message>
    <message id="readingStoredOutside"><translation>Gespeichert, außerhalb der angezeigten Tage: %1.</translation></message>
    <message id="readingTime"><translation>Uhrzeit</translation></message>
    <message id="readingTotal"><translation>Messungen dieses Patienten</translation></message>
    <message id="redoFailed"><translation>„%1“ wurde nicht wiederholt. %2</translation></message>
    <message id="redone"><translation>Wiederholt: %1</translation></message>
    <message id="requiredNote"><translation>* Pflichtfeld</translation></message>
    <message id="riskFactors"><translation>Risikofaktoren</translation></message>
    <message id="sameID"><translation>Die ID %1 gehört zu einem anderen Patienten der Liste. Es wurde noch nichts gespeichert; bitte wählen Sie eine andere ID.</translation></message>
    <message id="sameIDTitle"><translation>ID schon vergeben</translation></message>
    <message id="savedPdf"><translation>Gespeichert als %1</translation></message>
    <message id="saveIt"><translation>&amp;Speichern</translation></message>
    <message id="saveNot"><translation>&amp;Nicht speichern</translation></message>
    <message id="SavePatient"><translation>Patienten speichern</translation></message>
    <message id="savePatientButton"><translation>&amp;Speichern</translation></message>
    <message id="savePatientHint"><translation>Eingaben speichern (Strg+S).</translation></message>
    <message id="savePdf"><translation>Als PDF speichern</translation></message>
    <message id="savePdfButton"><translation>Als PD&amp;F speichern …</translation></message>
    <message id="saveReading"><translation>&amp;Speichern</translation></message>
    <message id="searchPatients"><translation>Name oder ID suchen</translation></message>
    <message id="searchPatientsHint"><translation>Nur Patienten anzeigen, deren Name oder ID diesen Text enthält (Strg+F).</translation></message>
    <message id="selectAllRows"><translation>Alles auswählen</translation></message>
    <message id="sendClock"><translation>Uhr des Messgeräts auf die Zeit dieses Computers stellen</translation></message>
    <message id="sendClockBusy"><translation>Uhr wird gestellt …</translation></message>
    <message id="sendClockButton"><translation>&amp;Uhr stellen</translation></message>
    <message id="sendID"><translation>ID an das Messgerät senden</translation></message>
    <message id="sendIDButton"><translation>&amp;ID senden</translation></message>
    <message id="SendIDDataMsg" numerus="yes"><translation><numerusform>Darin ist noch %n Messung. Bevor die ID %1 hineingeschrieben wird: Soll diese Messung für die neue ID behalten oder endgültig aus dem Messgerät gelöscht werden?</numerusform><numerusform>Darin sind noch %n Messungen. Bevor die ID %1 hineingeschrieben wird: Sollen diese Messungen für die neue ID behalten oder endgültig aus dem Messgerät gelöscht werden?</numerusform></translation></message>
    <message id="SendIDDataTitle"><translation>Messungen im Messgerät</translation></message>
    <message id="sendIDFailed"><translation>Das Senden der ID an das Messgerät ist fehlgeschlagen. %1</translation></message>
    <message id="sendIDFailedErased"><translation>Die Messungen im Messgerät wurden gelöscht, aber das Senden der ID ist fehlgeschlagen. %1</translation></message>
    <message id="sendIDHint"><translation>Die ID dieses Patienten in das angeschlossene Messgerät schreiben, das eine andere oder keine enthält.</translation></message>
    <message id="settingCancel"><translation>Schließen, ohne zu speichern</translation></message>
    <message id="settingData"><translation>Patientendaten</translation></message>
    <message id="settingDate"><translation>Datumsformat</translation></message>
    <message id="settingDateLabel"><translation>&amp;Datumsformat</translation></message>
    <message id="settingDia"><translation>Diastolischer Grenzwert in mmHg</translation></message>
    <message id="settingDiaLabel"><translation>Di&amp;astolisch</translation></message>
    <message id="settingDisplay"><translation>Anzeige</translation></message>
    <message id="settingErase"><translation>Messgerät nach jedem Auslesen leeren</translation></message>
    <message id="settingEraseButton"><translation>Messgerät nach dem Auslesen &amp;leeren</translation></message>
    <message id="settingEraseHint"><translation>Die Messungen werden aus dem Messgerät gelöscht, sobald alle hier sicher gespeichert sind.</translation></message>
    <message id="settingLanguage"><translation>Sprache</translation></message>
    <message id="settingLanguageLabel"><translation>Sp&amp;rache</translation></message>
    <message id="settingLanguageSystem"><translation>Systemsprache</translation></message>
    <message id="settingLanguageWhen"><translation>Eine andere Sprache gilt ab dem nächsten Start.</translation></message>
    <message id="settingLimits"><translation>Blutdruck-Grenzwerte</translation></message>
    <message id="settingMAP"><translation>Mittleren arteriellen Druck anzeigen</translation></message>
    <message id="settingMAPButton"><translation>&amp;Mittlerer arterieller Druck (MAP)</translation></message>
    <message id="settingOK"><translation>Einstellungen speichern</translation></message>
    <message id="settingPhysician"><translation>Praxisangaben für die Fußzeile gedruckter Berichte</translation></message>
    <message id="settingPhysicianTitle"><translation>Praxisangaben</translation></message>
    <message id="settingPhysicianUse"><translation>Stehen in der Fußzeile gedruckter Berichte, sofern im Druckfenster so gewählt.</translation></message>
    <message id="settingPP"><translation>Pulsdruck anzeigen</translation></message>
    <message id="settingPPButton"><translation>&amp;Pulsdruck (PP)</translation></message>
    <message id="settingPPorMAP"><translation>Zu jeder Messung anzeigen</translation></message>
    <message id="settings"><translation>Einstellungen</translation></message>
    <message id="settingsButton"><translation>Einstellungen</translation></message>
    <message id="settingsHint"><translation>Einstellungen, Export und Import (Strg+,)</translation></message>
    <message id="settingsNotSaved"><translation>Die Einstellungen wurden nicht gespeichert. %1</translation></message>
    <message id="settingsPartlySaved"><translation>Die Einstellungen konnten nicht vollständig gespeichert werden: Für einige hat die Datendatei keinen Platz.</translation></message>
    <message id="settingSys"><translation>Systolischer Grenzwert in mmHg</translation></message>
    <message id="settingSysLabel"><translation>&amp;Systolisch</translation></message>
    <message id="settingTime"><translation>Zeitformat</translation></message>
    <message id="settingTimeLabel"><translation>&amp;Zeitformat</translation></message>
    <message id="settingUnits"><translation>Einheiten für Gewicht und Größe</translation></message>
    <message id="settingUnitsLabel"><translation>Ei&amp;nheiten</translation></message>
    <message id="settingWHO"><translation>Grenzwerte der Weltgesundheitsorganisation verwenden</translation></message>
    <message id="settingWHOButton"><translation>&amp;WHO-Grenzwerte (140/90)</translation></message>
    <message id="settingWHOHint"><translation>Setzt beide Grenzwerte auf die der Weltgesundheitsorganisation: 140 und 90 mmHg.</translation></message>
    <message id="show afib readings"><translation>VHF anzeigen</translation></message>
    <message id="show ihd readings"><translation>IHD anzeigen</translation></message>
    <message id="show pad readings"><translation>PAD anzeigen</translation></message>
    <message id="showCorrelation"><translation>Korrelation</translation></message>
    <message id="showGraph"><translation>Diagramm</translation></message>
    <message id="showHistogram"><translation>Histogramm</translation></message>
    <message id="showMam"><translation>MAM anzeigen</translation></message>
    <message id="showTrend"><translation>Trend</translation></message>
    <message id="sideButton"><translation>Statistik und Kommentare</translation></message>
    <message id="sideColumn"><translation>Messgerät und Daten</translation></message>
    <message id="sideHint"><translation>Statistik und Kommentare neben den Messungen ein- oder ausblenden.</translation></message>
    <message id="spokenDia"><translation>Diastolischer Blutdruck, mmHg</translation></message>
    <message id="spokenFrequent"><translation>%1: am häufigsten %2 bis %3, bei %4 Prozent der Messungen.</translation></message>
    <message id="spokenMap"><translation>Mittlerer arterieller Druck, mmHg</translation></message>
    <message id="spokenMeasure"><translation>%1: Mittelwert %2, niedrigster Wert %3, höchster Wert %4.</translation></message>
    <message id="spokenPP"><translation>Pulsdruck, mmHg</translation></message>
    <message id="spokenPulse"><translation>Puls pro Minute</translation></message>
    <message id="spokenSys"><translation>Systolischer Blutdruck, mmHg</translation></message>
    <message id="statisticAll"><translation>Alle Tage mit Messungen</translation></message>
    <message id="statisticAllHint"><translation>Umfasst die ganze Zeit von der ersten bis zur letzten Messung. Für einen Teil davon wählen Sie oben andere Tage.</translation></message>
    <message id="statisticPanel"><translation>Statistik</translation></message>
    <message id="statisticWholeDay"><translation>Alle Tageszeiten: %1</translation></message>
    <message id="statusBroken"><translation>Gerät angeschlossen, Verbindung gestört</translation></message>
    <message id="statusConnected"><translation>Messgerät verbunden</translation></message>
    <message id="statusDamaged"><translation>Gerät angeschlossen, Antworten beschädigt</translation></message>
    <message id="statusLocked"><translation>Gerät angeschlossen, keine Berechtigung</translation></message>
    <message id="statusNotConnected"><translation>Kein Messgerät</translation></message>
    <message id="statusRefusing"><translation>Gerät angeschlossen, lehnt Befehle ab</translation></message>
    <message id="statusSilent"><translation>Gerät angeschlossen, antwortet nicht</translation></message>
    <message id="stepProgress"><translation>%1 von %2 Dateien</translation></message>
    <message id="storedNotReadBack"><translation>Die Änderung ist gespeichert, aber die Datendatei konnte anschließend nicht gelesen werden. %1</translation></message>
    <message id="Synchronization"><translation>Uhr des Messgeräts stellen?</translation></message>
    <message id="synctimeAsk"><translation>Die Uhr des Messgeräts %1. Soll sie auf die Zeit dieses Computers gestellt werden, damit neue Messungen das richtige Datum und die richtige Uhrzeit erhalten?</translation></message>
    <message id="tabChart"><translation>Dia&amp;gramm</translation></message>
    <message id="tabHint"><translation>%1 (Strg+%2)</translation></message>
    <message id="tabPatients"><translation>&amp;Patienten</translation></message>
    <message id="tabReadings"><translation>&amp;Messungen</translation></message>
    <message id="takeInAction"><translation>Ausschluss aufheben</translation></message>
    <message id="timeScroller"><translation>Zeitraum entlang der Messungen verschieben</translation></message>
    <message id="timeScrollerHint"><translation>Zeitraum entlang der Messungen verschieben. Das Mausrad über dem Diagramm bewirkt dasselbe. Mit Strg zeigt es weniger Tage und diese größer, wenn Sie es von sich weg drehen, und mehr Tage, wenn Sie es zu sich hin drehen.</translation></message>
    <message id="TimeSync"><translation>Uhr des Messgeräts</translation></message>
    <message id="TimeSyncMsg"><translation>Uhr des Messgeräts stellen: %1</translation></message>
    <message id="timeUnread"><translation>„%1“ lässt sich nicht als Uhrzeit lesen: Bitte geben Sie sie ein wie %2 oder %3.</translation></message>
    <message id="trendApart"><translation>Morgens und abends getrennt</translation></message>
    <message id="trendApartHint"><translation>Messungen vor 12 Uhr und ab 12 Uhr als eigene Linien zeichnen.</translation></message>
    <message id="trendApartNeedsDay"><translation>Angezeigt wird nur eine Hälfte des Tages; da gibt es nichts zu trennen. Drücken Sie zuerst „Ganzer Tag“; dann können Sie diese Auswahl treffen.</translation></message>
    <message id="trendDays"><translation>%1 bis %2</translation></message>
    <message id="trendFigures"><translation>%1 (%2 bis %3)</translation></message>
    <message id="trendInfoEvening"><translation>%1, ab 12 Uhr</translation></message>
    <message id="trendInfoMorning"><translation>%1, vor 12 Uhr</translation></message>
    <message id="trendKeys"><translation>%1, %2. Pfeil links und Pfeil rechts zeigen die Werte Punkt für Punkt, Pos1 und Ende die des ersten und des letzten.</translation></message>
    <message id="trendPeriod"><translation>Tage</translation></message>
    <message id="trendReadings"><translation>Messungen</translation></message>
    <message id="trendView"><translation>Trend von systolischem und diastolischem Blutdruck und Puls</translation></message>
    <message id="undoDropped"><translation>

Dieser Schritt entfällt deshalb von jetzt an; die anderen sind nicht betroffen.</translation></message>
    <message id="undoFailed"><translation>„%1“ wurde nicht rückgängig gemacht. %2</translation></message>
    <message id="undone"><translation>Rückgängig gemacht: %1</translation></message>
    <message id="unitMmHg"><translation>mmHg</translation></message>
    <message id="unitPulse"><translation>Schläge pro Minute</translation></message>
    <message id="unsavedDelete"><translation>Die Eingaben für %1 löschen? Wenn nicht, werden Sie beim nächsten Start wieder gefragt.</translation></message>
    <message id="unsavedFound"><translation>Als das Programm beendet wurde, konnten die Eingaben für %1 nicht gespeichert werden. Jetzt damit weitermachen?</translation></message>
    <message id="unsavedTitle"><translation>Noch nicht gespeichert</translation></message>
    <message id="usualColumns"><translation>Übliche Spalten und Reihenfolge</translation></message>
    <message id="valueHigh"><translation>%1, am Grenzwert oder darüber</translation></message>
    <message id="valueMmHg"><translation>%1 mmHg</translation></message>
    <message id="valuePulse"><translation>%1 pro Minute</translation></message>
    <message id="valueWithUnit"><translation>%1, %2</translation></message>
    <message id="viewAll"><translation>&amp;Alle</translation></message>
    <message id="viewAllHint"><translation>Alle Messungen, vom ersten bis zum letzten Tag.</translation></message>
    <message id="viewAM"><translation>M&amp;orgens</translation></message>
    <message id="viewAMHint"><translation>Die Messungen vor 12 Uhr an den angezeigten Tagen.</translation></message>
    <message id="viewBoth"><translation>Gan&amp;zer Tag</translation></message>
    <message id="viewBothHint"><translation>Die Messungen aller Tageszeiten an den angezeigten Tagen.</translation></message>
    <message id="viewChoiceNeeded"><translation>Undatierte Messungen gehören zu keinem Tag und lassen sich nur mit „Alle“ anzeigen. Drücken Sie zuerst „Alle“; dann können Sie diese Auswahl treffen.</translation></message>
    <message id="viewDays"><translation>Angezeigte Tage</translation></message>
    <message id="viewHalf"><translation>Angezeigte Tageszeit</translation></message>
    <message id="viewLast"><translation>%1 Tage</translation></message>
    <message id="viewLastHint"><translation>Die %1 Tage bis zum letzten Tag mit einer Messung.</translation></message>
    <message id="viewLastName"><translation>Letzte %1 Tage</translation></message>
    <message id="viewPM"><translation>Abends</translation></message>
    <message id="viewPMHint"><translation>Die Messungen ab 12 Uhr an den angezeigten Tagen.</translation></message>
    <message id="viewTabs"><translation>Ansichten</translation></message>
    <message id="viewWeek"><translation>Mess&amp;woche</translation></message>
    <message id="viewWeekHint"><translation>Die sieben Tage der Messwoche, für die der Mittelwert berechnet wird.</translation></message>
    <message id="weekBelow"><translation>Unter %1 (genauer: %2)</translation></message>
    <message id="weekDays" numerus="yes"><translation><numerusform>%1 an %n Tag</numerusform><numerusform>%1 an %n Tagen</numerusform></translation></message>
    <message id="weekEnd"><translation>Letzter Tag der Messwoche</translation></message>
    <message id="weekEvenings"><translation>Abends %1</translation></message>
    <message id="weekExcluded" numerus="yes"><translation><numerusform>%n ausgeschlossen</numerusform><numerusform>%n ausgeschlossen</numerusform></translation></message>
    <message id="weekExcludedLater" numerus="yes"><translation><numerusform>%n späterer Tage ausgeschlossen</numerusform><numerusform>%n späterer Tage ausgeschlossen</numerusform></translation></message>
    <message id="weekFirstDay" numerus="yes"><translation><numerusform>%n vom ersten Tag nicht gezählt</numerusform><numerusform>%n vom ersten Tag nicht gezählt</numerusform></translation></message>
    <message id="weekMean"><translation>%1 mmHg</translation></message>
    <message id="weekMeanHint"><translation>Mittelwert %1/%2 mmHg, Puls %3</translation></message>
    <message id="weekMissing"><translation>Unvollständig, noch nötig: %1</translation></message>
    <message id="weekMornings"><translation>Morgens %1</translation></message>
    <message id="weekNoMean"><translation>Kein Mittelwert</translation></message>
    <message id="weekOtherZone" numerus="yes"><translation><numerusform>%n Messung wurde in einer anderen Zeitzone gespeichert; ihre Zeit ist die dieses Computers</numerusform><numerusform>%n Messungen wurden in einer anderen Zeitzone gespeichert; die Zeiten sind die dieses Computers</numerusform></translation></message>
    <message id="weekPanel"><translation>Messwoche</translation></message>
    <message id="weekPulse"><translation>Puls %1</translation></message>
    <message id="weekReached"><translation>%1 oder darüber (genauer: %2)</translation></message>
    <message id="weekReadings" numerus="yes"><translation><numerusform>%n Messung</numerusform><numerusform>%n Messungen</numerusform></translation></message>
    <message id="weekRule"><translation>Regel für den Mittelwert</translation></message>
    <message id="weekRuleAha"><translation>AHA</translation></message>
    <message id="weekRuleEsh"><translation>ESH</translation></message>
    <message id="weekRuleHint"><translation>ESH: erster Tag zählt nicht, 12 Messungen an mindestens 2 weiteren Tagen
NICE: erster Tag zählt nicht, je 2 Messungen morgens und abends an mindestens 3 weiteren Tagen
AHA: 12 Messungen an mindestens 3 Tagen</translation></message>
    <message id="weekRuleNice"><translation>NICE</translation></message>
    <message id="weekTo"><translation>bis</translation></message>
    <message id="weekUnmeasured" numerus="yes"><translation><numerusform>%n ohne Druckwerte nicht gezählt</numerusform><numerusform>%n ohne Druckwerte nicht gezählt</numerusform></translation></message>
    <message id="weightRefusedKg"><translation>Bitte geben Sie eine Zahl von 0,2 bis 1000 kg ein, z. B. 72,5.</translation></message>
    <message id="weightRefusedLb"><translation>Bitte geben Sie eine Zahl von 0,5 bis 2200 lb ein, z. B. 160,5.</translation></message>
    <message id="windowNotForgotten"><translation>Die Datei %1, in der steht, wie das Fenster zuletzt war, konnte nicht entfernt werden.</translation></message>
    <message id="windowNotReset"><translation>ZEL ist für diese Datendatei schon geöffnet; das Fenster wurde in den Vordergrund geholt. Bitte schließen Sie es und starten Sie ZEL noch einmal mit --reset-view.</translation></message>
    <message id="windowShown"><translation>ZEL ist für diese Datendatei schon geöffnet; das Fenster wurde in den Vordergrund geholt.</translation></message>
    <message id="windowSilent"><translation>ZEL ist für diese Datendatei schon geöffnet, aber das Fenster antwortet nicht. Vielleicht wartet es auf einen langsamen Datenträger oder Drucker, oder es hängt: Wenn es nicht innerhalb einer Minute weiterarbeitet, beenden Sie es in der Systemüberwachung Ihres Computers.

Ein weiteres Fenster daneben öffnen? Das schadet nicht: Was beide speichern, bleibt erhalten.</translation></message>
    <message id="yes"><translation>&amp;Ja</translation></message>
    <message id="yyyy mm dd"><translation>JJJJ MM TT</translation></message>
</context>
<context>
    <name>chart</name>
    <message id="abovePoints" numerus="yes"><translation><numerusform>%n Punkt reicht über die Skala</numerusform><numerusform>%n Punkte reichen über die Skala</numerusform></translation></message>
    <message id="aboveScale" numerus="yes"><translation><numerusform>%n Messung über der Skala</numerusform><numerusform>%n Messungen über der Skala</numerusform></translation></message>
    <message id="aboveScaleShort"><translation>%1 darüber</translation></message>
    <message id="average"><translation>Mittel</translation></message>
    <message id="belowPoints" numerus="yes"><translation><numerusform>%n Punkt reicht unter die Skala</numerusform><numerusform>%n Punkte reichen unter die Skala</numerusform></translation></message>
    <message id="belowScale" numerus="yes"><translation><numerusform>%n Messung unter der Skala</numerusform><numerusform>%n Messungen unter der Skala</numerusform></translation></message>
    <message id="belowScaleShort"><translation>%1 darunter</translation></message>
    <message id="chartExcluded" numerus="yes"><translation><numerusform>○ %n ausgeschlossen</numerusform><numerusform>○ %n ausgeschlossen</numerusform></translation></message>
    <message id="dia"><translation>DIA</translation></message>
    <message id="dia too high"><translation>Diastolisch zu hoch</translation></message>
    <message id="evening"><translation>Abends</translation></message>
    <message id="max"><translation>Max</translation></message>
    <message id="min"><translation>Min</translation></message>
    <message id="mmHg"><translation>mmHg</translation></message>
    <message id="monthOfYear"><translation>%1 %2</translation></message>
    <message id="morning"><translation>Morgens</translation></message>
    <message id="noEveningReadings"><translation>Keine Messungen ab 12 Uhr in diesem Zeitraum</translation></message>
    <message id="noMorningReadings"><translation>Keine Messungen vor 12 Uhr in diesem Zeitraum</translation></message>
    <message id="noReadingsInPeriod"><translation>Keine Messungen in diesem Zeitraum</translation></message>
    <message id="normal"><translation>Normal</translation></message>
    <message id="P/min"><translation>1/min</translation></message>
    <message id="pulse"><translation>Puls</translation></message>
    <message id="sys"><translation>SYS</translation></message>
    <message id="sys and dia too high"><translation>Beide zu hoch</translation></message>
    <message id="sys too high"><translation>Systolisch zu hoch</translation></message>
    <message id="trendBand"><translation>%1; Band: 10. bis 90. Perzentile, bei weniger als 5 Messungen alle</translation></message>
    <message id="trendBandAll"><translation>%1; Band: alle Messungen</translation></message>
    <message id="trendBandShort"><translation>%1; Band: 10. bis 90. Perzentile</translation></message>
    <message id="trendCoveredComments" numerus="yes"><translation><numerusform>%n Kommentar liegt über einem anderen</numerusform><numerusform>%n Kommentare liegen über anderen</numerusform></translation></message>
    <message id="trendDay"><translation>Tagesmedian</translation></message>
    <message id="trendEvening"><translation>%1 abends</translation></message>
    <message id="trendLinked"><translation>%1; gepunktet: dazwischen keine Messungen</translation></message>
    <message id="trendMonth"><translation>Monatsmedian</translation></message>
    <message id="trendMoreComments" numerus="yes"><translation><numerusform>Für %n weiteren Kommentar ist hier kein Platz</numerusform><numerusform>Für %n weitere Kommentare ist hier kein Platz</numerusform></translation></message>
    <message id="trendMorning"><translation>%1 morgens</translation></message>
    <message id="trendWeek"><translation>Wochenmedian</translation></message>
    <message id="trendWordlessComments" numerus="yes"><translation><numerusform>%n weiterer Kommentar ohne seinen Text</numerusform><numerusform>%n weitere Kommentare ohne ihren Text</numerusform></translation></message>
</context>
<context>
    <name>report</name>
    <message id="appDescrption"><translation>ZEL-Blutdruckbericht</translation></message>
    <message id="comment"><translation>Kommentare</translation></message>
    <message id="comments"><translation>Kommentare</translation></message>
    <message id="correlation"><translation>Systolischer gegen diastolischen Blutdruck</translation></message>
    <message id="date"><translation>Datum</translation></message>
    <message id="formAddress"><translation>Adresse</translation></message>
    <message id="formAge"><translation>Alter</translation></message>
    <message id="formBirth"><translation>Geburtsdatum</translation></message>
    <message id="formCholesterol"><translation>Cholesterin (mg/dl)</translation></message>
    <message id="formDay"><translation>Tag</translation></message>
    <message id="formDiabetic"><translation>Diabetes</translation></message>
    <message id="formFamilyHistory"><translation>Familie</translation></message>
    <message id="formFamilyName"><translation>Nachname</translation></message>
    <message id="formGivenNames"><translation>Vorname(n)</translation></message>
    <message id="formHeightCm"><translation>Größe (cm)</translation></message>
    <message id="formHeightFtIn"><translation>Größe (ft/in)</translation></message>
    <message id="formID"><translation>ID</translation></message>
    <message id="formMonth"><translation>Monat</translation></message>
    <message id="formNotes"><translation>Notizen zum Patienten</translation></message>
    <message id="formPersonal"><translation>Persönliche Daten</translation></message>
    <message id="formPhoneEmail"><translation>Telefon / E-Mail</translation></message>
    <message id="formRisks"><translation>Risikofaktoren</translation></message>
    <message id="formSex"><translation>Geschlecht</translation></message>
    <message id="formSmoker"><translation>Rauchen</translation></message>
    <message id="formWeightKg"><translation>Gewicht (kg)</translation></message>
    <message id="formWeightLb"><translation>Gewicht (lb)</translation></message>
    <message id="formYear"><translation>Jahr</translation></message>
    <message id="formYears" numerus="yes"><translation><numerusform>Jahr</numerusform><numerusform>Jahre</numerusform></translation></message>
    <message id="graph"><translation>Blutdruck- und Pulsdiagramm</translation></message>
    <message id="histogram"><translation>Verteilung der Messungen</translation></message>
    <message id="legendTitle"><translation>%1:</translation></message>
    <message id="mam"><translation>MAM</translation></message>
    <message id="n.a."><translation>n.a.</translation></message>
    <message id="N.A."><translation>k. A.</translation></message>
    <message id="No"><translation>Nein</translation></message>
    <message id="PatientProfile"><translation>Patientendaten</translation></message>
    <message id="reportAllComments"><translation>Kommentare aller Zeiten, nicht nur dieses Zeitraums</translation></message>
    <message id="reportAllTimesOfDay"><translation>%1, alle Tageszeiten</translation></message>
    <message id="reportAverage"><translation>Mittelwert mehrerer Messungen</translation></message>
    <message id="reportBothAbove"><translation>Beide darüber: %1</translation></message>
    <message id="reportCommentBars"><translation>Balken: Kommentare, nach Nummer</translation></message>
    <message id="reportCommentsLeftOut"><translation>Ein Bericht hat Platz für %1 Kommentare mit zusammen %2 Zeichen. Die neuesten folgen; ein Export enthält alle.</translation></message>
    <message id="reportContinued"><translation>%1, Fortsetzung</translation></message>
    <message id="reportCorrelationLimits" numerus="yes"><translation><numerusform>Die Linie ist der Grenzwert.</numerusform><numerusform>Die Linien sind die Grenzwerte.</numerusform></translation></message>
    <message id="reportCorrelationNote"><translation>Jedes Quadrat ist eine Messung oder mehrere mit denselben Werten, in mmHg.</translation></message>
    <message id="reportCutComments"><translation>…: vollständig im Abschnitt „Kommentare“</translation></message>
    <message id="reportCutPractitioner"><translation>…: hier gekürzt; der ganze Text steht in den Einstellungen.</translation></message>
    <message id="reportCutTexts"><translation>…: hier gekürzt; der ganze Text steht auf der nächsten Seite.</translation></message>
    <message id="reportDays" numerus="yes"><translation><numerusform>%n Tag</numerusform><numerusform>%n Tage</numerusform></translation></message>
    <message id="reportDemonstration"><translation>Demonstration: erfundene Daten</translation></message>
    <message id="reportDiaAbove"><translation>Nur diastolisch darüber: %1</translation></message>
    <message id="reportDocument"><translation>Blutdruckbericht: %1 (%2)</translation></message>
    <message id="reportDownloadDay"><translation>↓ gelb: ausgelesen</translation></message>
    <message id="reportEarlierComments" numerus="yes"><translation><numerusform>%n früherer Kommentar ist nicht gedruckt</numerusform><numerusform>%n frühere Kommentare sind nicht gedruckt</numerusform></translation></message>
    <message id="reportEmptySections"><translation>Leer und deshalb nicht in diesem Bericht: %1</translation></message>
    <message id="reportEveningOnly"><translation>Nur Messungen ab 12 Uhr sind dargestellt</translation></message>
    <message id="reportFindingUnknown"><translation>k. A.: nicht bekannt</translation></message>
    <message id="reportFound"><translation>erkannt</translation></message>
    <message id="reportGoesOn"><translation>weiter auf der nächsten Seite</translation></message>
    <message id="reportGraphComments"><translation>Nummerierte Kästchen: Kommentare.</translation></message>
    <message id="reportGraphDownloads"><translation>↓: Tag des Auslesens.</translation></message>
    <message id="reportGraphExcluded"><translation>○: ausgeschlossene Messung.</translation></message>
    <message id="reportGraphHiddenLimits" numerus="yes"><translation><numerusform>Der Grenzwert %1 liegt außerhalb der Skala.</numerusform><numerusform>Die Grenzwerte %1 liegen außerhalb der Skala.</numerusform></translation></message>
    <message id="reportGraphLimits" numerus="yes"><translation><numerusform>Gestrichelte Linie: Grenzwert %1.</numerusform><numerusform>Gestrichelte Linien: Grenzwerte %1.</numerusform></translation></message>
    <message id="reportGraphNote"><translation>Obere Linie: systolischer, untere Linie: diastolischer Blutdruck.</translation></message>
    <message id="reportHistogramNote"><translation>Balkenlänge: Anteil der Messungen in Prozent, die in diesem Bereich von 10 mmHg oder 10 Schlägen pro Minute liegen.</translation></message>
    <message id="reportKeepLimits" numerus="yes"><translation><numerusform>Bis einschließlich %1: %2</numerusform><numerusform>Bis einschließlich %1: %2</numerusform></translation></message>
    <message id="reportLeftOutReading"><translation>%1 %2   %3/%4 mmHg, Puls %5</translation></message>
    <message id="reportLeftOutTitle" numerus="yes"><translation><numerusform>%n ausgeschlossene Messung, mit Grund</numerusform><numerusform>%n ausgeschlossene Messungen, mit Gründen</numerusform></translation></message>
    <message id="reportLimitDia"><translation>%1 mmHg diastolisch</translation></message>
    <message id="reportLimits"><translation>%1/%2 mmHg</translation></message>
    <message id="reportLimitSys"><translation>%1 mmHg systolisch</translation></message>
    <message id="reportMeasured"><translation>Mittelwert in mmHg (Messungen): %1</translation></message>
    <message id="reportMoreNumbers" numerus="yes"><translation><numerusform>und %n weitere</numerusform><numerusform>und %n weitere</numerusform></translation></message>
    <message id="reportMorningOnly"><translation>Nur Messungen vor 12 Uhr sind dargestellt</translation></message>
    <message id="reportNoData"><translation>Es gibt nichts zu drucken: Die gewählten Abschnitte enthalten für diesen Patienten und Zeitraum keine Daten. Es wurde keine Datei geschrieben.</translation></message>
    <message id="reportNoDate"><translation>n.a: ohne Datum</translation></message>
    <message id="reportNoFigures"><translation>n/a: keine Messungen</translation></message>
    <message id="reportNoLimits"><translation>Keine Grenzwerte eingestellt.</translation></message>
    <message id="reportNoReading"><translation>n.a.: keine Messung</translation></message>
    <message id="reportNotFound"><translation>nicht erkannt</translation></message>
    <message id="reportNotPainted"><translation>Die Seiten ließen sich nicht als PDF ausgeben. Es wurde keine Datei geschrieben.</translation></message>
    <message id="reportNotWritable"><translation>Die Datei %1 konnte nicht geschrieben werden. Bitte prüfen Sie, ob ihr Ordner vorhanden ist und ob Sie darin schreiben dürfen.</translation></message>
    <message id="reportPage"><translation>Seite %1 von %2</translation></message>
    <message id="reportPatient"><translation>Patient: %1 %2  ID: %3</translation></message>
    <message id="reportPeriod"><translation>Von: %1 Bis: %2</translation></message>
    <message id="reportReadings" numerus="yes"><translation><numerusform>%n Messung</numerusform><numerusform>%n Messungen</numerusform></translation></message>
    <message id="reportStruckThrough"><translation>durchgestrichen: ausgeschlossen, zählt nirgends mit; Gründe hinter der Tabelle</translation></message>
    <message id="reportSysAbove"><translation>Nur systolisch darüber: %1</translation></message>
    <message id="reportTextTooLong"><translation>… Der Rest dieses Textes ist nicht gedruckt: %1 weitere Zeichen.</translation></message>
    <message id="reportTrendLimits" numerus="yes"><translation><numerusform>Feine gerade Linie: Grenzwert %1.</numerusform><numerusform>Feine gerade Linien: Grenzwerte %1.</numerusform></translation></message>
    <message id="reportTrendNote"><translation>Dicke Linien: Mediane. Wo Messungen fehlen, ist die Linie unterbrochen; Punkte verbinden die Enden über höchstens 30 Tage.</translation></message>
    <message id="reportWriteFailed"><translation>Das Schreiben der Datei %1 ist fehlgeschlagen; es gibt deshalb keine neue Datei. Bitte prüfen Sie, ob der Datenträger voll ist, und versuchen Sie es dann noch einmal.</translation></message>
    <message id="summary"><translation>Übersicht</translation></message>
    <message id="summaryAha"><translation>AHA</translation></message>
    <message id="summaryAll"><translation>Alle</translation></message>
    <message id="summaryBelow"><translation>Unter dem Schwellenwert %1 (genauer: %2/%3)</translation></message>
    <message id="summaryBorn" numerus="yes"><translation><numerusform>Geb. %1, %n Jahr</numerusform><numerusform>Geb. %1, %n Jahre</numerusform></translation></message>
    <message id="summaryBornOn"><translation>Geb. %1</translation></message>
    <message id="summaryComments"><translation>Was sich geändert hat: Kommentare, neueste zuerst</translation></message>
    <message id="summaryComplete"><translation>Vollständig</translation></message>
    <message id="summaryCut"><translation>…: gekürzt.</translation></message>
    <message id="summaryDia"><translation>DIA, mmHg</translation></message>
    <message id="summaryEither"><translation>SYS oder DIA oder beide</translation></message>
    <message id="summaryEsh"><translation>ESH</translation></message>
    <message id="summaryEvening"><translation>Abends</translation></message>
    <message id="summaryEvenings"><translation>Abends %1</translation></message>
    <message id="summaryExcluded"><translation>%1 %2  %3/%4: %5</translation></message>
    <message id="summaryFirstDay" numerus="yes"><translation><numerusform>%n vom ersten Tag nicht gezählt</numerusform><numerusform>%n vom ersten Tag nicht gezählt</numerusform></translation></message>
    <message id="summaryFlagged" numerus="yes"><translation><numerusform>Arrhythmie gemeldet (%1): %2 von %n Messung</numerusform><numerusform>Arrhythmie gemeldet (%1): %2 von %n Messungen</numerusform></translation></message>
    <message id="summaryHigh"><translation>Ab %1</translation></message>
    <message id="summaryHighOf" numerus="yes"><translation><numerusform>%1 von %n Messung</numerusform><numerusform>%1 von %n Messungen</numerusform></translation></message>
    <message id="summaryID"><translation>ID %1</translation></message>
    <message id="summaryIncomplete"><translation>Unvollständig, noch nötig: %1</translation></message>
    <message id="summaryInFull"><translation>…: vollständig in „%1“.</translation></message>
    <message id="summaryLastDays" numerus="yes"><translation><numerusform>Letzter Tag: Mittelwert (Messungen)</numerusform><numerusform>Letzte %n Tage: Mittelwert (Messungen)</numerusform></translation></message>
    <message id="summaryLeftOut"><translation>Nicht berücksichtigt</translation></message>
    <message id="summaryMax"><translation>Max</translation></message>
    <message id="summaryMean"><translation>Mittel</translation></message>
    <message id="summaryMin"><translation>Min</translation></message>
    <message id="summaryMoreComments" numerus="yes"><translation><numerusform>und %n weiterer Kommentar</numerusform><numerusform>und %n weitere Kommentare</numerusform></translation></message>
    <message id="summaryMoreExcluded" numerus="yes"><translation><numerusform>und %n weitere ausgeschlossen</numerusform><numerusform>und %n weitere ausgeschlossen</numerusform></translation></message>
    <message id="summaryMorning"><translation>Morgens</translation></message>
    <message id="summaryMornings"><translation>Morgens %1</translation></message>
    <message id="summaryNice"><translation>NICE</translation></message>
    <message id="summaryNoBirth"><translation>Geburtsdatum nicht angegeben</translation></message>
    <message id="summaryNoComments"><translation>Keine Kommentare in diesem Zeitraum</translation></message>
    <message id="summaryNoDated"><translation>Keine datierten Messungen</translation></message>
    <message id="summaryNone"><translation>Keine Messungen in diesem Zeitraum</translation></message>
    <message id="summaryNoneCountsYet"><translation>Noch zählt keine Messung</translation></message>
    <message id="summaryNoReason"><translation>kein Grund angegeben</translation></message>
    <message id="summaryNote"><translation>Messwoche: %1 ab ihrem Schwellenwert. %2 Morgens: vor 12 Uhr. %3</translation></message>
    <message id="summaryNotExamined"><translation>Arrhythmie: keine Messung darauf untersucht</translation></message>
    <message id="summaryNothingLeftOut"><translation>Alle Messungen sind gezählt</translation></message>
    <message id="summaryNoWeek"><translation>Keine Messungen in dieser Woche</translation></message>
    <message id="summaryOnDays" numerus="yes"><translation><numerusform>%1 an %n Tag</numerusform><numerusform>%1 an %n Tagen</numerusform></translation></message>
    <message id="summaryOnOtherDays" numerus="yes"><translation><numerusform>%n an anderen Tagen</numerusform><numerusform>%n an anderen Tagen</numerusform></translation></message>
    <message id="summaryOtherComments" numerus="yes"><translation><numerusform>%n Kommentar zu anderen Tagen</numerusform><numerusform>%n Kommentare zu anderen Tagen</numerusform></translation></message>
    <message id="summaryOthers" numerus="yes"><translation><numerusform>%n Messung nicht darauf untersucht</numerusform><numerusform>%n Messungen nicht darauf untersucht</numerusform></translation></message>
    <message id="summaryOtherZone" numerus="yes"><translation><numerusform>%n gezählte Messung wurde in anderer Zeitzone gespeichert; Zeiten sind die dieses Computers</numerusform><numerusform>%n gezählte Messungen wurden in anderer Zeitzone gespeichert; Zeiten sind die dieses Computers</numerusform></translation></message>
    <message id="summaryPeriod"><translation>Von %1 bis %2</translation></message>
    <message id="summaryPulse"><translation>Puls %1</translation></message>
    <message id="summaryRate"><translation>Puls, 1/min</translation></message>
    <message id="summaryReached"><translation>Schwellenwert %1 erreicht (genauer: %2/%3)</translation></message>
    <message id="summaryReadings"><translation>Messungen</translation></message>
    <message id="summaryReasonsInFull"><translation>…: gekürzt; ausgeschlossene Messungen: vollständig in „%1“.</translation></message>
    <message id="summarySD"><translation>SD</translation></message>
    <message id="summarySys"><translation>SYS, mmHg</translation></message>
    <message id="summaryTable"><translation>Messungen des Zeitraums (SD: Stichprobe, n − 1)</translation></message>
    <message id="summaryTrend"><translation>Trend</translation></message>
    <message id="summaryTrendComments"><translation>Trend und darunter die Kommentare nach Nummer</translation></message>
    <message id="summaryTrendHidden"><translation>Außerhalb der Skala des Trends: %1.</translation></message>
    <message id="summaryTrendLimits"><translation>Feine gerade Linien im Trend: %1.</translation></message>
    <message id="summaryTrendNumberless" numerus="yes"><translation><numerusform>Trend und darunter die Kommentare nach Nummer; %n ohne Platz für seine Nummer</numerusform><numerusform>Trend und darunter die Kommentare nach Nummer; %n ohne Platz für ihre Nummer</numerusform></translation></message>
    <message id="summaryTyped" numerus="yes"><translation><numerusform>Eingegeben: %1 von %n Messung</numerusform><numerusform>Eingegeben: %1 von %n Messungen</numerusform></translation></message>
    <message id="summaryWeek"><translation>Messwoche (%1)  %2</translation></message>
    <message id="summaryWeekExcluded" numerus="yes"><translation><numerusform>%n der Woche ausgeschlossen</numerusform><numerusform>%n der Woche ausgeschlossen</numerusform></translation></message>
    <message id="summaryWeekTyped" numerus="yes"><translation><numerusform>%n der Woche eingegeben</numerusform><numerusform>%n der Woche eingegeben</numerusform></translation></message>
    <message id="summaryWeekUnmeasured" numerus="yes"><translation><numerusform>%n der Woche ohne Druckwerte</numerusform><numerusform>%n der Woche ohne Druckwerte</numerusform></translation></message>
    <message id="summaryWeekZone" numerus="yes"><translation><numerusform>%n in anderer Zeitzone gespeichert; Zeiten sind die dieses Computers</numerusform><numerusform>%n in anderer Zeitzone gespeichert; Zeiten sind die dieses Computers</numerusform></translation></message>
    <message id="SWStatistics"><translation>Statistik und Messungen</translation></message>
    <message id="table"><translation>Messungen</translation></message>
    <message id="time"><translation>Uhrzeit</translation></message>
    <message id="trend"><translation>Trend von Blutdruck und Puls</translation></message>
    <message id="Yes"><translation>Ja</translation></message>
</context>
<context>
    <name>cli</name>
    <message id="CliAddMissing"><translation>--id, --family-name und --given-names gehören zu --add.</translation></message>
    <message id="CliAmAndPm"><translation>Bitte entweder --am oder --pm angeben, nicht beides.</translation></message>
    <message id="CliBackupUsage"><translation>Bitte list, create oder restore mit dem Namen einer Sicherung angeben; oder folder und, um ihn zu ändern, den Namen des Ordners oder --none.</translation></message>
    <message id="CliBadDate"><translation>--%1 braucht einen Kalendertag in der Form yyyy-MM-dd, nicht '%2'.</translation></message>
    <message id="CliBadDays"><translation>--last braucht eine ganze Zahl von Tagen von 1 bis %2, nicht '%1'.</translation></message>
    <message id="CliBadField"><translation>Der Wert von --%1 darf nicht '-' sein, nicht mit einem Leerzeichen beginnen oder enden und keine Steuerzeichen enthalten.</translation></message>
    <message id="CliBadID"><translation>Der Wert von --id muss aus 1 bis 11 einfachen Buchstaben, Ziffern oder Zeichen bestehen, ohne Umlaute und Akzente: Mehr kann ein Messgerät nicht speichern.</translation></message>
    <message id="CliBadPaper"><translation>--paper braucht A4 oder Letter, nicht '%1'.</translation></message>
    <message id="CliBadWait"><translation>--wait braucht eine ganze Zahl von Sekunden von 0 bis %1.</translation></message>
    <message id="CliChangeOfNothing"><translation>--change braucht mindestens eines von --date, --time, --sys, --dia und --pulse.</translation></message>
    <message id="CliClockUnread"><translation>Die Uhr des Messgeräts konnte nicht gelesen werden. %1</translation></message>
    <message id="CliClockUnset"><translation>Die Uhr des Messgeräts konnte nicht gestellt werden. %1</translation></message>
    <message id="CliColumnsForm"><translation>--columns erwartet die Spaltentitel, etwa date=Datum,time=Zeit,sys=Systole,dia=Diastole,pulse=Puls; nur time darf fehlen.</translation></message>
    <message id="CliColumnsHelp"><translation>Bei der Tabelle eines anderen Programms gibt --columns an, was ihre Spalten enthalten.</translation></message>
    <message id="CliCountUnread"><translation>Die Anzahl der Messungen im Messgerät konnte nicht gelesen werden. %1</translation></message>
    <message id="CliDatesForm"><translation>Zulässig für --dates: dmy, mdy oder ymd; nicht '%1'.</translation></message>
    <message id="CliDemonstrationMonitor"><translation>Diese Daten gehören zu einer Demonstration und nehmen keine Messungen eines echten Messgeräts auf. Geben Sie --simulated-monitor an.</translation></message>
    <message id="CliDownloadFailed"><translation>Die Messungen konnten nicht ausgelesen werden, und es wurde nichts gespeichert. %1 Sie sind weiterhin im Messgerät: Bitte versuchen Sie es noch einmal.</translation></message>
    <message id="CliDownloadNotReadBack"><translation>Die Messungen sind gespeichert, aber die Datendatei konnte anschließend nicht gelesen werden; das Messgerät wurde deshalb nicht geleert. %1</translation></message>
    <message id="CliDownloadUnsaved"><translation>Die ausgelesenen Messungen konnten nicht gespeichert werden. %1 Sie sind weiterhin im Messgerät.</translation></message>
    <message id="CliEmptySections"><translation>Leer und deshalb nicht im Bericht: %1</translation></message>
    <message id="CliEraseAfterFailed"><translation>Die Messungen sind sicher gespeichert, aber der Speicher des Messgeräts konnte anschließend nicht gelöscht werden. %1 Sie können ihn mit 'zel monitor --erase --yes' löschen.</translation></message>
    <message id="CliEraseAfterUnseen"><translation>Die Messungen sind sicher gespeichert, aber es war nicht zu erkennen, ob das Messgerät jetzt leer ist. %1 'zel monitor' zeigt, was es enthält.</translation></message>
    <message id="CliEraseFailed"><translation>Der Speicher des Messgeräts konnte nicht gelöscht werden. %1</translation></message>
    <message id="CliEraseNeedsYes"><translation>--erase löscht alle Messungen endgültig aus dem Messgerät. Fügen Sie --yes hinzu, wenn das gewollt ist.</translation></message>
    <message id="CliEraseNoID"><translation>Der Speicher des Messgeräts wird gelöscht, indem es seine eigene ID noch einmal erhält; es enthält aber keine, die es speichern könnte. Bitte geben Sie ihm zuerst eine mit 'zel monitor --send-id ID'.</translation></message>
    <message id="CliEraseUnseen"><translation>Es war nicht zu erkennen, ob der Speicher des Messgeräts jetzt leer ist. %1</translation></message>
    <message id="CliExcludedLater" numerus="yes"><translation><numerusform>Auch %n Messung späterer Tage ist ausgeschlossen.</numerusform><numerusform>Auch %n Messungen späterer Tage sind ausgeschlossen.</numerusform></translation></message>
    <message id="CliExcludedLeftOut" numerus="yes"><translation><numerusform>%n Messung der Woche ist ausgeschlossen.</numerusform><numerusform>%n Messungen der Woche sind ausgeschlossen.</numerusform></translation></message>
    <message id="CliFilesMissing"><translation>Es fehlt eine Datei zum Importieren.</translation></message>
    <message id="CliFirstDayLeftOut" numerus="yes"><translation><numerusform>%n Messung vom ersten Messtag ist nicht gezählt.</numerusform><numerusform>%n Messungen vom ersten Messtag sind nicht gezählt.</numerusform></translation></message>
    <message id="CliFolderMissing"><translation>Es fehlt der Ordner für den Export.</translation></message>
    <message id="CliForceReplaces"><translation>--force ersetzt sie.</translation></message>
    <message id="CliFromAfterTo"><translation>Der Tag von --from liegt nach dem Tag von --to.</translation></message>
    <message id="CliHelp"><translation>Aufruf: zel [--simulated-monitor[=FILE] | --demonstration] [--language TAG] [--reset-view]
        zel COMMAND [OPTION]...

Verwaltet die Messungen automatischer Blutdruckmessgeräte, Patient für Patient.
Ohne Befehl öffnet sich ein Fenster. Die Befehle leisten dasselbe ohne Fenster, mit derselben Datendatei:

  monitor      das angeschlossene Messgerät anzeigen, seine Uhr oder ID setzen oder seinen Speicher löschen
  patients     die Patienten auflisten oder einen hinzufügen
  download     die Messungen des Messgeräts für einen Patienten speichern
  readings     die Messungen eines Patienten ausgeben
  statistics   Mittelwerte, Minima und Maxima der Messungen eines Patienten ausgeben
  average      den Mittelwert einer Messwoche ausgeben, nach den Leitlinien für Messungen zu Hause
  report       den Bericht eines Patienten als PDF schreiben
  export-xml   alle Patienten oder einen als XML-Dateien exportieren
  export-csv   einen Patienten mit seinen Messungen als CSV-Datei exportieren
  export-fhir  alle Patienten oder einen als FHIR-Dateien für andere Patientenakten exportieren
  export-table Messungen als Tabelle für Tabellenkalkulationen exportieren
  import       Patienten aus exportierten XML-Dateien oder Messungen aus Tabellen übernehmen
  settings     die Einstellungen anzeigen oder einige ändern
  backup       die Sicherungen der Datendatei auflisten, eine anlegen oder zu einer zurückkehren
  privacy      angeben, ob andere die Datendatei lesen können, oder ihnen den Zugriff verwehren

Optionen:
  --simulated-monitor[=FILE]   statt eines USB-Geräts ein simuliertes Messgerät verwenden, das eingebaute
                               oder das in FILE beschriebene
  --demonstration              ein Fenster mit simuliertem Messgerät und eigenen, erfundenen Daten
  --language TAG               die Sprache der Meldungen und Berichte, etwa de
  --reset-view                 vergessen, wie das Fenster zuletzt war: Platz, Seite, Patient, Spalten, Ordner
  -h, --help                   diesen Text anzeigen; 'zel COMMAND --help' erklärt einen Befehl
  --version                    die Version anzeigen

Exit-Status: 0 erledigt, 1 fehlgeschlagen (der Grund steht auf der Standardfehlerausgabe), 2 falscher Aufruf.</translation></message>
    <message id="CliHelpAverage"><translation>Aufruf: zel average --patient ID [--rule esh|nice|aha] [--to DAY]

Gibt den Mittelwert der Messungen eines Patienten in einer Messwoche aus, den sieben Tagen, die mit einem Tag
enden, nach der Regel einer Leitlinie: welche Tage und Messungen zählen, wie viele nötig sind, und der
Schwellenwert des Mittelwerts. Nur Zahlen: Was sie für den Patienten bedeuten, ist ärztlich zu beurteilen.

  rule        esh: mindestens 3 Tage, der erste zählt nicht, dann mindestens 12 Messungen;
              Schwellenwert 135/85
              nice: mindestens 4 Tage, der erste zählt nicht, dann an jedem Tag 2 Messungen morgens und 2
              abends; Schwellenwert 135/85
              aha: mindestens 3 Tage und mindestens 12 Messungen; Schwellenwert 130/80
  complete    yes, oder no, wenn Tage oder Messungen fehlen; der Mittelwert wird trotzdem ausgegeben
  missing     was fehlt
  days        mit Messungen, die zählen
  readings    die zählen
  sys, dia    in mmHg
  pulse       in Schlägen pro Minute
  morning     sys/dia der Messungen vor 12 Uhr
  evening     sys/dia der Messungen ab 12 Uhr
  threshold   reached, wenn sys oder dia vor dem Runden seinen Teil des Schwellenwerts erreicht oder übersteigt

Tage und Zeiten sind die der Zeitzone dieses Computers. Zeilen ohne Angabe entfallen. Wie viele
Messungen der Woche nicht zählen und wie viele in einer anderen Zeitzone gespeichert wurden, steht auf der
Standardfehlerausgabe.

Optionen:
  --patient ID                 wessen Messungen
  --rule RULE                  esh (falls nicht anders angegeben), nice oder aha
  --to DAY                     letzter Tag der Woche (yyyy-MM-dd); sonst der letzte Tag mit Messungen
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpBackup"><translation>Aufruf: zel backup list
        zel backup create
        zel backup restore NAME
        zel backup folder [DIR | --none]

Vor der ersten Änderung eines Tages wird die Datendatei in den Ordner Backups neben ihr kopiert. Aufbewahrt
werden die Sicherungen der letzten 14 Tage und für zwei Jahre eine pro Monat, solange sie nicht mehr als ein
Zehntel des freien Speicherplatzes belegen.

list      gibt die Sicherungen als CSV aus, die neueste zuerst, und was sie enthalten
create    legt jetzt eine weitere Sicherung an und gibt 'written: FILE' aus
restore   setzt eine Sicherung an die Stelle der Datendatei und gibt 'restored: NAME' aus; der vorherige Stand
          bleibt als weitere Sicherung erhalten, deren Name ausgegeben wird ('kept: NAME'); deren
          Wiederherstellung macht alles rückgängig
folder    gibt den zweiten Ordner für Sicherungen, auf einem USB-Stick oder einer Netzwerkfreigabe, als
          'folder: DIR' aus, nachdem er auf DIR gesetzt wurde; Sicherungen darin werden mit vollem Pfad
          aufgelistet

Optionen:
  --none                       von jetzt an kein zweiter Ordner; die Sicherungen darin bleiben
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpDownload"><translation>Aufruf: zel download --patient ID [--any-monitor] [OPTION]...

Liest die Messungen des Messgeräts aus, speichert die noch nicht gespeicherten und gibt aus, wie viele
ausgelesen wurden und wie viele davon neu sind. Der Fortschritt steht auf der Standardfehlerausgabe. Der
Speicher des Messgeräts wird nur gelöscht, wenn die Einstellungen es vorsehen, und erst, wenn die Messungen
sicher gespeichert sind.
Von Hand eingegebene Messungen, die auch das Messgerät gemessen hat, sind ab dann ausgeschlossen; gibt es
solche, werden sie als 'left-out' gezählt.

Optionen:
  --patient ID                 der Patient, für den sie gespeichert werden
  --any-monitor                auch auslesen, wenn das Messgerät eine andere ID als die des Patienten enthält
  --wait SECONDS               wie lange auf das Messgerät gewartet wird (5, falls nicht anders angegeben)
  --simulated-monitor[=FILE]   ein simuliertes Messgerät verwenden, das eingebaute oder das aus FILE
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpExportCsv"><translation>Aufruf: zel export-csv DIR --patient ID [--force]

Schreibt die Daten und Messungen eines Patienten als CSV-Datei, nach der ID des Patienten benannt, in den
Ordner DIR und gibt 'written: FILE' aus. Datumsangaben und Maße haben die Form, die in den Einstellungen
gewählt ist. Alle Messungen sind enthalten; hinter dem letzten Komma einer Zeile steht 'manual' bei einer von
Hand eingegebenen und 'excluded: REASON' bei einer ausgeschlossenen, die nirgends mitzählt.

Optionen:
  --patient ID                 wessen Daten
  --force                      die Datei ersetzen, falls sie schon vorhanden ist
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpExportFhir"><translation>Aufruf: zel export-fhir DIR [--patient ID] [--rule esh|nice|aha] [--force]

Schreibt jeden Patienten mit seinen Messungen und dem Mittelwert der letzten Messwoche als eigenes Bundle nach
HL7 FHIR R4 in den Ordner DIR, für Programme, die Patientenakten führen, und gibt für jeden eine Zeile
'written: FILE' aus. Die Dateien sind nach den IDs der Patienten benannt. Alle Messungen sind enthalten; eine
ausgeschlossene hat den Status 'entered-in-error' und ihren Grund. Kommentare und Adressen sind nicht
enthalten. Eine Datei, die nicht geschrieben werden kann, wird auf der Standardfehlerausgabe genannt; die
übrigen werden trotzdem geschrieben.

Optionen:
  --patient ID                 nur dieser Patient
  --rule esh|nice|aha          die Regel des Mittelwerts; esh, falls nicht anders angegeben
  --force                      schon vorhandene Dateien ersetzen, statt sie unverändert zu lassen
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpExportTable"><translation>Aufruf: zel export-table DIR [--patient ID] [--force]
        zel export-table FILE.csv [--patient ID] [--force]

Schreibt Messungen als Tabelle für Tabellenkalkulationen: in den Ordner DIR eine Datei 'ID.table.csv' für jeden
Patienten oder als FILE.csv eine Tabelle aller Patienten. Gibt für jede 'written: FILE' aus. Die Tabelle ist
UTF-8, mit einer Titelzeile und einer Zeile je Messung, zeitlich geordnet, mit Patient, Werten, Befunden, der
Herkunft der Messung, ob und warum sie ausgeschlossen ist, und dem Kommentar zu ihrem Tag. Texte, die eine
Tabellenkalkulation als Formel läse, beginnen mit einem Apostroph. 'zel import' übernimmt die Tabelle wieder.

Optionen:
  --patient ID                 nur dieser Patient
  --force                      schon vorhandene Dateien ersetzen, statt sie unverändert zu lassen
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpExportXml"><translation>Aufruf: zel export-xml DIR [--patient ID] [--force]

Schreibt jeden Patienten mit Messungen und Kommentaren als eigene XML-Datei in den Ordner DIR und gibt für
jeden eine Zeile 'written: FILE' aus. Die Dateien sind nach den IDs der Patienten benannt; 'zel import'
übernimmt sie wieder. Eine Datei, die nicht geschrieben werden kann, wird auf der Standardfehlerausgabe
genannt; die übrigen werden trotzdem geschrieben.

Optionen:
  --patient ID                 nur dieser Patient
  --force                      schon vorhandene Dateien ersetzen, statt sie unverändert zu lassen
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpImport"><translation>Aufruf: zel import FILE...
        zel import FILE... --patient ID [--columns LIST] [--dates dmy|mdy|ymd]

Übernimmt die Patienten exportierter XML-Dateien mit ihren Messungen und Kommentaren oder die von Tabellen, die
'zel export-table' geschrieben hat. Eine Datei wird ganz oder gar nicht übernommen: gar nicht, wenn einer ihrer
Patienten schon in der Liste ist. Nicht übernommene Dateien werden mit dem Grund auf der Standardfehlerausgabe
genannt, bei einer Tabelle jede fehlerhafte Zeile mit ihrer Nummer. Gibt aus, wie viele Dateien übernommen und
abgelehnt wurden und wie viele Patienten, Messungen und Kommentare sie brachten, je Zeile ein 'key: value'; bei
einer Tabelle auch, wie viele Messungen schon bekannt waren: Sie werden nicht doppelt gespeichert.
Von Hand eingegebene Messungen der Liste, die eine Tabelle von einem Messgerät hat, sind ab dann ausgeschlossen
und werden als 'left-out' gezählt.

Mit --patient werden die Messungen einer Tabelle einem Patienten der Liste hinzugefügt. Mit --columns ist es
die Tabelle eines anderen Programms, etwa --columns "date=Datum,time=Zeit,sys=Systole,dia=Diastole,pulse=Puls"
mit den Titeln ihrer ersten Zeile; time entfällt, wenn die Zeit hinter dem Datum steht. Solche Messungen gelten
als von Hand eingegeben. Ihre Spalten trennt ein Komma, Semikolon oder Tabulator. Das Datum lautet wie 2026-11-21,
wenn nicht --dates angibt, in welcher Reihenfolge Tag, Monat und Jahr stehen.

Optionen:
  --patient ID                 wem die Messungen einer Tabelle gehören sollen
  --columns LIST               die Titel der Spalten eines anderen Programms
  --dates dmy|mdy|ymd          wie dort das Datum geschrieben ist
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpMonitor"><translation>Aufruf: zel monitor [OPTION]...
        zel monitor --set-clock [OPTION]...
        zel monitor --send-id ID [OPTION]...
        zel monitor --erase --yes [OPTION]...

Gibt Modell, Arrhythmie-Erkennung (pad, afib oder none), ID, Uhr (oder 'not set') und Anzahl der Messungen des
angeschlossenen Messgeräts aus, je Zeile ein 'key: value'. Das Zählen der Messungen kann bis zu 20 s dauern.
Was geändert wird, wird zurückgelesen; stimmt es nicht, schlägt der Befehl fehl.

Optionen:
  --set-clock                  die Uhr des Messgeräts nach der dieses Computers stellen und ausgeben
  --send-id ID                 eine ID aus 1 bis 11 einfachen Zeichen in das Messgerät schreiben und ausgeben;
                               die Messungen in seinem Speicher bleiben dort
  --erase                      alle Messungen aus dem Speicher des Messgeräts löschen und ausgeben, wie viele
                               übrig sind
  --yes                        bestätigt --erase
  --wait SECONDS               wie lange auf das Messgerät gewartet wird (5, falls nicht anders angegeben)
  --simulated-monitor[=FILE]   ein simuliertes Messgerät verwenden, das eingebaute oder das aus FILE
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpPatients"><translation>Aufruf: zel patients
        zel patients --add --id ID --family-name NAME --given-names NAMES

Listet die Patienten als CSV mit der Kopfzeile id,family-name,given-names auf oder fügt einen hinzu.

Optionen:
  --add                        einen Patienten hinzufügen; die ID muss neu sein
  --id ID                      die ID des Patienten, wie das Messgerät sie enthält
  --family-name NAME           der Nachname
  --given-names NAMES          die Vornamen
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpPrivacy"><translation>Aufruf: zel privacy [--mend]

Gibt aus, welche dieser Dateien andere Benutzer dieses Computers lesen können: die Datendatei, was neben ihr
gespeichert ist, und ihre Sicherungen; je Zeile eine Datei ('readable by others: FILE'), oder 'private'.

Optionen:
  --mend                       anderen den Zugriff verwehren: ändert die Zugriffsrechte dieser Dateien, ihres
                               Ordners und des Ordners der Sicherungen, sonst nichts
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpReadings"><translation>Aufruf: zel readings --patient ID [--from DAY | --last N] [--to DAY] [--am | --pm] [--undated]
                     [--numbers]
        zel readings --patient ID --exclude RECORD --reason TEXT
        zel readings --patient ID --include RECORD
        zel readings --patient ID --add --date DAY --time HH:MM --sys N --dia N --pulse N
        zel readings --patient ID --change RECORD [--date DAY] [--time HH:MM] [--sys N] [--dia N] [--pulse N]
        zel readings --patient ID --delete RECORD

Gibt die Messungen eines Patienten als CSV aus, die älteste zuerst, mit der Kopfzeile
date,time,sys,dia,pulse,map,pp,mam,arrhythmia. Der Blutdruck ist in mmHg, der Puls in Schlägen pro Minute.
Eine Messung, die das Messgerät ohne Datum gespeichert hat, steht mit n.a und --:-- darin; sie entfällt, wenn
ein Zeitraum, --am oder --pm angegeben ist, außer mit --undated. Ein Tag ohne Messungen, zu dem ein Kommentar
gehört, hat eine Zeile mit seinem Datum und n.a. für den Rest; sind es zu viele, um alle aufzulisten, sagt das
ein Satz auf der Standardfehlerausgabe.

Mit --exclude, --include, --add, --change oder --delete wird stattdessen die Datendatei geändert. Eine
ausgeschlossene Messung bleibt mit ihrem Grund in der Datei und in der Liste und zählt nirgends mit; ein Satz
auf der Standardfehlerausgabe sagt, wie viele der ausgegebenen Messungen das sind. Eine von Hand eingegebene
Messung ist als manual gekennzeichnet; Blutdruck und Puls sind ganze Zahlen von 30 bis 300, der
diastolische Blutdruck liegt unter dem systolischen und die Zeit nicht in der Zukunft. --add gibt
'record: RECORD' aus. Nur von Hand eingegebene Messungen lassen sich ändern oder löschen.
Mit --include bleibt eine von Hand eingegebene ausgeschlossen, die doppelt zählen würde oder sich so nicht
eingeben ließe. Zählt eine Messung des Messgeräts wieder mit, so ist dieselbe von Hand eingegebene ab dann
ausgeschlossen und wird als 'left-out' gezählt.

Optionen:
  --patient ID                 wessen Messungen
  --from DAY                   nur von diesem Tag an (yyyy-MM-dd)
  --to DAY                     nur bis zum Ende dieses Tages (yyyy-MM-dd)
  --last N                     statt --from: N Tage, bis zu dem von --to oder dem letzten mit einer Messung
  --am                         nur die Messungen vor 12 Uhr
  --pm                         nur die Messungen ab 12 Uhr
  --undated                    auch die Messungen ohne Datum
  --numbers                    mit zwei weiteren Spalten: record, die Nummer der Messung in der Datendatei,
                               und excluded, warum sie ausgeschlossen ist (leer: sie zählt)
  --exclude RECORD             die Messung mit dieser Nummer ausschließen; sie zählt dann nirgends mit
  --reason TEXT                warum
  --include RECORD             ihren Ausschluss aufheben; sie zählt dann wieder mit
  --add                        eine von Hand eingegebene Messung speichern
  --change RECORD              eine von Hand eingegebene ändern; was nicht angegeben ist, bleibt
  --delete RECORD              eine von Hand eingegebene löschen
  --date DAY                   der Tag der Messung (yyyy-MM-dd)
  --time HH:MM                 die Uhrzeit, von 00:00 bis 23:59
  --sys N                      systolischer Blutdruck, mmHg
  --dia N                      diastolischer Blutdruck, mmHg
  --pulse N                    Schläge pro Minute
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpReport"><translation>Aufruf: zel report --patient ID --section KEY[,KEY...] --output FILE.pdf [OPTION]...

Schreibt den Bericht eines Patienten als PDF, ersetzt dabei ein schon vorhandenes FILE.pdf und gibt
'written: FILE.pdf' aus. Werte ab den im Fenster gewählten Grenzwerten (135/85, falls nichts gewählt ist)
sind markiert.

Abschnitte:
  summary                      eine Seite für die Praxis: Mittelwerte, Trend, letzte Tage, Kommentare,
                               Ausgeschlossenes
  graph                        Blutdruck- und Pulsdiagramm
  PatientProfile               Daten des Patienten und Notizen
  histogram                    wie die Werte verteilt sind
  correlation                  systolischer gegen diastolischen Blutdruck
  trend                        Mediane und Bänder nach Tag, Woche oder Monat
  table                        die Messungen
  comment                      die Kommentare
  SWStatistics                 Mittelwerte, Grenzwerte und die Messungen
  all                          alle, in dieser Reihenfolge

Optionen:
  --patient ID                 wessen Bericht
  --section KEY[,KEY...]       was gedruckt wird, in der angegebenen Reihenfolge
  --from yyyy-MM-dd            erster Tag des Berichtszeitraums (sonst der der ersten Messung)
  --to yyyy-MM-dd              letzter Tag davon (sonst der der letzten Messung)
  --last N                     statt --from: N Tage, bis zu dem von --to oder dem letzten mit einer Messung
  --am                         nur die Messungen vor 12 Uhr (Statistik und Übersicht nehmen alle)
  --pm                         nur die Messungen ab 12 Uhr (ebenso)
  --apart                      der Trend hat eigene Linien für morgens und abends
  --rule esh|nice|aha          wie die Übersicht ihre Messwoche mittelt, die mit dem letzten Tag des Zeitraums
                               mit Messungen endet; esh, falls nicht anders angegeben. 'zel average --help'
                               erklärt die Regeln
  --practitioner               die Praxisangaben aus den Einstellungen in der Fußzeile drucken, in der
                               Übersicht oben
  --paper A4|Letter            das Papier; sonst das von LC_PAPER oder LANG
  --output FILE.pdf            die Datei, die geschrieben wird
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpSettings"><translation>Aufruf: zel settings
        zel settings --set KEY=VALUE [--set KEY=VALUE]...

Gibt die Einstellungen aus, je Zeile ein 'key: value', oder ändert einige davon und gibt diese aus. Wird einer
der Werte abgelehnt, wird keiner geändert. In Texten steht \n für einen Zeilenumbruch und \\ für einen
umgekehrten Schrägstrich.

  DateFormat                   dd mm yyyy, mm dd yyyy oder yyyy mm dd
  TimeFormat                   12-hours oder 24-hours
  MetricFormat                 kg / cm oder lb / in
  EraseRecAfterReading         1: den Speicher des Messgeräts löschen, sobald das Ausgelesene sicher
                               gespeichert ist; sonst 0
  ShowPPorMap                  0: Pulsdruck anzeigen; 1: mittleren arteriellen Druck anzeigen
  UserWhoStandard              1: die Einstellungen zeigen die Grenzwerte als die der WHO; sonst 0
  SysStandard                  systolischer Grenzwert, 0 (keiner) oder 60 bis 260 mmHg
  DiaStandard                  diastolischer Grenzwert, 0 oder 30 bis 160 mmHg, unter dem systolischen
  PhysicianAddress             die Praxisangaben auf gedruckten Berichten

Optionen:
  --set KEY=VALUE              eine Einstellung ändern; mehrfach möglich
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliHelpStatistics"><translation>Aufruf: zel statistics --patient ID [--from DAY | --last N] [--to DAY] [--undated]

Gibt Mittelwert, Minimum und Maximum der Messungen eines Patienten aus, je Zeile eine Messgröße:
'sys: AVERAGE MIN MAX', dann dia, pulse und map oder pp, wie in den Einstellungen gewählt. Der Blutdruck ist
in mmHg, der Puls in Schlägen pro Minute. Wo es keine Messung gibt, steht jeweils n/a. Sind Messungen nicht
gezählt, steht auf der Standardfehlerausgabe, wie viele gezählt sind und wie viele aus welchem Grund nicht.

Optionen:
  --patient ID                 wessen Messungen
  --from DAY                   nur von diesem Tag an (yyyy-MM-dd)
  --to DAY                     nur bis zum Ende dieses Tages (yyyy-MM-dd)
  --last N                     statt --from: N Tage, bis zu dem von --to oder dem letzten mit einer Messung
  --undated                    auch die Messungen ohne Datum
  --simulated-monitor[=FILE]   angenommen wie überall; dieser Befehl braucht kein Messgerät
  -h, --help                   diesen Text anzeigen</translation></message>
    <message id="CliIDDoesNotFit"><translation>Das Messgerät kann die ID '%1' nicht speichern: Nötig sind 1 bis 11 einfache (ASCII-)Zeichen ohne Leerzeichen am Anfang oder Ende.</translation></message>
    <message id="CliIDUnread"><translation>Die ID des Messgeräts konnte nicht gelesen werden. %1</translation></message>
    <message id="CliIDUnsent"><translation>Die ID konnte nicht in das Messgerät geschrieben werden. %1</translation></message>
    <message id="CliLastAndFrom"><translation>Bitte entweder --from oder --last angeben, nicht beides.</translation></message>
    <message id="CliMonitorChanged"><translation>Die Verbindung ist abgebrochen, und die danach angekommenen Messungen stammen möglicherweise aus einem anderen Messgerät als dem abgefragten. Es wurde nichts gespeichert; bitte versuchen Sie es noch einmal.</translation></message>
    <message id="CliMonitorDenied"><translation>%1 Zum Auslesen ist eine Berechtigung nötig: Kopieren Sie packaging/70-zel.rules nach /etc/udev/rules.d, führen Sie 'udevadm control --reload' aus und schließen Sie das Messgerät neu an.</translation></message>
    <message id="CliMonitorSilent"><translation>Ein Messgerät ist angeschlossen, hat aber innerhalb von %1 s nicht geantwortet. %2</translation></message>
    <message id="CliMonitorWithoutID"><translation>Im Messgerät ist keine ID gespeichert; seine Messungen sind deshalb möglicherweise nicht die von Patient '%1'. Schreiben Sie die ID mit 'zel monitor --send-id', oder lesen Sie mit --any-monitor trotzdem aus.</translation></message>
    <message id="CliNoCommand"><translation>Es fehlt ein Befehl.</translation></message>
    <message id="CliNoFolder"><translation>Es gibt keinen Ordner '%1'.</translation></message>
    <message id="CliNoHome"><translation>Die Umgebungsvariable HOME ist nicht gesetzt; deshalb ist nicht bekannt, wo die Datendatei zu suchen ist.</translation></message>
    <message id="CliNoLineInTable" numerus="yes"><translation><numerusform>%n Patient hat keine Zeile in der Tabelle: Für ihn ist keine Messung gespeichert, wie für alle ohne ID.</numerusform><numerusform>%n Patienten haben keine Zeile in der Tabelle: Für sie ist keine Messung gespeichert, wie für alle ohne ID.</numerusform></translation></message>
    <message id="CliNoMonitor"><translation>Innerhalb von %1 s wurde kein Messgerät gefunden. Bitte schließen Sie es mit dem USB-Kabel an, oder geben Sie ihm mit --wait mehr Zeit.</translation></message>
    <message id="CliNoSuchPatient"><translation>Es gibt keinen Patienten mit der ID '%1'. 'zel patients' listet sie auf.</translation></message>
    <message id="CliNoSuchReading"><translation>der Patient hat keine Messung mit der Nummer %1 (zel readings --numbers gibt die Nummern aus)</translation></message>
    <message id="CliNoSuchRule"><translation>Es gibt keine Regel '%1'. Die Regeln sind %2.</translation></message>
    <message id="CliNoSuchSection"><translation>Es gibt keinen Abschnitt '%1'. Die Abschnitte sind all oder beliebige von %2, mit Kommas dazwischen.</translation></message>
    <message id="CliNoTable"><translation>%1: --patient gilt nur für Tabellen mit Messungen; diese Datei ist keine oder nicht lesbar. Aus ihr wurde nichts übernommen.</translation></message>
    <message id="CliNotExcluded"><translation>die Messung %1 ist nicht ausgeschlossen</translation></message>
    <message id="CliNotTogether"><translation>--%1 und --%2 passen nicht zusammen</translation></message>
    <message id="CliOneJob"><translation>Nur eines von --set-clock, --send-id und --erase ist auf einmal möglich.</translation></message>
    <message id="CliOptionMissing"><translation>--%1 fehlt, oder der Wert ist leer.</translation></message>
    <message id="CliOptionTwice"><translation>--%1 ist mehr als einmal angegeben.</translation></message>
    <message id="CliOtherMonitor"><translation>Im Messgerät ist die ID '%1' gespeichert, nicht '%2'; seine Messungen gehören deshalb möglicherweise zu einem anderen Patienten. Mit --any-monitor lesen Sie sie trotzdem aus.</translation></message>
    <message id="CliOtherZone" numerus="yes"><translation><numerusform>%n Messung der Woche wurde in einer anderen Zeitzone gespeichert; Tag und Uhrzeit sind die dieses Computers.</numerusform><numerusform>%n Messungen der Woche wurden in einer anderen Zeitzone gespeichert; Tage und Uhrzeiten sind die dieses Computers.</numerusform></translation></message>
    <message id="CliOutputFailed"><translation>Die Ausgabe konnte nicht geschrieben werden.</translation></message>
    <message id="CliPatientKnown"><translation>Einen Patienten mit der ID '%1' gibt es schon.</translation></message>
    <message id="CliPlanWithoutFile"><translation>--simulated-monitor= braucht dahinter den Namen einer Datei; allein, ohne '=', ist es das eingebaute Messgerät.</translation></message>
    <message id="CliProgress"><translation>%1 von %2 Messungen empfangen</translation></message>
    <message id="CliReadableByOthers"><translation>Andere Benutzer dieses Computers können %1 lesen. 'zel privacy --mend' verwehrt ihnen den Zugriff.</translation></message>
    <message id="CliReadingJobMissing"><translation>--reason gehört zu --exclude; --date, --time, --sys, --dia und --pulse gehören zu --add oder --change</translation></message>
    <message id="CliReadingNotUnique"><translation>mehrere Messungen haben die Nummer %1; welche gemeint ist, lässt sich nicht feststellen</translation></message>
    <message id="CliReadingsExcluded" numerus="yes"><translation><numerusform>%n dieser Messungen ist ausgeschlossen und zählt nirgends mit; --numbers zeigt, welche und warum</numerusform><numerusform>%n dieser Messungen sind ausgeschlossen und zählen nirgends mit; --numbers zeigt, welche und warum</numerusform></translation></message>
    <message id="CliSameIDLeftOut" numerus="yes"><translation><numerusform>%n Patient wurde ausgelassen: Ein anderer in der Liste hat dieselbe ID oder ebenfalls keine. Zur Unterscheidung braucht jeder Patient eine eigene ID.</numerusform><numerusform>%n Patienten wurden ausgelassen: Andere in der Liste haben dieselben IDs oder ebenfalls keine. Zur Unterscheidung braucht jeder Patient eine eigene ID.</numerusform></translation></message>
    <message id="CliSettingForm"><translation>--set braucht KEY=VALUE, nicht '%1'.</translation></message>
    <message id="CliSettingNotKept"><translation>Die Datendatei hat keinen Platz für die Einstellung %1; deshalb wurde nichts geändert.</translation></message>
    <message id="CliSettingTwice"><translation>Die Einstellung %1 ist mehr als einmal angegeben.</translation></message>
    <message id="CliSettingUnknown"><translation>Es gibt keine Einstellung '%1'. Es gibt diese: %2.</translation></message>
    <message id="CliSettingValue"><translation>Zulässig für %1: %2; nicht '%3'.</translation></message>
    <message id="CliTableAssumed" numerus="yes"><translation><numerusform>Eine Tabelle enthält nichts zu Geschlecht, Rauchen und Diabetes: %n neuer Patient ist als weiblich, Nichtraucher und ohne Diabetes gespeichert. Bitte prüfen.</numerusform><numerusform>Eine Tabelle enthält nichts zu Geschlecht, Rauchen und Diabetes: Die %n neuen Patienten sind als weiblich, Nichtraucher und ohne Diabetes gespeichert. Bitte prüfen.</numerusform></translation></message>
    <message id="CliTableKnown"><translation>--patient ID fügt die Messungen einer Tabelle einem Patienten der Liste hinzu.</translation></message>
    <message id="CliTryHelp"><translation>Versuchen Sie '%1'.</translation></message>
    <message id="CliTypedLeftOut" numerus="yes"><translation><numerusform>%n von Hand eingegebene Messung zählt ab jetzt nirgends mehr mit: Die Tabelle enthält dieselbe von einem Messgerät.</numerusform><numerusform>%n von Hand eingegebene Messungen zählen ab jetzt nirgends mehr mit: Die Tabelle enthält dieselben von einem Messgerät.</numerusform></translation></message>
    <message id="CliUnexpectedWord"><translation>'%1' wird hier nicht erwartet.</translation></message>
    <message id="CliUnknownCommand"><translation>Es gibt keinen Befehl '%1'.</translation></message>
    <message id="CliUnmeasured" numerus="yes"><translation><numerusform>%n Messung ohne Druckwerte ist nicht gezählt.</numerusform><numerusform>%n Messungen ohne Druckwerte sind nicht gezählt.</numerusform></translation></message>
    <message id="CliWaiting"><translation>Warten auf das Messgerät, noch höchstens %1 s. Strg+C bricht ab.</translation></message>
    <message id="CliWeekToCome"><translation>Die Woche endet am %1, einem Tag, der noch kommt.</translation></message>
    <message id="CliYesAlone"><translation>--yes gehört zu --erase.</translation></message>
</context>
</TS>
