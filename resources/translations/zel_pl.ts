<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<!-- Every text of the program by its key; code asks for them with qtTrId("key"). Sorted by key in each context. -->
<context>
    <name>store</name>
    <message id="%1 A"><translation>%1 AM</translation></message>
    <message id="%1 P"><translation>%1 PM</translation></message>
    <message id=", "><translation>, </translation></message>
    <message id="; "><translation>; </translation></message>
    <message id="BackupLast"><translation>%1, %2, ostatni z dnia %3</translation></message>
    <message id="BackupPatients" numerus="yes"><translation><numerusform>%n pacjent</numerusform><numerusform>%n pacjentów</numerusform><numerusform>%n pacjentów</numerusform></translation></message>
    <message id="BackupReadings" numerus="yes"><translation><numerusform>%n pomiar</numerusform><numerusform>%n pomiary</numerusform><numerusform>%n pomiarów</numerusform></translation></message>
    <message id="ExcludedAsMeasured"><translation>zapisany także przez ciśnieniomierz</translation></message>
    <message id="ExcludedWithoutReason"><translation>nie podano powodu</translation></message>
    <message id="ExportAlreadyExists"><translation>Plik %1 już istnieje. Pozostawiono go bez zmian.</translation></message>
    <message id="ExportIsDataFile"><translation>Plik %1 to plik danych programu, którego żaden eksport nie zastępuje. Proszę wybrać inny folder.</translation></message>
    <message id="ExportNotFlushed"><translation>Plik %1 zapisano, ale dysk nie potwierdził trwałego zapisu: po zaniku zasilania pliku może brakować. Proszę sprawdzić dysk.</translation></message>
    <message id="ExportNotWritten"><translation>Nie udało się zapisać pliku %1. Proszę sprawdzić, czy folder istnieje, czy wolno w nim zapisywać i czy dysk nie jest pełny.</translation></message>
    <message id="ExportSameFileName"><translation>Pliku %1 nie zapisano: ten dysk nie odróżnia jego nazwy od nazwy pliku zapisanego przed chwilą dla pacjenta wymienionego niżej. Proszę eksportować na dysk, który rozróżnia wielkie i małe litery.</translation></message>
    <message id="Female"><translation>Kobieta</translation></message>
    <message id="fullName"><translation>%1 %2</translation></message>
    <message id="ImportAlreadyKnown"><translation>%1: pacjent o ID „%2” jest już na liście. Danych pacjentów nigdy się nie nadpisuje, dlatego niczego z tego pliku nie przyjęto.</translation></message>
    <message id="ImportBadID"><translation>%1: ID „%2” w pliku zawiera koniec wiersza lub inny znak sterujący; nie można by go ani zapisać, ani wysłać do ciśnieniomierza. Niczego z tego pliku nie przyjęto.</translation></message>
    <message id="ImportBadLines"><translation>%1: niektórych wierszy tabeli nie można przyjąć. Niczego z niej nie przyjęto.</translation></message>
    <message id="ImportMissingColumn"><translation>%1: tabela nie ma kolumny „%2” albo ma ich kilka. Niczego z niej nie przyjęto.</translation></message>
    <message id="ImportNoFile"><translation>To nie jest zwykły plik.</translation></message>
    <message id="ImportNoID"><translation>%1: jeden z pacjentów w pliku nie ma ID. Niczego z tego pliku nie przyjęto.</translation></message>
    <message id="ImportNoPatient"><translation>%1: w pliku nie ma żadnego pacjenta. Niczego z niego nie przyjęto.</translation></message>
    <message id="ImportNoReading"><translation>%1: w tabeli nie ma żadnego pomiaru. Niczego z niej nie przyjęto.</translation></message>
    <message id="ImportNoSuchPatient"><translation>%1: na liście nie ma już pacjenta o ID „%2”. Niczego z tego pliku nie przyjęto.</translation></message>
    <message id="ImportNotFlushed"><translation>%1: wszystko zapisano, ale dysk tego nie potwierdził: po zaniku zasilania danych może brakować.</translation></message>
    <message id="ImportNotReadable"><translation>%1: pliku nie można odczytać albo nie został wyeksportowany przez ten program. Niczego z niego nie przyjęto.</translation></message>
    <message id="ImportNotStored"><translation>%1: nie udało się zapisać zawartości pliku. Niczego z niego nie przyjęto.</translation></message>
    <message id="ImportOtherNames"><translation>%1: pacjent o ID „%2” nazywa się na liście inaczej niż w tabeli; pomiary mogą należeć do innej osoby. Niczego z tego pliku nie przyjęto. Aby mimo to je przyjąć, należy opróżnić komórki z nazwiskiem i imionami.</translation></message>
    <message id="ImportSameIDTwice"><translation>%1: dwóch pacjentów w pliku ma to samo ID „%2”. Niczego z tego pliku nie przyjęto.</translation></message>
    <message id="ImportTooLarge"><translation>%1: plik jest większy niż 512 MiB. Niczego z niego nie przyjęto.</translation></message>
    <message id="ImportTooManyLines"><translation>%1: tabela ma więcej niż 200 000 wierszy. Niczego z niej nie przyjęto.</translation></message>
    <message id="LanguageMissing"><translation>opcja --language wymaga języka, jednego z: %1</translation></message>
    <message id="languageTag"><translation>pl</translation></message>
    <message id="LanguageTwice"><translation>opcję --language można podać tylko raz</translation></message>
    <message id="LanguageUnknown"><translation>nie ma języka „%1”; dostępne języki: %2</translation></message>
    <message id="LanguageUnread"><translation>Nie można odczytać wyboru języka w pliku %1. Do czasu wybrania innego w ustawieniach obowiązuje język systemu.</translation></message>
    <message id="LimitDiastolic"><translation>Granica rozkurczowa: %1.</translation></message>
    <message id="LimitOrder"><translation>Granica rozkurczowa musi być niższa od skurczowej.</translation></message>
    <message id="LimitSystolic"><translation>Granica skurczowa: %1.</translation></message>
    <message id="Male"><translation>Mężczyzna</translation></message>
    <message id="ManualDia"><translation>Ciśnienie rozkurczowe musi być liczbą od %1 do %2.</translation></message>
    <message id="ManualDiaNotBelowSys"><translation>Ciśnienie rozkurczowe musi być niższe od skurczowego.</translation></message>
    <message id="ManualInFuture"><translation>Data i godzina są w przyszłości.</translation></message>
    <message id="ManualNoDate"><translation>Nie ma takiej daty i godziny. (Przy przejściu na czas letni jedna godzina wypada, a 1 stycznia 2000 oznacza brak daty).</translation></message>
    <message id="ManualPulse"><translation>Tętno musi być liczbą od %1 do %2.</translation></message>
    <message id="ManualSys"><translation>Ciśnienie skurczowe musi być liczbą od %1 do %2.</translation></message>
    <message id="ManualTooEarly"><translation>Data jest wcześniejsza niż rok 1900.</translation></message>
    <message id="n.a"><translation>b.d.</translation></message>
    <message id="N/A"><translation>b.d.</translation></message>
    <message id="NotBackedUp"><translation>Przed tą zmianą nie udało się utworzyć kopii pliku danych w folderze %1. %2</translation></message>
    <message id="remarkExcluded"><translation>pominięty: %1</translation></message>
    <message id="remarkManual"><translation>wpisany</translation></message>
    <message id="SecondFolderAway"><translation>Drugi folder na kopie pliku danych, %1, jest niedostępny, dlatego nie ma w nim dzisiejszej kopii. Zostanie w nim zapisana przy następnej zmianie, gdy folder będzie znów dostępny.</translation></message>
    <message id="SecondFolderBroken"><translation>Z pliku %1 nie można odczytać, do jakiego drugiego folderu mają trafiać kopie pliku danych, dlatego nie trafiają do żadnego. Proszę wybrać go ponownie.</translation></message>
    <message id="SecondFolderFailed"><translation>Nie udało się zapisać dzisiejszej kopii pliku danych w drugim folderze, %1.</translation></message>
    <message id="SecondFolderNoRoom"><translation>Dzisiejszej kopii pliku danych nie ma w drugim folderze, %1: wszystkie kopie mogą tam zająć łącznie jedną dziesiątą wolnego miejsca na dysku, a to mniej niż rozmiar pliku.</translation></message>
    <message id="SecondFolderNotFlushed"><translation>Dzisiejszą kopię pliku danych zapisano w drugim folderze, %1, ale dysk nie potwierdził trwałego zapisu: po zaniku zasilania kopii może brakować.</translation></message>
    <message id="SecondFolderNotRecorded"><translation>Nie udało się zapisać drugiego folderu na kopie w pliku %1. Niczego nie zmieniono.</translation></message>
    <message id="SettingLimit"><translation>0 (brak) albo liczba całkowita od %1 do %2</translation></message>
    <message id="SettingOneOf"><translation>jedna z wartości %1</translation></message>
    <message id="SettingQuoted"><translation>„%1”</translation></message>
    <message id="SettingText"><translation>dowolny tekst bez znaków sterujących</translation></message>
    <message id="stepAddComment"><translation>dodanie komentarza (%1)</translation></message>
    <message id="stepAddPatient"><translation>dodanie pacjenta (%1)</translation></message>
    <message id="stepAddReading"><translation>dodanie pomiaru (%1)</translation></message>
    <message id="stepDeleteComment"><translation>usunięcie komentarza (%1)</translation></message>
    <message id="stepDeletePatient"><translation>usunięcie pacjenta (%1)</translation></message>
    <message id="stepDeleteReadings" numerus="yes"><translation><numerusform>usunięcie %n pomiaru (%1)</numerusform><numerusform>usunięcie %n pomiarów (%1)</numerusform><numerusform>usunięcie %n pomiarów (%1)</numerusform></translation></message>
    <message id="stepEditComment"><translation>zmiany w komentarzu (%1)</translation></message>
    <message id="stepEditPatient"><translation>zmiany w danych pacjenta (%1)</translation></message>
    <message id="stepEditReading"><translation>zmiany w pomiarze (%1)</translation></message>
    <message id="stepExcludeReadings" numerus="yes"><translation><numerusform>pominięcie %n pomiaru (%1)</numerusform><numerusform>pominięcie %n pomiarów (%1)</numerusform><numerusform>pominięcie %n pomiarów (%1)</numerusform></translation></message>
    <message id="stepImport"><translation>import pliku %1</translation></message>
    <message id="stepIncludeReadings" numerus="yes"><translation><numerusform>ponowne uwzględnienie %n pomiaru (%1)</numerusform><numerusform>ponowne uwzględnienie %n pomiarów (%1)</numerusform><numerusform>ponowne uwzględnienie %n pomiarów (%1)</numerusform></translation></message>
    <message id="stepSettings"><translation>zmiany ustawień</translation></message>
    <message id="stillLeftOutRefused" numerus="yes"><translation><numerusform>%n pomiar wpisany ręcznie pozostaje pominięty. %1</numerusform><numerusform>%n pomiary wpisane ręcznie pozostają pominięte. %1</numerusform><numerusform>%n pomiarów wpisanych ręcznie pozostaje pominiętych. %1</numerusform></translation></message>
    <message id="stillLeftOutTwice" numerus="yes"><translation><numerusform>%n pomiar wpisany ręcznie pozostaje pominięty: liczy się już pomiar z tej samej minuty o tych samych wartościach.</numerusform><numerusform>%n pomiary wpisane ręcznie pozostają pominięte: liczą się już pomiary z tych samych minut o tych samych wartościach.</numerusform><numerusform>%n pomiarów wpisanych ręcznie pozostaje pominiętych: liczą się już pomiary z tych samych minut o tych samych wartościach.</numerusform></translation></message>
    <message id="StoreAlreadyKnown"><translation>Pacjent o ID „%1” jest już na liście. Niczego nie zmieniono.</translation></message>
    <message id="StoreBusy"><translation>Inny program korzysta z pliku danych %1, na tym komputerze albo na innym, który ma do niego dostęp. Niczego nie zmieniono; proszę spróbować ponownie za chwilę albo, jeśli tamten komputer stracił połączenie z siecią, za kilka minut.</translation></message>
    <message id="StoreChangedElsewhere"><translation>W międzyczasie zmienił to inny program. Tutaj niczego nie zmieniono; proszę sprawdzić, jak to wygląda teraz.</translation></message>
    <message id="StoreDiskFull"><translation>Dysk jest pełny: nie udało się zapisać pliku %1. Dotychczasowa zawartość pozostała bez zmian. Proszę zwolnić miejsce na dysku i spróbować ponownie.</translation></message>
    <message id="StoreInvalidRecord"><translation>Pacjent musi mieć własne ID; „%1” nim nie jest. Niczego nie zmieniono.</translation></message>
    <message id="StoreLockBlocked"><translation>%1 zajmuje miejsce, w którym programy zaznaczają, że korzystają z pliku danych, a takim znacznikiem nie jest. Niczego nie zmieniono; proszę to przenieść gdzie indziej i spróbować ponownie.</translation></message>
    <message id="StoreNoPermissions"><translation>Inne osoby na tym komputerze nadal mogą odczytać %1: ten system plików nie obsługuje uprawnień. Proszę przechowywać dane na innym dysku.</translation></message>
    <message id="StoreNoReason"><translation>Pomiar można pominąć tylko z podaniem powodu; proszę go podać. Niczego nie zmieniono.</translation></message>
    <message id="StoreNoRoomForBackup"><translation>W %1 nie ma kopii pliku danych: wszystkie kopie mogą zająć łącznie jedną dziesiątą wolnego miejsca na dysku, a to mniej niż rozmiar pliku.</translation></message>
    <message id="StoreNoStep"><translation>Nie ma czego cofnąć ani ponowić.</translation></message>
    <message id="StoreNoSuchBackup"><translation>Nie ma kopii pliku danych o nazwie „%1”.</translation></message>
    <message id="StoreNoSuchRecord"><translation>Nie ma pacjenta o ID „%1”.</translation></message>
    <message id="StoreNotCreated"><translation>Nie ma jeszcze pliku danych i nie udało się go utworzyć (%1). Proszę sprawdzić, czy wolno zapisywać w folderze i czy dysk nie jest pełny, a potem uruchomić program ponownie.</translation></message>
    <message id="StoreNotFlushed"><translation>Plik %1 zapisano, ale dysk nie potwierdził trwałego zapisu: po zaniku zasilania może w nim być znów starsza zawartość. Proszę sprawdzić dysk; pomiary z ciśnieniomierza są nadal w ciśnieniomierzu.</translation></message>
    <message id="StoreNotMadePrivate"><translation>Inne osoby na tym komputerze nadal mogą odczytać %1: nie udało się zmienić uprawnień.</translation></message>
    <message id="StoreNotManual"><translation>Pomiarów pobranych z ciśnieniomierza nie można zmieniać ani usuwać; można je pominąć, podając powód. Niczego nie zmieniono.</translation></message>
    <message id="StoreNotParsed"><translation>Plik danych %1 jest uszkodzony albo nie jest plikiem danych tego programu. Pozostaje bez zmian; dopóki nie da się go odczytać, niczego nie można zapisać: proszę go naprawić, zastąpić kopią albo przenieść w inne miejsce, aby zacząć od nowego.</translation></message>
    <message id="StoreNotReadable"><translation>Nie można odczytać pliku danych %1. Pozostaje on bez zmian i dopóki nie da się go odczytać, niczego nie można zapisać.</translation></message>
    <message id="StoreNotWritable"><translation>Nie można zapisać pliku danych %1. Niczego nie zmieniono; proszę sprawdzić uprawnienia do pliku i jego folderu.</translation></message>
    <message id="StoreQuotaReached"><translation>Na tym dysku nie można zapisać więcej danych (limit miejsca jest wyczerpany): nie udało się zapisać pliku %1. Dotychczasowa zawartość pozostała bez zmian. Proszę usunąć zbędne pliki albo poprosić o więcej miejsca i spróbować ponownie.</translation></message>
    <message id="StoreReadFailed"><translation>Nie można odczytać pliku danych %1: dysk zgłasza błąd. Plik pozostaje bez zmian i dopóki nie da się go odczytać, niczego nie można zapisać. Proszę zlecić sprawdzenie dysku.</translation></message>
    <message id="StoreReadingGone"><translation>Tego pomiaru już nie ma. Niczego nie zmieniono.</translation></message>
    <message id="StoreReadingKnown"><translation>Istnieje już pomiar z tej samej minuty o tych samych wartościach. Niczego nie zmieniono.</translation></message>
    <message id="StoreReadingRefused"><translation>Pomiaru nie zapisano.</translation></message>
    <message id="StoreSizeLimit"><translation>Pliki nie mogą tu być tak duże: nie udało się zapisać pliku %1. Dotychczasowa zawartość pozostała bez zmian. Proszę zapytać opiekuna tego komputera o limit rozmiaru plików.</translation></message>
    <message id="StoreStepChanged"><translation>To, czego dotyczy ta czynność, zostało od tego czasu ponownie zmienione przez inny program lub ręcznie. Niczego nie zmieniono.</translation></message>
    <message id="StoreStepGone"><translation>Tego, czego dotyczy ta czynność, nie ma już w pliku danych. Niczego nie zmieniono.</translation></message>
    <message id="StoreStepHasRecords"><translation>Pacjentowi o ID „%1” przybyły od tego czasu pomiary lub komentarze, które nie należałyby już do nikogo. Niczego nie zmieniono.</translation></message>
    <message id="StoreStepPatientGone"><translation>Pacjenta o ID „%1”, do którego należy komentarz, nie ma już w pliku danych. Niczego nie zmieniono.</translation></message>
    <message id="StoreStepPatientKnown"><translation>Pacjent o ID „%1” jest już na liście. Niczego nie zmieniono.</translation></message>
    <message id="StoreStepThere"><translation>To, co miałoby wrócić, jest już z powrotem w pliku danych. Niczego nie zmieniono.</translation></message>
    <message id="StoreTooLarge"><translation>Plik danych %1 jest większy niż 512 MiB; tak dużych plików program nie odczytuje. Plik pozostaje bez zmian i niczego nie można zapisać: proszę zastąpić go mniejszą kopią albo przenieść w inne miejsce, aby zacząć od nowego.</translation></message>
    <message id="StoreUnreadable"><translation>Plik danych %1 pozostał bez zmian: tego, co miało zostać zapisane, nie udało się potem z powrotem odczytać.</translation></message>
    <message id="StoreWriteFailed"><translation>Zapis pliku danych %1 się nie powiódł; plik pozostał bez zmian. Proszę sprawdzić, czy dysk nie jest pełny, i spróbować ponownie.</translation></message>
    <message id="TableCell"><translation>Wartość „%1” jest niedozwolona w kolumnie „%2”.</translation></message>
    <message id="TableCells"><translation>Liczba komórek: %1, a w wierszu tytułów: %2.</translation></message>
    <message id="TableDateOrder"><translation>Data „%1” nie ma postaci takiej jak 2026-11-21. Proszę podać w opcji --dates kolejność dnia, miesiąca i roku: dmy, mdy lub ymd.</translation></message>
    <message id="TableLine"><translation>Wiersz %1: %2</translation></message>
    <message id="TableMeanPressure"><translation>Średnie ciśnienie tętnicze %1 nie pasuje do %2/%3: czy każda kolumna jest właściwie przypisana?</translation></message>
    <message id="TableMoreLines" numerus="yes"><translation><numerusform>… i jeszcze %n wiersz</numerusform><numerusform>… i jeszcze %n wiersze</numerusform><numerusform>… i jeszcze %n wierszy</numerusform></translation></message>
    <message id="TableNoTime"><translation>„%1” nie jest datą z czterocyfrowym rokiem wraz z godziną.</translation></message>
    <message id="TableNotUtf8"><translation>Tekst pliku nie jest zakodowany w UTF-8. Proszę zapisać plik jako „CSV UTF-8” w programie, z którego pochodzi.</translation></message>
    <message id="TableOtherNames"><translation>Pacjent „%1” nazywa się inaczej w jednym z wcześniejszych wierszy.</translation></message>
    <message id="TableOtherPatient"><translation>Pomiar dotyczy pacjenta „%1”, a nie „%2”.</translation></message>
    <message id="TablePulsePressure"><translation>Ciśnienie tętna %1 nie pasuje do %2/%3: czy każda kolumna jest właściwie przypisana?</translation></message>
    <message id="TableQuotation"><translation>Cudzysłów nie jest zamknięty na końcu komórki.</translation></message>
    <message id="takenInTypedLeftOut" numerus="yes"><translation><numerusform>%n pomiar wpisany ręcznie jest odtąd pominięty (zapisany także przez ciśnieniomierz).</numerusform><numerusform>%n pomiary wpisane ręcznie są odtąd pominięte (zapisane także przez ciśnieniomierz).</numerusform><numerusform>%n pomiarów wpisanych ręcznie jest odtąd pominiętych (zapisanych także przez ciśnieniomierz).</numerusform></translation></message>
    <message id="ViewLimitsUnread"><translation>Nie można odczytać pliku %1, w którym zapisano, od jakich granic oznacza się wartości. Do czasu ponownego wyboru granic wartości są oznaczane od %2/%3 mmHg.</translation></message>
    <message id="Warning"><translation>Uwaga</translation></message>
    <message id="XmlAttributeTwice"><translation>Ten sam atrybut występuje w elemencie dwukrotnie.</translation></message>
    <message id="XmlBytesNotInEncoding"><translation>Plik zawiera bajty spoza swojego kodowania, %1.</translation></message>
    <message id="XmlControlCharacter"><translation>Plik zawiera znak sterujący, który jest w nim niedozwolony.</translation></message>
    <message id="XmlEncodingUnknown"><translation>Kodowanie pliku, %1, jest nieznane.</translation></message>
    <message id="XmlEntityNotTaken"><translation>Plik odwołuje się do encji lub znaku, które nie są obsługiwane; obsługiwanych jest tylko pięć encji języka XML i jego znaki.</translation></message>
    <message id="XmlErrorNearLine"><translation>W okolicy wiersza %1: %2</translation></message>
    <message id="XmlMisplacedDeclaration"><translation>Deklaracja znajduje się w niedozwolonym miejscu.</translation></message>
    <message id="XmlNoRoot"><translation>Plik nie zawiera żadnego elementu.</translation></message>
    <message id="XmlNotWritable"><translation>Nie można zapisywać w pliku danych: zmian ani pobranych pomiarów nie da się zachować. Proszę sprawdzić uprawnienia do pliku i jego folderu.</translation></message>
    <message id="XmlSeveralRoots"><translation>Plik zawiera więcej niż jeden element główny.</translation></message>
    <message id="XmlTextOutsideRoot"><translation>Plik zawiera tekst poza elementem głównym.</translation></message>
    <message id="XmlTooDeep"><translation>Elementy są zagnieżdżone zbyt głęboko (dozwolona liczba poziomów: %1).</translation></message>
    <message id="XmlTooLarge"><translation>Plik byłby większy niż 512 MiB.</translation></message>
    <message id="XmlTooManyParts"><translation>Liczba elementów, atrybutów i tekstów przekracza %1; to za dużo jak na plik tej wielkości.</translation></message>
    <message id="XmlTooManyRecords"><translation>Liczba rekordów przekracza %1; to za dużo jak na plik tej wielkości.</translation></message>
    <message id="XmlWrongRoot"><translation>Element główny to „%1”, a nie „ZEL”.</translation></message>
</context>
<context>
    <name>monitor</name>
    <message id="monitorAccessDenied"><translation>Ciśnieniomierz jest podłączony, ale program nie ma do niego dostępu: używa go inny program albo brakuje uprawnień do urządzenia USB.</translation></message>
    <message id="monitorBadCheckField"><translation>Odpowiedź ciśnieniomierza dotarła uszkodzona i nie została użyta. Proszę spróbować ponownie.</translation></message>
    <message id="monitorBadFixedContent"><translation>Odpowiedź ciśnieniomierza była niezrozumiała i nie została użyta. Proszę spróbować ponownie.</translation></message>
    <message id="monitorClockNotSet"><translation>Zegar ciśnieniomierza nie jest ustawiony.</translation></message>
    <message id="monitorInterrupted"><translation>Wymianę danych z ciśnieniomierzem przerwano przed jej zakończeniem.</translation></message>
    <message id="monitorNoAcknowledgement"><translation>Ciśnieniomierz nie przyjął polecenia. Proszę go wyłączyć, włączyć i spróbować ponownie.</translation></message>
    <message id="monitorNoDevice"><translation>Ciśnieniomierz nie jest podłączony. Proszę go podłączyć i spróbować ponownie.</translation></message>
    <message id="monitorNotTaken"><translation>Ciśnieniomierz potwierdził zmianę, ale nadal ma inne dane. Proszę spróbować ponownie.</translation></message>
    <message id="monitorReadFailed"><translation>Połączenie z ciśnieniomierzem zostało przerwane. Proszę sprawdzić przewód i spróbować ponownie.</translation></message>
    <message id="monitorSuccess"><translation>Ciśnieniomierz wykonał polecenie.</translation></message>
    <message id="monitorTimeOut"><translation>Ciśnieniomierz nie odpowiedział na czas. Proszę sprawdzić, czy jest włączony, i spróbować ponownie.</translation></message>
    <message id="monitorUnconfirmed"><translation>Dane wysłano do ciśnieniomierza, ale nie udało się odczytać, co jest w nim teraz. Proszę to sprawdzić przed ponowną próbą.</translation></message>
    <message id="monitorUnfitID"><translation>Ciśnieniomierz nie może przechować tego ID, dlatego niczego nie wysłano. ID dla ciśnieniomierza ma od 1 do 11 liter, cyfr lub innych znaków, bez liter takich jak ą czy ł.</translation></message>
    <message id="monitorWriteFailed"><translation>Ciśnieniomierz nie przyjmuje wysyłanych danych. Proszę go odłączyć, podłączyć ponownie i spróbować jeszcze raz.</translation></message>
    <message id="simulatedMissing"><translation>Brakuje wartości „%1”.</translation></message>
    <message id="simulatedNoPlan"><translation>Plik musi zawierać jeden obiekt JSON.</translation></message>
    <message id="simulatedNotAllowed"><translation>Wartość „%1” musi być jedną z następujących: %2</translation></message>
    <message id="simulatedNotJson"><translation>To nie jest poprawny JSON: w okolicy znaku %1, %2.</translation></message>
    <message id="simulatedNotList"><translation>Wartość „%1” musi być listą.</translation></message>
    <message id="simulatedNotObject"><translation>Wartość „%1” musi być obiektem.</translation></message>
    <message id="simulatedNotText"><translation>Wartość „%1” musi być tekstem.</translation></message>
    <message id="simulatedNotTime"><translation>Wartość „%1” musi być datą i godziną, na przykład 2026-11-01T07:12, z lat 2000–2099, albo słowem undated.</translation></message>
    <message id="simulatedNotWhole"><translation>Wartość „%1” musi być liczbą całkowitą z zakresu %2.</translation></message>
    <message id="simulatedRefused"><translation>Nie można użyć pliku symulowanego ciśnieniomierza %1: %2</translation></message>
    <message id="simulatedTooMany"><translation>Lista „%1” może mieć najwyżej tyle pozycji: %2.</translation></message>
    <message id="simulatedUnencodable"><translation>Wartość „%1” zawiera znaki, których ciśnieniomierz nie zna.</translation></message>
    <message id="simulatedUnknownKey"><translation>Klucz „%1” jest nieznany.</translation></message>
    <message id="simulatedUnreadable"><translation>Nie można odczytać pliku symulowanego ciśnieniomierza %1: %2</translation></message>
    <message id="simulatedWrongLength"><translation>Wartość „%1” musi mieć następującą liczbę znaków: %2</translation></message>
</context>
<context>
    <name>analysis</name>
    <message id="beforeAndSince"><translation>wcześniej %1, potem %2: %3</translation></message>
    <message id="excludedOfDays" numerus="yes"><translation><numerusform>%n pominięty</numerusform><numerusform>%n pominięte</numerusform><numerusform>%n pominiętych</numerusform></translation></message>
    <message id="fewBefore"><translation>wcześniej mniej niż %1 pomiarów</translation></message>
    <message id="fewOnBothSides"><translation>zarówno wcześniej, jak i potem mniej niż %1 pomiarów</translation></message>
    <message id="fewSince"><translation>potem mniej niż %1 pomiarów</translation></message>
    <message id="highMark"><translation>%1 i pogrubienie: co najmniej %2</translation></message>
    <message id="leftBeforeNoon" numerus="yes"><translation><numerusform>%n przed południem</numerusform><numerusform>%n przed południem</numerusform><numerusform>%n przed południem</numerusform></translation></message>
    <message id="leftExcluded" numerus="yes"><translation><numerusform>%n pominięty</numerusform><numerusform>%n pominięte</numerusform><numerusform>%n pominiętych</numerusform></translation></message>
    <message id="leftFromNoon" numerus="yes"><translation><numerusform>%n od południa</numerusform><numerusform>%n od południa</numerusform><numerusform>%n od południa</numerusform></translation></message>
    <message id="leftOut"><translation>nie liczą się: %1</translation></message>
    <message id="leftOutsidePeriod" numerus="yes"><translation><numerusform>%n spoza okresu</numerusform><numerusform>%n spoza okresu</numerusform><numerusform>%n spoza okresu</numerusform></translation></message>
    <message id="leftUndated" numerus="yes"><translation><numerusform>%n bez daty</numerusform><numerusform>%n bez daty</numerusform><numerusform>%n bez daty</numerusform></translation></message>
    <message id="leftUnmeasured" numerus="yes"><translation><numerusform>%n bez wartości ciśnienia</numerusform><numerusform>%n bez wartości ciśnienia</numerusform><numerusform>%n bez wartości ciśnienia</numerusform></translation></message>
    <message id="leftWithoutDate" numerus="yes"><translation><numerusform>%n bez żadnej daty</numerusform><numerusform>%n bez żadnej daty</numerusform><numerusform>%n bez żadnej daty</numerusform></translation></message>
    <message id="limitDiaAlone"><translation>DIA %1 mmHg</translation></message>
    <message id="limitsBoth"><translation>%1/%2 mmHg</translation></message>
    <message id="limitSysAlone"><translation>SYS %1 mmHg</translation></message>
    <message id="listedExcluded" numerus="yes"><translation><numerusform>, w tym %n pominięty</numerusform><numerusform>, w tym %n pominięte</numerusform><numerusform>, w tym %n pominiętych</numerusform></translation></message>
    <message id="missingDays" numerus="yes"><translation><numerusform>%n dzień</numerusform><numerusform>%n dni</numerusform><numerusform>%n dni</numerusform></translation></message>
    <message id="missingEvenings" numerus="yes"><translation><numerusform>%n wieczór</numerusform><numerusform>%n wieczory</numerusform><numerusform>%n wieczorów</numerusform></translation></message>
    <message id="missingMornings" numerus="yes"><translation><numerusform>%n poranek</numerusform><numerusform>%n poranki</numerusform><numerusform>%n poranków</numerusform></translation></message>
    <message id="missingReadings" numerus="yes"><translation><numerusform>%n pomiar</numerusform><numerusform>%n pomiary</numerusform><numerusform>%n pomiarów</numerusform></translation></message>
    <message id="noHighMark"><translation>Wysokich wartości się nie oznacza</translation></message>
    <message id="noneBefore"><translation>w poprzednich 14 dniach brak pomiarów, potem %1</translation></message>
    <message id="noneBeforeOrSince"><translation>brak pomiarów zarówno wcześniej, jak i potem</translation></message>
    <message id="noneSince"><translation>wcześniej %1, potem brak pomiarów</translation></message>
    <message id="otherZoneOfDays" numerus="yes"><translation><numerusform>%n zapisany w innej strefie czasowej; godziny tego komputera</numerusform><numerusform>%n zapisane w innej strefie czasowej; godziny tego komputera</numerusform><numerusform>%n zapisanych w innej strefie czasowej; godziny tego komputera</numerusform></translation></message>
    <message id="readingCount" numerus="yes"><translation><numerusform>%n pomiar</numerusform><numerusform>%n pomiary</numerusform><numerusform>%n pomiarów</numerusform></translation></message>
    <message id="rowsCut"><translation>Komentarze obejmują więcej dni bez pomiarów, niż mieści lista (najwyżej %1), dlatego niektórych brakuje.</translation></message>
    <message id="unmeasuredOfDays" numerus="yes"><translation><numerusform>%n bez wartości ciśnienia się nie liczy</numerusform><numerusform>%n bez wartości ciśnienia się nie liczą</numerusform><numerusform>%n bez wartości ciśnienia się nie liczy</numerusform></translation></message>
</context>
<context>
    <name>app</name>
    <message id="12-hours"><translation>12-godzinny</translation></message>
    <message id="24-hours"><translation>24-godzinny</translation></message>
    <message id="aboutData"><translation>Plik danych: %1</translation></message>
    <message id="aboutLicence"><translation>Licencja: MIT. ZEL jest udostępniany bez jakiejkolwiek gwarancji. ZEL korzysta z Qt (LGPL 3), hidapi (BSD), pugixml (MIT), ICU (licencja Unicode) i expected (CC0); każde z nich ma własną licencję.</translation></message>
    <message id="addComment"><translation>Dodaj komentarz</translation></message>
    <message id="addCommentHint"><translation>Aby dodać komentarz, należy przeciągnąć ten przycisk na wybrany dzień paska pod wykresem tętna. Z klawiatury: nacisnąć przycisk albo klawisz Insert.</translation></message>
    <message id="addCommentTooLong"><translation>Komentarze można dodawać, gdy okres ma najwyżej 47 dni.</translation></message>
    <message id="addDay"><translation>Więcej dni: o jeden więcej na każdym końcu okresu</translation></message>
    <message id="addDayHint"><translation>Więcej dni: o jeden więcej na każdym końcu okresu (+)</translation></message>
    <message id="afib"><translation>AF</translation></message>
    <message id="age"><translation>Wiek: %1</translation></message>
    <message id="answerNo"><translation>Nie</translation></message>
    <message id="answerYes"><translation>Tak</translation></message>
    <message id="AP_Title"><translation>ZEL – pomiary ciśnienia krwi</translation></message>
    <message id="argumentUnknown"><translation>nieoczekiwany argument „%1”; szczegóły: zel --help</translation></message>
    <message id="argumentWithoutFile"><translation>%1= wymaga nazwy pliku; szczegóły: zel --help</translation></message>
    <message id="backupAlsoTo"><translation>Kopie także w:</translation></message>
    <message id="backupChoose"><translation>W&amp;ybierz…</translation></message>
    <message id="backupChooseTitle"><translation>Drugi folder na kopie pliku danych</translation></message>
    <message id="backupClose"><translation>&amp;Zamknij</translation></message>
    <message id="backupConfirm"><translation>Wrócić do tej kopii? %1. Obecna zawartość zostanie zachowana jako kolejna kopia, do której można wrócić.</translation></message>
    <message id="backupCreate"><translation>&amp;Utwórz kopię</translation></message>
    <message id="backupDaily"><translation>Przed pierwszą zmianą dnia</translation></message>
    <message id="backupDamaged"><translation>Uszkodzony plik danych</translation></message>
    <message id="backupDay"><translation>Dzień</translation></message>
    <message id="backupExplained"><translation>Kopie pliku danych w folderze %1. Na wypadek awarii tego dysku można wskazać drugi folder na innym dysku, w pamięci USB lub w sieci.</translation></message>
    <message id="backupFar"><translation>Drugi folder: %1</translation></message>
    <message id="backupKind"><translation>Kopia</translation></message>
    <message id="backupMade"><translation>Utworzona ręcznie</translation></message>
    <message id="backupNone"><translation>Nie ma jeszcze żadnej kopii. Powstaje przed pierwszą zmianą każdego dnia.</translation></message>
    <message id="backupNoSecondFolder"><translation>brak drugiego folderu</translation></message>
    <message id="backupOffered"><translation>Najnowsza kopia, którą można odczytać, to %1 (%2). Wrócić do niej? Uszkodzony plik zostanie zachowany obok jako kolejna kopia.</translation></message>
    <message id="backupReplaced"><translation>Zastąpiona przy przywracaniu</translation></message>
    <message id="backupRestore"><translation>&amp;Przywróć…</translation></message>
    <message id="backupRestored"><translation>Kopia %1 jest w użyciu. Poprzednią zawartość zachowano jako %2.</translation></message>
    <message id="backupSize"><translation>Rozmiar</translation></message>
    <message id="backupStop"><translation>Wyłą&amp;cz</translation></message>
    <message id="backupTitle"><translation>Kopie zapasowe</translation></message>
    <message id="backupUnreadable"><translation>tej kopii nie można odczytać</translation></message>
    <message id="beforeAndSinceHint"><translation>Średnie ciśnienie w mmHg i liczba pomiarów: w ciągu 14 dni przed komentarzem oraz od jego pierwszego dnia do początku następnego komentarza, najdłużej 28 dni</translation></message>
    <message id="BeginDate"><translation>Pierwszy dzień musi poprzedzać ostatni, tak aby okres obejmował co najmniej dwa dni. Daty pozostały bez zmian.</translation></message>
    <message id="beginEarlier"><translation>Początek o dzień wcześniej</translation></message>
    <message id="beginLater"><translation>Początek o dzień później</translation></message>
    <message id="birthDateIncomplete"><translation>Proszę podać rok, miesiąc i dzień albo pozostawić wszystkie trzy pola puste.</translation></message>
    <message id="birthDateInFuture"><translation>Ten dzień dopiero nadejdzie.</translation></message>
    <message id="birthDateTooOld"><translation>Od tego dnia minęło ponad %1 lat.</translation></message>
    <message id="birthDayNone"><translation>Dzień</translation></message>
    <message id="birthDayRefused"><translation>Ten miesiąc nie ma dnia %1.</translation></message>
    <message id="birthMonthNone"><translation>Miesiąc</translation></message>
    <message id="birthYearNone"><translation>Rok</translation></message>
    <message id="birthYearRefused"><translation>Proszę podać rok czterema cyframi, na przykład 1956.</translation></message>
    <message id="bloodChart"><translation>Ciśnienie krwi w czasie</translation></message>
    <message id="bloodScroller"><translation>Przesuń skalę ciśnienia</translation></message>
    <message id="cancel"><translation>Anuluj</translation></message>
    <message id="cancelPrint"><translation>Zamknij bez drukowania</translation></message>
    <message id="cellWithRemark"><translation>%1, %2</translation></message>
    <message id="changeReadingAction"><translation>Zmień pomiar…</translation></message>
    <message id="changeReadingTitle"><translation>Zmiana pomiaru</translation></message>
    <message id="chartKeys"><translation>W okresie: %1. Strzałki przesuwają okres, plus i minus wydłużają go i skracają, Ctrl ze strzałką w lewo lub w prawo przechodzi od pomiaru do pomiaru.</translation></message>
    <message id="cholestrolRefused"><translation>Proszę podać liczbę od 10 do 5000 mg/dl, na przykład 200. 1 mmol/L to około 38,7 mg/dl.</translation></message>
    <message id="choosePrinter"><translation>Wybierz drukarkę</translation></message>
    <message id="clockAhead"><translation>spieszy się o %1</translation></message>
    <message id="clockBehind"><translation>spóźnia się o %1</translation></message>
    <message id="clockDays" numerus="yes"><translation><numerusform>%n dzień</numerusform><numerusform>%n dni</numerusform><numerusform>%n dni</numerusform></translation></message>
    <message id="clockHours" numerus="yes"><translation><numerusform>%n godzinę</numerusform><numerusform>%n godziny</numerusform><numerusform>%n godzin</numerusform></translation></message>
    <message id="clockMinutes" numerus="yes"><translation><numerusform>%n minutę</numerusform><numerusform>%n minuty</numerusform><numerusform>%n minut</numerusform></translation></message>
    <message id="clockNotSet"><translation>nie powiodło się; zegar może nadal wskazywać błędny czas. %1</translation></message>
    <message id="clockNotSetAtGreeting"><translation>Nie udało się ustawić zegara ciśnieniomierza. %1</translation></message>
    <message id="clockRight"><translation>Zgodny z tym komputerem</translation></message>
    <message id="clockSet"><translation>gotowe. Wskazuje teraz czas tego komputera.</translation></message>
    <message id="clockUnset"><translation>Nieustawiony</translation></message>
    <message id="clockUnsetAsk"><translation>Zegar ciśnieniomierza nie jest ustawiony, dlatego pomiary nie mają daty ani godziny. Ustawić go według tego komputera?</translation></message>
    <message id="closeWindow"><translation>Zamknij</translation></message>
    <message id="colourAction"><translation>Kolor: %1</translation></message>
    <message id="colourBlue"><translation>Niebieski</translation></message>
    <message id="colourButton"><translation>Kolor komentarza</translation></message>
    <message id="colourGrey"><translation>Ciemnoszary</translation></message>
    <message id="colourHint"><translation>Wybór koloru nowych komentarzy oraz komentarza zaznaczonego kliknięciem lub klawiszem.</translation></message>
    <message id="colourOrange"><translation>Pomarańczowy</translation></message>
    <message id="colourPicker"><translation>Kolor komentarza</translation></message>
    <message id="colourYellow"><translation>Żółty</translation></message>
    <message id="columnComment"><translation>Komentarz</translation></message>
    <message id="columnComments"><translation>Komentarze</translation></message>
    <message id="columnDate"><translation>Data</translation></message>
    <message id="columnDia"><translation>DIA
mmHg</translation></message>
    <message id="columnFile"><translation>Plik</translation></message>
    <message id="columnMam"><translation>MAM</translation></message>
    <message id="columnPatient"><translation>Pacjent</translation></message>
    <message id="columnPressure"><translation>%1
mmHg</translation></message>
    <message id="columnPulse"><translation>Tętno
1/min</translation></message>
    <message id="columnReadings"><translation>Pomiary</translation></message>
    <message id="columnState"><translation>Stan</translation></message>
    <message id="columnSys"><translation>SYS
mmHg</translation></message>
    <message id="columnTime"><translation>Godzina</translation></message>
    <message id="commentBegin"><translation>Od</translation></message>
    <message id="commentBeginDay"><translation>Pierwszy dzień komentarza</translation></message>
    <message id="commentCount" numerus="yes"><translation><numerusform>%n komentarz</numerusform><numerusform>%n komentarze</numerusform><numerusform>%n komentarzy</numerusform></translation></message>
    <message id="commentDayFar"><translation>„%1” przypada za ponad dwa lata: proszę sprawdzić rok. Daty pozostały bez zmian.</translation></message>
    <message id="commentDayHint"><translation>Proszę wpisać datę i nacisnąć Enter.</translation></message>
    <message id="commentDayOrder"><translation>Ostatni dzień komentarza nie może poprzedzać pierwszego. Daty pozostały bez zmian.</translation></message>
    <message id="commentDayUnread"><translation>„%1” nie może być datą komentarza: proszę ją wpisać w postaci %2, z rokiem od 1900. Daty pozostały bez zmian.</translation></message>
    <message id="commentEmpty"><translation>Komentarz z dnia %1 nie ma tekstu. Usunąć go?</translation></message>
    <message id="commentEmptyTitle"><translation>Komentarz bez tekstu</translation></message>
    <message id="commentEnd"><translation>Do</translation></message>
    <message id="commentEndDay"><translation>Ostatni dzień komentarza</translation></message>
    <message id="commentInClipboard"><translation>Komentarza wpisywanego w chwili zamknięcia programu nie udało się zapisać; jego tekst jest teraz w schowku: proszę go wkleić tam, gdzie ma zostać zachowany. %1</translation></message>
    <message id="commentNotSaved"><translation>Komentarza nie zapisano; jego tekst jest nadal w polu. %1</translation></message>
    <message id="commentPanel"><translation>Komentarz</translation></message>
    <message id="commentPatientGone"><translation>Pacjenta %1 nie ma już w pliku danych, dlatego wpisywanego komentarza nie można tam zapisać. Jego tekst jest teraz w schowku: proszę go wkleić tam, gdzie ma zostać zachowany.</translation></message>
    <message id="commentPosition"><translation>%1 z %2</translation></message>
    <message id="commentStay"><translation>Nie udało się zapisać komentarza. %1

Pozostać tutaj i zachować tekst, aby spróbować ponownie? „Nie” oznacza rezygnację z tekstu.</translation></message>
    <message id="commentText"><translation>Tekst komentarza</translation></message>
    <message id="commentUnchanged"><translation>Nie udało się zapisać komentarza. %1</translation></message>
    <message id="ConfirmDelPatient"><translation>Usunąć pacjenta (%1) ze wszystkimi pomiarami i komentarzami? Do zamknięcia ZEL można go przywrócić poleceniem Edycja &gt; Cofnij.</translation></message>
    <message id="confirmDropNew"><translation>Dane pacjenta (%1) nie są jeszcze zapisane. Usunąć to, co wpisano? Nie będzie można tego przywrócić.</translation></message>
    <message id="confirmPrintSave"><translation>Dane pacjenta (%1) zostały zmienione, a drukowane lub eksportowane jest tylko to, co zapisano. Zapisać najpierw zmiany?</translation></message>
    <message id="confirmSendID"><translation>%2 Zapisać w nim ID %1? Od tej chwili jego pomiary będą należeć do tego pacjenta.</translation></message>
    <message id="confirmSendSave"><translation>Dane pacjenta (%1) zostały zmienione. Zapisać zmiany?</translation></message>
    <message id="copyRows"><translation>Kopiuj</translation></message>
    <message id="correlationView"><translation>Ciśnienie skurczowe a rozkurczowe</translation></message>
    <message id="dataChangedElsewhere"><translation>Inny program zmienił plik danych. Widoczny jest jego obecny stan.</translation></message>
    <message id="dataFile"><translation>Plik danych</translation></message>
    <message id="dataFileUnreadable"><translation>Pliku danych nie można użyć</translation></message>
    <message id="dataPanel"><translation>Dane</translation></message>
    <message id="dataUnreadNow"><translation>W tej chwili nie można odczytać pliku danych ani niczego zapisać. Widoczny jest stan wcześniejszy.</translation></message>
    <message id="DateError"><translation>Proszę sprawdzić daty</translation></message>
    <message id="dayHint"><translation>Proszę wpisać datę i nacisnąć Enter albo otworzyć kalendarz strzałką.</translation></message>
    <message id="dayOfDownload"><translation>%1, dzień pobrania</translation></message>
    <message id="daysButtons"><translation>Dni</translation></message>
    <message id="dayUnread"><translation>„%1” nie jest datą: proszę ją wpisać w postaci %2, z rokiem od 1900.</translation></message>
    <message id="dayUnreadLeft"><translation>„%1” nie jest datą: proszę ją wpisać w postaci %2, z rokiem od 1900. Data pozostała bez zmian.</translation></message>
    <message id="dayWithoutReading"><translation>%1, brak pomiarów tego dnia</translation></message>
    <message id="dd mm yyyy"><translation>DD MM RRRR</translation></message>
    <message id="DeleteComment"><translation>Usuwanie komentarza</translation></message>
    <message id="deleteCommentButton"><translation>Usuń…</translation></message>
    <message id="deleteCommentHint"><translation>Usuwa ten komentarz po potwierdzeniu.</translation></message>
    <message id="DeletePatient"><translation>Usuwanie pacjenta</translation></message>
    <message id="deletePatientButton"><translation>&amp;Usuń</translation></message>
    <message id="deletePatientHint"><translation>Usuwa tego pacjenta ze wszystkimi pomiarami i komentarzami po potwierdzeniu.</translation></message>
    <message id="deleteReadingsAction"><translation>Usuń pomiar…</translation></message>
    <message id="deleteReadingsQuestion"><translation>Usunąć to, co wpisano ręcznie (%1)?</translation></message>
    <message id="deleteReadingsTitle"><translation>Usuwanie pomiaru</translation></message>
    <message id="DeleteTheComment"><translation>Usunąć ten komentarz? Do zamknięcia ZEL można go przywrócić poleceniem Edycja &gt; Cofnij.</translation></message>
    <message id="demonstrationButton"><translation>Wypróbuj z ciśnieniomierzem demonstracyjnym</translation></message>
    <message id="demonstrationIsOwnData"><translation>Demonstracja przechowuje swoje dane w folderze %1, który jednak prowadzi do prawdziwych danych użytkownika. Niczego nie uruchomiono, aby fikcyjne pomiary nie trafiły między prawdziwe.</translation></message>
    <message id="demonstrationNoFolder"><translation>Demonstracja przechowuje swoje dane w folderze %1, którego nie można utworzyć.</translation></message>
    <message id="demonstrationNote"><translation>Otwiera drugie okno z symulowanym ciśnieniomierzem i fikcyjnymi pomiarami, przechowywanymi oddzielnie od prawdziwych danych.</translation></message>
    <message id="demonstrationNotStarted"><translation>Nie udało się uruchomić demonstracji.</translation></message>
    <message id="demonstrationStarted"><translation>Demonstracja otwiera się w osobnym oknie.</translation></message>
    <message id="demonstrationStrip"><translation>Demonstracja: ciśnieniomierz jest symulowany, a jego pomiary są fikcyjne i przechowywane oddzielnie od prawdziwych danych.</translation></message>
    <message id="demonstrationTitle"><translation>Demonstracja – %1</translation></message>
    <message id="download"><translation>Pobieranie pomiarów</translation></message>
    <message id="downloadAdvice"><translation>Proszę nie odłączać ciśnieniomierza. Pomiary zostaną zapisane, gdy dotrą wszystkie.</translation></message>
    <message id="downloadButton"><translation>Po&amp;bierz</translation></message>
    <message id="downloadCancel"><translation>Anuluj pobieranie</translation></message>
    <message id="downloadCancelled"><translation>Pobieranie anulowano. Niczego nie zapisano; pomiary są nadal w ciśnieniomierzu.</translation></message>
    <message id="downloadDayUnknown"><translation>nieznany</translation></message>
    <message id="downloadEmpty"><translation>W ciśnieniomierzu nie ma pomiarów.</translation></message>
    <message id="downloadFailed"><translation>Nie udało się pobrać pomiarów i niczego nie zapisano. Są one nadal w ciśnieniomierzu. %1</translation></message>
    <message id="downloadFetched" numerus="yes"><translation><numerusform>Pobrano %n pomiar</numerusform><numerusform>Pobrano %n pomiary</numerusform><numerusform>Pobrano %n pomiarów</numerusform></translation></message>
    <message id="downloadHint"><translation>Pobiera pomiary z ciśnieniomierza (Ctrl+D). Ciśnieniomierz musi być podłączony i mieć ID tego pacjenta.</translation></message>
    <message id="downloadNew" numerus="yes"><translation><numerusform>%1, w tym %n nowy</numerusform><numerusform>%1, w tym %n nowe</numerusform><numerusform>%1, w tym %n nowych</numerusform></translation></message>
    <message id="downloadNotFlushed"><translation>Pomiary są zapisane, ale nie jest pewne, że zapis jest trwały. %1</translation></message>
    <message id="downloadNothingNew"><translation>%1, w tym żadnego nowego: wszystkie zapisano już wcześniej</translation></message>
    <message id="downloadNotReadBack"><translation>%1. Potem nie udało się odczytać pliku danych, dlatego ciśnieniomierza nie opróżniono. %2</translation></message>
    <message id="downloadNotStored"><translation>Nie udało się zapisać pomiarów. Są one nadal w ciśnieniomierzu. %1</translation></message>
    <message id="downloadOtherMonitor"><translation>Pomiary w ciśnieniomierzu należą do innego ID niż ID tego pacjenta, dlatego niczego nie zapisano. Proszę podłączyć ciśnieniomierz tego pacjenta i spróbować ponownie.</translation></message>
    <message id="downloadProgress"><translation>Postęp pobierania</translation></message>
    <message id="downloadsNew"><translation>Nowe pomiary</translation></message>
    <message id="downloadsNone"><translation>%1: z ciśnieniomierza niczego jeszcze nie pobrano.</translation></message>
    <message id="downloadsSummary" numerus="yes"><translation><numerusform>%1: %n pobranie. Nowe pomiary: %2.</numerusform><numerusform>%1: %n pobrania. Nowe pomiary: %2.</numerusform><numerusform>%1: %n pobrań. Nowe pomiary: %2.</numerusform></translation></message>
    <message id="downloadStarting"><translation>Łączenie z ciśnieniomierzem…</translation></message>
    <message id="downloadsTitle"><translation>Pobrania</translation></message>
    <message id="downloadStopping"><translation>Zatrzymywanie…</translation></message>
    <message id="downloadTypedLeftOut" numerus="yes"><translation><numerusform>%n wpisany ręcznie jest odtąd pominięty (zapisany także przez ciśnieniomierz)</numerusform><numerusform>%n wpisane ręcznie są odtąd pominięte (zapisane także przez ciśnieniomierz)</numerusform><numerusform>%n wpisanych ręcznie jest odtąd pominiętych (zapisanych także przez ciśnieniomierz)</numerusform></translation></message>
    <message id="downloadWaiting" numerus="yes"><translation><numerusform>Ciśnieniomierz niczego nie przesyła. Pobieranie czeka na niego najwyżej %n sekundę. Można je anulować: nic nie przepadnie.</numerusform><numerusform>Ciśnieniomierz niczego nie przesyła. Pobieranie czeka na niego najwyżej %n sekundy. Można je anulować: nic nie przepadnie.</numerusform><numerusform>Ciśnieniomierz niczego nie przesyła. Pobieranie czeka na niego najwyżej %n sekund. Można je anulować: nic nie przepadnie.</numerusform></translation></message>
    <message id="dropLeftOut"><translation>Importować można tylko pliki XML z tego komputera. Nie dodano do listy: %1</translation></message>
    <message id="DupNewPatient"><translation>Jest już nowy pacjent, którego jeszcze nie zapisano: pierwszy na liście. Proszę go najpierw zapisać lub usunąć.</translation></message>
    <message id="EndDate"><translation>Ostatni dzień musi następować po pierwszym, tak aby okres obejmował co najmniej dwa dni. Daty pozostały bez zmian.</translation></message>
    <message id="endEarlier"><translation>Koniec o dzień wcześniej</translation></message>
    <message id="endLater"><translation>Koniec o dzień później</translation></message>
    <message id="eraseFailed"><translation>%1. Pomiary są bezpiecznie zapisane, ale nie udało się opróżnić ciśnieniomierza: pomiary nadal w nim są. %2</translation></message>
    <message id="eraseNotSeen"><translation>%1. Pomiary są bezpiecznie zapisane, ale nie udało się sprawdzić, czy ciśnieniomierz jest teraz pusty. %2</translation></message>
    <message id="eraseThem"><translation>&amp;Usuń</translation></message>
    <message id="exportAll"><translation>Eksportuj wszystkich pacjentów jako pliki XML</translation></message>
    <message id="exportAlsoFailed"><translation>To samo dotyczy plików: %1</translation></message>
    <message id="exportButton"><translation>&amp;Eksportuj wszystko…</translation></message>
    <message id="exportCancelled"><translation>Potem eksport anulowano; pozostałych pacjentów nie wyeksportowano.</translation></message>
    <message id="exportCSV"><translation>Eksportuj pomiary bieżącego pacjenta jako plik CSV</translation></message>
    <message id="exportCSVButton"><translation>Eksportuj CS&amp;V…</translation></message>
    <message id="exportCSVFolder"><translation>Wybór folderu na plik CSV</translation></message>
    <message id="exportCSVHint"><translation>Zapisuje dane i pomiary bieżącego pacjenta jako tabelę do arkusza kalkulacyjnego.</translation></message>
    <message id="exportFailed" numerus="yes"><translation><numerusform>Nie udało się zapisać %n pliku:</numerusform><numerusform>Nie udało się zapisać %n plików:</numerusform><numerusform>Nie udało się zapisać %n plików:</numerusform></translation></message>
    <message id="exportFhirFolder"><translation>Wybór folderu na plik FHIR</translation></message>
    <message id="exportFolder"><translation>Wybór folderu na pliki pacjentów</translation></message>
    <message id="exportHint"><translation>Zapisuje dla każdego pacjenta plik, który ten program może ponownie zaimportować.</translation></message>
    <message id="exporting"><translation>Eksportowanie pacjentów</translation></message>
    <message id="exportKept" numerus="yes"><translation><numerusform>%n istniejący już plik pozostawiono bez zmian.</numerusform><numerusform>%n istniejące już pliki pozostawiono bez zmian.</numerusform><numerusform>%n istniejących już plików pozostawiono bez zmian.</numerusform></translation></message>
    <message id="ExportMsg" numerus="yes"><translation><numerusform>Zapisano %n plik w folderze %1.</numerusform><numerusform>Zapisano %n pliki w folderze %1.</numerusform><numerusform>Zapisano %n plików w folderze %1.</numerusform></translation></message>
    <message id="exportNobody"><translation>Nie ma jeszcze pacjenta do wyeksportowania. Proszę najpierw dodać lub zaimportować pacjenta.</translation></message>
    <message id="exportNoPatient"><translation>Nie wybrano pacjenta. Proszę najpierw wybrać pacjenta do wyeksportowania.</translation></message>
    <message id="exportReplace" numerus="yes"><translation><numerusform>W folderze %1 jest już plik %2. Zastąpić go? Po wybraniu „Nie” pozostanie bez zmian.</numerusform><numerusform>W folderze %1 są już %n z tych plików (%2). Zastąpić je? Po wybraniu „Nie” pozostaną bez zmian i zapisane zostaną tylko pozostałe.</numerusform><numerusform>W folderze %1 jest już %n z tych plików (%2). Zastąpić je? Po wybraniu „Nie” pozostaną bez zmian i zapisane zostaną tylko pozostałe.</numerusform></translation></message>
    <message id="exportReplaceTitle"><translation>Zastąpić pliki?</translation></message>
    <message id="ExportTitle"><translation>Eksport</translation></message>
    <message id="fieldAddress"><translation>Adres</translation></message>
    <message id="fieldCholestrol"><translation>Cholesterol (mg/dl)</translation></message>
    <message id="fieldDateOfBirth"><translation>Data urodzenia</translation></message>
    <message id="fieldDiabetic"><translation>Cukrzyca</translation></message>
    <message id="fieldFamilyHistory"><translation>Wywiad rodzinny</translation></message>
    <message id="fieldFamilyName"><translation>Nazwisko</translation></message>
    <message id="fieldGivenNames"><translation>Imię (imiona)</translation></message>
    <message id="fieldHeightCm"><translation>Wzrost (cm)</translation></message>
    <message id="fieldHeightFtIn"><translation>Wzrost (stopy/cale)</translation></message>
    <message id="fieldID"><translation>ID</translation></message>
    <message id="fieldMissing"><translation>Proszę wypełnić to pole.</translation></message>
    <message id="fieldPatientNotes"><translation>Notatki o pacjencie</translation></message>
    <message id="fieldPhoneEmail"><translation>Telefon / e-mail</translation></message>
    <message id="fieldRequired"><translation>Pole wymagane</translation></message>
    <message id="fieldSex"><translation>Płeć</translation></message>
    <message id="fieldSmoker"><translation>Palenie tytoniu</translation></message>
    <message id="fieldWeightKg"><translation>Masa ciała (kg)</translation></message>
    <message id="fieldWeightLb"><translation>Masa ciała (lb)</translation></message>
    <message id="fileAlreadyHere"><translation>już istnieje</translation></message>
    <message id="fileAlreadyHereHint"><translation>Pacjent o tym ID jest już na liście, więc import zostałby odrzucony.</translation></message>
    <message id="fileBeingRead"><translation>odczyt…</translation></message>
    <message id="fileNotImportable"><translation>nie można zaimportować</translation></message>
    <message id="fileNotReadable"><translation>nieczytelny</translation></message>
    <message id="fileTooLargeToCount"><translation>&gt; 64 MiB: nie policzono</translation></message>
    <message id="firstCopy"><translation>Istnieje kopia wcześniejszych danych: %1 (%2). Jeśli plik danych zaginął, można do niej wrócić.</translation></message>
    <message id="firstCopyButton"><translation>Wróć do kopii…</translation></message>
    <message id="firstStepDownload"><translation>Proszę nacisnąć „Pobierz”. Pomiary pojawią się na wykresie i w tabeli.</translation></message>
    <message id="firstStepMonitor"><translation>Proszę podłączyć ciśnieniomierz kablem USB. Jeśli nie ma on jeszcze ID tego pacjenta, proszę nacisnąć „Wyślij ID”.</translation></message>
    <message id="firstStepPatient"><translation>Proszę wpisać dane pacjenta, który korzysta z ciśnieniomierza, nadać mu ID i nacisnąć „Zapisz”.</translation></message>
    <message id="firstSteps"><translation>Nie ma jeszcze pacjentów: trzy kroki do pierwszych pomiarów</translation></message>
    <message id="heightRefusedCm"><translation>Proszę podać liczbę od 20 do 300 cm, na przykład 175.</translation></message>
    <message id="heightRefusedFtIn"><translation>Proszę podać stopy i cale rozdzielone ukośnikiem, na przykład 5/9. Cale: najwyżej 11.</translation></message>
    <message id="highFrom"><translation>Granice, od których wartości są oznaczane</translation></message>
    <message id="highFromHint"><translation>Wartości równe tym granicom lub wyższe są pogrubione i oznaczone, tutaj i na papierze. Wykres, statystyka, histogram i korelacja zachowują granice z ustawień.</translation></message>
    <message id="highFromLabel"><translation>O&amp;znaczaj od</translation></message>
    <message id="histogramView"><translation>Rozkład wartości</translation></message>
    <message id="IDNotForMonitor"><translation>ID „%1” nie pasuje do ciśnieniomierza. Ciśnieniomierz przechowuje ID złożone z 1 do 11 zwykłych liter, cyfr i innych znaków, bez liter takich jak ą czy ł i bez spacji na końcach.</translation></message>
    <message id="IDRefused"><translation>ID składa się z 1 do 11 zwykłych liter, cyfr lub innych znaków, bez liter takich jak ą czy ł: więcej ciśnieniomierz nie pomieści.</translation></message>
    <message id="IDStays"><translation>ID nie można zmienić: należą do niego pomiary i komentarze.</translation></message>
    <message id="ihd"><translation>Arytmia</translation></message>
    <message id="importAll"><translation>&amp;Wszystkie</translation></message>
    <message id="importAllFiles"><translation>Wybierz wszystkie pliki</translation></message>
    <message id="importButton"><translation>&amp;Importuj</translation></message>
    <message id="importButtonFiles" numerus="yes"><translation><numerusform>&amp;Importuj %n plik</numerusform><numerusform>&amp;Importuj %n pliki</numerusform><numerusform>&amp;Importuj %n plików</numerusform></translation></message>
    <message id="importCancelled" numerus="yes"><translation><numerusform>Potem import anulowano; nie odczytano %n pliku.</numerusform><numerusform>Potem import anulowano; nie odczytano %n plików.</numerusform><numerusform>Potem import anulowano; nie odczytano %n plików.</numerusform></translation></message>
    <message id="importDropped"><translation>Pliki upuszczone na okno</translation></message>
    <message id="importedFiles" numerus="yes"><translation><numerusform>Zaimportowano %n plik:</numerusform><numerusform>Zaimportowano %n pliki:</numerusform><numerusform>Zaimportowano %n plików:</numerusform></translation></message>
    <message id="importFilesButton"><translation>&amp;Importuj…</translation></message>
    <message id="importFolder"><translation>Wybór folderu do importu</translation></message>
    <message id="importFolderButton"><translation>Wybierz &amp;folder…</translation></message>
    <message id="importFrom"><translation>Pliki w folderze %1</translation></message>
    <message id="importHint"><translation>Wczytuje pacjentów z wyeksportowanych wcześniej plików XML.</translation></message>
    <message id="importing"><translation>Importowanie pacjentów</translation></message>
    <message id="importList"><translation>Lista plików XML</translation></message>
    <message id="importNone"><translation>Nie zaimportowano żadnego pliku.</translation></message>
    <message id="importRefused" numerus="yes"><translation><numerusform>Nie zaimportowano %n pliku:</numerusform><numerusform>Nie zaimportowano %n plików:</numerusform><numerusform>Nie zaimportowano %n plików:</numerusform></translation></message>
    <message id="importTaken"><translation>%1: %2, %3, %4</translation></message>
    <message id="importTitle"><translation>Importowanie pacjentów</translation></message>
    <message id="includeUndated"><translation>Pomiary bez daty</translation></message>
    <message id="includeUndatedHint"><translation>Pokazuje i liczy także pomiary zapisane przez ciśnieniomierz bez daty.</translation></message>
    <message id="infoDia"><translation>Rozkurczowe</translation></message>
    <message id="infoLine"><translation>%1: %2</translation></message>
    <message id="infoPulse"><translation>Tętno</translation></message>
    <message id="infoRemark"><translation>Adnotacja</translation></message>
    <message id="infoSys"><translation>Skurczowe</translation></message>
    <message id="keep"><translation>&amp;Zachowaj</translation></message>
    <message id="keysCloseMonitorBar"><translation>Zamknij pasek ciśnieniomierza</translation></message>
    <message id="keysFirstLast"><translation>Pierwsze, ostatnie pomiary</translation></message>
    <message id="keysFromReading"><translation>Od pomiaru do pomiaru</translation></message>
    <message id="keysKey"><translation>Klawisz</translation></message>
    <message id="keysManualHint"><translation>Otwiera podręcznik (F1).</translation></message>
    <message id="keysMovePeriod"><translation>Przesuń okres</translation></message>
    <message id="keysMoveScale"><translation>Przesuń skalę</translation></message>
    <message id="keysPlace"><translation>Gdzie</translation></message>
    <message id="keysTitle"><translation>Skróty klawiszowe</translation></message>
    <message id="keysToMonitorBar"><translation>Przejdź do paska ciśnieniomierza</translation></message>
    <message id="keysWhat"><translation>Działanie</translation></message>
    <message id="keysWholePeriod"><translation>Cały okres wstecz, naprzód</translation></message>
    <message id="keysWidenPeriod"><translation>Wydłuż, skróć okres</translation></message>
    <message id="languageNotSaved"><translation>Język nie został zmieniony; pozostałe ustawienia są zapisane. %1</translation></message>
    <message id="lastDownload"><translation>Ostatnie pobranie</translation></message>
    <message id="lastDownloadNone"><translation>brak</translation></message>
    <message id="leaveOutAction"><translation>Pomiń…</translation></message>
    <message id="leaveOutButton"><translation>Po&amp;miń</translation></message>
    <message id="leaveOutExample"><translation>na przykład: luźny mankiet</translation></message>
    <message id="leaveOutExplained"><translation>%1: do pominięcia w średnich, statystykach i na wykresach. Pominięte pomiary pozostają na liście, przekreślone, wraz z powodem, i można je ponownie uwzględnić.</translation></message>
    <message id="leaveOutNoReason"><translation>Proszę podać powód.</translation></message>
    <message id="leaveOutReason"><translation>&amp;Powód:</translation></message>
    <message id="leaveOutTitle"><translation>Pomijanie</translation></message>
    <message id="limitsHome"><translation>%1/%2 (w domu)</translation></message>
    <message id="limitsLow"><translation>%1/%2 (ostrzejsze)</translation></message>
    <message id="limitsNotKept"><translation>Granice obowiązują do zamknięcia programu. Nie udało się ich zachować na następne uruchomienie: %1</translation></message>
    <message id="limitsOffice"><translation>%1/%2 (w gabinecie)</translation></message>
    <message id="limitsOwn"><translation>własne granice</translation></message>
    <message id="mainMenu"><translation>Menu główne</translation></message>
    <message id="manualChapters"><translation>Rozdziały</translation></message>
    <message id="manualTitle"><translation>Podręcznik</translation></message>
    <message id="map"><translation>MAP</translation></message>
    <message id="menuAbout"><translation>&amp;O programie ZEL</translation></message>
    <message id="menuBackups"><translation>&amp;Kopie zapasowe…</translation></message>
    <message id="menuCopyRows"><translation>Kopiuj wiersze</translation></message>
    <message id="menuDeleteComment"><translation>Usuń komentarz</translation></message>
    <message id="menuDeletePatient"><translation>Usuń pacjenta</translation></message>
    <message id="menuDownload"><translation>Pobierz pomiary</translation></message>
    <message id="menuDownloads"><translation>Pobrania…</translation></message>
    <message id="menuEdit"><translation>&amp;Edycja</translation></message>
    <message id="menuExportFhir"><translation>&amp;Eksportuj pacjenta jako FHIR…</translation></message>
    <message id="menuFewerDays"><translation>Mniej dni</translation></message>
    <message id="menuFile"><translation>&amp;Plik</translation></message>
    <message id="menuFindPatient"><translation>Znajdź pacjenta</translation></message>
    <message id="menuHelp"><translation>Pomo&amp;c</translation></message>
    <message id="menuKeys"><translation>&amp;Skróty klawiszowe</translation></message>
    <message id="menuManual"><translation>&amp;Podręcznik</translation></message>
    <message id="menuMoreDays"><translation>Więcej dni</translation></message>
    <message id="menuNewPatient"><translation>Nowy pacjent</translation></message>
    <message id="menuPrint"><translation>&amp;Drukuj…</translation></message>
    <message id="menuQuit"><translation>&amp;Zakończ</translation></message>
    <message id="menuRedo"><translation>&amp;Ponów</translation></message>
    <message id="menuRedoStep"><translation>&amp;Ponów: %1</translation></message>
    <message id="menuSavePatient"><translation>Zapisz pacjenta</translation></message>
    <message id="menuSavePdf"><translation>Zapisz jako PD&amp;F…</translation></message>
    <message id="menuSelectRows"><translation>Zaznacz wszystkie wiersze</translation></message>
    <message id="menuSendID"><translation>Wyślij ID do ciśnieniomierza</translation></message>
    <message id="menuSettings"><translation>&amp;Ustawienia…</translation></message>
    <message id="menuTimeChart"><translation>Przebieg w czasie</translation></message>
    <message id="menuUndo"><translation>&amp;Cofnij</translation></message>
    <message id="menuUndoStep"><translation>&amp;Cofnij: %1</translation></message>
    <message id="menuView"><translation>Wido&amp;k</translation></message>
    <message id="minusDay"><translation>Mniej dni: o jeden mniej na każdym końcu okresu</translation></message>
    <message id="minusDayHint"><translation>Mniej dni: o jeden mniej na każdym końcu okresu (−)</translation></message>
    <message id="mm dd yyyy"><translation>MM DD RRRR</translation></message>
    <message id="monitorChangedMeanwhile"><translation>Ciśnieniomierz został w tym czasie odłączony lub zamieniony na inny; niczego nie pobrano.</translation></message>
    <message id="monitorClock"><translation>Zegar</translation></message>
    <message id="monitorConnected"><translation>Ciśnieniomierz podłączony</translation></message>
    <message id="monitorConnectedID"><translation>Ciśnieniomierz ma ID %1. Aby pobrać pomiary tego pacjenta, proszę nacisnąć „Pobierz”.</translation></message>
    <message id="monitorCounting"><translation>Sprawdzanie liczby pomiarów w ciśnieniomierzu. Może to potrwać do 20 sekund…</translation></message>
    <message id="monitorDownloading"><translation>Pobieranie pomiarów…</translation></message>
    <message id="monitorErasing"><translation>Opróżnianie ciśnieniomierza…</translation></message>
    <message id="monitorGreeting"><translation>Odczyt zegara i ID ciśnieniomierza…</translation></message>
    <message id="monitorHoldsNone"><translation>Ciśnieniomierz nie ma teraz ID.</translation></message>
    <message id="monitorHoldsOther"><translation>Ciśnieniomierz ma teraz ID %1, które nie należy do żadnego z zapisanych tu pacjentów.</translation></message>
    <message id="monitorHoldsPatient"><translation>Ciśnieniomierz ma teraz ID %1 (pacjent: %2).</translation></message>
    <message id="monitorHoldsReadings" numerus="yes"><translation><numerusform>Jest w nim %n pomiar.</numerusform><numerusform>Są w nim %n pomiary.</numerusform><numerusform>Jest w nim %n pomiarów.</numerusform></translation></message>
    <message id="monitorHoldsUnknown"><translation>Nie udało się odczytać, jakie ID ma teraz ciśnieniomierz.</translation></message>
    <message id="monitorID"><translation>ID</translation></message>
    <message id="monitorIDSimilar"><translation>Bardzo podobne jest ID %1 (%2), ale to inne ID.</translation></message>
    <message id="monitorLooking"><translation>Szukanie ciśnieniomierza…</translation></message>
    <message id="monitorNotAnswering"><translation>Podłączony, ale odpowiada nieprawidłowo. %1</translation></message>
    <message id="monitorNotConnected"><translation>Niepodłączony. Proszę podłączyć ciśnieniomierz do portu USB.</translation></message>
    <message id="monitorPanel"><translation>Ciśnieniomierz</translation></message>
    <message id="monitorReadingsUnknown"><translation>Nie udało się odczytać, ile jest w nim pomiarów.</translation></message>
    <message id="monitorReady"><translation>Podłączony</translation></message>
    <message id="monitorSendingID"><translation>Zapisywanie ID w ciśnieniomierzu…</translation></message>
    <message id="monitorSettingClock"><translation>Ustawianie zegara ciśnieniomierza…</translation></message>
    <message id="monitorState"><translation>Stan</translation></message>
    <message id="monitorTrouble"><translation>Podłączony, ale ostatnia wymiana danych się nie powiodła; trwa ponowna próba. %1</translation></message>
    <message id="monitorWithoutID"><translation>Podłączony ciśnieniomierz nie ma ID. Aby przypisać go pacjentowi, proszę wybrać pacjenta i nacisnąć „Wyślij ID”.</translation></message>
    <message id="newIDFromDevice"><translation>Ciśnieniomierz ma ID %1, które nie należy do żadnego z zapisanych tu pacjentów. Proszę dodać pacjenta o tym ID albo wybrać pacjenta i nacisnąć „Wyślij ID”.</translation></message>
    <message id="NewPatient"><translation>Nowy pacjent</translation></message>
    <message id="newPatientButton"><translation>&amp;Nowy</translation></message>
    <message id="newPatientHint"><translation>Dodaje nowego pacjenta (Ctrl+N).</translation></message>
    <message id="newPatientWithID"><translation>Nowy pacjent z tym ID</translation></message>
    <message id="newReadingAction"><translation>Nowy pomiar…</translation></message>
    <message id="newReadingHint"><translation>Pozwala wpisać pomiar, którego nie zapisał ciśnieniomierz (Ctrl+N).</translation></message>
    <message id="newReadingTitle"><translation>Nowy pomiar</translation></message>
    <message id="nextComment"><translation>Następny komentarz</translation></message>
    <message id="nextHint"><translation>Następna strona (Page Down)</translation></message>
    <message id="nextPage"><translation>Następna strona</translation></message>
    <message id="no"><translation>&amp;Nie</translation></message>
    <message id="noCommentPage"><translation>Brak komentarzy</translation></message>
    <message id="noCommentPageAdvice"><translation>Ten pacjent nie ma jeszcze komentarzy. Komentarze umieszcza się na wykresie.</translation></message>
    <message id="noComments"><translation>Brak komentarzy. Komentarze umieszcza się na wykresie.</translation></message>
    <message id="NoData"><translation>Brak pomiarów</translation></message>
    <message id="NoDataAdvice"><translation>Proszę podłączyć ciśnieniomierz, wybrać pacjenta na stronie „Pacjenci” i nacisnąć „Pobierz” albo wpisać pomiar ręcznie (Ctrl+N).</translation></message>
    <message id="noDisplay"><translation>brak ekranu, na którym można otworzyć okno. Proszę uruchomić zel w sesji graficznej albo użyć poleceń, które nie wymagają okna; szczegóły: zel --help</translation></message>
    <message id="noFiles"><translation>Brak plików XML w tym folderze</translation></message>
    <message id="noFilesAdvice"><translation>Proszę wybrać folder, do którego wyeksportowano pacjentów.</translation></message>
    <message id="noHome"><translation>zmienna środowiskowa HOME nie wskazuje folderu (ścieżki bezwzględnej), dlatego nie ma miejsca na dane.</translation></message>
    <message id="noID"><translation>brak</translation></message>
    <message id="none"><translation>brak</translation></message>
    <message id="noneInPeriod"><translation>Brak pomiarów w tym okresie</translation></message>
    <message id="noneInPeriodAdvice"><translation>Proszę wybrać inne daty powyżej albo „Wszystko” i „Cały dzień”. Pomiary bez daty są widoczne, gdy zaznaczono też „Pomiary bez daty”.</translation></message>
    <message id="nonePrintedAdvice"><translation>Proszę zamknąć to okno i na stronie „Pomiary” lub „Wykres” wybrać inne daty albo „Wszystko” i „Cały dzień”. Pomiary bez daty są drukowane, gdy zaznaczono „Pomiary bez daty”.</translation></message>
    <message id="noPage"><translation>Brak strony</translation></message>
    <message id="noPatientFound"><translation>Nie znaleziono pacjenta</translation></message>
    <message id="noPatientFoundAdvice"><translation>Żadne nazwisko, imię ani ID nie zawiera szukanego tekstu.</translation></message>
    <message id="noPatientSelected"><translation>Nie wybrano pacjenta</translation></message>
    <message id="noPrinterNote"><translation>Na tym komputerze nie ma drukarki. Strony można zapisać jako PDF albo skonfigurować drukarkę w ustawieniach systemu.</translation></message>
    <message id="NoPrnter"><translation>Brak drukarki</translation></message>
    <message id="NoPrnterMsg"><translation>Na tym komputerze nie ma drukarki, dlatego niczego nie można wydrukować. Proszę skonfigurować drukarkę w ustawieniach systemu i spróbować ponownie albo zapisać strony jako PDF.</translation></message>
    <message id="notes"><translation>Notatki</translation></message>
    <message id="notKnown"><translation>–</translation></message>
    <message id="noValue"><translation>b.d.</translation></message>
    <message id="ok"><translation>&amp;OK</translation></message>
    <message id="openCalendar"><translation>Otwórz kalendarz</translation></message>
    <message id="ownDia"><translation>Własna granica rozkurczowa w mmHg, 0 oznacza brak</translation></message>
    <message id="ownSys"><translation>Własna granica skurczowa w mmHg, 0 oznacza brak</translation></message>
    <message id="pad"><translation>Arytmia</translation></message>
    <message id="pageChart"><translation>Wykres</translation></message>
    <message id="pagePatients"><translation>Pacjenci</translation></message>
    <message id="pageReadings"><translation>Pomiary</translation></message>
    <message id="pageTabs"><translation>Strony</translation></message>
    <message id="pageText"><translation>%1/%2</translation></message>
    <message id="patientCount" numerus="yes"><translation><numerusform>%n pacjent</numerusform><numerusform>%n pacjentów</numerusform><numerusform>%n pacjentów</numerusform></translation></message>
    <message id="patientDeleted"><translation>Usunięto: %1.</translation></message>
    <message id="patientEditor"><translation>Dane pacjenta</translation></message>
    <message id="patientGone"><translation>Pacjenta (%1) nie ma już w pliku danych: usunął go inny program albo cofnięto tu jakąś czynność. Wpisane dane są nadal tutaj, a „Zapisz” doda pacjenta ponownie.</translation></message>
    <message id="patientHeading"><translation>%1 %2 (ID %3)</translation></message>
    <message id="patientID"><translation>ID</translation></message>
    <message id="patientIDOnly"><translation>ID %1</translation></message>
    <message id="patientIDTwice"><translation>W pliku danych jest więcej niż jeden pacjent o ID %1. Nie da się ich rozróżnić, dlatego żadnego z nich nie można zmienić ani usunąć.</translation></message>
    <message id="patientList"><translation>Lista pacjentów</translation></message>
    <message id="patientName"><translation>Nazwisko i imię</translation></message>
    <message id="patientNameless"><translation>Pacjent bez imienia i nazwiska</translation></message>
    <message id="patientPartlySaved"><translation>Nie udało się zapisać wszystkich danych pacjenta (%1): w pliku danych nie ma miejsca na niektóre z nich. To, czego nie zapisano, jest nadal w polach.</translation></message>
    <message id="patientRefused"><translation>Niczego jeszcze nie zapisano. Proszę poprawić oznaczone pola:
%1</translation></message>
    <message id="patientReplaced"><translation>Pacjenta (%1) nie ma już w pliku danych: usunął go inny program. Widoczny jest teraz inny pacjent.</translation></message>
    <message id="patientSaved"><translation>Zapisano: %1.</translation></message>
    <message id="patientsDetail"><translation>Proszę wybrać pacjenta albo wpisać nowego.</translation></message>
    <message id="patientsInputFields"><translation>Potrzebne są nazwisko, imię i ID. Niczego jeszcze nie zapisano; proszę wypełnić oznaczone pola.</translation></message>
    <message id="patientTotal"><translation>Pacjenci</translation></message>
    <message id="pdfChart"><translation>wykres</translation></message>
    <message id="pdfComments"><translation>komentarze</translation></message>
    <message id="pdfCorrelation"><translation>korelacja</translation></message>
    <message id="pdfFiles"><translation>Pliki PDF (*.pdf)</translation></message>
    <message id="pdfHistogram"><translation>rozkład</translation></message>
    <message id="pdfProfile"><translation>karta pacjenta</translation></message>
    <message id="pdfReadings"><translation>pomiary</translation></message>
    <message id="pdfStatistics"><translation>statystyka i pomiary</translation></message>
    <message id="pdfSummary"><translation>podsumowanie</translation></message>
    <message id="pdfTrend"><translation>trend</translation></message>
    <message id="periodBar"><translation>Okres i pomiary do pokazania</translation></message>
    <message id="periodBegin"><translation>Pierwszy dzień okresu</translation></message>
    <message id="periodEnd"><translation>Ostatni dzień okresu</translation></message>
    <message id="periodFrom"><translation>&amp;Od</translation></message>
    <message id="periodTo"><translation>&amp;do</translation></message>
    <message id="personalData"><translation>Dane osobowe</translation></message>
    <message id="pp"><translation>PP</translation></message>
    <message id="previewView"><translation>Podgląd strony</translation></message>
    <message id="previousComment"><translation>Poprzedni komentarz</translation></message>
    <message id="previousHint"><translation>Poprzednia strona (Page Up)</translation></message>
    <message id="previousPage"><translation>Poprzednia strona</translation></message>
    <message id="print"><translation>Drukowanie</translation></message>
    <message id="printAddAddress"><translation>Drukuj dane lekarza u dołu każdej strony</translation></message>
    <message id="printButton"><translation>&amp;Drukuj</translation></message>
    <message id="printDetails"><translation>Dane &amp;lekarza</translation></message>
    <message id="printDetailsHint"><translation>Drukuje dane lekarza z ustawień u dołu każdej strony.</translation></message>
    <message id="printDone"><translation>Przekazano do drukarki %1</translation></message>
    <message id="printer"><translation>Drukarka</translation></message>
    <message id="printerButton"><translation>Dru&amp;karka…</translation></message>
    <message id="printerGone"><translation>Drukarki „%1” już nie ma, dlatego niczego nie wydrukowano. Proszę sprawdzić, czy jest włączona i podłączona, albo wybrać inną.</translation></message>
    <message id="printerLabel"><translation>&amp;Drukarka</translation></message>
    <message id="printerShown"><translation>Drukarka: %1</translation></message>
    <message id="printFailed"><translation>Nie udało się w całości przekazać stron do drukarki „%1”. Zadanie wycofano i nic nie zostanie wydrukowane. Proszę sprawdzić kolejkę drukarki i czy dysk nie jest pełny, a potem spróbować ponownie.</translation></message>
    <message id="printNoData"><translation>Nie ma czego drukować: ta sekcja nie zawiera danych dla tego pacjenta i okresu.</translation></message>
    <message id="printNoPatient"><translation>Nie ma pacjenta, którego raport można by wydrukować. Proszę wybrać pacjenta albo najpierw wpisać i zapisać nowego.</translation></message>
    <message id="printOption"><translation>Sekcja do wydrukowania</translation></message>
    <message id="printOptionLabel"><translation>&amp;Sekcja</translation></message>
    <message id="privacyAsked"><translation>Inni użytkownicy tego komputera mogą odczytać %1.

Odebrać im dostęp? Zmienione zostaną tylko uprawnienia do pliku danych, jego folderu i jego kopii.</translation></message>
    <message id="privacyAskedMore"><translation>%1 oraz inne pliki (liczba: %2)</translation></message>
    <message id="privacyMended"><translation>Teraz plik danych i jego kopie może odczytać tylko obecny użytkownik.</translation></message>
    <message id="privacyTitle"><translation>Inni mogą odczytać dane pacjentów</translation></message>
    <message id="programName"><translation>ZEL</translation></message>
    <message id="programPurpose"><translation>Pomiary ciśnienia krwi – z ciśnieniomierza do dokumentacji</translation></message>
    <message id="programVersion"><translation>Wersja %1</translation></message>
    <message id="ProgressPatientInfo"><translation>%1 %2 (ID %3)</translation></message>
    <message id="ProgressProcessInfo"><translation>Pomiary: %1 z %2</translation></message>
    <message id="pulseChart"><translation>Tętno w czasie, z komentarzami</translation></message>
    <message id="pulseScroller"><translation>Przesuń skalę tętna</translation></message>
    <message id="readingDay"><translation>Data</translation></message>
    <message id="readingInWords"><translation>%1 %2, %3/%4, tętno %5</translation></message>
    <message id="readingList"><translation>Lista pomiarów</translation></message>
    <message id="readingsCounted"><translation>%1. Liczone: %2</translation></message>
    <message id="readingsFromTo"><translation>%1, od %2 do %3</translation></message>
    <message id="readingsListed"><translation>%1. Na liście: %2</translation></message>
    <message id="readingsNoted"><translation>%1. %2</translation></message>
    <message id="readingsOn"><translation>%1, dnia %2</translation></message>
    <message id="readingStored"><translation>Zapisano: %1.</translation></message>
    <message id="readingStoredOtherHalf"><translation>Zapisano, poza pokazywaną porą dnia: %1.</translation></message>
    <message id="readingStoredOutside"><translation>Zapisano, poza pokazywanymi dniami: %1.</translation></message>
    <message id="readingTime"><translation>Godzina</translation></message>
    <message id="readingTotal"><translation>Pomiary tego pacjenta</translation></message>
    <message id="redoFailed"><translation>Nie ponowiono: „%1”. %2</translation></message>
    <message id="redone"><translation>Ponowiono: %1</translation></message>
    <message id="requiredNote"><translation>* pole wymagane</translation></message>
    <message id="riskFactors"><translation>Czynniki ryzyka</translation></message>
    <message id="sameID"><translation>ID %1 należy do innego pacjenta z listy. Niczego jeszcze nie zapisano; proszę wybrać inne ID.</translation></message>
    <message id="sameIDTitle"><translation>ID jest zajęte</translation></message>
    <message id="savedPdf"><translation>Zapisano jako %1</translation></message>
    <message id="saveIt"><translation>&amp;Zapisz</translation></message>
    <message id="saveNot"><translation>&amp;Nie zapisuj</translation></message>
    <message id="SavePatient"><translation>Zapisywanie pacjenta</translation></message>
    <message id="savePatientButton"><translation>&amp;Zapisz</translation></message>
    <message id="savePatientHint"><translation>Zapisuje wpisane dane (Ctrl+S).</translation></message>
    <message id="savePdf"><translation>Zapisz jako PDF</translation></message>
    <message id="savePdfButton"><translation>Zapisz jako PD&amp;F…</translation></message>
    <message id="saveReading"><translation>&amp;Zapisz</translation></message>
    <message id="searchPatients"><translation>Szukaj nazwiska lub ID</translation></message>
    <message id="searchPatientsHint"><translation>Pokazuje tylko pacjentów, których nazwisko, imię lub ID zawiera ten tekst (Ctrl+F).</translation></message>
    <message id="selectAllRows"><translation>Zaznacz wszystko</translation></message>
    <message id="sendClock"><translation>Ustaw zegar ciśnieniomierza według tego komputera</translation></message>
    <message id="sendClockBusy"><translation>Ustawianie zegara…</translation></message>
    <message id="sendClockButton"><translation>Ustaw ze&amp;gar</translation></message>
    <message id="sendID"><translation>Wysyłanie ID do ciśnieniomierza</translation></message>
    <message id="sendIDButton"><translation>Wyś&amp;lij ID</translation></message>
    <message id="SendIDDataMsg" numerus="yes"><translation><numerusform>Jest w nim jeszcze %n pomiar. Przed zapisaniem ID %1: zachować ten pomiar dla nowego ID czy trwale usunąć go z ciśnieniomierza?</numerusform><numerusform>Są w nim jeszcze %n pomiary. Przed zapisaniem ID %1: zachować te pomiary dla nowego ID czy trwale usunąć je z ciśnieniomierza?</numerusform><numerusform>Jest w nim jeszcze %n pomiarów. Przed zapisaniem ID %1: zachować te pomiary dla nowego ID czy trwale usunąć je z ciśnieniomierza?</numerusform></translation></message>
    <message id="SendIDDataTitle"><translation>Pomiary w ciśnieniomierzu</translation></message>
    <message id="sendIDFailed"><translation>Nie udało się wysłać ID do ciśnieniomierza. %1</translation></message>
    <message id="sendIDFailedErased"><translation>Pomiary w ciśnieniomierzu usunięto, ale nie udało się wysłać do niego ID. %1</translation></message>
    <message id="sendIDHint"><translation>Zapisuje ID tego pacjenta w podłączonym ciśnieniomierzu, który ma inne ID lub nie ma żadnego.</translation></message>
    <message id="settingCancel"><translation>Zamknij bez zapisywania</translation></message>
    <message id="settingData"><translation>Dane pacjentów</translation></message>
    <message id="settingDate"><translation>Format daty</translation></message>
    <message id="settingDateLabel"><translation>Format &amp;daty</translation></message>
    <message id="settingDia"><translation>Granica rozkurczowa w mmHg</translation></message>
    <message id="settingDiaLabel"><translation>&amp;Rozkurczowe</translation></message>
    <message id="settingDisplay"><translation>Wyświetlanie</translation></message>
    <message id="settingErase"><translation>Opróżniaj ciśnieniomierz po każdym pobraniu</translation></message>
    <message id="settingEraseButton"><translation>O&amp;próżniaj ciśnieniomierz po pobraniu</translation></message>
    <message id="settingEraseHint"><translation>Pomiary są usuwane z ciśnieniomierza, gdy wszystkie są już tu bezpiecznie zapisane.</translation></message>
    <message id="settingLanguage"><translation>Język</translation></message>
    <message id="settingLanguageLabel"><translation>Ję&amp;zyk</translation></message>
    <message id="settingLanguageSystem"><translation>Jak w systemie</translation></message>
    <message id="settingLanguageWhen"><translation>Inny język obowiązuje od następnego uruchomienia.</translation></message>
    <message id="settingLimits"><translation>Granice ciśnienia krwi</translation></message>
    <message id="settingMAP"><translation>Pokazuj średnie ciśnienie tętnicze</translation></message>
    <message id="settingMAPButton"><translation>Śred&amp;nie ciśnienie tętnicze (MAP)</translation></message>
    <message id="settingOK"><translation>Zapisz ustawienia</translation></message>
    <message id="settingPhysician"><translation>Lekarz – tekst u dołu drukowanych raportów</translation></message>
    <message id="settingPhysicianTitle"><translation>Lekarz</translation></message>
    <message id="settingPhysicianUse"><translation>Drukowane u dołu raportów, jeśli zaznaczono to w oknie drukowania.</translation></message>
    <message id="settingPP"><translation>Pokazuj ciśnienie tętna</translation></message>
    <message id="settingPPButton"><translation>Ciśnienie &amp;tętna (PP)</translation></message>
    <message id="settingPPorMAP"><translation>Pokazuj przy każdym pomiarze</translation></message>
    <message id="settings"><translation>Ustawienia</translation></message>
    <message id="settingsButton"><translation>Ustawienia</translation></message>
    <message id="settingsHint"><translation>Ustawienia, eksport i import (Ctrl+,)</translation></message>
    <message id="settingsNotSaved"><translation>Ustawień nie zapisano. %1</translation></message>
    <message id="settingsPartlySaved"><translation>Nie udało się zapisać wszystkich ustawień: w pliku danych nie ma miejsca na niektóre z nich.</translation></message>
    <message id="settingSys"><translation>Granica skurczowa w mmHg</translation></message>
    <message id="settingSysLabel"><translation>&amp;Skurczowe</translation></message>
    <message id="settingTime"><translation>Format czasu</translation></message>
    <message id="settingTimeLabel"><translation>Format &amp;czasu</translation></message>
    <message id="settingUnits"><translation>Jednostki masy ciała i wzrostu</translation></message>
    <message id="settingUnitsLabel"><translation>&amp;Jednostki</translation></message>
    <message id="settingWHO"><translation>Użyj granic Światowej Organizacji Zdrowia</translation></message>
    <message id="settingWHOButton"><translation>Granice &amp;WHO (140/90)</translation></message>
    <message id="settingWHOHint"><translation>Ustawia obie granice według Światowej Organizacji Zdrowia: 140 i 90 mmHg.</translation></message>
    <message id="show afib readings"><translation>Pokaż AF</translation></message>
    <message id="show ihd readings"><translation>Pokaż arytmię</translation></message>
    <message id="show pad readings"><translation>Pokaż arytmię</translation></message>
    <message id="showCorrelation"><translation>Korelacja</translation></message>
    <message id="showGraph"><translation>Wykres</translation></message>
    <message id="showHistogram"><translation>Histogram</translation></message>
    <message id="showMam"><translation>Pokaż MAM</translation></message>
    <message id="showTrend"><translation>Trend</translation></message>
    <message id="sideButton"><translation>Statystyka i komentarze</translation></message>
    <message id="sideColumn"><translation>Ciśnieniomierz i dane</translation></message>
    <message id="sideHint"><translation>Pokazuje lub ukrywa statystykę i komentarze obok pomiarów.</translation></message>
    <message id="spokenDia"><translation>Ciśnienie rozkurczowe, mmHg</translation></message>
    <message id="spokenFrequent"><translation>%1: najczęściej od %2 do %3, %4 procent pomiarów.</translation></message>
    <message id="spokenMap"><translation>Średnie ciśnienie tętnicze, mmHg</translation></message>
    <message id="spokenMeasure"><translation>%1: średnia %2, najniższa wartość %3, najwyższa %4.</translation></message>
    <message id="spokenPP"><translation>Ciśnienie tętna, mmHg</translation></message>
    <message id="spokenPulse"><translation>Tętno, uderzenia na minutę</translation></message>
    <message id="spokenSys"><translation>Ciśnienie skurczowe, mmHg</translation></message>
    <message id="statisticAll"><translation>Wszystkie dni z pomiarami</translation></message>
    <message id="statisticAllHint"><translation>Obejmuje cały czas od pierwszego pomiaru do ostatniego. Aby objąć tylko jego część, należy wybrać inne daty powyżej.</translation></message>
    <message id="statisticPanel"><translation>Statystyka</translation></message>
    <message id="statisticWholeDay"><translation>Wszystkie pory dnia: %1</translation></message>
    <message id="statusBroken"><translation>Ciśnieniomierz: błąd połączenia</translation></message>
    <message id="statusConnected"><translation>Ciśnieniomierz podłączony</translation></message>
    <message id="statusDamaged"><translation>Ciśnieniomierz: uszkodzone odpowiedzi</translation></message>
    <message id="statusLocked"><translation>Ciśnieniomierz: brak uprawnień</translation></message>
    <message id="statusNotConnected"><translation>Brak ciśnieniomierza</translation></message>
    <message id="statusRefusing"><translation>Ciśnieniomierz odrzuca polecenia</translation></message>
    <message id="statusSilent"><translation>Ciśnieniomierz nie odpowiada</translation></message>
    <message id="stepProgress"><translation>Pliki: %1 z %2</translation></message>
    <message id="storedNotReadBack"><translation>Zmianę zapisano, ale potem nie udało się odczytać pliku danych. %1</translation></message>
    <message id="Synchronization"><translation>Ustawić zegar ciśnieniomierza?</translation></message>
    <message id="synctimeAsk"><translation>Zegar ciśnieniomierza %1 względem tego komputera. Ustawić go według komputera, aby nowe pomiary miały właściwą datę i godzinę?</translation></message>
    <message id="tabChart"><translation>&amp;Wykres</translation></message>
    <message id="tabHint"><translation>%1 (Ctrl+%2)</translation></message>
    <message id="tabPatients"><translation>P&amp;acjenci</translation></message>
    <message id="tabReadings"><translation>Po&amp;miary</translation></message>
    <message id="takeInAction"><translation>Uwzględnij ponownie</translation></message>
    <message id="timeScroller"><translation>Przesuń okres wzdłuż pomiarów</translation></message>
    <message id="timeScrollerHint"><translation>Przesuwa okres wzdłuż pomiarów. To samo robi kółko myszy nad wykresem; z klawiszem Ctrl obrót kółka od siebie przybliża (mniej dni), a do siebie oddala (więcej dni).</translation></message>
    <message id="TimeSync"><translation>Zegar ciśnieniomierza</translation></message>
    <message id="TimeSyncMsg"><translation>Ustawianie zegara ciśnieniomierza: %1</translation></message>
    <message id="timeUnread"><translation>„%1” nie da się odczytać jako godziny: proszę ją wpisać jak %2 albo %3.</translation></message>
    <message id="trendApart"><translation>Osobno poranki i wieczory</translation></message>
    <message id="trendApartHint"><translation>Rysuje pomiary przed południem i od południa jako osobne linie.</translation></message>
    <message id="trendApartNeedsDay"><translation>Widoczna jest tylko połowa dnia, więc nie ma czego rozdzielać. Proszę najpierw nacisnąć „Cały dzień”; wtedy można to zaznaczyć.</translation></message>
    <message id="trendDays"><translation>od %1 do %2</translation></message>
    <message id="trendFigures"><translation>%1 (od %2 do %3)</translation></message>
    <message id="trendInfoEvening"><translation>%1, od południa</translation></message>
    <message id="trendInfoMorning"><translation>%1, przed południem</translation></message>
    <message id="trendKeys"><translation>%1, %2. Strzałki w lewo i w prawo pokazują wartości kolejnych punktów, Home i End – pierwszego i ostatniego.</translation></message>
    <message id="trendPeriod"><translation>Dni</translation></message>
    <message id="trendReadings"><translation>Pomiary</translation></message>
    <message id="trendView"><translation>Trend ciśnienia skurczowego i rozkurczowego oraz tętna</translation></message>
    <message id="undoDropped"><translation>

Dlatego tej czynności nie można już cofnąć ani ponowić; pozostałych to nie dotyczy.</translation></message>
    <message id="undoFailed"><translation>Nie cofnięto: „%1”. %2</translation></message>
    <message id="undone"><translation>Cofnięto: %1</translation></message>
    <message id="unitMmHg"><translation>mmHg</translation></message>
    <message id="unitPulse"><translation>uderzeń na minutę</translation></message>
    <message id="unsavedDelete"><translation>Usunąć to, co wpisano dla pacjenta (%1)? Jeśli nie, pytanie pojawi się ponownie przy następnym uruchomieniu.</translation></message>
    <message id="unsavedFound"><translation>Przy zamykaniu programu nie udało się zapisać tego, co wpisywano dla pacjenta (%1). Kontynuować teraz wpisywanie?</translation></message>
    <message id="unsavedTitle"><translation>Jeszcze niezapisane</translation></message>
    <message id="usualColumns"><translation>Domyślne kolumny i kolejność</translation></message>
    <message id="valueHigh"><translation>%1, na granicy lub powyżej</translation></message>
    <message id="valueMmHg"><translation>%1 mmHg</translation></message>
    <message id="valuePulse"><translation>%1 na minutę</translation></message>
    <message id="valueWithUnit"><translation>%1, %2</translation></message>
    <message id="viewAll"><translation>W&amp;szystko</translation></message>
    <message id="viewAllHint"><translation>Wszystkie pomiary, od pierwszego dnia do ostatniego.</translation></message>
    <message id="viewAM"><translation>&amp;Rano</translation></message>
    <message id="viewAMHint"><translation>Pomiary przed południem z pokazanych dni.</translation></message>
    <message id="viewBoth"><translation>Cał&amp;y dzień</translation></message>
    <message id="viewBothHint"><translation>Pomiary ze wszystkich pór dnia z pokazanych dni.</translation></message>
    <message id="viewChoiceNeeded"><translation>Pomiary bez daty nie należą do żadnego dnia i można je pokazać tylko po wybraniu „Wszystko”. Proszę najpierw nacisnąć „Wszystko”; wtedy można je zaznaczyć.</translation></message>
    <message id="viewDays"><translation>Pokazane dni</translation></message>
    <message id="viewHalf"><translation>Pokazana pora dnia</translation></message>
    <message id="viewLast"><translation>%1 dni</translation></message>
    <message id="viewLastHint"><translation>%1 dni aż do ostatniego dnia z pomiarem.</translation></message>
    <message id="viewLastName"><translation>Ostatnie %1 dni</translation></message>
    <message id="viewPM"><translation>Wieczór</translation></message>
    <message id="viewPMHint"><translation>Pomiary od południa z pokazanych dni.</translation></message>
    <message id="viewTabs"><translation>Widoki</translation></message>
    <message id="viewWeek"><translation>&amp;Tydzień pomiarowy</translation></message>
    <message id="viewWeekHint"><translation>Siedem dni, z których liczy się średnią tygodnia pomiarowego.</translation></message>
    <message id="weekBelow"><translation>Poniżej %1 (dokładniej: %2)</translation></message>
    <message id="weekDays" numerus="yes"><translation><numerusform>%1 z %n dnia</numerusform><numerusform>%1 z %n dni</numerusform><numerusform>%1 z %n dni</numerusform></translation></message>
    <message id="weekEnd"><translation>Ostatni dzień tygodnia pomiarowego</translation></message>
    <message id="weekEvenings"><translation>Wieczór %1</translation></message>
    <message id="weekExcluded" numerus="yes"><translation><numerusform>%n pominięty</numerusform><numerusform>%n pominięte</numerusform><numerusform>%n pominiętych</numerusform></translation></message>
    <message id="weekExcludedLater" numerus="yes"><translation><numerusform>%n z późniejszych dni pominięty</numerusform><numerusform>%n z późniejszych dni pominięte</numerusform><numerusform>%n z późniejszych dni pominiętych</numerusform></translation></message>
    <message id="weekFirstDay" numerus="yes"><translation><numerusform>%n z pierwszego dnia się nie liczy</numerusform><numerusform>%n z pierwszego dnia się nie liczą</numerusform><numerusform>%n z pierwszego dnia się nie liczy</numerusform></translation></message>
    <message id="weekMean"><translation>%1 mmHg</translation></message>
    <message id="weekMeanHint"><translation>Średnia %1/%2 mmHg, tętno %3</translation></message>
    <message id="weekMissing"><translation>Niepełny, potrzebne jeszcze: %1</translation></message>
    <message id="weekMornings"><translation>Rano %1</translation></message>
    <message id="weekNoMean"><translation>Brak średniej</translation></message>
    <message id="weekOtherZone" numerus="yes"><translation><numerusform>%n pomiar zapisano w innej strefie czasowej; jego godzina jest według tego komputera</numerusform><numerusform>%n pomiary zapisano w innej strefie czasowej; godziny są według tego komputera</numerusform><numerusform>%n pomiarów zapisano w innej strefie czasowej; godziny są według tego komputera</numerusform></translation></message>
    <message id="weekPanel"><translation>Tydzień pomiarowy</translation></message>
    <message id="weekPulse"><translation>tętno %1</translation></message>
    <message id="weekReached"><translation>Co najmniej %1 (dokładniej: %2)</translation></message>
    <message id="weekReadings" numerus="yes"><translation><numerusform>%n pomiar</numerusform><numerusform>%n pomiary</numerusform><numerusform>%n pomiarów</numerusform></translation></message>
    <message id="weekRule"><translation>Reguła liczenia średniej</translation></message>
    <message id="weekRuleAha"><translation>AHA</translation></message>
    <message id="weekRuleEsh"><translation>ESH</translation></message>
    <message id="weekRuleHint"><translation>ESH: bez pierwszego dnia, 12 pomiarów z co najmniej 2 dalszych dni
NICE: bez pierwszego dnia, po 2 pomiary każdego ranka i wieczoru z co najmniej 3 dalszych dni
AHA: 12 pomiarów z co najmniej 3 dni</translation></message>
    <message id="weekRuleNice"><translation>NICE</translation></message>
    <message id="weekTo"><translation>do</translation></message>
    <message id="weekUnmeasured" numerus="yes"><translation><numerusform>%n bez wartości ciśnienia się nie liczy</numerusform><numerusform>%n bez wartości ciśnienia się nie liczą</numerusform><numerusform>%n bez wartości ciśnienia się nie liczy</numerusform></translation></message>
    <message id="weightRefusedKg"><translation>Proszę podać liczbę od 0,2 do 1000 kg, na przykład 72,5.</translation></message>
    <message id="weightRefusedLb"><translation>Proszę podać liczbę od 0,5 do 2200 lb, na przykład 160,5.</translation></message>
    <message id="windowNotForgotten"><translation>Plik %1 przechowuje stan okna. Nie udało się go usunąć.</translation></message>
    <message id="windowNotReset"><translation>ZEL jest już otwarty dla tego pliku danych; jego okno przeniesiono na wierzch. Proszę je zamknąć i ponownie uruchomić program z opcją --reset-view.</translation></message>
    <message id="windowShown"><translation>ZEL jest już otwarty dla tego pliku danych; jego okno przeniesiono na wierzch.</translation></message>
    <message id="windowSilent"><translation>ZEL jest już otwarty dla tego pliku danych, ale jego okno nie odpowiada. Być może program czeka na powolny dysk lub drukarkę albo się zawiesił: jeśli w ciągu minuty nie wznowi pracy, proszę go zakończyć w monitorze systemu.

Otworzyć obok drugie okno? Niczemu to nie szkodzi: zachowane zostanie to, co zapiszą oba.</translation></message>
    <message id="yes"><translation>&amp;Tak</translation></message>
    <message id="yyyy mm dd"><translation>RRRR MM DD</translation></message>
</context>
<context>
    <name>chart</name>
    <message id="abovePoints" numerus="yes"><translation><numerusform>%n punkt wychodzi ponad skalę</numerusform><numerusform>%n punkty wychodzą ponad skalę</numerusform><numerusform>%n punktów wychodzi ponad skalę</numerusform></translation></message>
    <message id="aboveScale" numerus="yes"><translation><numerusform>%n pomiar powyżej skali</numerusform><numerusform>%n pomiary powyżej skali</numerusform><numerusform>%n pomiarów powyżej skali</numerusform></translation></message>
    <message id="aboveScaleShort"><translation>%1 powyżej</translation></message>
    <message id="average"><translation>Średnia</translation></message>
    <message id="belowPoints" numerus="yes"><translation><numerusform>%n punkt wychodzi poniżej skali</numerusform><numerusform>%n punkty wychodzą poniżej skali</numerusform><numerusform>%n punktów wychodzi poniżej skali</numerusform></translation></message>
    <message id="belowScale" numerus="yes"><translation><numerusform>%n pomiar poniżej skali</numerusform><numerusform>%n pomiary poniżej skali</numerusform><numerusform>%n pomiarów poniżej skali</numerusform></translation></message>
    <message id="belowScaleShort"><translation>%1 poniżej</translation></message>
    <message id="chartExcluded" numerus="yes"><translation><numerusform>○ %n pominięty</numerusform><numerusform>○ %n pominięte</numerusform><numerusform>○ %n pominiętych</numerusform></translation></message>
    <message id="dia"><translation>DIA</translation></message>
    <message id="dia too high"><translation>Rozkurczowe za wysokie</translation></message>
    <message id="evening"><translation>Wieczór</translation></message>
    <message id="max"><translation>Maks.</translation></message>
    <message id="min"><translation>Min.</translation></message>
    <message id="mmHg"><translation>mmHg</translation></message>
    <message id="monthOfYear"><translation>%1 %2</translation></message>
    <message id="morning"><translation>Rano</translation></message>
    <message id="noEveningReadings"><translation>Brak pomiarów od południa w tym okresie</translation></message>
    <message id="noMorningReadings"><translation>Brak pomiarów przed południem w tym okresie</translation></message>
    <message id="noReadingsInPeriod"><translation>Brak pomiarów w tym okresie</translation></message>
    <message id="normal"><translation>W normie</translation></message>
    <message id="P/min"><translation>1/min</translation></message>
    <message id="pulse"><translation>Tętno</translation></message>
    <message id="sys"><translation>SYS</translation></message>
    <message id="sys and dia too high"><translation>Oba za wysokie</translation></message>
    <message id="sys too high"><translation>Skurczowe za wysokie</translation></message>
    <message id="trendBand"><translation>%1; pasmo: od 10. do 90. percentyla, przy mniej niż 5 pomiarach – wszystkie</translation></message>
    <message id="trendBandAll"><translation>%1; pasmo: wszystkie pomiary</translation></message>
    <message id="trendBandShort"><translation>%1; pasmo: od 10. do 90. percentyla</translation></message>
    <message id="trendCoveredComments" numerus="yes"><translation><numerusform>%n komentarz leży na innym</numerusform><numerusform>%n komentarze leżą na innych</numerusform><numerusform>%n komentarzy leży na innych</numerusform></translation></message>
    <message id="trendDay"><translation>Mediana z każdego dnia</translation></message>
    <message id="trendEvening"><translation>%1 wieczorem</translation></message>
    <message id="trendLinked"><translation>%1; kropki: przerwa w pomiarach</translation></message>
    <message id="trendMonth"><translation>Mediana z każdego miesiąca</translation></message>
    <message id="trendMoreComments" numerus="yes"><translation><numerusform>brak tu miejsca na jeszcze %n komentarz</numerusform><numerusform>brak tu miejsca na jeszcze %n komentarze</numerusform><numerusform>brak tu miejsca na jeszcze %n komentarzy</numerusform></translation></message>
    <message id="trendMorning"><translation>%1 rano</translation></message>
    <message id="trendWeek"><translation>Mediana z każdego tygodnia</translation></message>
    <message id="trendWordlessComments" numerus="yes"><translation><numerusform>jeszcze %n komentarz bez tekstu</numerusform><numerusform>jeszcze %n komentarze bez tekstu</numerusform><numerusform>jeszcze %n komentarzy bez tekstu</numerusform></translation></message>
</context>
<context>
    <name>report</name>
    <message id="appDescrption"><translation>Raport z pomiarów ciśnienia krwi (ZEL)</translation></message>
    <message id="comment"><translation>Komentarze</translation></message>
    <message id="comments"><translation>Komentarze</translation></message>
    <message id="correlation"><translation>Ciśnienie skurczowe a rozkurczowe</translation></message>
    <message id="date"><translation>Data</translation></message>
    <message id="formAddress"><translation>Adres</translation></message>
    <message id="formAge"><translation>Wiek</translation></message>
    <message id="formBirth"><translation>Data urodzenia</translation></message>
    <message id="formCholesterol"><translation>Cholesterol (mg/dl)</translation></message>
    <message id="formDay"><translation>Dzień</translation></message>
    <message id="formDiabetic"><translation>Cukrzyca</translation></message>
    <message id="formFamilyHistory"><translation>Wywiad rodz.</translation></message>
    <message id="formFamilyName"><translation>Nazwisko</translation></message>
    <message id="formGivenNames"><translation>Imię (imiona)</translation></message>
    <message id="formHeightCm"><translation>Wzrost (cm)</translation></message>
    <message id="formHeightFtIn"><translation>Wzrost (ft/in)</translation></message>
    <message id="formID"><translation>ID</translation></message>
    <message id="formMonth"><translation>Miesiąc</translation></message>
    <message id="formNotes"><translation>Notatki o pacjencie</translation></message>
    <message id="formPersonal"><translation>Dane osobowe</translation></message>
    <message id="formPhoneEmail"><translation>Telefon / e-mail</translation></message>
    <message id="formRisks"><translation>Czynniki ryzyka</translation></message>
    <message id="formSex"><translation>Płeć</translation></message>
    <message id="formSmoker"><translation>Palenie</translation></message>
    <message id="formWeightKg"><translation>Masa (kg)</translation></message>
    <message id="formWeightLb"><translation>Masa (lb)</translation></message>
    <message id="formYear"><translation>Rok</translation></message>
    <message id="formYears" numerus="yes"><translation><numerusform>rok</numerusform><numerusform>lata</numerusform><numerusform>lat</numerusform></translation></message>
    <message id="graph"><translation>Wykres ciśnienia krwi i tętna</translation></message>
    <message id="histogram"><translation>Rozkład pomiarów</translation></message>
    <message id="legendTitle"><translation>%1:</translation></message>
    <message id="mam"><translation>MAM</translation></message>
    <message id="n.a."><translation>b.d.</translation></message>
    <message id="N.A."><translation>b.d.</translation></message>
    <message id="No"><translation>Nie</translation></message>
    <message id="PatientProfile"><translation>Karta pacjenta</translation></message>
    <message id="reportAllComments"><translation>Komentarze ze wszystkich dni, nie tylko z tego okresu</translation></message>
    <message id="reportAllTimesOfDay"><translation>%1, wszystkie pory dnia</translation></message>
    <message id="reportAverage"><translation>średnia z kilku pomiarów</translation></message>
    <message id="reportBothAbove"><translation>Oba powyżej: %1</translation></message>
    <message id="reportCommentBars"><translation>Paski: komentarze według numerów</translation></message>
    <message id="reportCommentsLeftOut"><translation>Raport mieści najwyżej %1 komentarzy o łącznej długości %2 znaków. Poniżej najnowsze; eksport zawiera wszystkie.</translation></message>
    <message id="reportContinued"><translation>%1, ciąg dalszy</translation></message>
    <message id="reportCorrelationLimits" numerus="yes"><translation><numerusform>Linia oznacza granicę.</numerusform><numerusform>Linie oznaczają granice.</numerusform><numerusform>Linie oznaczają granice.</numerusform></translation></message>
    <message id="reportCorrelationNote"><translation>Każdy kwadrat to pomiar albo kilka pomiarów o tych samych wartościach, w mmHg.</translation></message>
    <message id="reportCutComments"><translation>…: pełny tekst w sekcji „Komentarze”</translation></message>
    <message id="reportCutPractitioner"><translation>…: tu skrócone; pełny tekst znajduje się w ustawieniach.</translation></message>
    <message id="reportCutTexts"><translation>…: tu skrócone; pełny tekst znajduje się na następnej stronie.</translation></message>
    <message id="reportDays" numerus="yes"><translation><numerusform>%n dzień</numerusform><numerusform>%n dni</numerusform><numerusform>%n dni</numerusform></translation></message>
    <message id="reportDemonstration"><translation>Demonstracja: dane fikcyjne</translation></message>
    <message id="reportDiaAbove"><translation>Tylko rozkurczowe powyżej: %1</translation></message>
    <message id="reportDocument"><translation>Raport z pomiarów ciśnienia krwi: %1 (%2)</translation></message>
    <message id="reportDownloadDay"><translation>↓ żółte tło: pobranie</translation></message>
    <message id="reportEarlierComments" numerus="yes"><translation><numerusform>nie wydrukowano %n wcześniejszego komentarza</numerusform><numerusform>nie wydrukowano %n wcześniejszych komentarzy</numerusform><numerusform>nie wydrukowano %n wcześniejszych komentarzy</numerusform></translation></message>
    <message id="reportEmptySections"><translation>Puste, dlatego nie ma ich w tym raporcie: %1</translation></message>
    <message id="reportEveningOnly"><translation>Pokazano tylko pomiary od południa</translation></message>
    <message id="reportFindingUnknown"><translation>b.d.: nie wiadomo</translation></message>
    <message id="reportFound"><translation>wykryto</translation></message>
    <message id="reportGoesOn"><translation>dalszy ciąg na następnej stronie</translation></message>
    <message id="reportGraphComments"><translation>Numery w ramkach: komentarze.</translation></message>
    <message id="reportGraphDownloads"><translation>↓: dzień pobrania.</translation></message>
    <message id="reportGraphExcluded"><translation>○: pomiar pominięty.</translation></message>
    <message id="reportGraphHiddenLimits" numerus="yes"><translation><numerusform>Granica %1 leży poza skalą.</numerusform><numerusform>Granice %1 leżą poza skalą.</numerusform><numerusform>Granice %1 leżą poza skalą.</numerusform></translation></message>
    <message id="reportGraphLimits" numerus="yes"><translation><numerusform>Linia przerywana: granica %1.</numerusform><numerusform>Linie przerywane: granice %1.</numerusform><numerusform>Linie przerywane: granice %1.</numerusform></translation></message>
    <message id="reportGraphNote"><translation>Górna linia: ciśnienie skurczowe, dolna linia: ciśnienie rozkurczowe.</translation></message>
    <message id="reportHistogramNote"><translation>Długość słupka: jaki procent wszystkich pomiarów mieści się w jego przedziale (10 mmHg lub 10 uderzeń na minutę).</translation></message>
    <message id="reportKeepLimits" numerus="yes"><translation><numerusform>Nie wyższe niż %1: %2</numerusform><numerusform>Nie wyższe niż granice %1: %2</numerusform><numerusform>Nie wyższe niż granice %1: %2</numerusform></translation></message>
    <message id="reportLeftOutReading"><translation>%1 %2   %3/%4 mmHg, tętno %5</translation></message>
    <message id="reportLeftOutTitle" numerus="yes"><translation><numerusform>%n pomiar pominięty (z powodem)</numerusform><numerusform>%n pomiary pominięte (z powodami)</numerusform><numerusform>%n pomiarów pominiętych (z powodami)</numerusform></translation></message>
    <message id="reportLimitDia"><translation>%1 mmHg (rozkurczowe)</translation></message>
    <message id="reportLimits"><translation>%1/%2 mmHg</translation></message>
    <message id="reportLimitSys"><translation>%1 mmHg (skurczowe)</translation></message>
    <message id="reportMeasured"><translation>Średnia w mmHg (pomiary): %1</translation></message>
    <message id="reportMoreNumbers" numerus="yes"><translation><numerusform>i jeszcze %n</numerusform><numerusform>i jeszcze %n</numerusform><numerusform>i jeszcze %n</numerusform></translation></message>
    <message id="reportMorningOnly"><translation>Pokazano tylko pomiary przed południem</translation></message>
    <message id="reportNoData"><translation>Nie ma czego drukować: wybrane sekcje nie zawierają danych dla tego pacjenta i okresu. Nie zapisano żadnego pliku.</translation></message>
    <message id="reportNoDate"><translation>b.d. (data): bez daty</translation></message>
    <message id="reportNoFigures"><translation>n/a: brak pomiarów</translation></message>
    <message id="reportNoLimits"><translation>Nie ustawiono granic.</translation></message>
    <message id="reportNoReading"><translation>b.d. (wartości): brak pomiaru</translation></message>
    <message id="reportNotFound"><translation>nie wykryto</translation></message>
    <message id="reportNotPainted"><translation>Nie udało się utworzyć pliku PDF ze stron. Nie zapisano żadnego pliku.</translation></message>
    <message id="reportNotWritable"><translation>Nie udało się zapisać pliku %1. Proszę sprawdzić, czy jego folder istnieje i czy wolno w nim zapisywać.</translation></message>
    <message id="reportPage"><translation>Strona %1 z %2</translation></message>
    <message id="reportPatient"><translation>Pacjent: %1 %2  ID: %3</translation></message>
    <message id="reportPeriod"><translation>Od: %1 Do: %2</translation></message>
    <message id="reportReadings" numerus="yes"><translation><numerusform>%n pomiar</numerusform><numerusform>%n pomiary</numerusform><numerusform>%n pomiarów</numerusform></translation></message>
    <message id="reportStruckThrough"><translation>przekreślone: pominięte we wszystkich obliczeniach; powody podano za tabelą</translation></message>
    <message id="reportSysAbove"><translation>Tylko skurczowe powyżej: %1</translation></message>
    <message id="reportTextTooLong"><translation>… Reszty tekstu nie wydrukowano; liczba dalszych znaków: %1.</translation></message>
    <message id="reportTrendLimits" numerus="yes"><translation><numerusform>Cienka prosta linia: granica %1.</numerusform><numerusform>Cienkie proste linie: granice %1.</numerusform><numerusform>Cienkie proste linie: granice %1.</numerusform></translation></message>
    <message id="reportTrendNote"><translation>Grube linie: mediany. Linia urywa się tam, gdzie nie ma pomiarów; jeśli przerwa trwa najwyżej 30 dni, jej końce łączą kropki.</translation></message>
    <message id="reportWriteFailed"><translation>Zapis pliku %1 się nie powiódł, dlatego nie ma nowego pliku. Proszę sprawdzić, czy dysk nie jest pełny, i spróbować ponownie.</translation></message>
    <message id="summary"><translation>Podsumowanie</translation></message>
    <message id="summaryAha"><translation>AHA</translation></message>
    <message id="summaryAll"><translation>Wszystkie</translation></message>
    <message id="summaryBelow"><translation>Poniżej progu %1 (dokładniej: %2/%3)</translation></message>
    <message id="summaryBorn" numerus="yes"><translation><numerusform>Ur. %1, %n rok</numerusform><numerusform>Ur. %1, %n lata</numerusform><numerusform>Ur. %1, %n lat</numerusform></translation></message>
    <message id="summaryBornOn"><translation>Ur. %1</translation></message>
    <message id="summaryComments"><translation>Co się zmieniło: komentarze od najnowszego</translation></message>
    <message id="summaryComplete"><translation>Pełny</translation></message>
    <message id="summaryCut"><translation>…: skrócono.</translation></message>
    <message id="summaryDia"><translation>DIA, mmHg</translation></message>
    <message id="summaryEither"><translation>SYS lub DIA, lub oba</translation></message>
    <message id="summaryEsh"><translation>ESH</translation></message>
    <message id="summaryEvening"><translation>Wieczór</translation></message>
    <message id="summaryEvenings"><translation>Wieczór %1</translation></message>
    <message id="summaryExcluded"><translation>%1 %2  %3/%4: %5</translation></message>
    <message id="summaryFirstDay" numerus="yes"><translation><numerusform>%n z pierwszego dnia się nie liczy</numerusform><numerusform>%n z pierwszego dnia się nie liczą</numerusform><numerusform>%n z pierwszego dnia się nie liczy</numerusform></translation></message>
    <message id="summaryFlagged" numerus="yes"><translation><numerusform>Sygnalizowana arytmia (%1): %2 z %n pomiaru</numerusform><numerusform>Sygnalizowana arytmia (%1): %2 z %n pomiarów</numerusform><numerusform>Sygnalizowana arytmia (%1): %2 z %n pomiarów</numerusform></translation></message>
    <message id="summaryHigh"><translation>Co najmniej %1</translation></message>
    <message id="summaryHighOf" numerus="yes"><translation><numerusform>%1 z %n pomiaru</numerusform><numerusform>%1 z %n pomiarów</numerusform><numerusform>%1 z %n pomiarów</numerusform></translation></message>
    <message id="summaryID"><translation>ID %1</translation></message>
    <message id="summaryIncomplete"><translation>Niepełny, potrzebne jeszcze: %1</translation></message>
    <message id="summaryInFull"><translation>…: pełny tekst w sekcji: %1.</translation></message>
    <message id="summaryLastDays" numerus="yes"><translation><numerusform>Ostatni dzień: średnia (pomiary)</numerusform><numerusform>Ostatnie %n dni: średnia (pomiary)</numerusform><numerusform>Ostatnie %n dni: średnia (pomiary)</numerusform></translation></message>
    <message id="summaryLeftOut"><translation>Pominięte</translation></message>
    <message id="summaryMax"><translation>Maks</translation></message>
    <message id="summaryMean"><translation>Średnia</translation></message>
    <message id="summaryMin"><translation>Min.</translation></message>
    <message id="summaryMoreComments" numerus="yes"><translation><numerusform>i jeszcze %n komentarz</numerusform><numerusform>i jeszcze %n komentarze</numerusform><numerusform>i jeszcze %n komentarzy</numerusform></translation></message>
    <message id="summaryMoreExcluded" numerus="yes"><translation><numerusform>i jeszcze %n pominięty</numerusform><numerusform>i jeszcze %n pominięte</numerusform><numerusform>i jeszcze %n pominiętych</numerusform></translation></message>
    <message id="summaryMorning"><translation>Rano</translation></message>
    <message id="summaryMornings"><translation>Rano %1</translation></message>
    <message id="summaryNice"><translation>NICE</translation></message>
    <message id="summaryNoBirth"><translation>Nie podano daty urodzenia</translation></message>
    <message id="summaryNoComments"><translation>Brak komentarzy w tym okresie</translation></message>
    <message id="summaryNoDated"><translation>Brak pomiarów z datą</translation></message>
    <message id="summaryNone"><translation>Brak pomiarów w tym okresie</translation></message>
    <message id="summaryNoneCountsYet"><translation>Żaden pomiar jeszcze się nie liczy</translation></message>
    <message id="summaryNoReason"><translation>nie podano powodu</translation></message>
    <message id="summaryNote"><translation>Tydzień pomiarowy: %1 próg osiągnięty lub przekroczony. %2 Rano: przed południem. %3</translation></message>
    <message id="summaryNotExamined"><translation>Arytmia: żadnego pomiaru nie badano pod tym kątem</translation></message>
    <message id="summaryNothingLeftOut"><translation>Liczą się wszystkie pomiary</translation></message>
    <message id="summaryNoWeek"><translation>Brak pomiarów w tym tygodniu</translation></message>
    <message id="summaryOnDays" numerus="yes"><translation><numerusform>%1 z %n dnia</numerusform><numerusform>%1 z %n dni</numerusform><numerusform>%1 z %n dni</numerusform></translation></message>
    <message id="summaryOnOtherDays" numerus="yes"><translation><numerusform>%n w innych dniach</numerusform><numerusform>%n w innych dniach</numerusform><numerusform>%n w innych dniach</numerusform></translation></message>
    <message id="summaryOtherComments" numerus="yes"><translation><numerusform>%n komentarz z innych dni</numerusform><numerusform>%n komentarze z innych dni</numerusform><numerusform>%n komentarzy z innych dni</numerusform></translation></message>
    <message id="summaryOthers" numerus="yes"><translation><numerusform>%n pomiaru nie badano pod tym kątem</numerusform><numerusform>%n pomiarów nie badano pod tym kątem</numerusform><numerusform>%n pomiarów nie badano pod tym kątem</numerusform></translation></message>
    <message id="summaryOtherZone" numerus="yes"><translation><numerusform>%n liczący się pomiar zapisano w innej strefie czasowej; godziny tego komputera</numerusform><numerusform>%n liczące się pomiary zapisano w innej strefie czasowej; godziny tego komputera</numerusform><numerusform>%n liczących się pomiarów zapisano w innej strefie czasowej; godziny tego komputera</numerusform></translation></message>
    <message id="summaryPeriod"><translation>Od %1 do %2</translation></message>
    <message id="summaryPulse"><translation>Tętno %1</translation></message>
    <message id="summaryRate"><translation>Tętno, 1/min</translation></message>
    <message id="summaryReached"><translation>Na progu %1 lub powyżej (dokładniej: %2/%3)</translation></message>
    <message id="summaryReadings"><translation>Pomiary</translation></message>
    <message id="summaryReasonsInFull"><translation>…: skrócono; pełny wykaz pominiętych pomiarów w sekcji: %1.</translation></message>
    <message id="summarySD"><translation>SD</translation></message>
    <message id="summarySys"><translation>SYS, mmHg</translation></message>
    <message id="summaryTable"><translation>Pomiary z okresu (SD: z próby, n − 1)</translation></message>
    <message id="summaryTrend"><translation>Trend</translation></message>
    <message id="summaryTrendComments"><translation>Trend, a pod nim komentarze według numerów</translation></message>
    <message id="summaryTrendHidden"><translation>Poza skalą trendu: %1.</translation></message>
    <message id="summaryTrendLimits"><translation>Cienkie proste linie na wykresie trendu: %1.</translation></message>
    <message id="summaryTrendNumberless" numerus="yes"><translation><numerusform>Trend, a pod nim komentarze według numerów; %n bez miejsca na numer</numerusform><numerusform>Trend, a pod nim komentarze według numerów; %n bez miejsca na numer</numerusform><numerusform>Trend, a pod nim komentarze według numerów; %n bez miejsca na numer</numerusform></translation></message>
    <message id="summaryTyped" numerus="yes"><translation><numerusform>Wpisane ręcznie: %1 z %n pomiaru</numerusform><numerusform>Wpisane ręcznie: %1 z %n pomiarów</numerusform><numerusform>Wpisane ręcznie: %1 z %n pomiarów</numerusform></translation></message>
    <message id="summaryWeek"><translation>Tydzień pomiarowy (%1)  %2</translation></message>
    <message id="summaryWeekExcluded" numerus="yes"><translation><numerusform>%n z tego tygodnia pominięty</numerusform><numerusform>%n z tego tygodnia pominięte</numerusform><numerusform>%n z tego tygodnia pominiętych</numerusform></translation></message>
    <message id="summaryWeekTyped" numerus="yes"><translation><numerusform>%n wpisany ręcznie</numerusform><numerusform>%n wpisane ręcznie</numerusform><numerusform>%n wpisanych ręcznie</numerusform></translation></message>
    <message id="summaryWeekUnmeasured" numerus="yes"><translation><numerusform>%n bez wartości ciśnienia</numerusform><numerusform>%n bez wartości ciśnienia</numerusform><numerusform>%n bez wartości ciśnienia</numerusform></translation></message>
    <message id="summaryWeekZone" numerus="yes"><translation><numerusform>%n zapisany w innej strefie czasowej; godziny tego komputera</numerusform><numerusform>%n zapisane w innej strefie czasowej; godziny tego komputera</numerusform><numerusform>%n zapisanych w innej strefie czasowej; godziny tego komputera</numerusform></translation></message>
    <message id="SWStatistics"><translation>Statystyka i pomiary</translation></message>
    <message id="table"><translation>Pomiary</translation></message>
    <message id="time"><translation>Godzina</translation></message>
    <message id="trend"><translation>Trend ciśnienia krwi i tętna</translation></message>
    <message id="Yes"><translation>Tak</translation></message>
</context>
<context>
    <name>cli</name>
    <message id="CliAddMissing"><translation>Opcje --id, --family-name i --given-names wymagają --add.</translation></message>
    <message id="CliAmAndPm"><translation>Proszę podać --am albo --pm, nie obie opcje.</translation></message>
    <message id="CliBackupUsage"><translation>Proszę podać list, create albo restore z nazwą kopii; albo folder i, aby go zmienić, nazwę folderu lub --none.</translation></message>
    <message id="CliBadDate"><translation>--%1 wymaga dnia kalendarzowego w postaci yyyy-MM-dd, podano „%2”.</translation></message>
    <message id="CliBadDays"><translation>--last wymaga całkowitej liczby dni od 1 do %2, podano „%1”.</translation></message>
    <message id="CliBadField"><translation>Wartość --%1 nie może być równa „-”, zaczynać się ani kończyć spacją ani zawierać znaków sterujących.</translation></message>
    <message id="CliBadID"><translation>Wartość --id musi mieć od 1 do 11 zwykłych liter, cyfr lub innych znaków, bez liter takich jak ą czy ł: więcej ciśnieniomierz nie pomieści.</translation></message>
    <message id="CliBadPaper"><translation>--paper wymaga wartości A4 albo Letter, podano „%1”.</translation></message>
    <message id="CliBadWait"><translation>--wait wymaga całkowitej liczby sekund od 0 do %1.</translation></message>
    <message id="CliChangeOfNothing"><translation>--change wymaga co najmniej jednej z opcji --date, --time, --sys, --dia i --pulse.</translation></message>
    <message id="CliClockUnread"><translation>Nie udało się odczytać zegara ciśnieniomierza. %1</translation></message>
    <message id="CliClockUnset"><translation>Nie udało się ustawić zegara ciśnieniomierza. %1</translation></message>
    <message id="CliColumnsForm"><translation>Opcja --columns podaje tytuły kolumn, na przykład date=Data,time=Godzina,sys=Skurczowe,dia=Rozkurczowe,pulse=Tętno; może brakować tylko time.</translation></message>
    <message id="CliColumnsHelp"><translation>Dla tabeli z innego programu opcja --columns podaje, czym są jej kolumny.</translation></message>
    <message id="CliCountUnread"><translation>Nie udało się odczytać liczby pomiarów w ciśnieniomierzu. %1</translation></message>
    <message id="CliDatesForm"><translation>Opcja --dates przyjmuje dmy, mdy lub ymd, a nie „%1”.</translation></message>
    <message id="CliDemonstrationMonitor"><translation>To dane demonstracyjne, do których nie trafiają pomiary z prawdziwego ciśnieniomierza. Podaj --simulated-monitor.</translation></message>
    <message id="CliDownloadFailed"><translation>Nie udało się pobrać pomiarów i niczego nie zapisano. %1 Są one nadal w ciśnieniomierzu: proszę spróbować ponownie.</translation></message>
    <message id="CliDownloadNotReadBack"><translation>Pomiary zapisano, ale potem nie udało się odczytać pliku danych, dlatego nie wymazano pamięci ciśnieniomierza. %1</translation></message>
    <message id="CliDownloadUnsaved"><translation>Nie udało się zapisać pobranych pomiarów. %1 Są one nadal w ciśnieniomierzu.</translation></message>
    <message id="CliEmptySections"><translation>Puste, dlatego nie ma ich w raporcie: %1</translation></message>
    <message id="CliEraseAfterFailed"><translation>Pomiary są bezpiecznie zapisane, ale potem nie udało się wymazać pamięci ciśnieniomierza. %1 Można to zrobić poleceniem „zel monitor --erase --yes”.</translation></message>
    <message id="CliEraseAfterUnseen"><translation>Pomiary są bezpiecznie zapisane, ale nie udało się sprawdzić, czy ciśnieniomierz jest teraz pusty. %1 Polecenie „zel monitor” pokazuje, co w nim jest.</translation></message>
    <message id="CliEraseFailed"><translation>Nie udało się wymazać pamięci ciśnieniomierza. %1</translation></message>
    <message id="CliEraseNeedsYes"><translation>--erase trwale usuwa wszystkie pomiary z ciśnieniomierza. Aby to potwierdzić, należy dodać --yes.</translation></message>
    <message id="CliEraseNoID"><translation>Pamięć ciśnieniomierza wymazuje się przez ponowne nadanie mu jego ID, ale nie ma on ID, które mógłby przechować. Proszę mu je najpierw nadać poleceniem „zel monitor --send-id ID”.</translation></message>
    <message id="CliEraseUnseen"><translation>Nie udało się sprawdzić, czy pamięć ciśnieniomierza jest teraz pusta. %1</translation></message>
    <message id="CliExcludedLater" numerus="yes"><translation><numerusform>Pominięty jest też %n pomiar z późniejszych dni.</numerusform><numerusform>Pominięte są też %n pomiary z późniejszych dni.</numerusform><numerusform>Pominiętych jest też %n pomiarów z późniejszych dni.</numerusform></translation></message>
    <message id="CliExcludedLeftOut" numerus="yes"><translation><numerusform>%n pomiar z tego tygodnia został pominięty.</numerusform><numerusform>%n pomiary z tego tygodnia zostały pominięte.</numerusform><numerusform>%n pomiarów z tego tygodnia zostało pominiętych.</numerusform></translation></message>
    <message id="CliFilesMissing"><translation>Brakuje pliku do zaimportowania.</translation></message>
    <message id="CliFirstDayLeftOut" numerus="yes"><translation><numerusform>%n pomiar z pierwszego dnia pomiarowego się nie liczy.</numerusform><numerusform>%n pomiary z pierwszego dnia pomiarowego się nie liczą.</numerusform><numerusform>%n pomiarów z pierwszego dnia pomiarowego się nie liczy.</numerusform></translation></message>
    <message id="CliFolderMissing"><translation>Brakuje folderu, do którego mają trafić pliki.</translation></message>
    <message id="CliForceReplaces"><translation>Opcja --force go zastępuje.</translation></message>
    <message id="CliFromAfterTo"><translation>Dzień --from jest późniejszy niż dzień --to.</translation></message>
    <message id="CliHelp"><translation>Użycie: zel [--simulated-monitor[=FILE] | --demonstration] [--language TAG] [--reset-view]
        zel COMMAND [OPTION]...

Przechowuje pomiary z automatycznych ciśnieniomierzy, osobno dla każdego pacjenta.
Bez polecenia otwiera się okno. Polecenia robią to samo bez okna, na tym samym pliku danych:

  monitor      pokazuje podłączony ciśnieniomierz, ustawia jego zegar lub ID albo wymazuje jego pamięć
  patients     wyświetla listę pacjentów albo dodaje pacjenta
  download     zapisuje pomiary z ciśnieniomierza dla pacjenta
  readings     wyświetla pomiary pacjenta
  statistics   wyświetla średnie, minima i maksima pomiarów pacjenta
  average      wyświetla średnią z tygodnia pomiarowego według wytycznych dotyczących pomiarów domowych
  report       zapisuje raport pacjenta jako PDF
  export-xml   eksportuje wszystkich pacjentów albo jednego jako pliki XML
  export-csv   eksportuje dane i pomiary pacjenta jako plik CSV
  export-fhir  eksportuje wszystkich pacjentów albo jednego jako pliki FHIR dla innych systemów medycznych
  export-table eksportuje pomiary jako tabelę dla arkuszy kalkulacyjnych
  import       wczytuje pacjentów z wyeksportowanych plików XML albo pomiary z tabel
  settings     pokazuje ustawienia albo zmienia niektóre z nich
  backup       wyświetla kopie pliku danych, tworzy kopię albo wraca do wybranej
  privacy      informuje, czy inni mogą odczytać dane, albo odbiera im dostęp

Opcje:
  --simulated-monitor[=FILE]   użyj ciśnieniomierza programowego (opis w FILE lub wbudowany) zamiast USB
  --demonstration              okno z symulowanym ciśnieniomierzem i osobnymi danymi
  --language TAG               język komunikatów i raportów, na przykład pl
  --reset-view                 zapomnij stan okna: położenie, stronę, pacjenta, kolumny, folder
  -h, --help                   pokaż ten tekst; 'zel COMMAND --help' opisuje polecenie
  --version                    pokaż wersję

Kod wyjścia: 0 wykonano, 1 błąd (przyczyna na standardowym wyjściu błędów), 2 nieprawidłowe użycie.</translation></message>
    <message id="CliHelpAverage"><translation>Użycie: zel average --patient ID [--rule esh|nice|aha] [--to DAY]

Wyświetla średnią z pomiarów pacjenta w tygodniu pomiarowym, czyli w siedmiu dniach kończących się podanym
dniem, według reguły z wytycznych: które dni i pomiary się liczą, ile ich potrzeba i jaki jest próg średniej.
Same liczby: co oznaczają dla pacjenta, ocenia lekarz.

  rule        esh: co najmniej 3 dni; pierwszy się nie liczy, z pozostałych co najmniej 12 pomiarów;
              próg 135/85
              nice: co najmniej 4 dni; pierwszy się nie liczy, z pozostałych po 2 pomiary rano
              i 2 wieczorem każdego dnia; próg 135/85
              aha: co najmniej 3 dni i co najmniej 12 pomiarów; próg 130/80
  complete    yes albo no, gdy brakuje dni lub pomiarów; średnia jest wyświetlana mimo to
  missing     czego brakuje
  days        dni z pomiarami, które się liczą
  readings    pomiary, które się liczą
  sys, dia    w mmHg
  pulse       w uderzeniach na minutę
  morning     sys/dia z pomiarów przed południem
  evening     sys/dia z pomiarów od południa
  threshold   reached, gdy sys lub dia jest przed zaokrągleniem na swoim progu lub powyżej

Dni i godziny są według strefy czasowej tego komputera. Wiersz, który nic nie wnosi, jest pomijany. Liczba
pomiarów z tygodnia, które się nie liczą, i zapisanych w innej strefie czasowej trafia na wyjście błędów.

Opcje:
  --patient ID                 czyje pomiary
  --rule RULE                  esh (domyślnie), nice albo aha
  --to DAY                     ostatni dzień tygodnia (yyyy-MM-dd); domyślnie ostatni dzień z pomiarami
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpBackup"><translation>Użycie: zel backup list
        zel backup create
        zel backup restore NAME
        zel backup folder [DIR | --none]

Przed pierwszą zmianą dnia plik danych jest kopiowany do folderu Backups obok niego. Zachowywane są kopie
z ostatnich 14 dni i jedna na miesiąc przez dwa lata, o ile zajmują najwyżej jedną dziesiątą wolnego miejsca
na dysku.

list      wyświetla kopie jako CSV, od najnowszej, i ich zawartość
create    tworzy teraz kolejną kopię i wyświetla 'written: FILE'
restore   wstawia kopię w miejsce pliku danych i wyświetla 'restored: NAME'; poprzednia zawartość zostaje
          zachowana jako kolejna kopia, której nazwę wyświetla ('kept: NAME'); jej przywrócenie cofa tę zmianę
folder    wyświetla drugi folder na kopie, w pamięci USB lub w sieci, jako 'folder: DIR', po ustawieniu go
          na DIR; jego kopie mają na liście pełne nazwy

Opcje:
  --none                       od teraz bez drugiego folderu; kopie w nim pozostają
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpDownload"><translation>Użycie: zel download --patient ID [--any-monitor] [OPTION]...

Pobiera pomiary z ciśnieniomierza, zapisuje te, których jeszcze nie zapisano, i wyświetla, ile pobrano
i ile z nich jest nowych. Postęp trafia na wyjście błędów. Pamięć ciśnieniomierza jest wymazywana tylko
wtedy, gdy tak mówią ustawienia i gdy pomiary są już bezpiecznie zapisane.
Wpisane ręcznie pomiary, które zapisał także ciśnieniomierz, są odtąd pomijane; jeśli takie są, podawana jest
ich liczba jako 'left-out'.

Opcje:
  --patient ID                 pacjent, dla którego mają zostać zapisane
  --any-monitor                pobierz, nawet jeśli ciśnieniomierz ma inne ID niż pacjent
  --wait SECONDS               jak długo czekać na ciśnieniomierz (domyślnie 5)
  --simulated-monitor[=FILE]   użyj ciśnieniomierza programowego: opis w FILE lub wbudowany
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpExportCsv"><translation>Użycie: zel export-csv DIR --patient ID [--force]

Zapisuje dane i pomiary pacjenta jako plik CSV o nazwie utworzonej z jego ID w folderze DIR i wyświetla
'written: FILE'. Daty i miary mają postać określoną w ustawieniach. Plik zawiera wszystkie pomiary; za
ostatnim przecinkiem wiersza stoi 'manual' przy pomiarze wpisanym ręcznie i 'excluded: REASON' przy
pomiarze pominiętym we wszystkich obliczeniach.

Opcje:
  --patient ID                 czyj plik
  --force                      zastąp plik, jeśli już istnieje
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpExportFhir"><translation>Użycie: zel export-fhir DIR [--patient ID] [--rule esh|nice|aha] [--force]

Zapisuje każdego pacjenta, z pomiarami i średnią z ostatniego tygodnia pomiarowego, jako osobny zbiór (bundle)
HL7 FHIR R4 w folderze DIR, dla programów prowadzących dokumentację medyczną, i dla każdego wyświetla wiersz
'written: FILE'. Nazwy plików pochodzą od ID pacjentów. Plik zawiera wszystkie pomiary; pominięty ma stan
'entered-in-error' i podany powód. Komentarzy i adresów w nim nie ma. Plik, którego nie udało się zapisać,
jest podany na wyjściu błędów, a pozostałe są zapisywane.

Opcje:
  --patient ID                 tylko ten pacjent
  --rule esh|nice|aha          reguła średniej; domyślnie esh
  --force                      zastąp istniejące pliki, zamiast pozostawiać je bez zmian
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpExportTable"><translation>Użycie: zel export-table DIR [--patient ID] [--force]
        zel export-table FILE.csv [--patient ID] [--force]

Zapisuje pomiary jako tabelę dla arkuszy kalkulacyjnych: w folderze DIR plik 'ID.table.csv' dla każdego
pacjenta albo w FILE.csv jedną tabelę wszystkich pacjentów. Dla każdej wyświetla 'written: FILE'. Tabela jest
w UTF-8, ma wiersz tytułów i po jednym wierszu na pomiar, w porządku czasowym, z pacjentem, wartościami,
wykrytymi nieprawidłowościami, pochodzeniem pomiaru, informacją, czy i dlaczego go pominięto, oraz komentarzem
do jego dnia. Teksty, które arkusz by obliczał, zaczynają się apostrofem. 'zel import' wczytuje tabelę z powrotem.

Opcje:
  --patient ID                 tylko ten pacjent
  --force                      zastąp istniejące pliki, zamiast pozostawiać je bez zmian
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpExportXml"><translation>Użycie: zel export-xml DIR [--patient ID] [--force]

Zapisuje każdego pacjenta, z pomiarami i komentarzami, jako osobny plik XML w folderze DIR i dla każdego
wyświetla wiersz 'written: FILE'. Nazwy plików pochodzą od ID pacjentów; 'zel import' wczytuje je
z powrotem. Plik, którego nie udało się zapisać, jest podany na wyjściu błędów, a pozostałe są zapisywane.

Opcje:
  --patient ID                 tylko ten pacjent
  --force                      zastąp istniejące pliki, zamiast pozostawiać je bez zmian
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpImport"><translation>Użycie: zel import FILE...
        zel import FILE... --patient ID [--columns LIST] [--dates dmy|mdy|ymd]

Wczytuje z wyeksportowanych plików XML pacjentów wraz z pomiarami i komentarzami albo pacjentów z tabel
zapisanych przez 'zel export-table'. Plik jest przyjmowany w całości albo wcale: nie jest przyjmowany, gdy jeden
z jego pacjentów jest już na liście. Pliki nieprzyjęte są podane z przyczyną na wyjściu błędów, a dla tabeli
każdy błędny wiersz z jego numerem. Wyświetla, ile plików przyjęto i odrzucono oraz ilu pacjentów, ile pomiarów
i komentarzy wczytano, po jednym 'key: value' w wierszu; dla tabeli także, ile pomiarów było już znanych: nie są
powielane.
Wpisane ręcznie pomiary z listy, które w tabeli występują jako pomiary z ciśnieniomierza, są odtąd pomijane i liczone jako
'left-out'.

Z opcją --patient pomiary z tabeli są dodawane do pacjenta z listy. Z opcją --columns jest to tabela z innego
programu, na przykład --columns "date=Data,time=Godzina,sys=Skurczowe,dia=Rozkurczowe,pulse=Tętno", z tytułami
z jej pierwszego wiersza; time pomija się, gdy godzina następuje po dacie. Takie pomiary są traktowane jako
wpisane ręcznie. Kolumny oddzielają przecinki, średniki lub tabulatory. Daty mają postać 2026-11-21, chyba że
--dates podaje kolejność dnia, miesiąca i roku.

Opcje:
  --patient ID                 komu dodać pomiary z tabeli
  --columns LIST               tytuły kolumn innego programu
  --dates dmy|mdy|ymd          jak zapisane są w niej daty
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpMonitor"><translation>Użycie: zel monitor [OPTION]...
        zel monitor --set-clock [OPTION]...
        zel monitor --send-id ID [OPTION]...
        zel monitor --erase --yes [OPTION]...

Wyświetla model podłączonego ciśnieniomierza, wykrywanie arytmii (pad, afib albo none), ID, zegar (albo
'not set') i liczbę pomiarów, po jednym 'key: value' w wierszu. Liczenie pomiarów może potrwać do 20 s. To,
co zmieniono, jest ponownie odczytywane; jeśli zmiana się nie powiodła, polecenie kończy się błędem.

Opcje:
  --set-clock                  ustaw w ciśnieniomierzu czas tego komputera i wyświetl go
  --send-id ID                 zapisz w ciśnieniomierzu ID z 1 do 11 zwykłych znaków i wyświetl je;
                               pomiary w jego pamięci pozostają
  --erase                      usuń wszystkie pomiary z pamięci ciśnieniomierza i wyświetl, ile zostało
  --yes                        potwierdza --erase
  --wait SECONDS               jak długo czekać na ciśnieniomierz (domyślnie 5)
  --simulated-monitor[=FILE]   użyj ciśnieniomierza programowego: opis w FILE lub wbudowany
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpPatients"><translation>Użycie: zel patients
        zel patients --add --id ID --family-name NAME --given-names NAMES

Wyświetla pacjentów jako CSV z nagłówkiem id,family-name,given-names albo dodaje pacjenta.

Opcje:
  --add                        dodaj pacjenta; ID musi być nowe
  --id ID                      ID pacjenta, takie jak w ciśnieniomierzu
  --family-name NAME           nazwisko
  --given-names NAMES          imiona
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpPrivacy"><translation>Użycie: zel privacy [--mend]

Wyświetla, które z następujących plików mogą odczytać inni użytkownicy tego komputera: plik danych, to, co
leży obok niego, i jego kopie; po jednym w wierszu ('readable by others: FILE'), albo 'private'.

Opcje:
  --mend                       odbierz innym dostęp: zmienia uprawnienia tych plików, ich folderu i folderu
                               kopii, i nic więcej
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpReadings"><translation>Użycie: zel readings --patient ID [--from DAY | --last N] [--to DAY] [--am | --pm] [--undated]
                     [--numbers]
        zel readings --patient ID --exclude RECORD --reason TEXT
        zel readings --patient ID --include RECORD
        zel readings --patient ID --add --date DAY --time HH:MM --sys N --dia N --pulse N
        zel readings --patient ID --change RECORD [--date DAY] [--time HH:MM] [--sys N] [--dia N] [--pulse N]
        zel readings --patient ID --delete RECORD

Wyświetla pomiary pacjenta jako CSV, od najstarszego, z nagłówkiem
date,time,sys,dia,pulse,map,pp,mam,arrhythmia. Ciśnienia są w mmHg, tętno w uderzeniach na minutę.
Pomiar zapisany przez ciśnieniomierz bez daty ma zamiast niej n.a i --:--; nie jest wyświetlany, gdy podano
okres, --am lub --pm, chyba że podano też --undated. Dzień bez pomiarów, który obejmuje komentarz, ma wiersz
z datą, a poza nią n.a.; jeśli takich dni jest za dużo, aby podać wszystkie, mówi o tym zdanie na wyjściu
błędów.

Z --exclude, --include, --add, --change lub --delete zmienia natomiast plik danych. Pomiar pominięty zostaje
w pliku i na liście, wraz z powodem, i nigdzie się nie liczy; zdanie na wyjściu błędów mówi, ile
z wyświetlonych pomiarów pominięto. Pomiar wpisany ręcznie jest oznaczony jako manual; ciśnienia i tętno to
liczby całkowite od 30 do 300, ciśnienie rozkurczowe jest niższe od skurczowego, a data i godzina
nie są w przyszłości. --add wyświetla 'record: RECORD'. Zmieniać i usuwać można tylko pomiary wpisane ręcznie.
Z --include pomiar wpisany ręcznie, który liczyłby się dwa razy albo którego nie można by tak wpisać, pozostaje
pominięty. Gdy pomiar z ciśnieniomierza znów się liczy, taki sam wpisany ręcznie jest odtąd pomijany i liczony
jako 'left-out'.

Opcje:
  --patient ID                 czyje pomiary
  --from DAY                   tylko od tego dnia (yyyy-MM-dd)
  --to DAY                     tylko do końca tego dnia (yyyy-MM-dd)
  --last N                     zamiast --from: N dni do dnia --to albo do ostatniego dnia z pomiarem
  --am                         tylko pomiary przed południem
  --pm                         tylko pomiary od południa
  --undated                    także pomiary bez daty
  --numbers                    z dwiema dodatkowymi kolumnami: record, numer pomiaru w pliku danych,
                               i excluded, powód pominięcia (puste: pomiar się liczy)
  --exclude RECORD             pomiń pomiar o tym numerze we wszystkich obliczeniach
  --reason TEXT                dlaczego
  --include RECORD             uwzględnij go ponownie
  --add                        zapisz pomiar wpisany ręcznie
  --change RECORD              zmień pomiar wpisany ręcznie; to, czego nie podano, pozostaje bez zmian
  --delete RECORD              usuń pomiar wpisany ręcznie
  --date DAY                   dzień pomiaru (yyyy-MM-dd)
  --time HH:MM                 godzina, od 00:00 do 23:59
  --sys N                      ciśnienie skurczowe, mmHg
  --dia N                      ciśnienie rozkurczowe, mmHg
  --pulse N                    uderzenia na minutę
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpReport"><translation>Użycie: zel report --patient ID --section KEY[,KEY...] --output FILE.pdf [OPTION]...

Zapisuje raport pacjenta jako PDF, zastępując FILE.pdf, jeśli już istnieje, i wyświetla 'written: FILE.pdf'.
Wartości pomiarów równe granicom wybranym w oknie lub wyższe (135/85, jeśli nie wybrano) są oznaczone.

Sekcje:
  summary                      strona dla lekarza: średnie, trend, ostatnie dni, komentarze, co pominięto
  graph                        wykres ciśnienia krwi i tętna
  PatientProfile               dane pacjenta i notatki
  histogram                    rozkład wartości
  correlation                  ciśnienie skurczowe a rozkurczowe
  trend                        mediany i pasma według dni, tygodni lub miesięcy
  table                        pomiary
  comment                      komentarze
  SWStatistics                 średnie, granice i pomiary
  all                          wszystkie, w tej kolejności

Opcje:
  --patient ID                 czyj raport
  --section KEY[,KEY...]       co wydrukować, w podanej kolejności
  --from yyyy-MM-dd            pierwszy dzień okresu raportu (domyślnie dzień pierwszego pomiaru)
  --to yyyy-MM-dd              ostatni dzień okresu (domyślnie dzień ostatniego pomiaru)
  --last N                     zamiast --from: N dni do dnia --to albo do ostatniego dnia z pomiarem
  --am                         tylko pomiary przed południem (statystyka i podsumowanie obejmują wszystkie)
  --pm                         tylko pomiary od południa (tak samo)
  --apart                      trend ma osobne linie dla pomiarów rano i wieczorem
  --rule esh|nice|aha          jak podsumowanie liczy średnią z tygodnia pomiarowego, który kończy ostatni
                               dzień okresu z pomiarami; domyślnie esh. Opis: 'zel average --help'
  --practitioner               drukuj dane lekarza z ustawień u dołu strony, a w podsumowaniu
                               u góry
  --paper A4|Letter            papier; zwykle według LC_PAPER lub LANG
  --output FILE.pdf            plik do zapisania
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpSettings"><translation>Użycie: zel settings
        zel settings --set KEY=VALUE [--set KEY=VALUE]...

Wyświetla ustawienia, po jednym 'key: value' w wierszu, albo zmienia niektóre z nich i wyświetla zmienione.
Jeśli jedna z wartości zostanie odrzucona, nie zmienia się żadne. W tekstach \n oznacza koniec wiersza, a \\
lewy ukośnik.

  DateFormat                   dd mm yyyy, mm dd yyyy albo yyyy mm dd
  TimeFormat                   12-hours albo 24-hours
  MetricFormat                 kg / cm albo lb / in
  EraseRecAfterReading         1: wymazuj pamięć ciśnieniomierza po bezpiecznie zapisanym pobraniu; inaczej 0
  ShowPPorMap                  0: pokazuj ciśnienie tętna; 1: pokazuj średnie ciśnienie tętnicze
  UserWhoStandard              1: okno ustawień pokazuje granice jako granice WHO; inaczej 0
  SysStandard                  granica skurczowa, 0 (brak) albo od 60 do 260 mmHg
  DiaStandard                  granica rozkurczowa, 0 (brak) albo od 30 do 160 mmHg, niższa od skurczowej
  PhysicianAddress             dane lekarza na drukowanych raportach

Opcje:
  --set KEY=VALUE              zmień ustawienie; można podać kilka razy
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliHelpStatistics"><translation>Użycie: zel statistics --patient ID [--from DAY | --last N] [--to DAY] [--undated]

Wyświetla średnią, minimum i maksimum pomiarów pacjenta, po jednej mierze w wierszu:
'sys: AVERAGE MIN MAX', potem dia, pulse i zależnie od ustawień map albo pp. Ciśnienia są w mmHg, tętno
w uderzeniach na minutę. Gdy nie ma pomiarów, zamiast każdej wartości jest n/a. Gdy pomiary pominięto, na
wyjście błędów trafia, ile się liczy, a ile i z jakiego powodu się nie liczy.

Opcje:
  --patient ID                 czyje pomiary
  --from DAY                   tylko od tego dnia (yyyy-MM-dd)
  --to DAY                     tylko do końca tego dnia (yyyy-MM-dd)
  --last N                     zamiast --from: N dni do dnia --to albo do ostatniego dnia z pomiarem
  --undated                    także pomiary bez daty
  --simulated-monitor[=FILE]   przyjmowane jak wszędzie; to polecenie nie wymaga ciśnieniomierza
  -h, --help                   pokaż ten tekst</translation></message>
    <message id="CliIDDoesNotFit"><translation>Ciśnieniomierz nie może przechować ID „%1”: wymaga od 1 do 11 zwykłych znaków (ASCII) bez spacji na końcach.</translation></message>
    <message id="CliIDUnread"><translation>Nie udało się odczytać ID ciśnieniomierza. %1</translation></message>
    <message id="CliIDUnsent"><translation>Nie udało się zapisać ID w ciśnieniomierzu. %1</translation></message>
    <message id="CliLastAndFrom"><translation>Proszę podać --from albo --last, nie obie opcje.</translation></message>
    <message id="CliMonitorChanged"><translation>Połączenie zostało przerwane, a pomiary, które potem nadeszły, mogą pochodzić z innego ciśnieniomierza niż odpytywany. Niczego nie zapisano; proszę spróbować ponownie.</translation></message>
    <message id="CliMonitorDenied"><translation>%1 Odczyt wymaga uprawnień: proszę zainstalować packaging/70-zel.rules w /etc/udev/rules.d, wykonać „udevadm control --reload” i ponownie podłączyć ciśnieniomierz.</translation></message>
    <message id="CliMonitorSilent"><translation>Ciśnieniomierz jest podłączony, ale nie odpowiedział w ciągu %1 s. %2</translation></message>
    <message id="CliMonitorWithoutID"><translation>Ciśnieniomierz nie ma ID, dlatego jego pomiary mogą nie należeć do pacjenta „%1”. Proszę zapisać w nim ID poleceniem „zel monitor --send-id” albo użyć --any-monitor, aby mimo to je pobrać.</translation></message>
    <message id="CliNoCommand"><translation>Brakuje polecenia.</translation></message>
    <message id="CliNoFolder"><translation>Nie ma folderu „%1”.</translation></message>
    <message id="CliNoHome"><translation>Zmienna środowiskowa HOME nie jest ustawiona, dlatego nie wiadomo, gdzie szukać pliku danych.</translation></message>
    <message id="CliNoLineInTable" numerus="yes"><translation><numerusform>%n pacjent nie ma wiersza w tabeli: nie ma zapisanych jego pomiarów, tak jak u każdego bez ID.</numerusform><numerusform>%n pacjentów nie ma wierszy w tabeli: nie ma zapisanych ich pomiarów, tak jak u każdego bez ID.</numerusform><numerusform>%n pacjentów nie ma wierszy w tabeli: nie ma zapisanych ich pomiarów, tak jak u każdego bez ID.</numerusform></translation></message>
    <message id="CliNoMonitor"><translation>Nie znaleziono ciśnieniomierza w ciągu %1 s. Proszę podłączyć go przewodem USB albo wydłużyć czas oczekiwania opcją --wait.</translation></message>
    <message id="CliNoSuchPatient"><translation>Nie ma pacjenta o ID „%1”. Listę wyświetla „zel patients”.</translation></message>
    <message id="CliNoSuchReading"><translation>pacjent nie ma pomiaru o numerze %1 (numery wyświetla zel readings --numbers)</translation></message>
    <message id="CliNoSuchRule"><translation>Nie ma reguły „%1”. Dostępne reguły: %2.</translation></message>
    <message id="CliNoSuchSection"><translation>Nie ma sekcji „%1”. Sekcje to all albo dowolne z następujących, rozdzielone przecinkami: %2.</translation></message>
    <message id="CliNoTable"><translation>%1: opcja --patient dotyczy tabel z pomiarami; ten plik nią nie jest albo nie można go odczytać. Niczego z niego nie przyjęto.</translation></message>
    <message id="CliNotExcluded"><translation>pomiar %1 nie jest pominięty</translation></message>
    <message id="CliNotTogether"><translation>opcji --%1 i --%2 nie można łączyć</translation></message>
    <message id="CliOneJob"><translation>Opcji --set-clock, --send-id i --erase można użyć tylko pojedynczo.</translation></message>
    <message id="CliOptionMissing"><translation>Brakuje --%1 albo wartość tej opcji jest pusta.</translation></message>
    <message id="CliOptionTwice"><translation>--%1 podano więcej niż raz.</translation></message>
    <message id="CliOtherMonitor"><translation>Ciśnieniomierz ma ID „%1”, a nie „%2”, dlatego jego pomiary mogą należeć do innego pacjenta. Aby mimo to je pobrać, należy użyć --any-monitor.</translation></message>
    <message id="CliOtherZone" numerus="yes"><translation><numerusform>%n pomiar z tygodnia zapisano w innej strefie czasowej; dzień i godzina są według tego komputera.</numerusform><numerusform>%n pomiary z tygodnia zapisano w innej strefie czasowej; dni i godziny są według tego komputera.</numerusform><numerusform>%n pomiarów z tygodnia zapisano w innej strefie czasowej; dni i godziny są według tego komputera.</numerusform></translation></message>
    <message id="CliOutputFailed"><translation>Nie udało się zapisać danych wyjściowych.</translation></message>
    <message id="CliPatientKnown"><translation>Pacjent o ID „%1” już istnieje.</translation></message>
    <message id="CliPlanWithoutFile"><translation>--simulated-monitor= wymaga po sobie nazwy pliku; sama opcja, bez „=”, oznacza wbudowany ciśnieniomierz.</translation></message>
    <message id="CliProgress"><translation>Odebrano %1 z %2 pomiarów</translation></message>
    <message id="CliReadableByOthers"><translation>Inni użytkownicy tego komputera mogą odczytać %1. Polecenie „zel privacy --mend” odbiera im dostęp.</translation></message>
    <message id="CliReadingJobMissing"><translation>--reason wymaga --exclude; --date, --time, --sys, --dia i --pulse wymagają --add lub --change</translation></message>
    <message id="CliReadingNotUnique"><translation>kilka pomiarów ma numer %1; nie wiadomo, o który chodzi</translation></message>
    <message id="CliReadingsExcluded" numerus="yes"><translation><numerusform>%n z tych pomiarów został pominięty i nigdzie się nie liczy; --numbers pokazuje, który i dlaczego</numerusform><numerusform>%n z tych pomiarów zostały pominięte i nigdzie się nie liczą; --numbers pokazuje, które i dlaczego</numerusform><numerusform>%n z tych pomiarów zostało pominiętych i nigdzie się nie liczy; --numbers pokazuje, które i dlaczego</numerusform></translation></message>
    <message id="CliSameIDLeftOut" numerus="yes"><translation><numerusform>Pominięto %n pacjenta: inny na liście ma ten sam ID albo też go nie ma. Aby dało się ich odróżnić, każdy pacjent musi mieć własny ID.</numerusform><numerusform>Pominięto %n pacjentów: inni na liście mają te same ID albo też ich nie mają. Aby dało się ich odróżnić, każdy pacjent musi mieć własny ID.</numerusform><numerusform>Pominięto %n pacjentów: inni na liście mają te same ID albo też ich nie mają. Aby dało się ich odróżnić, każdy pacjent musi mieć własny ID.</numerusform></translation></message>
    <message id="CliSettingForm"><translation>--set wymaga postaci KEY=VALUE, podano „%1”.</translation></message>
    <message id="CliSettingNotKept"><translation>W pliku danych nie ma miejsca na ustawienie %1, dlatego niczego nie zmieniono.</translation></message>
    <message id="CliSettingTwice"><translation>Ustawienie %1 podano więcej niż raz.</translation></message>
    <message id="CliSettingUnknown"><translation>Nie ma ustawienia „%1”. Dostępne ustawienia: %2.</translation></message>
    <message id="CliSettingValue"><translation>%1 – dozwolone: %2; podano „%3”.</translation></message>
    <message id="CliTableAssumed" numerus="yes"><translation><numerusform>Tabela nie podaje płci, palenia tytoniu ani cukrzycy: %n nowy pacjent jest zapisany jako kobieta, osoba niepaląca i bez cukrzycy. Proszę to sprawdzić.</numerusform><numerusform>Tabela nie podaje płci, palenia tytoniu ani cukrzycy: %n nowi pacjenci są zapisani jako kobiety, osoby niepalące i bez cukrzycy. Proszę to sprawdzić.</numerusform><numerusform>Tabela nie podaje płci, palenia tytoniu ani cukrzycy: %n nowych pacjentów zapisano jako kobiety, osoby niepalące i bez cukrzycy. Proszę to sprawdzić.</numerusform></translation></message>
    <message id="CliTableKnown"><translation>Opcja --patient ID dodaje pomiary z tabeli do pacjenta, który jest na liście.</translation></message>
    <message id="CliTryHelp"><translation>Więcej informacji: „%1”.</translation></message>
    <message id="CliTypedLeftOut" numerus="yes"><translation><numerusform>%n pomiar wpisany ręcznie odtąd nigdzie się nie liczy: tabela zawiera ten sam pomiar z ciśnieniomierza.</numerusform><numerusform>%n pomiary wpisane ręcznie odtąd nigdzie się nie liczą: tabela zawiera te same pomiary z ciśnieniomierza.</numerusform><numerusform>%n pomiarów wpisanych ręcznie odtąd nigdzie się nie liczy: tabela zawiera te same pomiary z ciśnieniomierza.</numerusform></translation></message>
    <message id="CliUnexpectedWord"><translation>Nieoczekiwane słowo „%1”.</translation></message>
    <message id="CliUnknownCommand"><translation>Nie ma polecenia „%1”.</translation></message>
    <message id="CliUnmeasured" numerus="yes"><translation><numerusform>%n pomiar bez wartości ciśnienia się nie liczy.</numerusform><numerusform>%n pomiary bez wartości ciśnienia się nie liczą.</numerusform><numerusform>%n pomiarów bez wartości ciśnienia się nie liczy.</numerusform></translation></message>
    <message id="CliWaiting"><translation>Oczekiwanie na ciśnieniomierz, jeszcze najwyżej %1 s. Ctrl-C anuluje.</translation></message>
    <message id="CliWeekToCome"><translation>Tydzień kończy się %1, w dniu, który dopiero nadejdzie.</translation></message>
    <message id="CliYesAlone"><translation>--yes wymaga --erase.</translation></message>
</context>
</TS>
