<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<!-- Every text of the program by its key; code asks for them with qtTrId("key"). Sorted by key in each context. -->
<context>
    <name>store</name>
    <message id="%1 A"><translation>%1 AM</translation></message>
    <message id="%1 P"><translation>%1 PM</translation></message>
    <message id=", "><translation>, </translation></message>
    <message id="; "><translation>; </translation></message>
    <message id="BackupLast"><translation>%1, %2, l’ultima del %3</translation></message>
    <message id="BackupPatients" numerus="yes"><translation><numerusform>%n paziente</numerusform><numerusform>%n pazienti</numerusform></translation></message>
    <message id="BackupReadings" numerus="yes"><translation><numerusform>%n misurazione</numerusform><numerusform>%n misurazioni</numerusform></translation></message>
    <message id="ExcludedAsMeasured"><translation>presente anche nel misuratore</translation></message>
    <message id="ExcludedWithoutReason"><translation>nessun motivo indicato</translation></message>
    <message id="ExportAlreadyExists"><translation>Esiste già un file %1. È stato lasciato com’era.</translation></message>
    <message id="ExportIsDataFile"><translation>Il file %1 è proprio il file dei dati, che nessuna esportazione può sostituire. Scegliere un’altra cartella.</translation></message>
    <message id="ExportNotFlushed"><translation>%1 è stato scritto, ma il disco non ne ha confermato la registrazione definitiva: dopo un’interruzione di corrente potrebbe mancare. Controllare il disco.</translation></message>
    <message id="ExportNotWritten"><translation>Impossibile scrivere il file %1. Controllare che la cartella esista, che sia consentito scrivervi e che il disco non sia pieno.</translation></message>
    <message id="ExportSameFileName"><translation>Il file %1 non è stato scritto: per questo disco il nome coincide con quello del file appena scritto per il paziente indicato sotto. Esportare su un disco che distingua le maiuscole dalle minuscole.</translation></message>
    <message id="Female"><translation>Femmina</translation></message>
    <message id="fullName"><translation>%1 %2</translation></message>
    <message id="ImportAlreadyKnown"><translation>%1: un paziente con l’ID “%2” è già nell’elenco. I pazienti non vengono mai sovrascritti, perciò dal file non è stato importato nulla.</translation></message>
    <message id="ImportBadID"><translation>%1: l’ID “%2” nel file contiene un ritorno a capo o un altro carattere di controllo, con cui non sarebbe possibile salvarlo né inviarlo a un misuratore. Dal file non è stato importato nulla.</translation></message>
    <message id="ImportBadLines"><translation>%1: alcune righe della tabella non possono essere importate. Non è stato importato nulla.</translation></message>
    <message id="ImportMissingColumn"><translation>%1: la tabella non ha una colonna “%2”, oppure ne ha più di una. Non è stato importato nulla.</translation></message>
    <message id="ImportNoFile"><translation>Non è un file normale.</translation></message>
    <message id="ImportNoID"><translation>%1: un paziente nel file è privo di ID. Dal file non è stato importato nulla.</translation></message>
    <message id="ImportNoPatient"><translation>%1: il file non contiene pazienti. Non è stato importato nulla.</translation></message>
    <message id="ImportNoReading"><translation>%1: la tabella non contiene misurazioni. Non è stato importato nulla.</translation></message>
    <message id="ImportNoSuchPatient"><translation>%1: nell’elenco non c’è più un paziente con l’ID “%2”. Dal file non è stato importato nulla.</translation></message>
    <message id="ImportNotFlushed"><translation>%1: tutto il contenuto è stato registrato, ma il disco non lo ha confermato: dopo un’interruzione di corrente potrebbe mancare.</translation></message>
    <message id="ImportNotReadable"><translation>%1: il file non è leggibile o non è stato esportato da questo programma. Non è stato importato nulla.</translation></message>
    <message id="ImportNotStored"><translation>%1: impossibile registrare il contenuto del file. Non è stato importato nulla.</translation></message>
    <message id="ImportOtherNames"><translation>%1: il paziente con l’ID “%2” ha nell’elenco un nome diverso da quello nella tabella; le misurazioni potrebbero essere di un’altra persona. Dal file non è stato importato nulla. Per importarle comunque, svuotare le celle dei nomi.</translation></message>
    <message id="ImportSameIDTwice"><translation>%1: due pazienti nel file hanno lo stesso ID, “%2”. Dal file non è stato importato nulla.</translation></message>
    <message id="ImportTooLarge"><translation>%1: il file supera i 512 MiB. Non è stato importato nulla.</translation></message>
    <message id="ImportTooManyLines"><translation>%1: la tabella ha più di 200.000 righe. Non è stato importato nulla.</translation></message>
    <message id="LanguageMissing"><translation>--language richiede una lingua, tra %1</translation></message>
    <message id="languageTag"><translation>it</translation></message>
    <message id="LanguageTwice"><translation>--language si può indicare una sola volta</translation></message>
    <message id="LanguageUnknown"><translation>non esiste una lingua “%1”; le lingue sono %2</translation></message>
    <message id="LanguageUnread"><translation>La scelta della lingua nel file %1 non è leggibile. Finché non se ne sceglie un’altra nelle impostazioni, vale la lingua del sistema.</translation></message>
    <message id="LimitDiastolic"><translation>Limite diastolico ammesso: %1.</translation></message>
    <message id="LimitOrder"><translation>Il limite diastolico deve essere inferiore a quello sistolico.</translation></message>
    <message id="LimitSystolic"><translation>Limite sistolico ammesso: %1.</translation></message>
    <message id="Male"><translation>Maschio</translation></message>
    <message id="ManualDia"><translation>La pressione diastolica deve essere un numero da %1 a %2.</translation></message>
    <message id="ManualDiaNotBelowSys"><translation>La pressione diastolica deve essere inferiore alla sistolica.</translation></message>
    <message id="ManualInFuture"><translation>La data e l’ora sono nel futuro.</translation></message>
    <message id="ManualNoDate"><translation>Questa data con quest’ora non esiste. (Quando entra l’ora legale un’ora viene saltata, e il 1º gennaio 2000 vale come data mancante.)</translation></message>
    <message id="ManualPulse"><translation>La frequenza del polso deve essere un numero da %1 a %2.</translation></message>
    <message id="ManualSys"><translation>La pressione sistolica deve essere un numero da %1 a %2.</translation></message>
    <message id="ManualTooEarly"><translation>La data è anteriore al 1900.</translation></message>
    <message id="n.a"><translation>n.a</translation></message>
    <message id="N/A"><translation>N/A</translation></message>
    <message id="NotBackedUp"><translation>Prima di questa modifica non è stato possibile creare una copia del file dei dati in %1. %2</translation></message>
    <message id="remarkExcluded"><translation>esclusa: %1</translation></message>
    <message id="remarkManual"><translation>manuale</translation></message>
    <message id="SecondFolderAway"><translation>La seconda cartella per le copie del file dei dati, %1, non è disponibile, perciò non contiene la copia di oggi. La copia verrà aggiunta con la prima modifica dopo che la cartella sarà di nuovo disponibile.</translation></message>
    <message id="SecondFolderBroken"><translation>Impossibile leggere da %1 qual è la seconda cartella per le copie del file dei dati, perciò le copie non vanno in nessuna seconda cartella. Sceglierla di nuovo.</translation></message>
    <message id="SecondFolderFailed"><translation>Impossibile scrivere la copia di oggi del file dei dati nella seconda cartella, %1.</translation></message>
    <message id="SecondFolderNoRoom"><translation>La copia di oggi del file dei dati non è nella seconda cartella, %1: tutte le copie insieme possono occupare al massimo un decimo dello spazio libero di quel disco, meno di quanto occupa il file.</translation></message>
    <message id="SecondFolderNotFlushed"><translation>La copia di oggi del file dei dati è stata scritta nella seconda cartella, %1, ma il disco non ne ha confermato la registrazione definitiva: dopo un’interruzione di corrente potrebbe mancare.</translation></message>
    <message id="SecondFolderNotRecorded"><translation>Impossibile annotare in %1 la seconda cartella per le copie. Non è stato modificato nulla.</translation></message>
    <message id="SettingLimit"><translation>0 per nessun limite oppure un numero intero da %1 a %2</translation></message>
    <message id="SettingOneOf"><translation>uno di questi valori: %1</translation></message>
    <message id="SettingQuoted"><translation>“%1”</translation></message>
    <message id="SettingText"><translation>qualsiasi testo senza caratteri di controllo</translation></message>
    <message id="stepAddComment"><translation>nuovo commento per %1</translation></message>
    <message id="stepAddPatient"><translation>nuovo paziente %1</translation></message>
    <message id="stepAddReading"><translation>nuova misurazione di %1</translation></message>
    <message id="stepDeleteComment"><translation>eliminazione di un commento per %1</translation></message>
    <message id="stepDeletePatient"><translation>eliminazione del paziente %1</translation></message>
    <message id="stepDeleteReadings" numerus="yes"><translation><numerusform>eliminazione di %n misurazione di %1</numerusform><numerusform>eliminazione di %n misurazioni di %1</numerusform></translation></message>
    <message id="stepEditComment"><translation>modifica di un commento per %1</translation></message>
    <message id="stepEditPatient"><translation>modifica del paziente %1</translation></message>
    <message id="stepEditReading"><translation>modifica di una misurazione di %1</translation></message>
    <message id="stepExcludeReadings" numerus="yes"><translation><numerusform>esclusione di %n misurazione di %1</numerusform><numerusform>esclusione di %n misurazioni di %1</numerusform></translation></message>
    <message id="stepImport"><translation>importazione di %1</translation></message>
    <message id="stepIncludeReadings" numerus="yes"><translation><numerusform>inclusione di %n misurazione di %1</numerusform><numerusform>inclusione di %n misurazioni di %1</numerusform></translation></message>
    <message id="stepSettings"><translation>modifica delle impostazioni</translation></message>
    <message id="stillLeftOutRefused" numerus="yes"><translation><numerusform>%n misurazione inserita a mano resta esclusa. %1</numerusform><numerusform>%n misurazioni inserite a mano restano escluse. %1</numerusform></translation></message>
    <message id="stillLeftOutTwice" numerus="yes"><translation><numerusform>%n misurazione inserita a mano resta esclusa: ne conta già una dello stesso minuto con gli stessi valori.</numerusform><numerusform>%n misurazioni inserite a mano restano escluse: ne contano già altre degli stessi minuti con gli stessi valori.</numerusform></translation></message>
    <message id="StoreAlreadyKnown"><translation>Un paziente con l’ID “%1” è già nell’elenco. Non è stato modificato nulla.</translation></message>
    <message id="StoreBusy"><translation>Un altro programma sta usando il file dei dati %1, su questo computer o su un altro che lo condivide. Non è stato modificato nulla; riprovare tra un momento, o tra qualche minuto se quel computer si è scollegato dalla rete.</translation></message>
    <message id="StoreChangedElsewhere"><translation>Nel frattempo un altro programma ha modificato questi dati. Qui non è stato modificato nulla; controllare come sono adesso.</translation></message>
    <message id="StoreDiskFull"><translation>Il disco è pieno: impossibile scrivere %1. Il contenuto precedente è rimasto com’era. Liberare spazio sul disco e riprovare.</translation></message>
    <message id="StoreInvalidRecord"><translation>Ogni paziente deve avere un proprio ID; “%1” non è un ID valido. Non è stato modificato nulla.</translation></message>
    <message id="StoreLockBlocked"><translation>%1 occupa il posto in cui i programmi annotano che stanno usando il file dei dati, ma non è un’annotazione di questo tipo. Non è stato modificato nulla; spostarlo altrove e riprovare.</translation></message>
    <message id="StoreNoPermissions"><translation>Altri utenti di questo computer possono ancora leggere %1: questo file system non gestisce i permessi. Conservare i dati su un altro disco.</translation></message>
    <message id="StoreNoReason"><translation>Per escludere una misurazione occorre indicare un motivo. Non è stato modificato nulla.</translation></message>
    <message id="StoreNoRoomForBackup"><translation>In %1 non viene conservata alcuna copia del file dei dati: tutte le copie insieme possono occupare al massimo un decimo dello spazio libero del disco, meno di quanto occupa il file.</translation></message>
    <message id="StoreNoStep"><translation>Non c’è nulla da annullare o ripetere.</translation></message>
    <message id="StoreNoSuchBackup"><translation>Non esiste una copia del file dei dati con il nome “%1”.</translation></message>
    <message id="StoreNoSuchRecord"><translation>Non esiste un paziente con l’ID “%1”.</translation></message>
    <message id="StoreNotCreated"><translation>Il file dei dati non esiste ancora e non è stato possibile creare %1. Controllare che nella sua cartella sia consentito scrivere e che il disco non sia pieno, poi riavviare il programma.</translation></message>
    <message id="StoreNotFlushed"><translation>%1 è stato scritto, ma il disco non ne ha confermato la registrazione definitiva: dopo un’interruzione di corrente potrebbe ricomparire il contenuto precedente. Controllare il disco; le misurazioni del misuratore restano nella sua memoria.</translation></message>
    <message id="StoreNotMadePrivate"><translation>Altri utenti di questo computer possono ancora leggere %1: impossibile cambiarne i permessi.</translation></message>
    <message id="StoreNotManual"><translation>Le misurazioni provenienti da un misuratore non si modificano e non si eliminano; si possono escludere, indicando un motivo. Non è stato modificato nulla.</translation></message>
    <message id="StoreNotParsed"><translation>Il file dei dati %1 è danneggiato o non è un file dei dati di questo programma. Resta com’è, e non si può salvare nulla finché non torna leggibile: ripararlo, sostituirlo con una copia o spostarlo altrove per iniziare con uno nuovo.</translation></message>
    <message id="StoreNotReadable"><translation>Impossibile leggere il file dei dati %1. Resta com’è, e non si può salvare nulla finché non torna leggibile.</translation></message>
    <message id="StoreNotWritable"><translation>Impossibile scrivere il file dei dati %1. Non è stato modificato nulla; controllare i permessi del file e della sua cartella.</translation></message>
    <message id="StoreQuotaReached"><translation>Su questo disco non è consentito salvare altro (la quota è esaurita): impossibile scrivere %1. Il contenuto precedente è rimasto com’era. Eliminare ciò che non serve o richiedere più spazio, poi riprovare.</translation></message>
    <message id="StoreReadFailed"><translation>Impossibile leggere il file dei dati %1: il disco segnala un errore. Il file resta com’è, e non si può salvare nulla finché non torna leggibile. Far controllare il disco.</translation></message>
    <message id="StoreReadingGone"><translation>La misurazione non esiste più. Non è stato modificato nulla.</translation></message>
    <message id="StoreReadingKnown"><translation>Esiste già una misurazione dello stesso minuto con questi valori. Non è stato modificato nulla.</translation></message>
    <message id="StoreReadingRefused"><translation>La misurazione non è stata registrata.</translation></message>
    <message id="StoreSizeLimit"><translation>Qui i file non possono diventare così grandi: impossibile scrivere %1. Il contenuto precedente è rimasto com’era. Chiedere a chi gestisce questo computer qual è il limite per la dimensione dei file.</translation></message>
    <message id="StoreStepChanged"><translation>Nel frattempo gli stessi dati sono stati modificati di nuovo, da un altro programma o a mano. Non è stato modificato nulla.</translation></message>
    <message id="StoreStepGone"><translation>I dati interessati non sono più nel file dei dati. Non è stato modificato nulla.</translation></message>
    <message id="StoreStepHasRecords"><translation>Nel frattempo il paziente con l’ID “%1” ha ricevuto misurazioni o commenti, che resterebbero senza paziente. Non è stato modificato nulla.</translation></message>
    <message id="StoreStepPatientGone"><translation>Il paziente con l’ID “%1”, a cui appartiene il commento, non è più nel file dei dati. Non è stato modificato nulla.</translation></message>
    <message id="StoreStepPatientKnown"><translation>Nel frattempo un paziente con l’ID “%1” è stato aggiunto all’elenco. Non è stato modificato nulla.</translation></message>
    <message id="StoreStepThere"><translation>Ciò che verrebbe ripristinato è già di nuovo nel file dei dati. Non è stato modificato nulla.</translation></message>
    <message id="StoreTooLarge"><translation>Il file dei dati %1 supera i 512 MiB, e questo programma non lo legge. Resta com’è, e non si può salvare nulla: sostituirlo con una copia più piccola o spostarlo altrove per iniziare con uno nuovo.</translation></message>
    <message id="StoreUnreadable"><translation>Il file dei dati %1 è rimasto com’era: ciò che si doveva salvare non sarebbe poi stato leggibile.</translation></message>
    <message id="StoreWriteFailed"><translation>La scrittura del file dei dati %1 non è riuscita, e il file è rimasto com’era. Controllare che il disco non sia pieno e riprovare.</translation></message>
    <message id="TableCell"><translation>“%1” non è ammesso nella colonna “%2”.</translation></message>
    <message id="TableCells"><translation>Ha %1 celle, mentre la riga dei titoli ne ha %2.</translation></message>
    <message id="TableDateOrder"><translation>“%1” non è scritto come 2026-11-21. Indicare con --dates l’ordine di giorno, mese e anno: dmy, mdy o ymd.</translation></message>
    <message id="TableLine"><translation>Riga %1: %2</translation></message>
    <message id="TableMeanPressure"><translation>Una pressione arteriosa media di %1 non è compatibile con %2/%3: le colonne sono assegnate correttamente?</translation></message>
    <message id="TableMoreLines" numerus="yes"><translation><numerusform>… e %n altra riga</numerusform><numerusform>… e altre %n righe</numerusform></translation></message>
    <message id="TableNoTime"><translation>“%1” non è una data con anno a quattro cifre seguita dall’ora.</translation></message>
    <message id="TableNotUtf8"><translation>Il suo testo non è UTF-8. Salvarlo come “CSV UTF-8” nel programma da cui proviene.</translation></message>
    <message id="TableOtherNames"><translation>Il paziente “%1” ha un nome diverso in una riga precedente.</translation></message>
    <message id="TableOtherPatient"><translation>La misurazione è del paziente “%1”, non di “%2”.</translation></message>
    <message id="TablePulsePressure"><translation>Una pressione differenziale di %1 non è compatibile con %2/%3: le colonne sono assegnate correttamente?</translation></message>
    <message id="TableQuotation"><translation>Alla fine della cella mancano le virgolette di chiusura.</translation></message>
    <message id="takenInTypedLeftOut" numerus="yes"><translation><numerusform>%n misurazione inserita a mano è esclusa da ora in poi (presente anche nel misuratore).</numerusform><numerusform>%n misurazioni inserite a mano sono escluse da ora in poi (presenti anche nel misuratore).</numerusform></translation></message>
    <message id="ViewLimitsUnread"><translation>Impossibile leggere %1, che indica a partire da quali limiti i valori vengono evidenziati. Finché non si scelgono nuovi limiti, i valori vengono evidenziati da %2/%3 mmHg in su.</translation></message>
    <message id="Warning"><translation>Avviso</translation></message>
    <message id="XmlAttributeTwice"><translation>Un elemento ha due volte lo stesso attributo.</translation></message>
    <message id="XmlBytesNotInEncoding"><translation>Contiene byte estranei alla sua codifica, %1.</translation></message>
    <message id="XmlControlCharacter"><translation>Contiene un carattere di controllo, non ammesso in un file di questo tipo.</translation></message>
    <message id="XmlEncodingUnknown"><translation>La sua codifica, %1, è sconosciuta.</translation></message>
    <message id="XmlEntityNotTaken"><translation>Contiene un riferimento a un’entità o a un carattere non ammesso; lo sono solo le cinque entità proprie di XML e i suoi caratteri.</translation></message>
    <message id="XmlErrorNearLine"><translation>Vicino alla riga %1: %2</translation></message>
    <message id="XmlMisplacedDeclaration"><translation>Una dichiarazione si trova dove non è ammessa.</translation></message>
    <message id="XmlNoRoot"><translation>Non contiene alcun elemento.</translation></message>
    <message id="XmlNotWritable"><translation>Non è consentito scrivere il file dei dati: le modifiche e le misurazioni scaricate non si possono salvare. Controllare i permessi del file e della sua cartella.</translation></message>
    <message id="XmlSeveralRoots"><translation>Contiene più di un elemento radice.</translation></message>
    <message id="XmlTextOutsideRoot"><translation>Contiene testo al di fuori dell’elemento radice.</translation></message>
    <message id="XmlTooDeep"><translation>Gli elementi sono annidati per più di %1 livelli.</translation></message>
    <message id="XmlTooLarge"><translation>Supererebbe i 512 MiB.</translation></message>
    <message id="XmlTooManyParts"><translation>Contiene più di %1 elementi, attributi e testi, troppi per un file della sua dimensione.</translation></message>
    <message id="XmlTooManyRecords"><translation>Contiene più di %1 registrazioni, troppe per un file della sua dimensione.</translation></message>
    <message id="XmlWrongRoot"><translation>L’elemento radice è “%1”, non “ZEL”.</translation></message>
</context>
<context>
    <name>monitor</name>
    <message id="monitorAccessDenied"><translation>Un misuratore è collegato, ma questo programma non può usarlo: lo sta usando un altro programma oppure manca il permesso per il dispositivo USB.</translation></message>
    <message id="monitorBadCheckField"><translation>La risposta del misuratore è arrivata danneggiata e non è stata usata. Riprovare.</translation></message>
    <message id="monitorBadFixedContent"><translation>La risposta del misuratore non è comprensibile e non è stata usata. Riprovare.</translation></message>
    <message id="monitorClockNotSet"><translation>L’orologio del misuratore non è impostato.</translation></message>
    <message id="monitorInterrupted"><translation>La comunicazione con il misuratore è stata interrotta prima della fine.</translation></message>
    <message id="monitorNoAcknowledgement"><translation>Il misuratore non ha accettato il comando. Spegnerlo, riaccenderlo e riprovare.</translation></message>
    <message id="monitorNoDevice"><translation>Nessun misuratore collegato. Collegarlo e riprovare.</translation></message>
    <message id="monitorNotTaken"><translation>Il misuratore ha confermato, ma contiene ancora un valore diverso. Riprovare.</translation></message>
    <message id="monitorReadFailed"><translation>Il collegamento con il misuratore si è interrotto. Controllare il cavo e riprovare.</translation></message>
    <message id="monitorSuccess"><translation>Il misuratore ha eseguito la richiesta.</translation></message>
    <message id="monitorTimeOut"><translation>Il misuratore non ha risposto in tempo. Controllare che sia acceso e riprovare.</translation></message>
    <message id="monitorUnconfirmed"><translation>I dati sono stati inviati al misuratore, ma non è stato possibile leggere che cosa contiene ora. Controllare prima di riprovare.</translation></message>
    <message id="monitorUnfitID"><translation>Il misuratore non può memorizzare questo ID, perciò non è stato inviato nulla. Un ID per il misuratore ha da 1 a 11 lettere, cifre o segni, senza accenti.</translation></message>
    <message id="monitorWriteFailed"><translation>Il misuratore non accetta i dati inviati. Scollegarlo, ricollegarlo e riprovare.</translation></message>
    <message id="simulatedMissing"><translation>Manca il valore di “%1”.</translation></message>
    <message id="simulatedNoPlan"><translation>Deve contenere un unico oggetto JSON.</translation></message>
    <message id="simulatedNotAllowed"><translation>Il valore di “%1” deve essere uno di questi: %2</translation></message>
    <message id="simulatedNotJson"><translation>Non è JSON valido: vicino al carattere %1, %2.</translation></message>
    <message id="simulatedNotList"><translation>Il valore di “%1” deve essere un elenco.</translation></message>
    <message id="simulatedNotObject"><translation>Il valore di “%1” deve essere un oggetto.</translation></message>
    <message id="simulatedNotText"><translation>Il valore di “%1” deve essere un testo.</translation></message>
    <message id="simulatedNotTime"><translation>Il valore di “%1” deve essere una data con ora come 2026-11-01T07:12, negli anni dal 2000 al 2099, oppure la parola undated.</translation></message>
    <message id="simulatedNotWhole"><translation>Il valore di “%1” deve essere un numero intero nell’intervallo %2.</translation></message>
    <message id="simulatedRefused"><translation>Impossibile usare il file %1 del misuratore simulato: %2</translation></message>
    <message id="simulatedTooMany"><translation>L’elenco “%1” può avere al massimo %2 voci.</translation></message>
    <message id="simulatedUnencodable"><translation>Il valore di “%1” contiene caratteri che il misuratore non conosce.</translation></message>
    <message id="simulatedUnknownKey"><translation>La chiave “%1” è sconosciuta.</translation></message>
    <message id="simulatedUnreadable"><translation>Impossibile leggere il file %1 del misuratore simulato: %2</translation></message>
    <message id="simulatedWrongLength"><translation>Il valore di “%1” deve avere questo numero di caratteri: %2</translation></message>
</context>
<context>
    <name>analysis</name>
    <message id="beforeAndSince"><translation>%1 prima, %2 dopo: %3</translation></message>
    <message id="excludedOfDays" numerus="yes"><translation><numerusform>%n esclusa</numerusform><numerusform>%n escluse</numerusform></translation></message>
    <message id="fewBefore"><translation>meno di %1 misurazioni prima</translation></message>
    <message id="fewOnBothSides"><translation>meno di %1 misurazioni sia prima sia dopo</translation></message>
    <message id="fewSince"><translation>meno di %1 misurazioni dopo</translation></message>
    <message id="highMark"><translation>%1 e grassetto: pari o superiore a %2</translation></message>
    <message id="leftBeforeNoon" numerus="yes"><translation><numerusform>%n prima delle 12</numerusform><numerusform>%n prima delle 12</numerusform></translation></message>
    <message id="leftExcluded" numerus="yes"><translation><numerusform>%n esclusa</numerusform><numerusform>%n escluse</numerusform></translation></message>
    <message id="leftFromNoon" numerus="yes"><translation><numerusform>%n dalle 12 in poi</numerusform><numerusform>%n dalle 12 in poi</numerusform></translation></message>
    <message id="leftOut"><translation>non conteggiate: %1</translation></message>
    <message id="leftOutsidePeriod" numerus="yes"><translation><numerusform>%n fuori dal periodo</numerusform><numerusform>%n fuori dal periodo</numerusform></translation></message>
    <message id="leftUndated" numerus="yes"><translation><numerusform>%n senza data</numerusform><numerusform>%n senza data</numerusform></translation></message>
    <message id="leftUnmeasured" numerus="yes"><translation><numerusform>%n senza valori di pressione</numerusform><numerusform>%n senza valori di pressione</numerusform></translation></message>
    <message id="leftWithoutDate" numerus="yes"><translation><numerusform>%n senza alcuna data</numerusform><numerusform>%n senza alcuna data</numerusform></translation></message>
    <message id="limitDiaAlone"><translation>DIA %1 mmHg</translation></message>
    <message id="limitsBoth"><translation>%1/%2 mmHg</translation></message>
    <message id="limitSysAlone"><translation>SYS %1 mmHg</translation></message>
    <message id="listedExcluded" numerus="yes"><translation><numerusform>, di cui %n esclusa</numerusform><numerusform>, di cui %n escluse</numerusform></translation></message>
    <message id="missingDays" numerus="yes"><translation><numerusform>%n giorno</numerusform><numerusform>%n giorni</numerusform></translation></message>
    <message id="missingEvenings" numerus="yes"><translation><numerusform>%n sera</numerusform><numerusform>%n sere</numerusform></translation></message>
    <message id="missingMornings" numerus="yes"><translation><numerusform>%n mattina</numerusform><numerusform>%n mattine</numerusform></translation></message>
    <message id="missingReadings" numerus="yes"><translation><numerusform>%n misurazione</numerusform><numerusform>%n misurazioni</numerusform></translation></message>
    <message id="noHighMark"><translation>Nessun valore è evidenziato come alto</translation></message>
    <message id="noneBefore"><translation>nessuna misurazione nei 14 giorni precedenti, %1 dopo</translation></message>
    <message id="noneBeforeOrSince"><translation>nessuna misurazione né prima né dopo</translation></message>
    <message id="noneSince"><translation>%1 prima, nessuna misurazione dopo</translation></message>
    <message id="otherZoneOfDays" numerus="yes"><translation><numerusform>%n salvata in un altro fuso orario; orari di questo computer</numerusform><numerusform>%n salvate in un altro fuso orario; orari di questo computer</numerusform></translation></message>
    <message id="readingCount" numerus="yes"><translation><numerusform>%n misurazione</numerusform><numerusform>%n misurazioni</numerusform></translation></message>
    <message id="rowsCut"><translation>I commenti coprono più giorni senza misurazioni di quanti l’elenco possa mostrare: al massimo %1, perciò alcuni mancano.</translation></message>
    <message id="unmeasuredOfDays" numerus="yes"><translation><numerusform>%n senza valori di pressione non conteggiata</numerusform><numerusform>%n senza valori di pressione non conteggiate</numerusform></translation></message>
</context>
<context>
    <name>app</name>
    <message id="12-hours"><translation>12 ore</translation></message>
    <message id="24-hours"><translation>24 ore</translation></message>
    <message id="aboutData"><translation>File dei dati: %1</translation></message>
    <message id="aboutLicence"><translation>Licenza: MIT. ZEL è fornito senza alcuna garanzia. ZEL usa Qt (LGPL 3), hidapi (BSD), pugixml (MIT), ICU (licenza Unicode) ed expected (CC0), ciascuno con la propria licenza.</translation></message>
    <message id="addComment"><translation>Aggiungi un commento</translation></message>
    <message id="addCommentHint"><translation>Trascinare questo simbolo su un giorno nella striscia sotto il grafico del polso per aggiungervi un commento. Con la tastiera: attivarlo oppure premere il tasto Ins.</translation></message>
    <message id="addCommentTooLong"><translation>I commenti si possono aggiungere se il periodo non supera i 47 giorni.</translation></message>
    <message id="addDay"><translation>Più giorni: uno in più a ogni estremo del periodo</translation></message>
    <message id="addDayHint"><translation>Più giorni: uno in più a ogni estremo del periodo (+)</translation></message>
    <message id="afib"><translation>FA</translation></message>
    <message id="age"><translation>Età: %1</translation></message>
    <message id="answerNo"><translation>No</translation></message>
    <message id="answerYes"><translation>Sì</translation></message>
    <message id="AP_Title"><translation>ZEL – Misurazioni della pressione</translation></message>
    <message id="argumentUnknown"><translation>argomento imprevisto “%1”; vedere zel --help</translation></message>
    <message id="argumentWithoutFile"><translation>%1= richiede il nome di un file; vedere zel --help</translation></message>
    <message id="backupAlsoTo"><translation>Copie anche in:</translation></message>
    <message id="backupChoose"><translation>Sc&amp;egli…</translation></message>
    <message id="backupChooseTitle"><translation>Seconda cartella per le copie del file dei dati</translation></message>
    <message id="backupClose"><translation>&amp;Chiudi</translation></message>
    <message id="backupConfirm"><translation>Ripristinare questa copia? %1. I dati attuali vengono conservati in un’altra copia, alla quale si potrà tornare.</translation></message>
    <message id="backupCreate"><translation>Crea copia &amp;ora</translation></message>
    <message id="backupDaily"><translation>Prima della prima modifica del giorno</translation></message>
    <message id="backupDamaged"><translation>File dei dati danneggiato</translation></message>
    <message id="backupDay"><translation>Giorno</translation></message>
    <message id="backupExplained"><translation>Copie del file dei dati, nella cartella %1. In previsione di un guasto di questo disco, indicare una seconda cartella su un altro disco, su una chiavetta o in rete.</translation></message>
    <message id="backupFar"><translation>Seconda cartella: %1</translation></message>
    <message id="backupKind"><translation>Copia</translation></message>
    <message id="backupMade"><translation>Creata su richiesta</translation></message>
    <message id="backupNone"><translation>Non c’è ancora nessuna copia. Ne viene creata una prima della prima modifica di ogni giorno.</translation></message>
    <message id="backupNoSecondFolder"><translation>nessuna seconda cartella</translation></message>
    <message id="backupOffered"><translation>La copia leggibile più recente è %1, con %2. Ripristinarla? Il file danneggiato viene conservato accanto, come un’altra copia.</translation></message>
    <message id="backupReplaced"><translation>Dati sostituiti da un ripristino</translation></message>
    <message id="backupRestore"><translation>&amp;Ripristina…</translation></message>
    <message id="backupRestored"><translation>Ora è in uso la copia %1. I dati precedenti sono conservati in %2.</translation></message>
    <message id="backupSize"><translation>Dimensione</translation></message>
    <message id="backupStop"><translation>I&amp;nterrompi</translation></message>
    <message id="backupTitle"><translation>Backup</translation></message>
    <message id="backupUnreadable"><translation>questa copia non è leggibile</translation></message>
    <message id="beforeAndSinceHint"><translation>Pressione media in mmHg e numero di misurazioni: nei 14 giorni prima del commento, e dal suo primo giorno fino all’inizio di un altro commento, al massimo per 28 giorni</translation></message>
    <message id="BeginDate"><translation>Il primo giorno deve precedere l’ultimo, in modo che il periodo comprenda almeno due giorni. Le date sono rimaste invariate.</translation></message>
    <message id="beginEarlier"><translation>Inizia un giorno prima</translation></message>
    <message id="beginLater"><translation>Inizia un giorno dopo</translation></message>
    <message id="birthDateIncomplete"><translation>Indicare anno, mese e giorno, oppure nessuno dei tre.</translation></message>
    <message id="birthDateInFuture"><translation>Questo giorno deve ancora venire.</translation></message>
    <message id="birthDateTooOld"><translation>Sono passati più di %1 anni da questa data.</translation></message>
    <message id="birthDayNone"><translation>Giorno</translation></message>
    <message id="birthDayRefused"><translation>Questo mese non ha il giorno %1.</translation></message>
    <message id="birthMonthNone"><translation>Mese</translation></message>
    <message id="birthYearNone"><translation>Anno</translation></message>
    <message id="birthYearRefused"><translation>Indicare l’anno con quattro cifre, per esempio 1956.</translation></message>
    <message id="bloodChart"><translation>Pressione arteriosa nel tempo</translation></message>
    <message id="bloodScroller"><translation>Sposta la scala della pressione</translation></message>
    <message id="cancel"><translation>Annulla</translation></message>
    <message id="cancelPrint"><translation>Chiudi senza stampare</translation></message>
    <message id="cellWithRemark"><translation>%1, %2</translation></message>
    <message id="changeReadingAction"><translation>Modifica misurazione…</translation></message>
    <message id="changeReadingTitle"><translation>Modifica misurazione</translation></message>
    <message id="chartKeys"><translation>%1 nel periodo. I tasti freccia spostano il periodo, più e meno lo ampliano e lo restringono; Ctrl con freccia sinistra o destra passa da una misurazione all’altra.</translation></message>
    <message id="cholestrolRefused"><translation>Indicare un numero da 10 a 5000 mg/dL, per esempio 200. 1 mmol/L equivale a circa 38,7 mg/dL.</translation></message>
    <message id="choosePrinter"><translation>Scegli una stampante</translation></message>
    <message id="clockAhead"><translation>avanti di %1 rispetto a questo computer</translation></message>
    <message id="clockBehind"><translation>indietro di %1 rispetto a questo computer</translation></message>
    <message id="clockDays" numerus="yes"><translation><numerusform>%n giorno</numerusform><numerusform>%n giorni</numerusform></translation></message>
    <message id="clockHours" numerus="yes"><translation><numerusform>%n ora</numerusform><numerusform>%n ore</numerusform></translation></message>
    <message id="clockMinutes" numerus="yes"><translation><numerusform>%n minuto</numerusform><numerusform>%n minuti</numerusform></translation></message>
    <message id="clockNotSet"><translation>non riuscita, l’ora potrebbe essere ancora sbagliata. %1</translation></message>
    <message id="clockNotSetAtGreeting"><translation>Impossibile regolare l’orologio del misuratore. %1</translation></message>
    <message id="clockRight"><translation>Stessa ora di questo computer</translation></message>
    <message id="clockSet"><translation>eseguita. Ora segna la stessa ora di questo computer.</translation></message>
    <message id="clockUnset"><translation>Non impostato</translation></message>
    <message id="clockUnsetAsk"><translation>L’orologio del misuratore non è impostato, perciò le sue misurazioni non ricevono data e ora. Regolarlo sull’ora di questo computer?</translation></message>
    <message id="closeWindow"><translation>Chiudi</translation></message>
    <message id="colourAction"><translation>Colore: %1</translation></message>
    <message id="colourBlue"><translation>Blu</translation></message>
    <message id="colourButton"><translation>Colore del commento</translation></message>
    <message id="colourGrey"><translation>Grigio scuro</translation></message>
    <message id="colourHint"><translation>Scegliere il colore per i nuovi commenti e per il commento selezionato con un clic o con un tasto.</translation></message>
    <message id="colourOrange"><translation>Arancione</translation></message>
    <message id="colourPicker"><translation>Colore del commento</translation></message>
    <message id="colourYellow"><translation>Giallo</translation></message>
    <message id="columnComment"><translation>Commento</translation></message>
    <message id="columnComments"><translation>Commenti</translation></message>
    <message id="columnDate"><translation>Data</translation></message>
    <message id="columnDia"><translation>DIA
mmHg</translation></message>
    <message id="columnFile"><translation>File</translation></message>
    <message id="columnMam"><translation>MAM</translation></message>
    <message id="columnPatient"><translation>Paziente</translation></message>
    <message id="columnPressure"><translation>%1
mmHg</translation></message>
    <message id="columnPulse"><translation>Polso
bpm</translation></message>
    <message id="columnReadings"><translation>Misurazioni</translation></message>
    <message id="columnState"><translation>Stato</translation></message>
    <message id="columnSys"><translation>SYS
mmHg</translation></message>
    <message id="columnTime"><translation>Ora</translation></message>
    <message id="commentBegin"><translation>Dal</translation></message>
    <message id="commentBeginDay"><translation>Primo giorno del commento</translation></message>
    <message id="commentCount" numerus="yes"><translation><numerusform>%n commento</numerusform><numerusform>%n commenti</numerusform></translation></message>
    <message id="commentDayFar"><translation>“%1” è tra più di due anni: controllare l’anno. Le date sono rimaste invariate.</translation></message>
    <message id="commentDayHint"><translation>Digitare una data e premere Invio.</translation></message>
    <message id="commentDayOrder"><translation>L’ultimo giorno di un commento non può precedere il primo. Le date sono rimaste invariate.</translation></message>
    <message id="commentDayUnread"><translation>“%1” non è una data valida per un commento: digitarla nella forma %2, con un anno dal 1900 in poi. Le date sono rimaste invariate.</translation></message>
    <message id="commentEmpty"><translation>Il commento del %1 è senza testo. Rimuoverlo?</translation></message>
    <message id="commentEmptyTitle"><translation>Commento senza testo</translation></message>
    <message id="commentEnd"><translation>Al</translation></message>
    <message id="commentEndDay"><translation>Ultimo giorno del commento</translation></message>
    <message id="commentInClipboard"><translation>Non è stato possibile salvare il commento che si stava digitando alla chiusura del programma; il testo è ora negli appunti: incollarlo dove lo si vuole conservare. %1</translation></message>
    <message id="commentNotSaved"><translation>Il commento non è stato salvato; il testo è ancora nel suo campo. %1</translation></message>
    <message id="commentPanel"><translation>Commento</translation></message>
    <message id="commentPatientGone"><translation>Il paziente %1 non è più nel file dei dati, perciò il commento in corso di digitazione non può esservi registrato. Il testo è ora negli appunti: incollarlo dove lo si vuole conservare.</translation></message>
    <message id="commentPosition"><translation>%1 di %2</translation></message>
    <message id="commentStay"><translation>Impossibile salvare il commento. %1

Restare qui e conservare il testo, per riprovare? Con “No” il testo va perso.</translation></message>
    <message id="commentText"><translation>Testo del commento</translation></message>
    <message id="commentUnchanged"><translation>Impossibile salvare il commento. %1</translation></message>
    <message id="ConfirmDelPatient"><translation>Eliminare %1 con tutte le misurazioni e i commenti? Con Modifica &gt; Annulla si recuperano, finché ZEL resta aperto.</translation></message>
    <message id="confirmDropNew"><translation>I dati di %1 non sono ancora salvati. Eliminare quanto è stato inserito? Non si potrà recuperare.</translation></message>
    <message id="confirmPrintSave"><translation>I dati di %1 sono stati modificati, e si può stampare o esportare solo ciò che è salvato. Salvare prima le modifiche?</translation></message>
    <message id="confirmSendID"><translation>%2 Scrivere nel misuratore l’ID %1? Da quel momento le misurazioni del misuratore apparterranno a questo paziente.</translation></message>
    <message id="confirmSendSave"><translation>I dati di %1 sono stati modificati. Salvare le modifiche?</translation></message>
    <message id="copyRows"><translation>Copia</translation></message>
    <message id="correlationView"><translation>Pressione sistolica rispetto alla diastolica</translation></message>
    <message id="dataChangedElsewhere"><translation>Un altro programma ha modificato il file dei dati. Ora ne è mostrato il contenuto aggiornato.</translation></message>
    <message id="dataFile"><translation>File dei dati</translation></message>
    <message id="dataFileUnreadable"><translation>Impossibile usare il file dei dati</translation></message>
    <message id="dataPanel"><translation>Dati</translation></message>
    <message id="dataUnreadNow"><translation>In questo momento non è possibile leggere il file dei dati, e non si può salvare nulla. I dati mostrati sono quelli di prima.</translation></message>
    <message id="DateError"><translation>Controllare le date</translation></message>
    <message id="dayHint"><translation>Digitare una data e premere Invio, oppure aprire il calendario con la freccia.</translation></message>
    <message id="dayOfDownload"><translation>%1, giorno di scarico dati</translation></message>
    <message id="daysButtons"><translation>Giorni</translation></message>
    <message id="dayUnread"><translation>“%1” non è una data valida: digitarla nella forma %2, con un anno dal 1900 in poi.</translation></message>
    <message id="dayUnreadLeft"><translation>“%1” non è una data valida: digitarla nella forma %2, con un anno dal 1900 in poi. La data è rimasta invariata.</translation></message>
    <message id="dayWithoutReading"><translation>%1, nessuna misurazione</translation></message>
    <message id="dd mm yyyy"><translation>gg mm aaaa</translation></message>
    <message id="DeleteComment"><translation>Elimina commento</translation></message>
    <message id="deleteCommentButton"><translation>Elimina…</translation></message>
    <message id="deleteCommentHint"><translation>Elimina questo commento, dopo una conferma.</translation></message>
    <message id="DeletePatient"><translation>Elimina paziente</translation></message>
    <message id="deletePatientButton"><translation>&amp;Elimina</translation></message>
    <message id="deletePatientHint"><translation>Elimina questo paziente con tutte le misurazioni e i commenti, dopo una conferma.</translation></message>
    <message id="deleteReadingsAction"><translation>Elimina misurazione…</translation></message>
    <message id="deleteReadingsQuestion"><translation>Eliminare i dati inseriti a mano (%1)?</translation></message>
    <message id="deleteReadingsTitle"><translation>Elimina misurazione</translation></message>
    <message id="DeleteTheComment"><translation>Eliminare questo commento? Con Modifica &gt; Annulla si recupera, finché ZEL resta aperto.</translation></message>
    <message id="demonstrationButton"><translation>Prova con un misuratore simulato</translation></message>
    <message id="demonstrationIsOwnData"><translation>La dimostrazione conserva i propri dati nella cartella %1, che però porta ai dati reali. Non è stato avviato nulla, affinché nessuna misurazione fittizia finisca tra quelle reali.</translation></message>
    <message id="demonstrationNoFolder"><translation>La dimostrazione conserva i propri dati nella cartella %1, che non può essere creata.</translation></message>
    <message id="demonstrationNote"><translation>Apre una seconda finestra con un misuratore simulato e misurazioni fittizie, conservate separatamente dai dati reali.</translation></message>
    <message id="demonstrationNotStarted"><translation>Impossibile avviare la dimostrazione.</translation></message>
    <message id="demonstrationStarted"><translation>La dimostrazione si apre in una finestra a parte.</translation></message>
    <message id="demonstrationStrip"><translation>Dimostrazione: il misuratore è simulato; le sue misurazioni sono fittizie e conservate separatamente dai dati reali.</translation></message>
    <message id="demonstrationTitle"><translation>Dimostrazione – %1</translation></message>
    <message id="download"><translation>Scarica misurazioni</translation></message>
    <message id="downloadAdvice"><translation>Lasciare collegato il misuratore. Le misurazioni vengono registrate quando sono arrivate tutte.</translation></message>
    <message id="downloadButton"><translation>S&amp;carica</translation></message>
    <message id="downloadCancel"><translation>Annulla lo scarico dei dati</translation></message>
    <message id="downloadCancelled"><translation>Scarico dei dati annullato. Non è stato registrato nulla; le misurazioni sono ancora nel misuratore.</translation></message>
    <message id="downloadDayUnknown"><translation>sconosciuto</translation></message>
    <message id="downloadEmpty"><translation>Il misuratore non contiene misurazioni.</translation></message>
    <message id="downloadFailed"><translation>Impossibile scaricare le misurazioni, che restano nel misuratore; non è stato registrato nulla. %1</translation></message>
    <message id="downloadFetched" numerus="yes"><translation><numerusform>%n misurazione scaricata</numerusform><numerusform>%n misurazioni scaricate</numerusform></translation></message>
    <message id="downloadHint"><translation>Scarica le misurazioni dal misuratore (Ctrl+D). Il misuratore deve essere collegato e contenere l’ID di questo paziente.</translation></message>
    <message id="downloadNew" numerus="yes"><translation><numerusform>%1, %n nuova</numerusform><numerusform>%1, %n nuove</numerusform></translation></message>
    <message id="downloadNotFlushed"><translation>Le misurazioni sono registrate, ma non è certo che lo siano in modo definitivo. %1</translation></message>
    <message id="downloadNothingNew"><translation>%1, nessuna nuova: erano già tutte registrate</translation></message>
    <message id="downloadNotReadBack"><translation>%1. Non è stato poi possibile rileggere il file dei dati, perciò il misuratore non è stato svuotato. %2</translation></message>
    <message id="downloadNotStored"><translation>Impossibile registrare le misurazioni. Sono ancora nel misuratore. %1</translation></message>
    <message id="downloadOtherMonitor"><translation>Le misurazioni nel misuratore appartengono a un ID diverso da quello di questo paziente, perciò non è stato registrato nulla. Collegare il misuratore di questo paziente e riprovare.</translation></message>
    <message id="downloadProgress"><translation>Avanzamento dello scarico dei dati</translation></message>
    <message id="downloadsNew"><translation>Nuove misurazioni</translation></message>
    <message id="downloadsNone"><translation>%1: non è ancora stato scaricato nulla dal misuratore.</translation></message>
    <message id="downloadsSummary" numerus="yes"><translation><numerusform>%1: %n scarico dei dati. Nuove misurazioni: %2.</numerusform><numerusform>%1: %n scarichi dei dati. Nuove misurazioni: %2.</numerusform></translation></message>
    <message id="downloadStarting"><translation>Richiesta al misuratore…</translation></message>
    <message id="downloadsTitle"><translation>Scarichi dei dati</translation></message>
    <message id="downloadStopping"><translation>Interruzione…</translation></message>
    <message id="downloadTypedLeftOut" numerus="yes"><translation><numerusform>%n inserita a mano è esclusa da ora in poi (presente anche nel misuratore)</numerusform><numerusform>%n inserite a mano sono escluse da ora in poi (presenti anche nel misuratore)</numerusform></translation></message>
    <message id="downloadWaiting" numerus="yes"><translation><numerusform>Dal misuratore non arriva nulla. Lo si attende al massimo per %n secondo. Lo scarico si può annullare: non va perso nulla.</numerusform><numerusform>Dal misuratore non arriva nulla. Lo si attende al massimo per %n secondi. Lo scarico si può annullare: non va perso nulla.</numerusform></translation></message>
    <message id="dropLeftOut"><translation>Si possono importare solo file XML su questo computer. Non in elenco: %1</translation></message>
    <message id="DupNewPatient"><translation>C’è già un nuovo paziente non ancora salvato: il primo dell’elenco. Prima salvarlo o eliminarlo.</translation></message>
    <message id="EndDate"><translation>L’ultimo giorno deve seguire il primo, in modo che il periodo comprenda almeno due giorni. Le date sono rimaste invariate.</translation></message>
    <message id="endEarlier"><translation>Termina un giorno prima</translation></message>
    <message id="endLater"><translation>Termina un giorno dopo</translation></message>
    <message id="eraseFailed"><translation>%1. Le misurazioni sono registrate e al sicuro, ma non è stato possibile svuotare il misuratore: le contiene ancora. %2</translation></message>
    <message id="eraseNotSeen"><translation>%1. Le misurazioni sono registrate e al sicuro, ma non è stato possibile accertare se il misuratore sia ora vuoto. %2</translation></message>
    <message id="eraseThem"><translation>&amp;Elimina</translation></message>
    <message id="exportAll"><translation>Esporta tutti i pazienti come file XML</translation></message>
    <message id="exportAlsoFailed"><translation>Lo stesso vale per: %1</translation></message>
    <message id="exportButton"><translation>&amp;Esporta tutti…</translation></message>
    <message id="exportCancelled"><translation>L’esportazione è stata poi annullata; gli altri pazienti non sono stati esportati.</translation></message>
    <message id="exportCSV"><translation>Esporta le misurazioni del paziente attuale come file CSV</translation></message>
    <message id="exportCSVButton"><translation>Esporta &amp;CSV…</translation></message>
    <message id="exportCSVFolder"><translation>Scegli la cartella per il file CSV</translation></message>
    <message id="exportCSVHint"><translation>Scrive il paziente attuale e le misurazioni come tabella, per un foglio di calcolo.</translation></message>
    <message id="exportFailed" numerus="yes"><translation><numerusform>Impossibile scrivere %n file:</numerusform><numerusform>Impossibile scrivere %n file:</numerusform></translation></message>
    <message id="exportFhirFolder"><translation>Scegli la cartella per il file FHIR</translation></message>
    <message id="exportFolder"><translation>Scegli la cartella per i file dei pazienti</translation></message>
    <message id="exportHint"><translation>Scrive per ogni paziente un file che questo programma può importare di nuovo.</translation></message>
    <message id="exporting"><translation>Esportazione dei pazienti</translation></message>
    <message id="exportKept" numerus="yes"><translation><numerusform>%n file già presente è stato lasciato com’era.</numerusform><numerusform>%n file già presenti sono stati lasciati com’erano.</numerusform></translation></message>
    <message id="ExportMsg" numerus="yes"><translation><numerusform>%n file è stato scritto nella cartella %1.</numerusform><numerusform>%n file sono stati scritti nella cartella %1.</numerusform></translation></message>
    <message id="exportNobody"><translation>Non c’è ancora nessun paziente da esportare. Prima aggiungerne o importarne uno.</translation></message>
    <message id="exportNoPatient"><translation>Nessun paziente scelto. Scegliere prima il paziente da esportare.</translation></message>
    <message id="exportReplace" numerus="yes"><translation><numerusform>La cartella %1 contiene già il file %2. Sostituirlo? Con “No” resta com’è.</numerusform><numerusform>La cartella %1 contiene già %n dei file (%2). Sostituirli? Con “No” restano come sono, e vengono scritti solo gli altri.</numerusform></translation></message>
    <message id="exportReplaceTitle"><translation>Sostituire i file?</translation></message>
    <message id="ExportTitle"><translation>Esportazione</translation></message>
    <message id="fieldAddress"><translation>Indirizzo</translation></message>
    <message id="fieldCholestrol"><translation>Colesterolo (mg/dL)</translation></message>
    <message id="fieldDateOfBirth"><translation>Data di nascita</translation></message>
    <message id="fieldDiabetic"><translation>Diabete</translation></message>
    <message id="fieldFamilyHistory"><translation>Anamnesi familiare</translation></message>
    <message id="fieldFamilyName"><translation>Cognome</translation></message>
    <message id="fieldGivenNames"><translation>Nome</translation></message>
    <message id="fieldHeightCm"><translation>Altezza (cm)</translation></message>
    <message id="fieldHeightFtIn"><translation>Altezza (piedi/pollici)</translation></message>
    <message id="fieldID"><translation>ID</translation></message>
    <message id="fieldMissing"><translation>Compilare questo campo.</translation></message>
    <message id="fieldPatientNotes"><translation>Note su questo paziente</translation></message>
    <message id="fieldPhoneEmail"><translation>Telefono / e-mail</translation></message>
    <message id="fieldRequired"><translation>Obbligatorio</translation></message>
    <message id="fieldSex"><translation>Sesso</translation></message>
    <message id="fieldSmoker"><translation>Fumo</translation></message>
    <message id="fieldWeightKg"><translation>Peso (kg)</translation></message>
    <message id="fieldWeightLb"><translation>Peso (lb)</translation></message>
    <message id="fileAlreadyHere"><translation>già presente</translation></message>
    <message id="fileAlreadyHereHint"><translation>Un paziente con questo ID è già nell’elenco e l’importazione verrebbe rifiutata.</translation></message>
    <message id="fileBeingRead"><translation>lettura…</translation></message>
    <message id="fileNotImportable"><translation>non importabile</translation></message>
    <message id="fileNotReadable"><translation>non leggibile</translation></message>
    <message id="fileTooLargeToCount"><translation>oltre 64 MiB: non contato</translation></message>
    <message id="firstCopy"><translation>C’è una copia di dati precedenti: %1, con %2. Se il file dei dati è andato perso, ripristinarla.</translation></message>
    <message id="firstCopyButton"><translation>Ripristina una copia…</translation></message>
    <message id="firstStepDownload"><translation>Premere Scarica. Le misurazioni compaiono nel grafico e nella tabella.</translation></message>
    <message id="firstStepMonitor"><translation>Collegare il misuratore con il suo cavo USB. Se non contiene ancora l’ID di questo paziente, premere “Invia ID”.</translation></message>
    <message id="firstStepPatient"><translation>Aggiungere il paziente di cui il misuratore rileva la pressione, assegnargli un ID e premere Salva.</translation></message>
    <message id="firstSteps"><translation>Ancora nessun paziente: tre passaggi fino alle prime misurazioni</translation></message>
    <message id="heightRefusedCm"><translation>Indicare un numero da 20 a 300 cm, per esempio 175.</translation></message>
    <message id="heightRefusedFtIn"><translation>Indicare piedi e pollici separati da una barra, per esempio 5/9. I pollici arrivano a 11.</translation></message>
    <message id="highFrom"><translation>Limiti da cui i valori vengono evidenziati</translation></message>
    <message id="highFromHint"><translation>I valori pari o superiori a questi limiti sono in grassetto ed evidenziati, qui e nella stampa. Grafico, statistiche, istogramma e correlazione mantengono i limiti delle impostazioni.</translation></message>
    <message id="highFromLabel"><translation>E&amp;videnzia da</translation></message>
    <message id="histogramView"><translation>Distribuzione dei valori</translation></message>
    <message id="IDNotForMonitor"><translation>L’ID “%1” non è adatto al misuratore. Un misuratore memorizza ID da 1 a 11 lettere, cifre e segni semplici, senza accenti e senza spazi all’inizio o alla fine.</translation></message>
    <message id="IDRefused"><translation>Un ID ha da 1 a 11 lettere, cifre o segni semplici, senza accenti: un misuratore non può memorizzarne di più.</translation></message>
    <message id="IDStays"><translation>L’ID non si può modificare: vi sono legati le misurazioni e i commenti.</translation></message>
    <message id="ihd"><translation>Aritmia</translation></message>
    <message id="importAll"><translation>&amp;Tutti</translation></message>
    <message id="importAllFiles"><translation>Scegli tutti i file</translation></message>
    <message id="importButton"><translation>&amp;Importa</translation></message>
    <message id="importButtonFiles" numerus="yes"><translation><numerusform>&amp;Importa %n file</numerusform><numerusform>&amp;Importa %n file</numerusform></translation></message>
    <message id="importCancelled" numerus="yes"><translation><numerusform>L’importazione è stata poi annullata; %n file non è stato letto.</numerusform><numerusform>L’importazione è stata poi annullata; %n file non sono stati letti.</numerusform></translation></message>
    <message id="importDropped"><translation>File trascinati nella finestra</translation></message>
    <message id="importedFiles" numerus="yes"><translation><numerusform>%n file è stato importato:</numerusform><numerusform>%n file sono stati importati:</numerusform></translation></message>
    <message id="importFilesButton"><translation>&amp;Importa…</translation></message>
    <message id="importFolder"><translation>Scegli la cartella da cui importare</translation></message>
    <message id="importFolderButton"><translation>Scegli &amp;cartella…</translation></message>
    <message id="importFrom"><translation>File in %1</translation></message>
    <message id="importHint"><translation>Importa pazienti da file XML esportati in precedenza.</translation></message>
    <message id="importing"><translation>Importazione dei pazienti</translation></message>
    <message id="importList"><translation>Elenco dei file XML</translation></message>
    <message id="importNone"><translation>Nessun file è stato importato.</translation></message>
    <message id="importRefused" numerus="yes"><translation><numerusform>%n file non è stato importato:</numerusform><numerusform>%n file non sono stati importati:</numerusform></translation></message>
    <message id="importTaken"><translation>%1: %2, %3, %4</translation></message>
    <message id="importTitle"><translation>Importa pazienti</translation></message>
    <message id="includeUndated"><translation>Misurazioni senza data</translation></message>
    <message id="includeUndatedHint"><translation>Mostra e conteggia anche le misurazioni memorizzate dal misuratore senza data.</translation></message>
    <message id="infoDia"><translation>Diastolica</translation></message>
    <message id="infoLine"><translation>%1: %2</translation></message>
    <message id="infoPulse"><translation>Polso</translation></message>
    <message id="infoRemark"><translation>Nota</translation></message>
    <message id="infoSys"><translation>Sistolica</translation></message>
    <message id="keep"><translation>&amp;Conserva</translation></message>
    <message id="keysCloseMonitorBar"><translation>Chiudi la barra del misuratore</translation></message>
    <message id="keysFirstLast"><translation>Prime, ultime misurazioni</translation></message>
    <message id="keysFromReading"><translation>Da misurazione a misurazione</translation></message>
    <message id="keysKey"><translation>Tasto</translation></message>
    <message id="keysManualHint"><translation>Apri il manuale (F1).</translation></message>
    <message id="keysMovePeriod"><translation>Sposta il periodo</translation></message>
    <message id="keysMoveScale"><translation>Sposta la scala</translation></message>
    <message id="keysPlace"><translation>Dove</translation></message>
    <message id="keysTitle"><translation>Scorciatoie da tastiera</translation></message>
    <message id="keysToMonitorBar"><translation>Vai alla barra del misuratore</translation></message>
    <message id="keysWhat"><translation>Che cosa fa</translation></message>
    <message id="keysWholePeriod"><translation>Un periodo intero indietro, avanti</translation></message>
    <message id="keysWidenPeriod"><translation>Allarga, restringi il periodo</translation></message>
    <message id="languageNotSaved"><translation>La lingua non è stata cambiata; le altre impostazioni sono salvate. %1</translation></message>
    <message id="lastDownload"><translation>Ultimo scarico</translation></message>
    <message id="lastDownloadNone"><translation>nessuno</translation></message>
    <message id="leaveOutAction"><translation>Escludi…</translation></message>
    <message id="leaveOutButton"><translation>&amp;Escludi</translation></message>
    <message id="leaveOutExample"><translation>ad es. bracciale allentato</translation></message>
    <message id="leaveOutExplained"><translation>%1: da escludere da medie, statistiche e grafici. Ciò che è escluso resta nell’elenco, barrato, con il suo motivo, e si può includere di nuovo.</translation></message>
    <message id="leaveOutNoReason"><translation>Indicare un motivo.</translation></message>
    <message id="leaveOutReason"><translation>&amp;Motivo:</translation></message>
    <message id="leaveOutTitle"><translation>Escludi</translation></message>
    <message id="limitsHome"><translation>%1/%2 (a domicilio)</translation></message>
    <message id="limitsLow"><translation>%1/%2 (più severi)</translation></message>
    <message id="limitsNotKept"><translation>I limiti valgono fino alla chiusura del programma. Non è stato possibile conservarli per il prossimo avvio: %1</translation></message>
    <message id="limitsOffice"><translation>%1/%2 (in ambulatorio)</translation></message>
    <message id="limitsOwn"><translation>limiti personalizzati</translation></message>
    <message id="mainMenu"><translation>Menu principale</translation></message>
    <message id="manualChapters"><translation>Capitoli</translation></message>
    <message id="manualTitle"><translation>Manuale</translation></message>
    <message id="map"><translation>PAM</translation></message>
    <message id="menuAbout"><translation>&amp;Informazioni su ZEL</translation></message>
    <message id="menuBackups"><translation>&amp;Backup…</translation></message>
    <message id="menuCopyRows"><translation>Copia righe</translation></message>
    <message id="menuDeleteComment"><translation>Elimina commento</translation></message>
    <message id="menuDeletePatient"><translation>Elimina paziente</translation></message>
    <message id="menuDownload"><translation>Scarica misurazioni</translation></message>
    <message id="menuDownloads"><translation>Scarichi dei dati…</translation></message>
    <message id="menuEdit"><translation>&amp;Modifica</translation></message>
    <message id="menuExportFhir"><translation>Esporta il paziente in F&amp;HIR…</translation></message>
    <message id="menuFewerDays"><translation>Meno giorni</translation></message>
    <message id="menuFile"><translation>&amp;File</translation></message>
    <message id="menuFindPatient"><translation>Cerca paziente</translation></message>
    <message id="menuHelp"><translation>&amp;Aiuto</translation></message>
    <message id="menuKeys"><translation>&amp;Scorciatoie da tastiera</translation></message>
    <message id="menuManual"><translation>&amp;Manuale</translation></message>
    <message id="menuMoreDays"><translation>Più giorni</translation></message>
    <message id="menuNewPatient"><translation>Nuovo paziente</translation></message>
    <message id="menuPrint"><translation>&amp;Stampa…</translation></message>
    <message id="menuQuit"><translation>&amp;Esci</translation></message>
    <message id="menuRedo"><translation>&amp;Ripeti</translation></message>
    <message id="menuRedoStep"><translation>&amp;Ripeti %1</translation></message>
    <message id="menuSavePatient"><translation>Salva paziente</translation></message>
    <message id="menuSavePdf"><translation>Salva come &amp;PDF…</translation></message>
    <message id="menuSelectRows"><translation>Seleziona tutte le righe</translation></message>
    <message id="menuSendID"><translation>Invia l’ID al misuratore</translation></message>
    <message id="menuSettings"><translation>&amp;Impostazioni…</translation></message>
    <message id="menuTimeChart"><translation>Grafico nel tempo</translation></message>
    <message id="menuUndo"><translation>&amp;Annulla</translation></message>
    <message id="menuUndoStep"><translation>&amp;Annulla %1</translation></message>
    <message id="menuView"><translation>Visualizza</translation></message>
    <message id="minusDay"><translation>Meno giorni: uno in meno a ogni estremo del periodo</translation></message>
    <message id="minusDayHint"><translation>Meno giorni: uno in meno a ogni estremo del periodo (−)</translation></message>
    <message id="mm dd yyyy"><translation>mm gg aaaa</translation></message>
    <message id="monitorChangedMeanwhile"><translation>Nel frattempo il misuratore è stato scollegato o sostituito; non è stato scaricato nulla.</translation></message>
    <message id="monitorClock"><translation>Orologio</translation></message>
    <message id="monitorConnected"><translation>Misuratore collegato</translation></message>
    <message id="monitorConnectedID"><translation>Il misuratore contiene l’ID %1. Premere Scarica per trasferire le misurazioni di questo paziente.</translation></message>
    <message id="monitorCounting"><translation>Lettura del numero di misurazioni nel misuratore. Può richiedere fino a 20 secondi…</translation></message>
    <message id="monitorDownloading"><translation>Scarico delle misurazioni…</translation></message>
    <message id="monitorErasing"><translation>Svuotamento del misuratore…</translation></message>
    <message id="monitorGreeting"><translation>Lettura dell’orologio e dell’ID del misuratore…</translation></message>
    <message id="monitorHoldsNone"><translation>Ora il misuratore non contiene alcun ID.</translation></message>
    <message id="monitorHoldsOther"><translation>Ora il misuratore contiene l’ID %1, che non appartiene a nessun paziente di questo elenco.</translation></message>
    <message id="monitorHoldsPatient"><translation>Ora il misuratore contiene l’ID %1, di %2.</translation></message>
    <message id="monitorHoldsReadings" numerus="yes"><translation><numerusform>Contiene %n misurazione.</numerusform><numerusform>Contiene %n misurazioni.</numerusform></translation></message>
    <message id="monitorHoldsUnknown"><translation>Impossibile leggere quale ID contiene ora il misuratore.</translation></message>
    <message id="monitorID"><translation>ID</translation></message>
    <message id="monitorIDSimilar"><translation>L’ID %1 di %2 è molto simile, ma è un altro.</translation></message>
    <message id="monitorLooking"><translation>Ricerca di un misuratore…</translation></message>
    <message id="monitorNotAnswering"><translation>Collegato, ma non risponde come dovrebbe. %1</translation></message>
    <message id="monitorNotConnected"><translation>Non collegato. Collegare il misuratore a una porta USB.</translation></message>
    <message id="monitorPanel"><translation>Misuratore</translation></message>
    <message id="monitorReadingsUnknown"><translation>Impossibile leggere quante misurazioni contiene.</translation></message>
    <message id="monitorReady"><translation>Collegato</translation></message>
    <message id="monitorSendingID"><translation>Scrittura dell’ID nel misuratore…</translation></message>
    <message id="monitorSettingClock"><translation>Regolazione dell’orologio del misuratore…</translation></message>
    <message id="monitorState"><translation>Stato</translation></message>
    <message id="monitorTrouble"><translation>Collegato, ma l’ultima comunicazione non è riuscita e viene ritentata. %1</translation></message>
    <message id="monitorWithoutID"><translation>Il misuratore collegato non contiene alcun ID. Scegliere un paziente e premere “Invia ID” per farne il misuratore di questo paziente.</translation></message>
    <message id="newIDFromDevice"><translation>Il misuratore contiene l’ID %1, che non appartiene a nessun paziente di questo elenco. Aggiungere un paziente con questo ID, oppure scegliere un paziente e premere “Invia ID”.</translation></message>
    <message id="NewPatient"><translation>Nuovo paziente</translation></message>
    <message id="newPatientButton"><translation>&amp;Nuovo</translation></message>
    <message id="newPatientHint"><translation>Inserisce un nuovo paziente (Ctrl+N).</translation></message>
    <message id="newPatientWithID"><translation>Nuovo paziente con questo ID</translation></message>
    <message id="newReadingAction"><translation>Nuova misurazione…</translation></message>
    <message id="newReadingHint"><translation>Inserisce a mano una misurazione non presente in alcun misuratore (Ctrl+N).</translation></message>
    <message id="newReadingTitle"><translation>Nuova misurazione</translation></message>
    <message id="nextComment"><translation>Commento successivo</translation></message>
    <message id="nextHint"><translation>Pagina successiva (Pag giù)</translation></message>
    <message id="nextPage"><translation>Pagina successiva</translation></message>
    <message id="no"><translation>&amp;No</translation></message>
    <message id="noCommentPage"><translation>Nessun commento</translation></message>
    <message id="noCommentPageAdvice"><translation>Questo paziente non ha ancora commenti. I commenti si aggiungono sul grafico.</translation></message>
    <message id="noComments"><translation>Ancora nessun commento. I commenti si aggiungono sul grafico.</translation></message>
    <message id="NoData"><translation>Ancora nessuna misurazione</translation></message>
    <message id="NoDataAdvice"><translation>Collegare il misuratore, scegliere il paziente nella pagina Pazienti e premere Scarica, oppure inserire una misurazione a mano con Ctrl+N.</translation></message>
    <message id="noDisplay"><translation>nessuno schermo disponibile su cui aprire una finestra. Avviare zel in una sessione grafica, oppure usare i comandi che non richiedono una finestra: vedere zel --help</translation></message>
    <message id="noFiles"><translation>Nessun file XML in questa cartella</translation></message>
    <message id="noFilesAdvice"><translation>Scegliere la cartella in cui sono stati esportati i pazienti.</translation></message>
    <message id="noHome"><translation>la variabile d’ambiente HOME non indica una cartella (un percorso assoluto), perciò non si sa dove conservare i dati.</translation></message>
    <message id="noID"><translation>nessuno</translation></message>
    <message id="none"><translation>nessuno</translation></message>
    <message id="noneInPeriod"><translation>Nessuna misurazione nel periodo</translation></message>
    <message id="noneInPeriodAdvice"><translation>Scegliere altre date qui sopra, oppure Tutte e Giorno intero. Le misurazioni prive di data compaiono se è attivata anche la casella Misurazioni senza data.</translation></message>
    <message id="nonePrintedAdvice"><translation>Chiudere questa finestra e scegliere altre date nella pagina Misurazioni o Grafico, oppure, nella stessa pagina, Tutte e Giorno intero. Le misurazioni prive di data si stampano se è attivata la casella Misurazioni senza data.</translation></message>
    <message id="noPage"><translation>Nessuna pagina</translation></message>
    <message id="noPatientFound"><translation>Nessun paziente trovato</translation></message>
    <message id="noPatientFoundAdvice"><translation>Nessun nome e nessun ID contiene il testo cercato.</translation></message>
    <message id="noPatientSelected"><translation>Nessun paziente selezionato</translation></message>
    <message id="noPrinterNote"><translation>Su questo computer non è configurata alcuna stampante. Si possono salvare le pagine come PDF, oppure configurare una stampante nelle impostazioni del sistema.</translation></message>
    <message id="NoPrnter"><translation>Nessuna stampante</translation></message>
    <message id="NoPrnterMsg"><translation>Su questo computer non è configurata alcuna stampante, perciò non si può stampare. Configurarne una nelle impostazioni del sistema e riprovare, oppure salvare le pagine come PDF.</translation></message>
    <message id="notes"><translation>Note</translation></message>
    <message id="notKnown"><translation>–</translation></message>
    <message id="noValue"><translation>n.a.</translation></message>
    <message id="ok"><translation>&amp;OK</translation></message>
    <message id="openCalendar"><translation>Apri il calendario</translation></message>
    <message id="ownDia"><translation>Limite diastolico personalizzato in mmHg, 0 per nessuno</translation></message>
    <message id="ownSys"><translation>Limite sistolico personalizzato in mmHg, 0 per nessuno</translation></message>
    <message id="pad"><translation>Aritmia</translation></message>
    <message id="pageChart"><translation>Grafico</translation></message>
    <message id="pagePatients"><translation>Pazienti</translation></message>
    <message id="pageReadings"><translation>Misurazioni</translation></message>
    <message id="pageTabs"><translation>Pagine</translation></message>
    <message id="pageText"><translation>%1/%2</translation></message>
    <message id="patientCount" numerus="yes"><translation><numerusform>%n paziente</numerusform><numerusform>%n pazienti</numerusform></translation></message>
    <message id="patientDeleted"><translation>%1: paziente eliminato.</translation></message>
    <message id="patientEditor"><translation>Dati del paziente</translation></message>
    <message id="patientGone"><translation>%1 non è più nel file dei dati: un altro programma ha rimosso questo paziente, oppure qui è stata annullata un’operazione. I dati digitati sono ancora qui, e con Salva il paziente viene aggiunto di nuovo.</translation></message>
    <message id="patientHeading"><translation>%1 %2 (ID %3)</translation></message>
    <message id="patientID"><translation>ID</translation></message>
    <message id="patientIDOnly"><translation>ID %1</translation></message>
    <message id="patientIDTwice"><translation>Il file dei dati contiene più di un paziente con l’ID %1. Non si possono distinguere, perciò nessuno di loro viene modificato o eliminato.</translation></message>
    <message id="patientList"><translation>Elenco dei pazienti</translation></message>
    <message id="patientName"><translation>Nome</translation></message>
    <message id="patientNameless"><translation>Paziente senza nome</translation></message>
    <message id="patientPartlySaved"><translation>Non è stato possibile registrare tutti i dati di %1: alcuni non trovano posto nel file dei dati. I dati non registrati sono ancora nei campi.</translation></message>
    <message id="patientRefused"><translation>Non è stato ancora salvato nulla. Correggere ciò che è evidenziato:
%1</translation></message>
    <message id="patientReplaced"><translation>%1 non è più nel file dei dati: un altro programma ha rimosso questo paziente. Ora è mostrato un altro paziente.</translation></message>
    <message id="patientSaved"><translation>%1: dati salvati.</translation></message>
    <message id="patientsDetail"><translation>Scegliere un paziente o inserirne uno nuovo.</translation></message>
    <message id="patientsInputFields"><translation>Cognome, nome e ID sono obbligatori. Non è stato ancora salvato nulla; compilare ciò che è evidenziato.</translation></message>
    <message id="patientTotal"><translation>Pazienti</translation></message>
    <message id="pdfChart"><translation>grafico</translation></message>
    <message id="pdfComments"><translation>commenti</translation></message>
    <message id="pdfCorrelation"><translation>correlazione</translation></message>
    <message id="pdfFiles"><translation>File PDF (*.pdf)</translation></message>
    <message id="pdfHistogram"><translation>distribuzione</translation></message>
    <message id="pdfProfile"><translation>scheda del paziente</translation></message>
    <message id="pdfReadings"><translation>misurazioni</translation></message>
    <message id="pdfStatistics"><translation>statistiche e misurazioni</translation></message>
    <message id="pdfSummary"><translation>riepilogo</translation></message>
    <message id="pdfTrend"><translation>andamento</translation></message>
    <message id="periodBar"><translation>Periodo e misurazioni da mostrare</translation></message>
    <message id="periodBegin"><translation>Primo giorno del periodo</translation></message>
    <message id="periodEnd"><translation>Ultimo giorno del periodo</translation></message>
    <message id="periodFrom"><translation>&amp;Dal</translation></message>
    <message id="periodTo"><translation>a&amp;l</translation></message>
    <message id="personalData"><translation>Dati personali</translation></message>
    <message id="pp"><translation>PP</translation></message>
    <message id="previewView"><translation>Anteprima pagina</translation></message>
    <message id="previousComment"><translation>Commento precedente</translation></message>
    <message id="previousHint"><translation>Pagina precedente (Pag su)</translation></message>
    <message id="previousPage"><translation>Pagina precedente</translation></message>
    <message id="print"><translation>Stampa</translation></message>
    <message id="printAddAddress"><translation>Stampa i dati del medico a piè di ogni pagina</translation></message>
    <message id="printButton"><translation>&amp;Stampa</translation></message>
    <message id="printDetails"><translation>&amp;Dati del medico</translation></message>
    <message id="printDetailsHint"><translation>Stampa le righe del medico, dalle impostazioni, a piè di ogni pagina.</translation></message>
    <message id="printDone"><translation>Inviato alla stampante %1</translation></message>
    <message id="printer"><translation>Stampante</translation></message>
    <message id="printerButton"><translation>Stampan&amp;te…</translation></message>
    <message id="printerGone"><translation>La stampante “%1” non è più disponibile, perciò non è stato stampato nulla. Controllare che sia accesa e collegata, oppure sceglierne un’altra.</translation></message>
    <message id="printerLabel"><translation>Stampan&amp;te</translation></message>
    <message id="printerShown"><translation>Stampante: %1</translation></message>
    <message id="printFailed"><translation>Non è stato possibile inviare per intero le pagine alla stampante “%1”. Il lavoro di stampa è stato annullato e non viene stampato nulla. Controllare la coda di stampa e che il disco non sia pieno, poi riprovare.</translation></message>
    <message id="printNoData"><translation>Non c’è nulla da stampare: questa sezione non contiene dati per questo paziente e periodo.</translation></message>
    <message id="printNoPatient"><translation>Non c’è alcun paziente di cui stampare il rapporto. Sceglierne uno, oppure prima inserirne e salvarne uno nuovo.</translation></message>
    <message id="printOption"><translation>Sezione da stampare</translation></message>
    <message id="printOptionLabel"><translation>Se&amp;zione</translation></message>
    <message id="privacyAsked"><translation>Altri utenti di questo computer possono leggere %1.

Impedirne l’accesso? Vengono modificati solo i permessi del file dei dati, della sua cartella e delle sue copie.</translation></message>
    <message id="privacyAskedMore"><translation>%1 (e altri file: %2)</translation></message>
    <message id="privacyMended"><translation>Ora solo l’utente attuale può leggere il file dei dati e le sue copie.</translation></message>
    <message id="privacyTitle"><translation>Altri possono leggere i dati dei pazienti</translation></message>
    <message id="programName"><translation>ZEL</translation></message>
    <message id="programPurpose"><translation>Le misurazioni della pressione, dal misuratore al proprio archivio</translation></message>
    <message id="programVersion"><translation>Versione %1</translation></message>
    <message id="ProgressPatientInfo"><translation>%1 %2 (ID %3)</translation></message>
    <message id="ProgressProcessInfo"><translation>%1 di %2 misurazioni</translation></message>
    <message id="pulseChart"><translation>Polso nel tempo, con i commenti</translation></message>
    <message id="pulseScroller"><translation>Sposta la scala del polso</translation></message>
    <message id="readingDay"><translation>Data</translation></message>
    <message id="readingInWords"><translation>%1 %2, %3/%4, polso %5</translation></message>
    <message id="readingList"><translation>Elenco delle misurazioni</translation></message>
    <message id="readingsCounted"><translation>%1. Nel calcolo: %2</translation></message>
    <message id="readingsFromTo"><translation>%1, dal %2 al %3</translation></message>
    <message id="readingsListed"><translation>%1. In elenco: %2</translation></message>
    <message id="readingsNoted"><translation>%1. %2</translation></message>
    <message id="readingsOn"><translation>%1, il %2</translation></message>
    <message id="readingStored"><translation>Registrata: %1.</translation></message>
    <message id="readingStoredOtherHalf"><translation>Registrata, fuori dalla parte del giorno mostrata: %1.</translation></message>
    <message id="readingStoredOutside"><translation>Registrata, fuori dai giorni mostrati: %1.</translation></message>
    <message id="readingTime"><translation>Ora</translation></message>
    <message id="readingTotal"><translation>Misurazioni del paziente</translation></message>
    <message id="redoFailed"><translation>Non è stato possibile ripetere “%1”. %2</translation></message>
    <message id="redone"><translation>Ripetuto: %1</translation></message>
    <message id="requiredNote"><translation>* campo obbligatorio</translation></message>
    <message id="riskFactors"><translation>Fattori di rischio</translation></message>
    <message id="sameID"><translation>L’ID %1 appartiene a un altro paziente dell’elenco. Non è stato ancora salvato nulla; scegliere un altro ID.</translation></message>
    <message id="sameIDTitle"><translation>ID già in uso</translation></message>
    <message id="savedPdf"><translation>Salvato come %1</translation></message>
    <message id="saveIt"><translation>&amp;Salva</translation></message>
    <message id="saveNot"><translation>&amp;Non salvare</translation></message>
    <message id="SavePatient"><translation>Salva paziente</translation></message>
    <message id="savePatientButton"><translation>&amp;Salva</translation></message>
    <message id="savePatientHint"><translation>Salva i dati digitati (Ctrl+S).</translation></message>
    <message id="savePdf"><translation>Salva come PDF</translation></message>
    <message id="savePdfButton"><translation>Salva come PD&amp;F…</translation></message>
    <message id="saveReading"><translation>&amp;Salva</translation></message>
    <message id="searchPatients"><translation>Cerca nome o ID</translation></message>
    <message id="searchPatientsHint"><translation>Mostra solo i pazienti il cui nome o ID contiene questo testo (Ctrl+F).</translation></message>
    <message id="selectAllRows"><translation>Seleziona tutto</translation></message>
    <message id="sendClock"><translation>Regola l’orologio del misuratore sull’ora di questo computer</translation></message>
    <message id="sendClockBusy"><translation>Regolazione…</translation></message>
    <message id="sendClockButton"><translation>Reg&amp;ola orologio</translation></message>
    <message id="sendID"><translation>Invia l’ID al misuratore</translation></message>
    <message id="sendIDButton"><translation>In&amp;via ID</translation></message>
    <message id="SendIDDataMsg" numerus="yes"><translation><numerusform>Contiene ancora %n misurazione. Prima di scrivervi l’ID %1: conservare questa misurazione per il nuovo ID, o eliminarla definitivamente dal misuratore?</numerusform><numerusform>Contiene ancora %n misurazioni. Prima di scrivervi l’ID %1: conservare queste misurazioni per il nuovo ID, o eliminarle definitivamente dal misuratore?</numerusform></translation></message>
    <message id="SendIDDataTitle"><translation>Misurazioni nel misuratore</translation></message>
    <message id="sendIDFailed"><translation>Invio dell’ID al misuratore non riuscito. %1</translation></message>
    <message id="sendIDFailedErased"><translation>Le misurazioni nel misuratore sono state eliminate, ma l’invio dell’ID non è riuscito. %1</translation></message>
    <message id="sendIDHint"><translation>Scrive l’ID di questo paziente nel misuratore collegato, che ne contiene un altro o nessuno.</translation></message>
    <message id="settingCancel"><translation>Chiudi senza salvare</translation></message>
    <message id="settingData"><translation>Dati dei pazienti</translation></message>
    <message id="settingDate"><translation>Formato della data</translation></message>
    <message id="settingDateLabel"><translation>Formato &amp;data</translation></message>
    <message id="settingDia"><translation>Limite diastolico in mmHg</translation></message>
    <message id="settingDiaLabel"><translation>Di&amp;astolico</translation></message>
    <message id="settingDisplay"><translation>Visualizzazione</translation></message>
    <message id="settingErase"><translation>Svuota il misuratore dopo ogni scarico dei dati</translation></message>
    <message id="settingEraseButton"><translation>S&amp;vuota il misuratore dopo lo scarico</translation></message>
    <message id="settingEraseHint"><translation>Le misurazioni vengono eliminate dal misuratore quando sono tutte registrate qui in modo sicuro.</translation></message>
    <message id="settingLanguage"><translation>Lingua</translation></message>
    <message id="settingLanguageLabel"><translation>Lin&amp;gua</translation></message>
    <message id="settingLanguageSystem"><translation>Come il sistema</translation></message>
    <message id="settingLanguageWhen"><translation>Il cambio di lingua vale dal prossimo avvio.</translation></message>
    <message id="settingLimits"><translation>Limiti della pressione</translation></message>
    <message id="settingMAP"><translation>Mostra la pressione arteriosa media</translation></message>
    <message id="settingMAPButton"><translation>&amp;Pressione arteriosa media (PAM)</translation></message>
    <message id="settingOK"><translation>Salva le impostazioni</translation></message>
    <message id="settingPhysician"><translation>Medico, per il piè di pagina dei rapporti stampati</translation></message>
    <message id="settingPhysicianTitle"><translation>Medico</translation></message>
    <message id="settingPhysicianUse"><translation>Compare a piè di pagina dei rapporti stampati, se lo si sceglie nella finestra di stampa.</translation></message>
    <message id="settingPP"><translation>Mostra la pressione differenziale</translation></message>
    <message id="settingPPButton"><translation>Pressione di&amp;fferenziale (PP)</translation></message>
    <message id="settingPPorMAP"><translation>Mostra con ogni misurazione</translation></message>
    <message id="settings"><translation>Impostazioni</translation></message>
    <message id="settingsButton"><translation>Impostazioni</translation></message>
    <message id="settingsHint"><translation>Impostazioni, esportazione e importazione (Ctrl+,)</translation></message>
    <message id="settingsNotSaved"><translation>Le impostazioni non sono state salvate. %1</translation></message>
    <message id="settingsPartlySaved"><translation>Non è stato possibile registrare tutte le impostazioni: alcune non trovano posto nel file dei dati.</translation></message>
    <message id="settingSys"><translation>Limite sistolico in mmHg</translation></message>
    <message id="settingSysLabel"><translation>&amp;Sistolico</translation></message>
    <message id="settingTime"><translation>Formato dell’ora</translation></message>
    <message id="settingTimeLabel"><translation>Formato o&amp;ra</translation></message>
    <message id="settingUnits"><translation>Unità di peso e altezza</translation></message>
    <message id="settingUnitsLabel"><translation>&amp;Unità</translation></message>
    <message id="settingWHO"><translation>Usa i limiti dell’Organizzazione Mondiale della Sanità</translation></message>
    <message id="settingWHOButton"><translation>Limiti O&amp;MS (140/90)</translation></message>
    <message id="settingWHOHint"><translation>Imposta entrambi i limiti su quelli dell’Organizzazione Mondiale della Sanità: 140 e 90 mmHg.</translation></message>
    <message id="show afib readings"><translation>Mostra FA</translation></message>
    <message id="show ihd readings"><translation>Mostra aritmia</translation></message>
    <message id="show pad readings"><translation>Mostra aritmia</translation></message>
    <message id="showCorrelation"><translation>Correlazione</translation></message>
    <message id="showGraph"><translation>Grafico</translation></message>
    <message id="showHistogram"><translation>Istogramma</translation></message>
    <message id="showMam"><translation>Mostra MAM</translation></message>
    <message id="showTrend"><translation>Andamento</translation></message>
    <message id="sideButton"><translation>Statistiche e commenti</translation></message>
    <message id="sideColumn"><translation>Misuratore e dati</translation></message>
    <message id="sideHint"><translation>Mostra o nasconde le statistiche e i commenti accanto alle misurazioni.</translation></message>
    <message id="spokenDia"><translation>Pressione diastolica, mmHg</translation></message>
    <message id="spokenFrequent"><translation>%1: più spesso da %2 a %3, %4 per cento delle misurazioni.</translation></message>
    <message id="spokenMap"><translation>Pressione arteriosa media, mmHg</translation></message>
    <message id="spokenMeasure"><translation>%1: media %2, minimo %3, massimo %4.</translation></message>
    <message id="spokenPP"><translation>Pressione differenziale, mmHg</translation></message>
    <message id="spokenPulse"><translation>Polso, battiti al minuto</translation></message>
    <message id="spokenSys"><translation>Pressione sistolica, mmHg</translation></message>
    <message id="statisticAll"><translation>Tutti i giorni con misurazioni</translation></message>
    <message id="statisticAllHint"><translation>Comprende tutto il periodo dalla prima all’ultima misurazione. Per considerarne una parte, scegliere altre date qui sopra.</translation></message>
    <message id="statisticPanel"><translation>Statistiche</translation></message>
    <message id="statisticWholeDay"><translation>Giorno intero: %1</translation></message>
    <message id="statusBroken"><translation>Misuratore collegato, comunicazione difettosa</translation></message>
    <message id="statusConnected"><translation>Misuratore collegato</translation></message>
    <message id="statusDamaged"><translation>Misuratore collegato, risposte danneggiate</translation></message>
    <message id="statusLocked"><translation>Misuratore collegato, senza permesso</translation></message>
    <message id="statusNotConnected"><translation>Nessun misuratore</translation></message>
    <message id="statusRefusing"><translation>Misuratore collegato, rifiuta i comandi</translation></message>
    <message id="statusSilent"><translation>Misuratore collegato, ma non risponde</translation></message>
    <message id="stepProgress"><translation>%1 di %2 file</translation></message>
    <message id="storedNotReadBack"><translation>La modifica è registrata, ma non è stato poi possibile rileggere il file dei dati. %1</translation></message>
    <message id="Synchronization"><translation>Regolare l’orologio del misuratore?</translation></message>
    <message id="synctimeAsk"><translation>L’orologio del misuratore è %1. Regolarlo sull’ora di questo computer, in modo che le nuove misurazioni abbiano data e ora giuste?</translation></message>
    <message id="tabChart"><translation>&amp;Grafico</translation></message>
    <message id="tabHint"><translation>%1 (Ctrl+%2)</translation></message>
    <message id="tabPatients"><translation>&amp;Pazienti</translation></message>
    <message id="tabReadings"><translation>Mis&amp;urazioni</translation></message>
    <message id="takeInAction"><translation>Includi di nuovo</translation></message>
    <message id="timeScroller"><translation>Sposta il periodo lungo le misurazioni</translation></message>
    <message id="timeScrollerHint"><translation>Sposta il periodo lungo le misurazioni. Lo fa anche la rotellina del mouse sul grafico; con Ctrl, girandola in avanti si vedono meno giorni, più da vicino, e girandola all’indietro più giorni.</translation></message>
    <message id="TimeSync"><translation>Orologio del misuratore</translation></message>
    <message id="TimeSyncMsg"><translation>Regolazione dell’orologio del misuratore: %1</translation></message>
    <message id="timeUnread"><translation>“%1” non si può leggere come ora: digitarla come %2 o %3.</translation></message>
    <message id="trendApart"><translation>Mattina e sera separate</translation></message>
    <message id="trendApartHint"><translation>Disegna le misurazioni prima delle 12 e quelle dalle 12 in poi come linee distinte.</translation></message>
    <message id="trendApartNeedsDay"><translation>È mostrata solo una metà del giorno, quindi non c’è nulla da separare. Premere prima Giorno intero; poi questa casella si può attivare.</translation></message>
    <message id="trendDays"><translation>dal %1 al %2</translation></message>
    <message id="trendFigures"><translation>%1 (da %2 a %3)</translation></message>
    <message id="trendInfoEvening"><translation>%1, dalle 12 in poi</translation></message>
    <message id="trendInfoMorning"><translation>%1, prima delle 12</translation></message>
    <message id="trendKeys"><translation>%1, %2. Freccia sinistra e destra mostrano i dati di un punto dopo l’altro, Inizio e Fine quelli del primo e dell’ultimo.</translation></message>
    <message id="trendPeriod"><translation>Giorni</translation></message>
    <message id="trendReadings"><translation>Misurazioni</translation></message>
    <message id="trendView"><translation>Andamento di pressione sistolica, diastolica e polso</translation></message>
    <message id="undoDropped"><translation>

Questa operazione viene quindi tralasciata d’ora in poi; le altre non ne risentono.</translation></message>
    <message id="undoFailed"><translation>Non è stato possibile annullare “%1”. %2</translation></message>
    <message id="undone"><translation>Annullato: %1</translation></message>
    <message id="unitMmHg"><translation>mmHg</translation></message>
    <message id="unitPulse"><translation>battiti al minuto</translation></message>
    <message id="unsavedDelete"><translation>Eliminare quanto digitato per %1? In caso contrario la domanda verrà riproposta al prossimo avvio.</translation></message>
    <message id="unsavedFound"><translation>Alla chiusura del programma non è stato possibile salvare quanto si stava digitando per %1. Continuare ora?</translation></message>
    <message id="unsavedTitle"><translation>Non ancora salvato</translation></message>
    <message id="usualColumns"><translation>Colonne e ordine abituali</translation></message>
    <message id="valueHigh"><translation>%1, pari o superiore al limite</translation></message>
    <message id="valueMmHg"><translation>%1 mmHg</translation></message>
    <message id="valuePulse"><translation>%1 al minuto</translation></message>
    <message id="valueWithUnit"><translation>%1, %2</translation></message>
    <message id="viewAll"><translation>&amp;Tutte</translation></message>
    <message id="viewAllHint"><translation>Tutte le misurazioni, dal primo all’ultimo giorno.</translation></message>
    <message id="viewAM"><translation>Matti&amp;na</translation></message>
    <message id="viewAMHint"><translation>Le misurazioni prima delle 12, dei giorni mostrati.</translation></message>
    <message id="viewBoth"><translation>Gi&amp;orno intero</translation></message>
    <message id="viewBothHint"><translation>Le misurazioni di tutte le ore, dei giorni mostrati.</translation></message>
    <message id="viewChoiceNeeded"><translation>Le misurazioni senza data non appartengono ad alcun giorno e si possono mostrare solo con Tutte. Premere prima Tutte; poi questa casella si può attivare.</translation></message>
    <message id="viewDays"><translation>Giorni mostrati</translation></message>
    <message id="viewHalf"><translation>Parte del giorno mostrata</translation></message>
    <message id="viewLast"><translation>%1 giorni</translation></message>
    <message id="viewLastHint"><translation>Gli ultimi %1 giorni, fino all’ultimo con una misurazione.</translation></message>
    <message id="viewLastName"><translation>Ultimi %1 giorni</translation></message>
    <message id="viewPM"><translation>Sera</translation></message>
    <message id="viewPMHint"><translation>Le misurazioni dalle 12 in poi, dei giorni mostrati.</translation></message>
    <message id="viewTabs"><translation>Viste</translation></message>
    <message id="viewWeek"><translation>&amp;Settimana di misura</translation></message>
    <message id="viewWeekHint"><translation>I sette giorni di cui si calcola la media come settimana di misura.</translation></message>
    <message id="weekBelow"><translation>Sotto la soglia %1 (al decimo: %2)</translation></message>
    <message id="weekDays" numerus="yes"><translation><numerusform>%1 in %n giorno</numerusform><numerusform>%1 in %n giorni</numerusform></translation></message>
    <message id="weekEnd"><translation>Ultimo giorno della settimana di misura</translation></message>
    <message id="weekEvenings"><translation>Sera %1</translation></message>
    <message id="weekExcluded" numerus="yes"><translation><numerusform>%n esclusa</numerusform><numerusform>%n escluse</numerusform></translation></message>
    <message id="weekExcludedLater" numerus="yes"><translation><numerusform>%n di giorni successivi esclusa</numerusform><numerusform>%n di giorni successivi escluse</numerusform></translation></message>
    <message id="weekFirstDay" numerus="yes"><translation><numerusform>%n del primo giorno non conteggiata</numerusform><numerusform>%n del primo giorno non conteggiate</numerusform></translation></message>
    <message id="weekMean"><translation>%1 mmHg</translation></message>
    <message id="weekMeanHint"><translation>Media %1/%2 mmHg, polso %3</translation></message>
    <message id="weekMissing"><translation>Incompleta, mancanti: %1</translation></message>
    <message id="weekMornings"><translation>Mattina %1</translation></message>
    <message id="weekNoMean"><translation>Nessuna media</translation></message>
    <message id="weekOtherZone" numerus="yes"><translation><numerusform>%n misurazione è stata salvata in un altro fuso orario; l’orario è quello di questo computer</numerusform><numerusform>%n misurazioni sono state salvate in un altro fuso orario; gli orari sono quelli di questo computer</numerusform></translation></message>
    <message id="weekPanel"><translation>Settimana di misura</translation></message>
    <message id="weekPulse"><translation>polso %1</translation></message>
    <message id="weekReached"><translation>Soglia %1 raggiunta (al decimo: %2)</translation></message>
    <message id="weekReadings" numerus="yes"><translation><numerusform>%n misurazione</numerusform><numerusform>%n misurazioni</numerusform></translation></message>
    <message id="weekRule"><translation>Regola della media</translation></message>
    <message id="weekRuleAha"><translation>AHA</translation></message>
    <message id="weekRuleEsh"><translation>ESH</translation></message>
    <message id="weekRuleHint"><translation>ESH: primo giorno non conteggiato, 12 misurazioni in almeno altri 2 giorni
NICE: primo giorno non conteggiato, 2 misurazioni ogni mattina e ogni sera in almeno altri 3 giorni
AHA: 12 misurazioni in almeno 3 giorni</translation></message>
    <message id="weekRuleNice"><translation>NICE</translation></message>
    <message id="weekTo"><translation>al</translation></message>
    <message id="weekUnmeasured" numerus="yes"><translation><numerusform>%n senza valori di pressione non conteggiata</numerusform><numerusform>%n senza valori di pressione non conteggiate</numerusform></translation></message>
    <message id="weightRefusedKg"><translation>Indicare un numero da 0,2 a 1000 kg, per esempio 72,5.</translation></message>
    <message id="weightRefusedLb"><translation>Indicare un numero da 0,5 a 2200 lb, per esempio 160,5.</translation></message>
    <message id="windowNotForgotten"><translation>Il file %1 conserva lo stato della finestra. Non è stato possibile rimuoverlo.</translation></message>
    <message id="windowNotReset"><translation>ZEL è già aperto per questo file dei dati; la sua finestra è stata portata in primo piano. Chiuderla e riavviare ZEL con --reset-view.</translation></message>
    <message id="windowShown"><translation>ZEL è già aperto per questo file dei dati; la sua finestra è stata portata in primo piano.</translation></message>
    <message id="windowSilent"><translation>ZEL è già aperto per questo file dei dati, ma la sua finestra non risponde. Può essere occupato con un disco o una stampante lenti, oppure bloccato: se entro un minuto non riprende, terminarlo dal monitor di sistema del computer.

Aprire un’altra finestra accanto? Non comporta rischi: ciò che entrambe salvano viene conservato.</translation></message>
    <message id="yes"><translation>&amp;Sì</translation></message>
    <message id="yyyy mm dd"><translation>aaaa mm gg</translation></message>
</context>
<context>
    <name>chart</name>
    <message id="abovePoints" numerus="yes"><translation><numerusform>%n punto supera la scala</numerusform><numerusform>%n punti superano la scala</numerusform></translation></message>
    <message id="aboveScale" numerus="yes"><translation><numerusform>%n misurazione sopra la scala</numerusform><numerusform>%n misurazioni sopra la scala</numerusform></translation></message>
    <message id="aboveScaleShort"><translation>%1 sopra</translation></message>
    <message id="average"><translation>Media</translation></message>
    <message id="belowPoints" numerus="yes"><translation><numerusform>%n punto scende sotto la scala</numerusform><numerusform>%n punti scendono sotto la scala</numerusform></translation></message>
    <message id="belowScale" numerus="yes"><translation><numerusform>%n misurazione sotto la scala</numerusform><numerusform>%n misurazioni sotto la scala</numerusform></translation></message>
    <message id="belowScaleShort"><translation>%1 sotto</translation></message>
    <message id="chartExcluded" numerus="yes"><translation><numerusform>○ %n esclusa</numerusform><numerusform>○ %n escluse</numerusform></translation></message>
    <message id="dia"><translation>DIA</translation></message>
    <message id="dia too high"><translation>Diastolica alta</translation></message>
    <message id="evening"><translation>Sera</translation></message>
    <message id="max"><translation>Max</translation></message>
    <message id="min"><translation>Min</translation></message>
    <message id="mmHg"><translation>mmHg</translation></message>
    <message id="monthOfYear"><translation>%1 %2</translation></message>
    <message id="morning"><translation>Mattina</translation></message>
    <message id="noEveningReadings"><translation>Nessuna misurazione dalle 12 in poi nel periodo</translation></message>
    <message id="noMorningReadings"><translation>Nessuna misurazione prima delle 12 nel periodo</translation></message>
    <message id="noReadingsInPeriod"><translation>Nessuna misurazione nel periodo</translation></message>
    <message id="normal"><translation>Normale</translation></message>
    <message id="P/min"><translation>bpm</translation></message>
    <message id="pulse"><translation>Polso</translation></message>
    <message id="sys"><translation>SYS</translation></message>
    <message id="sys and dia too high"><translation>Entrambe alte</translation></message>
    <message id="sys too high"><translation>Sistolica alta</translation></message>
    <message id="trendBand"><translation>%1; banda: dal 10º al 90º percentile, o tutte le misurazioni se meno di 5</translation></message>
    <message id="trendBandAll"><translation>%1; banda: tutte le misurazioni</translation></message>
    <message id="trendBandShort"><translation>%1; banda: dal 10º al 90º percentile</translation></message>
    <message id="trendCoveredComments" numerus="yes"><translation><numerusform>%n commento sta sopra un altro</numerusform><numerusform>%n commenti stanno sopra altri</numerusform></translation></message>
    <message id="trendDay"><translation>Mediana di ogni giorno</translation></message>
    <message id="trendEvening"><translation>%1 sera</translation></message>
    <message id="trendLinked"><translation>%1; a puntini: nessuna misurazione</translation></message>
    <message id="trendMonth"><translation>Mediana di ogni mese</translation></message>
    <message id="trendMoreComments" numerus="yes"><translation><numerusform>%n altro commento non trova posto qui</numerusform><numerusform>%n altri commenti non trovano posto qui</numerusform></translation></message>
    <message id="trendMorning"><translation>%1 mattina</translation></message>
    <message id="trendWeek"><translation>Mediana di ogni settimana</translation></message>
    <message id="trendWordlessComments" numerus="yes"><translation><numerusform>%n altro commento senza il suo testo</numerusform><numerusform>%n altri commenti senza il loro testo</numerusform></translation></message>
</context>
<context>
    <name>report</name>
    <message id="appDescrption"><translation>Rapporto sulla pressione, da ZEL</translation></message>
    <message id="comment"><translation>Commenti</translation></message>
    <message id="comments"><translation>Commenti</translation></message>
    <message id="correlation"><translation>Pressione sistolica rispetto alla diastolica</translation></message>
    <message id="date"><translation>Data</translation></message>
    <message id="formAddress"><translation>Indirizzo</translation></message>
    <message id="formAge"><translation>Età</translation></message>
    <message id="formBirth"><translation>Data di nascita</translation></message>
    <message id="formCholesterol"><translation>Colesterolo (mg/dL)</translation></message>
    <message id="formDay"><translation>Giorno</translation></message>
    <message id="formDiabetic"><translation>Diabete</translation></message>
    <message id="formFamilyHistory"><translation>Familiarità</translation></message>
    <message id="formFamilyName"><translation>Cognome</translation></message>
    <message id="formGivenNames"><translation>Nome</translation></message>
    <message id="formHeightCm"><translation>Altezza (cm)</translation></message>
    <message id="formHeightFtIn"><translation>Altezza (ft/in)</translation></message>
    <message id="formID"><translation>ID</translation></message>
    <message id="formMonth"><translation>Mese</translation></message>
    <message id="formNotes"><translation>Note sul paziente</translation></message>
    <message id="formPersonal"><translation>Dati personali</translation></message>
    <message id="formPhoneEmail"><translation>Tel. / e-mail</translation></message>
    <message id="formRisks"><translation>Fattori di rischio</translation></message>
    <message id="formSex"><translation>Sesso</translation></message>
    <message id="formSmoker"><translation>Fumo</translation></message>
    <message id="formWeightKg"><translation>Peso (kg)</translation></message>
    <message id="formWeightLb"><translation>Peso (lb)</translation></message>
    <message id="formYear"><translation>Anno</translation></message>
    <message id="formYears" numerus="yes"><translation><numerusform>anno</numerusform><numerusform>anni</numerusform></translation></message>
    <message id="graph"><translation>Grafico di pressione e polso</translation></message>
    <message id="histogram"><translation>Distribuzione delle misurazioni</translation></message>
    <message id="legendTitle"><translation>%1:</translation></message>
    <message id="mam"><translation>MAM</translation></message>
    <message id="n.a."><translation>n.a.</translation></message>
    <message id="N.A."><translation>N.A.</translation></message>
    <message id="No"><translation>No</translation></message>
    <message id="PatientProfile"><translation>Scheda del paziente</translation></message>
    <message id="reportAllComments"><translation>Commenti di ogni data, non solo di questo periodo</translation></message>
    <message id="reportAllTimesOfDay"><translation>%1, giorno intero</translation></message>
    <message id="reportAverage"><translation>media di più misurazioni</translation></message>
    <message id="reportBothAbove"><translation>Entrambe sopra: %1</translation></message>
    <message id="reportCommentBars"><translation>Barre: commenti, per numero</translation></message>
    <message id="reportCommentsLeftOut"><translation>Un rapporto ha posto per %1 commenti, con %2 caratteri in tutto. Seguono i più recenti; un’esportazione li contiene tutti.</translation></message>
    <message id="reportContinued"><translation>%1, continuazione</translation></message>
    <message id="reportCorrelationLimits" numerus="yes"><translation><numerusform>La linea è il limite.</numerusform><numerusform>Le linee sono i limiti.</numerusform></translation></message>
    <message id="reportCorrelationNote"><translation>Ogni quadratino è una misurazione, o più misurazioni con gli stessi valori, in mmHg.</translation></message>
    <message id="reportCutComments"><translation>…: per intero nella sezione Commenti</translation></message>
    <message id="reportCutPractitioner"><translation>…: qui abbreviato; il testo intero è nelle impostazioni.</translation></message>
    <message id="reportCutTexts"><translation>…: qui abbreviato; il testo intero è nella pagina seguente.</translation></message>
    <message id="reportDays" numerus="yes"><translation><numerusform>%n giorno</numerusform><numerusform>%n giorni</numerusform></translation></message>
    <message id="reportDemonstration"><translation>Dimostrazione: dati fittizi</translation></message>
    <message id="reportDiaAbove"><translation>Solo la diastolica sopra: %1</translation></message>
    <message id="reportDocument"><translation>Rapporto sulla pressione arteriosa: %1 (%2)</translation></message>
    <message id="reportDownloadDay"><translation>↓ giallo: scarico dati</translation></message>
    <message id="reportEarlierComments" numerus="yes"><translation><numerusform>%n commento precedente non è stampato</numerusform><numerusform>%n commenti precedenti non sono stampati</numerusform></translation></message>
    <message id="reportEmptySections"><translation>Sezioni vuote, omesse dal rapporto: %1</translation></message>
    <message id="reportEveningOnly"><translation>Solo le misurazioni dalle 12 in poi</translation></message>
    <message id="reportFindingUnknown"><translation>N.A.: non nota</translation></message>
    <message id="reportFound"><translation>rilevata</translation></message>
    <message id="reportGoesOn"><translation>continua nella pagina seguente</translation></message>
    <message id="reportGraphComments"><translation>Riquadri numerati: commenti.</translation></message>
    <message id="reportGraphDownloads"><translation>↓: giorno di scarico dati.</translation></message>
    <message id="reportGraphExcluded"><translation>○: misurazione esclusa.</translation></message>
    <message id="reportGraphHiddenLimits" numerus="yes"><translation><numerusform>Il limite di %1 è fuori dalla scala.</numerusform><numerusform>I limiti di %1 sono fuori dalla scala.</numerusform></translation></message>
    <message id="reportGraphLimits" numerus="yes"><translation><numerusform>Linea tratteggiata: il limite di %1.</numerusform><numerusform>Linee tratteggiate: i limiti di %1.</numerusform></translation></message>
    <message id="reportGraphNote"><translation>Linea superiore: pressione sistolica; linea inferiore: pressione diastolica.</translation></message>
    <message id="reportHistogramNote"><translation>La lunghezza di una barra è la percentuale di tutte le misurazioni che rientrano nel suo intervallo di 10 mmHg o di 10 battiti al minuto.</translation></message>
    <message id="reportKeepLimits" numerus="yes"><translation><numerusform>Pari o inferiori a %1: %2</numerusform><numerusform>Pari o inferiori ai limiti di %1: %2</numerusform></translation></message>
    <message id="reportLeftOutReading"><translation>%1 %2   %3/%4 mmHg, polso %5</translation></message>
    <message id="reportLeftOutTitle" numerus="yes"><translation><numerusform>%n misurazione esclusa, con il motivo</numerusform><numerusform>%n misurazioni escluse, con il motivo</numerusform></translation></message>
    <message id="reportLimitDia"><translation>%1 mmHg (diastolica)</translation></message>
    <message id="reportLimits"><translation>%1/%2 mmHg</translation></message>
    <message id="reportLimitSys"><translation>%1 mmHg (sistolica)</translation></message>
    <message id="reportMeasured"><translation>Media in mmHg (misurazioni): %1</translation></message>
    <message id="reportMoreNumbers" numerus="yes"><translation><numerusform>e %n altro</numerusform><numerusform>e altri %n</numerusform></translation></message>
    <message id="reportMorningOnly"><translation>Solo le misurazioni prima delle 12</translation></message>
    <message id="reportNoData"><translation>Non c’è nulla da stampare: le sezioni scelte non contengono dati per questo paziente e periodo. Nessun file è stato scritto.</translation></message>
    <message id="reportNoDate"><translation>n.a: nessuna data</translation></message>
    <message id="reportNoFigures"><translation>n/a: nessuna misurazione</translation></message>
    <message id="reportNoLimits"><translation>Nessun limite impostato.</translation></message>
    <message id="reportNoReading"><translation>n.a.: nessuna misurazione</translation></message>
    <message id="reportNotFound"><translation>non rilevata</translation></message>
    <message id="reportNotPainted"><translation>Impossibile creare il PDF dalle pagine. Nessun file è stato scritto.</translation></message>
    <message id="reportNotWritable"><translation>Impossibile scrivere il file %1. Controllare che la sua cartella esista e che sia consentito scrivervi.</translation></message>
    <message id="reportPage"><translation>Pagina %1 di %2</translation></message>
    <message id="reportPatient"><translation>Paziente: %1 %2  ID: %3</translation></message>
    <message id="reportPeriod"><translation>Dal %1 al %2</translation></message>
    <message id="reportReadings" numerus="yes"><translation><numerusform>%n misurazione</numerusform><numerusform>%n misurazioni</numerusform></translation></message>
    <message id="reportStruckThrough"><translation>barrata: esclusa da tutti i calcoli; i motivi sono dopo la tabella</translation></message>
    <message id="reportSysAbove"><translation>Solo la sistolica sopra: %1</translation></message>
    <message id="reportTextTooLong"><translation>… Il resto di questo testo non è stampato: altri %1 caratteri.</translation></message>
    <message id="reportTrendLimits" numerus="yes"><translation><numerusform>Linea retta sottile: il limite di %1.</numerusform><numerusform>Linee rette sottili: i limiti di %1.</numerusform></translation></message>
    <message id="reportTrendNote"><translation>Linee spesse: mediane. Una linea si interrompe dove mancano misurazioni; una linea a puntini ne unisce gli estremi, al massimo per 30 giorni.</translation></message>
    <message id="reportWriteFailed"><translation>La scrittura del file %1 non è riuscita, perciò non c’è un nuovo file. Controllare che il disco non sia pieno e riprovare.</translation></message>
    <message id="summary"><translation>Riepilogo</translation></message>
    <message id="summaryAha"><translation>AHA</translation></message>
    <message id="summaryAll"><translation>Tutte</translation></message>
    <message id="summaryBelow"><translation>Sotto la soglia di %1 (al decimo: %2/%3)</translation></message>
    <message id="summaryBorn" numerus="yes"><translation><numerusform>Nascita: %1, %n anno</numerusform><numerusform>Nascita: %1, %n anni</numerusform></translation></message>
    <message id="summaryBornOn"><translation>Nascita: %1</translation></message>
    <message id="summaryComments"><translation>Cambiamenti: commenti, prima i più recenti</translation></message>
    <message id="summaryComplete"><translation>Completa</translation></message>
    <message id="summaryCut"><translation>…: abbreviato.</translation></message>
    <message id="summaryDia"><translation>DIA, mmHg</translation></message>
    <message id="summaryEither"><translation>SYS o DIA o entrambe</translation></message>
    <message id="summaryEsh"><translation>ESH</translation></message>
    <message id="summaryEvening"><translation>Sera</translation></message>
    <message id="summaryEvenings"><translation>Sera %1</translation></message>
    <message id="summaryExcluded"><translation>%1 %2  %3/%4: %5</translation></message>
    <message id="summaryFirstDay" numerus="yes"><translation><numerusform>%n del primo giorno non conteggiata</numerusform><numerusform>%n del primo giorno non conteggiate</numerusform></translation></message>
    <message id="summaryFlagged" numerus="yes"><translation><numerusform>%1 segnalata: %2 su %n misurazione</numerusform><numerusform>%1 segnalata: %2 su %n misurazioni</numerusform></translation></message>
    <message id="summaryHigh"><translation>Pari o superiori a %1</translation></message>
    <message id="summaryHighOf" numerus="yes"><translation><numerusform>%1 su %n misurazione</numerusform><numerusform>%1 su %n misurazioni</numerusform></translation></message>
    <message id="summaryID"><translation>ID %1</translation></message>
    <message id="summaryIncomplete"><translation>Incompleta, mancanti: %1</translation></message>
    <message id="summaryInFull"><translation>…: per intero in “%1”.</translation></message>
    <message id="summaryLastDays" numerus="yes"><translation><numerusform>Ultimo giorno: media (misurazioni)</numerusform><numerusform>Ultimi %n giorni: media (misurazioni)</numerusform></translation></message>
    <message id="summaryLeftOut"><translation>Escluse o non conteggiate</translation></message>
    <message id="summaryMax"><translation>Max</translation></message>
    <message id="summaryMean"><translation>Media</translation></message>
    <message id="summaryMin"><translation>Min</translation></message>
    <message id="summaryMoreComments" numerus="yes"><translation><numerusform>e %n altro commento</numerusform><numerusform>e altri %n commenti</numerusform></translation></message>
    <message id="summaryMoreExcluded" numerus="yes"><translation><numerusform>e %n altra esclusa</numerusform><numerusform>e altre %n escluse</numerusform></translation></message>
    <message id="summaryMorning"><translation>Mattina</translation></message>
    <message id="summaryMornings"><translation>Mattina %1</translation></message>
    <message id="summaryNice"><translation>NICE</translation></message>
    <message id="summaryNoBirth"><translation>Data di nascita non indicata</translation></message>
    <message id="summaryNoComments"><translation>Nessun commento nel periodo</translation></message>
    <message id="summaryNoDated"><translation>Nessuna misurazione con data</translation></message>
    <message id="summaryNone"><translation>Nessuna misurazione nel periodo</translation></message>
    <message id="summaryNoneCountsYet"><translation>Ancora nessuna misurazione utile</translation></message>
    <message id="summaryNoReason"><translation>nessun motivo indicato</translation></message>
    <message id="summaryNote"><translation>Settimana di misura: %1 se la soglia è raggiunta. %2 Mattina: prima delle 12. %3</translation></message>
    <message id="summaryNotExamined"><translation>Aritmia: nessuna misurazione esaminata</translation></message>
    <message id="summaryNothingLeftOut"><translation>Nessuna: tutte conteggiate</translation></message>
    <message id="summaryNoWeek"><translation>Nessuna misurazione nella settimana</translation></message>
    <message id="summaryOnDays" numerus="yes"><translation><numerusform>%1 in %n giorno</numerusform><numerusform>%1 in %n giorni</numerusform></translation></message>
    <message id="summaryOnOtherDays" numerus="yes"><translation><numerusform>%n in altri giorni</numerusform><numerusform>%n in altri giorni</numerusform></translation></message>
    <message id="summaryOtherComments" numerus="yes"><translation><numerusform>%n commento di altri giorni</numerusform><numerusform>%n commenti di altri giorni</numerusform></translation></message>
    <message id="summaryOthers" numerus="yes"><translation><numerusform>%n misurazione non esaminata per aritmia</numerusform><numerusform>%n misurazioni non esaminate per aritmia</numerusform></translation></message>
    <message id="summaryOtherZone" numerus="yes"><translation><numerusform>%n misurazione conteggiata è stata salvata in un altro fuso orario; orari di questo computer</numerusform><numerusform>%n misurazioni conteggiate sono state salvate in un altro fuso orario; orari di questo computer</numerusform></translation></message>
    <message id="summaryPeriod"><translation>Dal %1 al %2</translation></message>
    <message id="summaryPulse"><translation>Polso %1</translation></message>
    <message id="summaryRate"><translation>Polso, bpm</translation></message>
    <message id="summaryReached"><translation>Soglia di %1 raggiunta (al decimo: %2/%3)</translation></message>
    <message id="summaryReadings"><translation>Misurazioni</translation></message>
    <message id="summaryReasonsInFull"><translation>…: abbreviato; misurazioni escluse: per intero in “%1”.</translation></message>
    <message id="summarySD"><translation>DS</translation></message>
    <message id="summarySys"><translation>SYS, mmHg</translation></message>
    <message id="summaryTable"><translation>Misurazioni del periodo (DS: campionaria, n − 1)</translation></message>
    <message id="summaryTrend"><translation>Andamento</translation></message>
    <message id="summaryTrendComments"><translation>Andamento e, sotto, i commenti per numero</translation></message>
    <message id="summaryTrendHidden"><translation>Fuori dalla scala dell’andamento: %1.</translation></message>
    <message id="summaryTrendLimits"><translation>Linee rette sottili nell’andamento: %1.</translation></message>
    <message id="summaryTrendNumberless" numerus="yes"><translation><numerusform>Andamento e, sotto, i commenti per numero; %n senza posto per il suo numero</numerusform><numerusform>Andamento e, sotto, i commenti per numero; %n senza posto per il loro numero</numerusform></translation></message>
    <message id="summaryTyped" numerus="yes"><translation><numerusform>Inserite a mano: %1 su %n misurazione</numerusform><numerusform>Inserite a mano: %1 su %n misurazioni</numerusform></translation></message>
    <message id="summaryWeek"><translation>Settimana di misura (%1)  %2</translation></message>
    <message id="summaryWeekExcluded" numerus="yes"><translation><numerusform>%n della settimana esclusa</numerusform><numerusform>%n della settimana escluse</numerusform></translation></message>
    <message id="summaryWeekTyped" numerus="yes"><translation><numerusform>%n della settimana inserita a mano</numerusform><numerusform>%n della settimana inserite a mano</numerusform></translation></message>
    <message id="summaryWeekUnmeasured" numerus="yes"><translation><numerusform>%n della settimana senza valori di pressione</numerusform><numerusform>%n della settimana senza valori di pressione</numerusform></translation></message>
    <message id="summaryWeekZone" numerus="yes"><translation><numerusform>%n salvata in un altro fuso orario; orari di questo computer</numerusform><numerusform>%n salvate in un altro fuso orario; orari di questo computer</numerusform></translation></message>
    <message id="SWStatistics"><translation>Statistiche e misurazioni</translation></message>
    <message id="table"><translation>Misurazioni</translation></message>
    <message id="time"><translation>Ora</translation></message>
    <message id="trend"><translation>Andamento di pressione e polso</translation></message>
    <message id="Yes"><translation>Sì</translation></message>
</context>
<context>
    <name>cli</name>
    <message id="CliAddMissing"><translation>--id, --family-name e --given-names vanno insieme a --add.</translation></message>
    <message id="CliAmAndPm"><translation>Indicare --am oppure --pm, non entrambe.</translation></message>
    <message id="CliBackupUsage"><translation>Indicare list, create, oppure restore con il nome di una copia; o ancora folder e, per cambiarla, il nome della cartella oppure --none.</translation></message>
    <message id="CliBadDate"><translation>--%1 richiede un giorno del calendario nella forma aaaa-MM-gg, non '%2'.</translation></message>
    <message id="CliBadDays"><translation>--last richiede un numero intero di giorni da 1 a %2, non '%1'.</translation></message>
    <message id="CliBadField"><translation>Il valore di --%1 non può essere '-', non può iniziare o finire con uno spazio e non può contenere caratteri di controllo.</translation></message>
    <message id="CliBadID"><translation>Il valore di --id deve avere da 1 a 11 lettere, cifre o segni semplici, senza accenti: un misuratore non può memorizzarne di più.</translation></message>
    <message id="CliBadPaper"><translation>--paper richiede A4 o Letter, non '%1'.</translation></message>
    <message id="CliBadWait"><translation>--wait richiede un numero intero di secondi da 0 a %1.</translation></message>
    <message id="CliChangeOfNothing"><translation>--change richiede almeno una delle opzioni --date, --time, --sys, --dia e --pulse.</translation></message>
    <message id="CliClockUnread"><translation>Impossibile leggere l'orologio del misuratore. %1</translation></message>
    <message id="CliClockUnset"><translation>Impossibile regolare l'orologio del misuratore. %1</translation></message>
    <message id="CliColumnsForm"><translation>--columns richiede i titoli delle colonne, per esempio date=Data,time=Ora,sys=Sistolica,dia=Diastolica,pulse=Polso; solo time può mancare.</translation></message>
    <message id="CliColumnsHelp"><translation>Per la tabella di un altro programma, --columns indica che cosa contengono le sue colonne.</translation></message>
    <message id="CliCountUnread"><translation>Impossibile leggere il numero di misurazioni nel misuratore. %1</translation></message>
    <message id="CliDatesForm"><translation>--dates accetta dmy, mdy o ymd, non '%1'.</translation></message>
    <message id="CliDemonstrationMonitor"><translation>Questi dati appartengono a una dimostrazione e non accolgono misurazioni di un misuratore vero. Indicare --simulated-monitor.</translation></message>
    <message id="CliDownloadFailed"><translation>Impossibile scaricare le misurazioni; non è stato registrato nulla. %1 Le misurazioni sono ancora nel misuratore: riprovare.</translation></message>
    <message id="CliDownloadNotReadBack"><translation>Le misurazioni sono registrate, ma non è stato poi possibile rileggere il file dei dati, perciò la memoria del misuratore non è stata cancellata. %1</translation></message>
    <message id="CliDownloadUnsaved"><translation>Impossibile registrare le misurazioni scaricate. %1 Sono ancora nel misuratore.</translation></message>
    <message id="CliEmptySections"><translation>Sezioni vuote, omesse dal rapporto: %1</translation></message>
    <message id="CliEraseAfterFailed"><translation>Le misurazioni sono registrate e al sicuro, ma non è stato poi possibile cancellare la memoria del misuratore. %1 La si può cancellare con 'zel monitor --erase --yes'.</translation></message>
    <message id="CliEraseAfterUnseen"><translation>Le misurazioni sono registrate e al sicuro, ma non è stato possibile accertare se il misuratore sia ora vuoto. %1 'zel monitor' ne mostra il contenuto.</translation></message>
    <message id="CliEraseFailed"><translation>Impossibile cancellare la memoria del misuratore. %1</translation></message>
    <message id="CliEraseNeedsYes"><translation>--erase elimina definitivamente tutte le misurazioni dal misuratore. Per confermare, aggiungere --yes.</translation></message>
    <message id="CliEraseNoID"><translation>La memoria del misuratore si cancella riscrivendovi il suo stesso ID, ma il misuratore non contiene un ID utilizzabile. Prima assegnargliene uno con 'zel monitor --send-id ID'.</translation></message>
    <message id="CliEraseUnseen"><translation>Non è stato possibile accertare se la memoria del misuratore sia ora vuota. %1</translation></message>
    <message id="CliExcludedLater" numerus="yes"><translation><numerusform>Anche %n misurazione di giorni successivi è esclusa.</numerusform><numerusform>Anche %n misurazioni di giorni successivi sono escluse.</numerusform></translation></message>
    <message id="CliExcludedLeftOut" numerus="yes"><translation><numerusform>%n misurazione della settimana è esclusa.</numerusform><numerusform>%n misurazioni della settimana sono escluse.</numerusform></translation></message>
    <message id="CliFilesMissing"><translation>Manca un file da importare.</translation></message>
    <message id="CliFirstDayLeftOut" numerus="yes"><translation><numerusform>%n misurazione del primo giorno di misura non è conteggiata.</numerusform><numerusform>%n misurazioni del primo giorno di misura non sono conteggiate.</numerusform></translation></message>
    <message id="CliFolderMissing"><translation>Manca la cartella in cui esportare.</translation></message>
    <message id="CliForceReplaces"><translation>--force lo sostituisce.</translation></message>
    <message id="CliFromAfterTo"><translation>Il giorno di --from è successivo a quello di --to.</translation></message>
    <message id="CliHelp"><translation>Uso: zel [--simulated-monitor[=FILE] | --demonstration] [--language TAG] [--reset-view]
     zel COMMAND [OPTION]...

Gestisce le misurazioni dei misuratori automatici di pressione, paziente per paziente.
Senza comando si apre una finestra. I comandi fanno le stesse cose senza finestra, sullo stesso file dei dati:

  monitor      mostra il misuratore collegato, oppure ne imposta l'orologio o l'ID, o ne cancella la memoria
  patients     elenca i pazienti o ne aggiunge uno
  download     registra per un paziente le misurazioni del misuratore
  readings     mostra le misurazioni di un paziente
  statistics   mostra medie, minimi e massimi delle misurazioni di un paziente
  average      mostra la media di una settimana di misura, secondo le linee guida per le misurazioni a domicilio
  report       scrive il rapporto di un paziente in PDF
  export-xml   esporta tutti i pazienti, o uno solo, in file XML
  export-csv   esporta un paziente e le sue misurazioni in un file CSV
  export-fhir  esporta tutti i pazienti, o uno solo, in file FHIR per altre cartelle cliniche
  export-table esporta le misurazioni come tabella per fogli di calcolo
  import       importa pazienti da file XML esportati, o misurazioni da tabelle
  settings     mostra le impostazioni o ne modifica alcune
  backup       elenca le copie del file dei dati, ne crea una o ne ripristina una
  privacy      dice se altri possono leggere il file dei dati, o ne impedisce l'accesso

Opzioni:
  --simulated-monitor[=FILE]   usa un misuratore simulato, descritto da FILE o integrato, invece di uno USB
  --demonstration              una finestra con un misuratore simulato e dati propri
  --language TAG               la lingua dei messaggi e dei rapporti, per esempio it
  --reset-view                 dimentica lo stato della finestra: posizione, pagina, paziente, colonne, cartella
  -h, --help                   mostra questo testo; 'zel COMMAND --help' descrive un comando
  --version                    mostra la versione

Stato di uscita: 0 eseguito, 1 non riuscito (il motivo è sullo standard error), 2 uso errato.</translation></message>
    <message id="CliHelpAverage"><translation>Uso: zel average --patient ID [--rule esh|nice|aha] [--to DAY]

Mostra la media delle misurazioni di un paziente in una settimana di misura, cioè i sette giorni che
terminano con un dato giorno, secondo la regola di una linea guida: quali giorni e misurazioni contano,
quanti ne occorrono e qual è la soglia della media.
Solo numeri: spetta a un medico dire che cosa significhino per il paziente.

  rule        esh: almeno 3 giorni, il primo non conteggiato, poi almeno 12 misurazioni; soglia 135/85
              nice: almeno 4 giorni, il primo non conteggiato, poi 2 misurazioni al mattino e 2 alla sera
              di ogni giorno; soglia 135/85
              aha: almeno 3 giorni e almeno 12 misurazioni; soglia 130/80
  complete    yes, oppure no se mancano giorni o misurazioni; la media è mostrata comunque
  missing     che cosa manca
  days        giorni con misurazioni che contano
  readings    misurazioni che contano
  sys, dia    in mmHg
  pulse       in battiti al minuto
  morning     sys/dia di quelle prima delle 12
  evening     sys/dia di quelle dalle 12 in poi
  threshold   raggiunta se sys o dia è pari o superiore al rispettivo valore, prima dell'arrotondamento

Giorni e orari sono quelli del fuso orario di questo computer. Le righe che resterebbero vuote sono
omesse. Quante misurazioni della settimana non sono conteggiate, e quante sono state salvate in un altro
fuso orario, è scritto sullo standard error.

Opzioni:
  --patient ID                 di quale paziente
  --rule RULE                  esh (se non indicato altrimenti), nice o aha
  --to DAY                     l'ultimo giorno della settimana (aaaa-MM-gg); altrimenti l'ultimo giorno con
                               misurazioni
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpBackup"><translation>Uso: zel backup list
     zel backup create
     zel backup restore NAME
     zel backup folder [DIR | --none]

Prima della prima modifica di un giorno il file dei dati viene copiato nella cartella Backups accanto a esso.
Si conservano le copie degli ultimi 14 giorni e una al mese per due anni, purché non occupino più di un decimo
dello spazio libero del disco.

list      mostra le copie in formato CSV, prima la più recente, e che cosa contengono
create    crea ora un'altra copia e stampa 'written: FILE'
restore   mette una copia al posto del file dei dati e stampa 'restored: NAME'; i dati precedenti restano in
          un'altra copia, di cui stampa il nome ('kept: NAME'), così che ripristinandola si torni indietro
folder    stampa la seconda cartella in cui vanno le copie, una chiavetta o una condivisione di rete, come
          'folder: DIR', dopo averla impostata su DIR; le sue copie sono elencate con il percorso
          completo

Opzioni:
  --none                       d'ora in poi nessuna seconda cartella; le copie che contiene restano
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpDownload"><translation>Uso: zel download --patient ID [--any-monitor] [OPTION]...

Scarica le misurazioni del misuratore, registra quelle non ancora registrate e mostra quante ne sono state
scaricate e quante sono nuove. L'avanzamento è scritto sullo standard error. La memoria del misuratore viene
cancellata solo se lo prevedono le impostazioni, e solo quando le misurazioni sono registrate e al sicuro.
Le misurazioni inserite a mano, se presenti anche nel misuratore, sono da allora escluse e, se ce ne sono,
contate come 'left-out'.

Opzioni:
  --patient ID                 il paziente per cui registrarle
  --any-monitor                scarica anche se il misuratore contiene un ID diverso da quello del paziente
  --wait SECONDS               quanto attendere il misuratore (5 se non indicato)
  --simulated-monitor[=FILE]   usa un misuratore simulato, descritto da FILE o integrato
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpExportCsv"><translation>Uso: zel export-csv DIR --patient ID [--force]

Scrive i dati e le misurazioni di un paziente in un file CSV, con l'ID del paziente come nome, nella cartella
DIR, e stampa 'written: FILE'. Date e misure hanno la forma prevista dalle impostazioni. Il file contiene
tutte le misurazioni; dopo l'ultima virgola di una riga c'è 'manual' se la misurazione è stata inserita a
mano, e 'excluded: REASON' se è esclusa da tutti i calcoli.

Opzioni:
  --patient ID                 di quale paziente
  --force                      sostituisce il file se esiste già
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpExportFhir"><translation>Uso: zel export-fhir DIR [--patient ID] [--rule esh|nice|aha] [--force]

Scrive ogni paziente, con le misurazioni e la media dell'ultima settimana di misura, in un proprio bundle HL7
FHIR R4 nella cartella DIR, per i programmi che gestiscono cartelle cliniche, e stampa per ciascuno una
riga 'written: FILE'. I file prendono il nome dagli ID dei pazienti. Contengono tutte le misurazioni; una
misurazione esclusa ha lo stato 'entered-in-error' e il suo motivo. Commenti e indirizzi non ci sono. Un file
che non si può scrivere è indicato sullo standard error, e gli altri vengono scritti comunque.

Opzioni:
  --patient ID                 solo questo paziente
  --rule esh|nice|aha          la regola della media; esh, se non indicato altrimenti
  --force                      sostituisce i file già presenti, invece di lasciarli come sono
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpExportTable"><translation>Uso: zel export-table DIR [--patient ID] [--force]
     zel export-table FILE.csv [--patient ID] [--force]

Scrive le misurazioni come tabella per fogli di calcolo: nella cartella DIR un file 'ID.table.csv' per
paziente, oppure in FILE.csv una sola tabella di tutti i pazienti. Stampa 'written: FILE' per ciascuna. La
tabella è in UTF-8, con una riga di titoli e una riga per misurazione, in ordine cronologico, con il paziente, i
valori, le anomalie rilevate, l'origine della misurazione, se e perché è esclusa e il commento del giorno.
I testi che un foglio di calcolo prenderebbe per formule iniziano con un apostrofo. 'zel import' importa di nuovo
la tabella.

Opzioni:
  --patient ID                 solo questo paziente
  --force                      sostituisce i file già presenti, invece di lasciarli come sono
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpExportXml"><translation>Uso: zel export-xml DIR [--patient ID] [--force]

Scrive ogni paziente, con misurazioni e commenti, in un proprio file XML nella cartella DIR e stampa per
ciascuno una riga 'written: FILE'. I file prendono il nome dall'ID del paziente; 'zel import' li importa di
nuovo. Un file che non si può scrivere è indicato sullo standard error, e gli altri vengono scritti comunque.

Opzioni:
  --patient ID                 solo questo paziente
  --force                      sostituisce i file già presenti, invece di lasciarli come sono
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpImport"><translation>Uso: zel import FILE...
     zel import FILE... --patient ID [--columns LIST] [--dates dmy|mdy|ymd]

Importa i pazienti da file XML esportati, con le loro misurazioni e i commenti, o quelli delle tabelle scritte
da 'zel export-table'. Un file viene importato per intero o per niente: per niente se uno dei suoi pazienti è già
nell'elenco. I file non importati sono indicati sullo standard error, con il motivo; di una tabella ogni riga
errata, con il suo numero. Stampa quanti file sono stati importati e rifiutati, e quanti pazienti, misurazioni e
commenti contenevano, una riga 'chiave: valore' per ciascuno; con una tabella anche quante misurazioni erano già
note: non vengono duplicate.
Le misurazioni dell'elenco inserite a mano, se una tabella le contiene come provenienti da un misuratore, sono
da allora escluse e
contate come 'left-out'.

Con --patient le misurazioni di una tabella vengono aggiunte a un paziente dell'elenco. Con --columns si tratta
della tabella di un altro programma, per esempio
--columns "date=Data,time=Ora,sys=Sistolica,dia=Diastolica,pulse=Polso", con i titoli della sua prima riga; time
si omette se l'ora segue la data. Queste misurazioni contano come inserite a mano. Le colonne sono separate da
virgole, punti e virgola o tabulazioni. Le date hanno la forma 2026-11-21, a meno che --dates indichi l'ordine di
giorno, mese e anno.

Opzioni:
  --patient ID                 a chi aggiungere le misurazioni di una tabella
  --columns LIST               i titoli delle colonne di un altro programma
  --dates dmy|mdy|ymd          come sono scritte le sue date
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpMonitor"><translation>Uso: zel monitor [OPTION]...
     zel monitor --set-clock [OPTION]...
     zel monitor --send-id ID [OPTION]...
     zel monitor --erase --yes [OPTION]...

Mostra modello, rilevazione delle aritmie (pad, afib o none), ID, orologio (oppure 'not set') e numero di
misurazioni del misuratore collegato, una riga 'chiave: valore' per ciascuno. Contare le misurazioni può
richiedere fino a 20 s. Ciò che viene modificato è poi riletto; se non corrisponde, il comando non riesce.

Opzioni:
  --set-clock                  regola l'orologio del misuratore su quello di questo computer e lo stampa
  --send-id ID                 scrive nel misuratore un ID da 1 a 11 caratteri semplici e lo stampa;
                               le misurazioni nella sua memoria vi restano
  --erase                      elimina tutte le misurazioni dalla memoria del misuratore e stampa quante ne
                               restano
  --yes                        conferma --erase
  --wait SECONDS               quanto attendere il misuratore (5 se non indicato)
  --simulated-monitor[=FILE]   usa un misuratore simulato, descritto da FILE o integrato
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpPatients"><translation>Uso: zel patients
     zel patients --add --id ID --family-name NAME --given-names NAMES

Elenca i pazienti in formato CSV con l'intestazione id,family-name,given-names, oppure ne aggiunge uno.

Opzioni:
  --add                        aggiunge un paziente; l'ID deve essere nuovo
  --id ID                      l'ID del paziente, come è nel misuratore
  --family-name NAME           il cognome
  --given-names NAMES          il nome o i nomi
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpPrivacy"><translation>Uso: zel privacy [--mend]

Mostra quali file, tra il file dei dati, ciò che è conservato accanto a esso e le sue copie, possono essere
letti da altri utenti di questo computer, una riga per file ('readable by others: FILE'), oppure 'private'.

Opzioni:
  --mend                       impedisce l'accesso agli altri: cambia i permessi di questi file, della loro
                               cartella e della cartella delle copie, e nient'altro
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpReadings"><translation>Uso: zel readings --patient ID [--from DAY | --last N] [--to DAY] [--am | --pm]
                  [--undated] [--numbers]
     zel readings --patient ID --exclude RECORD --reason TEXT
     zel readings --patient ID --include RECORD
     zel readings --patient ID --add --date DAY --time HH:MM --sys N --dia N --pulse N
     zel readings --patient ID --change RECORD [--date DAY] [--time HH:MM] [--sys N] [--dia N]
                  [--pulse N]
     zel readings --patient ID --delete RECORD

Mostra le misurazioni di un paziente in formato CSV, prima le meno recenti, con l'intestazione
date,time,sys,dia,pulse,map,pp,mam,arrhythmia. Le pressioni sono in mmHg, il polso in battiti al minuto.
Una misurazione memorizzata dal misuratore senza data riporta n.a e --:--; è omessa se si indica un periodo,
--am o --pm, a meno di indicare anche --undated. Un giorno senza misurazioni coperto da un commento ha una
riga con la sua data e n.a. per il resto; se questi giorni sono troppi per elencarli tutti, lo dice una frase
sullo standard error.

Con --exclude, --include, --add, --change o --delete modifica invece il file dei dati. Una misurazione
esclusa resta nel file e nell'elenco, con il suo motivo, e non conta in nessun calcolo; una frase sullo
standard error dice quante delle misurazioni mostrate sono escluse. Una misurazione inserita a mano è
contrassegnata come tale; le pressioni e il polso sono numeri interi da 30 a 300, la pressione diastolica è
inferiore alla sistolica, la data e l'ora non sono nel futuro. --add stampa 'record: RECORD'. Solo le
misurazioni inserite a mano si possono modificare o eliminare.
Con --include, una inserita a mano che conterebbe due volte, o che non si potrebbe inserire così, resta esclusa.
Quando torna a contare una del misuratore, la stessa inserita a mano è da allora esclusa, e contata come
'left-out'.

Opzioni:
  --patient ID                 di quale paziente
  --from DAY                   solo da questo giorno in poi (aaaa-MM-gg)
  --to DAY                     solo fino alla fine di questo giorno (aaaa-MM-gg)
  --last N                     invece di --from: N giorni, fino a quello di --to o all'ultimo con misurazioni
  --am                         solo le misurazioni prima delle 12
  --pm                         solo le misurazioni dalle 12 in poi
  --undated                    anche le misurazioni senza data
  --numbers                    con altre due colonne: record, il numero della misurazione nel file dei dati,
                               ed excluded, il motivo per cui è esclusa (vuota: conta)
  --exclude RECORD             esclude da tutti i calcoli la misurazione con questo numero
  --reason TEXT                il motivo
  --include RECORD             la fa contare di nuovo
  --add                        registra una misurazione inserita a mano
  --change RECORD              ne modifica una inserita a mano; ciò che non è indicato resta invariato
  --delete RECORD              ne elimina una inserita a mano
  --date DAY                   il giorno in cui è stata eseguita (aaaa-MM-gg)
  --time HH:MM                 l'ora, da 00:00 a 23:59
  --sys N                      pressione sistolica, mmHg
  --dia N                      pressione diastolica, mmHg
  --pulse N                    battiti al minuto
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpReport"><translation>Uso: zel report --patient ID --section KEY[,KEY...] --output FILE.pdf [OPTION]...

Scrive il rapporto di un paziente in PDF, sostituendo FILE.pdf se esiste, e stampa 'written: FILE.pdf'.
I valori delle misurazioni pari o superiori ai limiti scelti nella finestra (135/85 se non scelti) sono
evidenziati.

Sezioni:
  summary                      una pagina per il medico: medie, andamento, ultimi giorni, commenti,
                               misurazioni escluse
  graph                        grafico della pressione arteriosa e del polso
  PatientProfile               i dati del paziente e le note
  histogram                    come sono distribuiti i valori
  correlation                  pressione sistolica rispetto alla diastolica
  trend                        mediane e bande per giorno, settimana o mese
  table                        le misurazioni
  comment                      i commenti
  SWStatistics                 medie, limiti e le misurazioni
  all                          tutte, in quest'ordine

Opzioni:
  --patient ID                 di quale paziente
  --section KEY[,KEY...]       che cosa stampare, nell'ordine indicato
  --from aaaa-MM-gg            il primo giorno del periodo (se non indicato, quello della prima misurazione)
  --to aaaa-MM-gg              l'ultimo giorno del periodo (se non indicato, quello dell'ultima misurazione)
  --last N                     invece di --from: N giorni, fino a quello di --to o all'ultimo con misurazioni
  --am                         solo le misurazioni prima delle 12 (statistiche e riepilogo le usano tutte)
  --pm                         solo le misurazioni dalle 12 in poi (idem)
  --apart                      l'andamento ha linee distinte per mattina e sera
  --rule esh|nice|aha          come il riepilogo calcola la media della sua settimana di misura, che termina
                               con l'ultimo giorno del periodo con misurazioni; esh se non indicato
                               altrimenti. 'zel average --help' spiega le regole
  --practitioner               stampa i dati del medico, dalle impostazioni, a piè di pagina; nel riepilogo in
                               testa
  --paper A4|Letter            la carta; di norma quella di LC_PAPER o LANG
  --output FILE.pdf            il file da scrivere
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpSettings"><translation>Uso: zel settings
     zel settings --set KEY=VALUE [--set KEY=VALUE]...

Mostra le impostazioni, una riga 'chiave: valore' per ciascuna, oppure ne modifica alcune e mostra quelle. Se
uno dei valori viene rifiutato, non ne viene modificata nessuna. Nei testi, \n indica un ritorno a capo e
\\ una barra rovesciata.

  DateFormat                   dd mm yyyy, mm dd yyyy o yyyy mm dd
  TimeFormat                   12-hours o 24-hours
  MetricFormat                 kg / cm o lb / in
  EraseRecAfterReading         1: cancella la memoria del misuratore dopo uno scarico registrato in modo
                               sicuro; altrimenti 0
  ShowPPorMap                  0: mostra la pressione differenziale; 1: mostra la pressione arteriosa media
  UserWhoStandard              1: la finestra delle impostazioni mostra i limiti come quelli dell'OMS;
                               altrimenti 0
  SysStandard                  limite sistolico, 0 (nessuno) o da 60 a 260 mmHg
  DiaStandard                  limite diastolico, 0 (nessuno) o da 30 a 160 mmHg, inferiore a quello sistolico
  PhysicianAddress             le righe del medico sui rapporti stampati

Opzioni:
  --set KEY=VALUE              modifica un'impostazione; si può indicare più volte
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliHelpStatistics"><translation>Uso: zel statistics --patient ID [--from DAY | --last N] [--to DAY] [--undated]

Mostra la media, il minimo e il massimo delle misurazioni di un paziente, una grandezza per riga:
'sys: AVERAGE MIN MAX', poi dia, pulse e map o pp secondo le impostazioni. Le pressioni sono in mmHg, il
polso in battiti al minuto. Se non ci sono misurazioni, ogni valore è n/a. Se alcune misurazioni non sono
conteggiate, sullo standard error è scritto quante lo sono, quante no e per quale motivo.

Opzioni:
  --patient ID                 di quale paziente
  --from DAY                   solo da questo giorno in poi (aaaa-MM-gg)
  --to DAY                     solo fino alla fine di questo giorno (aaaa-MM-gg)
  --last N                     invece di --from: N giorni, fino a quello di --to o all'ultimo con misurazioni
  --undated                    anche le misurazioni senza data
  --simulated-monitor[=FILE]   accettata da ogni comando, anche se questo non richiede un misuratore
  -h, --help                   mostra questo testo</translation></message>
    <message id="CliIDDoesNotFit"><translation>Il misuratore non può memorizzare l'ID '%1': servono da 1 a 11 caratteri semplici (ASCII), senza spazi all'inizio o alla fine.</translation></message>
    <message id="CliIDUnread"><translation>Impossibile leggere l'ID del misuratore. %1</translation></message>
    <message id="CliIDUnsent"><translation>Impossibile scrivere l'ID nel misuratore. %1</translation></message>
    <message id="CliLastAndFrom"><translation>Indicare --from oppure --last, non entrambe.</translation></message>
    <message id="CliMonitorChanged"><translation>Il collegamento si è interrotto, e le misurazioni arrivate dopo potrebbero provenire da un misuratore diverso da quello interpellato. Non è stato registrato nulla; riprovare.</translation></message>
    <message id="CliMonitorDenied"><translation>%1 Per leggerlo occorre un permesso: installare packaging/70-zel.rules in /etc/udev/rules.d, eseguire 'udevadm control --reload' e ricollegare il misuratore.</translation></message>
    <message id="CliMonitorSilent"><translation>Un misuratore è collegato, ma non ha risposto entro %1 s. %2</translation></message>
    <message id="CliMonitorWithoutID"><translation>Il misuratore non contiene alcun ID, perciò le sue misurazioni potrebbero non essere del paziente '%1'. Scrivere l'ID con 'zel monitor --send-id', oppure usare --any-monitor per scaricarle comunque.</translation></message>
    <message id="CliNoCommand"><translation>Manca un comando.</translation></message>
    <message id="CliNoFolder"><translation>La cartella '%1' non esiste.</translation></message>
    <message id="CliNoHome"><translation>La variabile d'ambiente HOME non è impostata, perciò non si sa dove cercare il file dei dati.</translation></message>
    <message id="CliNoLineInTable" numerus="yes"><translation><numerusform>%n paziente non ha righe nella tabella: per lui non è salvata alcuna misurazione, come per chiunque non abbia un ID.</numerusform><numerusform>%n pazienti non hanno righe nella tabella: per loro non è salvata alcuna misurazione, come per chiunque non abbia un ID.</numerusform></translation></message>
    <message id="CliNoMonitor"><translation>Nessun misuratore trovato entro %1 s. Collegarlo con il suo cavo USB, oppure concedere più tempo con --wait.</translation></message>
    <message id="CliNoSuchPatient"><translation>Non esiste un paziente con l'ID '%1'. 'zel patients' li elenca.</translation></message>
    <message id="CliNoSuchReading"><translation>il paziente non ha alcuna misurazione con il numero %1 (zel readings --numbers mostra i numeri)</translation></message>
    <message id="CliNoSuchRule"><translation>La regola '%1' non esiste. Le regole sono %2.</translation></message>
    <message id="CliNoSuchSection"><translation>La sezione '%1' non esiste. Le sezioni sono all, oppure una o più tra %2, separate da virgole.</translation></message>
    <message id="CliNoTable"><translation>%1: --patient vale solo per le tabelle di misurazioni; questo file non è una tabella o non è leggibile. Non è stato importato nulla.</translation></message>
    <message id="CliNotExcluded"><translation>la misurazione %1 non è esclusa</translation></message>
    <message id="CliNotTogether"><translation>--%1 e --%2 non si possono usare insieme</translation></message>
    <message id="CliOneJob"><translation>Si può usare solo una per volta delle opzioni --set-clock, --send-id e --erase.</translation></message>
    <message id="CliOptionMissing"><translation>--%1 manca, oppure il suo valore è vuoto.</translation></message>
    <message id="CliOptionTwice"><translation>--%1 è indicata più di una volta.</translation></message>
    <message id="CliOtherMonitor"><translation>Il misuratore contiene l'ID '%1', non '%2', perciò le sue misurazioni potrebbero essere di un altro paziente. Usare --any-monitor per scaricarle comunque.</translation></message>
    <message id="CliOtherZone" numerus="yes"><translation><numerusform>%n misurazione della settimana è stata salvata in un altro fuso orario; giorno e ora sono quelli di questo computer.</numerusform><numerusform>%n misurazioni della settimana sono state salvate in un altro fuso orario; giorni e orari sono quelli di questo computer.</numerusform></translation></message>
    <message id="CliOutputFailed"><translation>Impossibile scrivere l'output.</translation></message>
    <message id="CliPatientKnown"><translation>Esiste già un paziente con l'ID '%1'.</translation></message>
    <message id="CliPlanWithoutFile"><translation>--simulated-monitor= richiede dopo di sé il nome di un file; da sola, senza '=', indica il misuratore simulato integrato.</translation></message>
    <message id="CliProgress"><translation>Ricevute %1 misurazioni su %2</translation></message>
    <message id="CliReadableByOthers"><translation>Altri utenti di questo computer possono leggere %1. 'zel privacy --mend' ne impedisce l'accesso.</translation></message>
    <message id="CliReadingJobMissing"><translation>--reason va insieme a --exclude; --date, --time, --sys, --dia e --pulse vanno insieme a --add o --change</translation></message>
    <message id="CliReadingNotUnique"><translation>più misurazioni hanno il numero %1; non si può stabilire quale si intende</translation></message>
    <message id="CliReadingsExcluded" numerus="yes"><translation><numerusform>%n di queste misurazioni è esclusa e non conta in nessun calcolo; --numbers mostra quale, e perché</numerusform><numerusform>%n di queste misurazioni sono escluse e non contano in nessun calcolo; --numbers mostra quali, e perché</numerusform></translation></message>
    <message id="CliSameIDLeftOut" numerus="yes"><translation><numerusform>%n paziente è stato omesso: un altro nell’elenco ha lo stesso ID, o ne è anch’esso privo. Per essere distinto, ogni paziente deve avere un proprio ID.</numerusform><numerusform>%n pazienti sono stati omessi: altri nell’elenco hanno gli stessi ID, o ne sono anch’essi privi. Per essere distinto, ogni paziente deve avere un proprio ID.</numerusform></translation></message>
    <message id="CliSettingForm"><translation>--set richiede CHIAVE=VALORE, non '%1'.</translation></message>
    <message id="CliSettingNotKept"><translation>L'impostazione %1 non trova posto nel file dei dati, perciò non è stato modificato nulla.</translation></message>
    <message id="CliSettingTwice"><translation>L'impostazione %1 è indicata più di una volta.</translation></message>
    <message id="CliSettingUnknown"><translation>L'impostazione '%1' non esiste. Le impostazioni sono: %2.</translation></message>
    <message id="CliSettingValue"><translation>%1 accetta %2, non '%3'.</translation></message>
    <message id="CliTableAssumed" numerus="yes"><translation><numerusform>Una tabella non indica sesso, fumo e diabete: %n nuovo paziente è salvato come femmina, non fumatrice e senza diabete. Si prega di verificare.</numerusform><numerusform>Una tabella non indica sesso, fumo e diabete: %n nuovi pazienti sono salvati come femmine, non fumatrici e senza diabete. Si prega di verificare.</numerusform></translation></message>
    <message id="CliTableKnown"><translation>--patient ID aggiunge le misurazioni di una tabella a un paziente dell’elenco.</translation></message>
    <message id="CliTryHelp"><translation>Provare '%1'.</translation></message>
    <message id="CliTypedLeftOut" numerus="yes"><translation><numerusform>%n misurazione inserita a mano non conta più in nessun calcolo: la tabella contiene la stessa, proveniente da un misuratore.</numerusform><numerusform>%n misurazioni inserite a mano non contano più in nessun calcolo: la tabella contiene le stesse, provenienti da un misuratore.</numerusform></translation></message>
    <message id="CliUnexpectedWord"><translation>'%1' non è previsto qui.</translation></message>
    <message id="CliUnknownCommand"><translation>Il comando '%1' non esiste.</translation></message>
    <message id="CliUnmeasured" numerus="yes"><translation><numerusform>%n misurazione senza valori di pressione non è conteggiata.</numerusform><numerusform>%n misurazioni senza valori di pressione non sono conteggiate.</numerusform></translation></message>
    <message id="CliWaiting"><translation>In attesa del misuratore, ancora per %1 s al massimo. Ctrl-C annulla.</translation></message>
    <message id="CliWeekToCome"><translation>La settimana termina il %1, un giorno che deve ancora venire.</translation></message>
    <message id="CliYesAlone"><translation>--yes va insieme a --erase.</translation></message>
</context>
</TS>
