<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<!-- Every text of the program by its key; code asks for them with qtTrId("key"). Sorted by key in each context. -->
<context>
    <name>store</name>
    <message id="%1 A"><translation>%1 AM</translation></message>
    <message id="%1 P"><translation>%1 PM</translation></message>
    <message id=", "><translation>, </translation></message>
    <message id="; "><translation>; </translation></message>
    <message id="BackupLast"><translation>%1, %2, la última del %3</translation></message>
    <message id="BackupPatients" numerus="yes"><translation><numerusform>%n paciente</numerusform><numerusform>%n pacientes</numerusform></translation></message>
    <message id="BackupReadings" numerus="yes"><translation><numerusform>%n medición</numerusform><numerusform>%n mediciones</numerusform></translation></message>
    <message id="ExcludedAsMeasured"><translation>también medida por el tensiómetro</translation></message>
    <message id="ExcludedWithoutReason"><translation>sin motivo indicado</translation></message>
    <message id="ExportAlreadyExists"><translation>Ya existe un archivo %1. Se ha dejado como estaba.</translation></message>
    <message id="ExportIsDataFile"><translation>El archivo %1 es el propio archivo de datos, y ninguna exportación lo reemplaza. Elija otra carpeta.</translation></message>
    <message id="ExportNotFlushed"><translation>Se ha escrito %1, pero el disco no ha confirmado que quede guardado: tras un corte de corriente podría faltar. Compruebe el disco.</translation></message>
    <message id="ExportNotWritten"><translation>No se ha podido escribir el archivo %1. Compruebe que la carpeta existe, que tiene permiso para escribir en ella y que el disco no está lleno.</translation></message>
    <message id="ExportSameFileName"><translation>No se ha escrito el archivo %1: este disco confunde su nombre con el del archivo que se acaba de escribir para el paciente que figura debajo. Exporte a un disco que distinga mayúsculas de minúsculas.</translation></message>
    <message id="Female"><translation>Mujer</translation></message>
    <message id="fullName"><translation>%1 %2</translation></message>
    <message id="ImportAlreadyKnown"><translation>%1: ya hay en la lista un paciente con el ID «%2». Los datos de un paciente nunca se sobrescriben, así que no se ha importado nada de este archivo.</translation></message>
    <message id="ImportBadID"><translation>%1: el ID «%2» del archivo contiene un salto de línea u otro carácter de control; con él no se podría guardar ni enviar a un tensiómetro. No se ha importado nada de este archivo.</translation></message>
    <message id="ImportBadLines"><translation>%1: hay líneas de la tabla que no se pueden importar. No se ha importado nada de ella.</translation></message>
    <message id="ImportMissingColumn"><translation>%1: la tabla no tiene ninguna columna «%2», o tiene más de una. No se ha importado nada de ella.</translation></message>
    <message id="ImportNoFile"><translation>No es un archivo normal.</translation></message>
    <message id="ImportNoID"><translation>%1: un paciente del archivo no tiene ID. No se ha importado nada de él.</translation></message>
    <message id="ImportNoPatient"><translation>%1: no hay ningún paciente en el archivo. No se ha importado nada de él.</translation></message>
    <message id="ImportNoReading"><translation>%1: no hay ninguna medición en la tabla. No se ha importado nada de ella.</translation></message>
    <message id="ImportNoSuchPatient"><translation>%1: en la lista ya no hay ningún paciente con el ID «%2». No se ha importado nada de este archivo.</translation></message>
    <message id="ImportNotFlushed"><translation>%1: todo está guardado, pero el disco no lo ha confirmado: tras un corte de corriente podría faltar.</translation></message>
    <message id="ImportNotReadable"><translation>%1: el archivo no se puede leer o no lo ha exportado este programa. No se ha importado nada de él.</translation></message>
    <message id="ImportNotStored"><translation>%1: no se ha podido guardar el contenido del archivo. No se ha importado nada de él.</translation></message>
    <message id="ImportOtherNames"><translation>%1: el paciente con el ID «%2» tiene en la lista otro nombre que en la tabla; las mediciones podrían ser de otra persona. No se ha importado nada de este archivo. Para importarlas de todos modos, vacíe las celdas de los nombres.</translation></message>
    <message id="ImportSameIDTwice"><translation>%1: dos pacientes del archivo tienen el mismo ID, «%2». No se ha importado nada de él.</translation></message>
    <message id="ImportTooLarge"><translation>%1: el archivo ocupa más de 512 MiB. No se ha importado nada de él.</translation></message>
    <message id="ImportTooManyLines"><translation>%1: la tabla tiene más de 200 000 líneas. No se ha importado nada de ella.</translation></message>
    <message id="LanguageMissing"><translation>--language necesita un idioma, uno de estos: %1</translation></message>
    <message id="languageTag"><translation>es</translation></message>
    <message id="LanguageTwice"><translation>--language solo se puede indicar una vez</translation></message>
    <message id="LanguageUnknown"><translation>no hay ningún idioma «%1»; los idiomas son %2</translation></message>
    <message id="LanguageUnread"><translation>No se puede leer el idioma elegido en el archivo %1. Se muestra el idioma del sistema hasta que se elija otro en la configuración.</translation></message>
    <message id="LimitDiastolic"><translation>Límite diastólico: %1.</translation></message>
    <message id="LimitOrder"><translation>El límite diastólico debe ser inferior al sistólico.</translation></message>
    <message id="LimitSystolic"><translation>Límite sistólico: %1.</translation></message>
    <message id="Male"><translation>Hombre</translation></message>
    <message id="ManualDia"><translation>La presión diastólica debe ser un número de %1 a %2.</translation></message>
    <message id="ManualDiaNotBelowSys"><translation>La presión diastólica debe ser inferior a la sistólica.</translation></message>
    <message id="ManualInFuture"><translation>La fecha y la hora están en el futuro.</translation></message>
    <message id="ManualNoDate"><translation>Esa fecha y hora no existen. (Al adelantar los relojes se salta una hora, y el 1 de enero de 2000 significa que no hay fecha.)</translation></message>
    <message id="ManualPulse"><translation>El pulso debe ser un número de %1 a %2.</translation></message>
    <message id="ManualSys"><translation>La presión sistólica debe ser un número de %1 a %2.</translation></message>
    <message id="ManualTooEarly"><translation>La fecha es anterior al año 1900.</translation></message>
    <message id="n.a"><translation>sin fecha</translation></message>
    <message id="N/A"><translation>n. d.</translation></message>
    <message id="NotBackedUp"><translation>Antes de este cambio no se ha podido hacer una copia del archivo de datos en %1. %2</translation></message>
    <message id="remarkExcluded"><translation>excluida: %1</translation></message>
    <message id="remarkManual"><translation>introducida</translation></message>
    <message id="SecondFolderAway"><translation>La segunda carpeta para las copias del archivo de datos, %1, no está disponible, así que la copia de hoy no está en ella. Se copiará con el próximo cambio, cuando la carpeta vuelva a estar disponible.</translation></message>
    <message id="SecondFolderBroken"><translation>No se puede leer en %1 cuál es la segunda carpeta para las copias del archivo de datos, así que no se copian a ninguna. Elíjala de nuevo.</translation></message>
    <message id="SecondFolderFailed"><translation>No se ha podido escribir la copia de hoy del archivo de datos en la segunda carpeta, %1.</translation></message>
    <message id="SecondFolderNoRoom"><translation>La copia de hoy del archivo de datos no está en la segunda carpeta, %1: todas las copias juntas pueden ocupar allí como máximo una décima parte del espacio libre del disco, y eso es menos que el tamaño del archivo.</translation></message>
    <message id="SecondFolderNotFlushed"><translation>La copia de hoy del archivo de datos se ha escrito en la segunda carpeta, %1, pero el disco no ha confirmado que quede guardada: tras un corte de corriente podría faltar.</translation></message>
    <message id="SecondFolderNotRecorded"><translation>No se ha podido anotar en %1 la segunda carpeta para las copias. No se ha cambiado nada.</translation></message>
    <message id="SettingLimit"><translation>0 si no hay límite, o un número entero de %1 a %2</translation></message>
    <message id="SettingOneOf"><translation>uno de estos valores: %1</translation></message>
    <message id="SettingQuoted"><translation>«%1»</translation></message>
    <message id="SettingText"><translation>cualquier texto sin caracteres de control</translation></message>
    <message id="stepAddComment"><translation>comentario nuevo de %1</translation></message>
    <message id="stepAddPatient"><translation>alta de paciente: %1</translation></message>
    <message id="stepAddReading"><translation>medición nueva de %1</translation></message>
    <message id="stepDeleteComment"><translation>eliminación de un comentario de %1</translation></message>
    <message id="stepDeletePatient"><translation>eliminación de paciente: %1</translation></message>
    <message id="stepDeleteReadings" numerus="yes"><translation><numerusform>eliminación de %n medición de %1</numerusform><numerusform>eliminación de %n mediciones de %1</numerusform></translation></message>
    <message id="stepEditComment"><translation>cambio en un comentario de %1</translation></message>
    <message id="stepEditPatient"><translation>cambio en los datos de %1</translation></message>
    <message id="stepEditReading"><translation>cambio en una medición de %1</translation></message>
    <message id="stepExcludeReadings" numerus="yes"><translation><numerusform>exclusión de %n medición de %1</numerusform><numerusform>exclusión de %n mediciones de %1</numerusform></translation></message>
    <message id="stepImport"><translation>importación de %1</translation></message>
    <message id="stepIncludeReadings" numerus="yes"><translation><numerusform>nueva inclusión de %n medición de %1</numerusform><numerusform>nueva inclusión de %n mediciones de %1</numerusform></translation></message>
    <message id="stepSettings"><translation>cambio de configuración</translation></message>
    <message id="stillLeftOutRefused" numerus="yes"><translation><numerusform>%n medición introducida a mano sigue excluida. %1</numerusform><numerusform>%n mediciones introducidas a mano siguen excluidas. %1</numerusform></translation></message>
    <message id="stillLeftOutTwice" numerus="yes"><translation><numerusform>%n medición introducida a mano sigue excluida: ya cuenta una del mismo minuto con los mismos valores.</numerusform><numerusform>%n mediciones introducidas a mano siguen excluidas: ya cuentan otras de los mismos minutos con los mismos valores.</numerusform></translation></message>
    <message id="StoreAlreadyKnown"><translation>Ya hay en la lista un paciente con el ID «%1». No se ha cambiado nada.</translation></message>
    <message id="StoreBusy"><translation>Otro programa está trabajando con el archivo de datos %1, en este equipo o en otro que lo comparte. No se ha cambiado nada. Vuelva a intentarlo dentro de un momento, o de unos minutos si aquel equipo ha perdido la conexión a la red.</translation></message>
    <message id="StoreChangedElsewhere"><translation>Entretanto lo ha cambiado otro programa. Aquí no se ha cambiado nada; revise cómo está ahora.</translation></message>
    <message id="StoreDiskFull"><translation>El disco está lleno: no se ha podido escribir %1. Lo que había sigue como estaba. Libere espacio en el disco y vuelva a intentarlo.</translation></message>
    <message id="StoreInvalidRecord"><translation>Cada paciente necesita un ID propio; «%1» no sirve como ID. No se ha cambiado nada.</translation></message>
    <message id="StoreLockBlocked"><translation>%1 ocupa el lugar donde los programas anotan que están trabajando con el archivo de datos, y no es una de esas anotaciones. No se ha cambiado nada. Mueva ese elemento a otro sitio y vuelva a intentarlo.</translation></message>
    <message id="StoreNoPermissions"><translation>Otros usuarios de este equipo siguen pudiendo leer %1: este sistema de archivos no admite permisos. Guarde los datos en otro disco.</translation></message>
    <message id="StoreNoReason"><translation>Una medición solo se excluye con un motivo; indíquelo. No se ha cambiado nada.</translation></message>
    <message id="StoreNoRoomForBackup"><translation>No se guarda ninguna copia del archivo de datos en %1: todas las copias juntas pueden ocupar como máximo una décima parte del espacio libre del disco, y eso es menos que el tamaño del archivo.</translation></message>
    <message id="StoreNoStep"><translation>No hay nada que deshacer ni rehacer.</translation></message>
    <message id="StoreNoSuchBackup"><translation>No hay ninguna copia del archivo de datos con el nombre «%1».</translation></message>
    <message id="StoreNoSuchRecord"><translation>No hay ningún paciente con el ID «%1».</translation></message>
    <message id="StoreNotCreated"><translation>Todavía no hay archivo de datos y no se ha podido crear %1. Compruebe que se puede escribir en su carpeta y que el disco no está lleno, y vuelva a iniciar el programa.</translation></message>
    <message id="StoreNotFlushed"><translation>Se ha escrito %1, pero el disco no ha confirmado que quede guardado: tras un corte de corriente podría reaparecer el contenido anterior. Compruebe el disco; las mediciones se conservan en el tensiómetro.</translation></message>
    <message id="StoreNotMadePrivate"><translation>Otros usuarios de este equipo siguen pudiendo leer %1: no se han podido cambiar sus permisos.</translation></message>
    <message id="StoreNotManual"><translation>Las mediciones procedentes de un tensiómetro no se cambian ni se eliminan; se pueden excluir, indicando un motivo. No se ha cambiado nada.</translation></message>
    <message id="StoreNotParsed"><translation>El archivo de datos %1 está dañado o no es de este programa. Se deja como está, y no se puede guardar nada hasta que vuelva a ser legible: repárelo, ponga una copia en su lugar o muévalo a otro sitio para empezar con uno nuevo.</translation></message>
    <message id="StoreNotReadable"><translation>No se puede leer el archivo de datos %1. Se deja como está, y no se puede guardar nada hasta que vuelva a ser legible.</translation></message>
    <message id="StoreNotWritable"><translation>No se puede escribir el archivo de datos %1. No se ha cambiado nada; compruebe los permisos del archivo y de su carpeta.</translation></message>
    <message id="StoreQuotaReached"><translation>No puede guardar más en este disco (se ha alcanzado su cuota): no se ha podido escribir %1. Lo que había sigue como estaba. Elimine lo que no necesite o solicite más espacio, y vuelva a intentarlo.</translation></message>
    <message id="StoreReadFailed"><translation>No se puede leer el archivo de datos %1: el disco notifica un error. El archivo se deja como está, y no se puede guardar nada hasta que vuelva a ser legible. Haga que revisen el disco.</translation></message>
    <message id="StoreReadingGone"><translation>La medición ya no está. No se ha cambiado nada.</translation></message>
    <message id="StoreReadingKnown"><translation>Ya hay una medición de ese minuto con estos valores. No se ha cambiado nada.</translation></message>
    <message id="StoreReadingRefused"><translation>No se ha guardado la medición.</translation></message>
    <message id="StoreSizeLimit"><translation>Aquí los archivos no pueden ser tan grandes: no se ha podido escribir %1. Lo que había sigue como estaba. Pregunte a quien administra este equipo por el límite de tamaño de los archivos.</translation></message>
    <message id="StoreStepChanged"><translation>El elemento se ha vuelto a cambiar después, con otro programa o a mano. No se ha cambiado nada.</translation></message>
    <message id="StoreStepGone"><translation>El elemento ya no está en el archivo de datos. No se ha cambiado nada.</translation></message>
    <message id="StoreStepHasRecords"><translation>El paciente con el ID «%1» tiene desde entonces mediciones o comentarios que se quedarían sin paciente. No se ha cambiado nada.</translation></message>
    <message id="StoreStepPatientGone"><translation>El paciente con el ID «%1», al que pertenece el comentario, ya no está en el archivo de datos. No se ha cambiado nada.</translation></message>
    <message id="StoreStepPatientKnown"><translation>Entretanto hay en la lista un paciente con el ID «%1». No se ha cambiado nada.</translation></message>
    <message id="StoreStepThere"><translation>Lo que se iba a recuperar ya vuelve a estar en el archivo de datos. No se ha cambiado nada.</translation></message>
    <message id="StoreTooLarge"><translation>El archivo de datos %1 ocupa más de 512 MiB, y este programa no lee archivos tan grandes. Se deja como está y no se puede guardar nada: ponga una copia más pequeña en su lugar o muévalo a otro sitio para empezar con uno nuevo.</translation></message>
    <message id="StoreUnreadable"><translation>El archivo de datos %1 se ha dejado como estaba: lo que se iba a guardar no se podía volver a leer después.</translation></message>
    <message id="StoreWriteFailed"><translation>Ha fallado la escritura del archivo de datos %1, y el archivo se ha dejado como estaba. Compruebe que el disco no está lleno y vuelva a intentarlo.</translation></message>
    <message id="TableCell"><translation>«%1» no puede figurar en la columna «%2».</translation></message>
    <message id="TableCells"><translation>Tiene %1 celdas, y la línea de títulos, %2.</translation></message>
    <message id="TableDateOrder"><translation>«%1» no está escrito como 2026-11-21. Indique con --dates el orden de día, mes y año: dmy, mdy o ymd.</translation></message>
    <message id="TableLine"><translation>Línea %1: %2</translation></message>
    <message id="TableMeanPressure"><translation>Una presión arterial media de %1 no concuerda con %2/%3: ¿está bien asignada cada columna?</translation></message>
    <message id="TableMoreLines" numerus="yes"><translation><numerusform>… y %n línea más</numerusform><numerusform>… y %n líneas más</numerusform></translation></message>
    <message id="TableNoTime"><translation>«%1» no es una fecha con un año de cuatro cifras y una hora.</translation></message>
    <message id="TableNotUtf8"><translation>Su texto no es UTF-8. Guárdelo como «CSV UTF-8» en el programa del que procede.</translation></message>
    <message id="TableOtherNames"><translation>El paciente «%1» tiene otro nombre en una línea anterior.</translation></message>
    <message id="TableOtherPatient"><translation>La medición es del paciente «%1», no de «%2».</translation></message>
    <message id="TablePulsePressure"><translation>Una presión de pulso de %1 no concuerda con %2/%3: ¿está bien asignada cada columna?</translation></message>
    <message id="TableQuotation"><translation>Unas comillas no se cierran al final de su celda.</translation></message>
    <message id="takenInTypedLeftOut" numerus="yes"><translation><numerusform>%n medición introducida a mano queda excluida desde ahora (también medida por el tensiómetro).</numerusform><numerusform>%n mediciones introducidas a mano quedan excluidas desde ahora (también medidas por el tensiómetro).</numerusform></translation></message>
    <message id="ViewLimitsUnread"><translation>No se puede leer %1, donde consta a partir de qué límites se marcan los valores. Mientras no se elijan otros, se marcan a partir de %2/%3 mmHg.</translation></message>
    <message id="Warning"><translation>Aviso</translation></message>
    <message id="XmlAttributeTwice"><translation>Un elemento tiene dos veces el mismo atributo.</translation></message>
    <message id="XmlBytesNotInEncoding"><translation>Contiene bytes que no corresponden a su codificación, %1.</translation></message>
    <message id="XmlControlCharacter"><translation>Contiene un carácter de control, que no está permitido en un archivo así.</translation></message>
    <message id="XmlEncodingUnknown"><translation>Su codificación, %1, es desconocida.</translation></message>
    <message id="XmlEntityNotTaken"><translation>Hace referencia a una entidad o a un carácter que no se admite; solo se admiten las cinco entidades propias de XML y sus caracteres.</translation></message>
    <message id="XmlErrorNearLine"><translation>Cerca de la línea %1: %2</translation></message>
    <message id="XmlMisplacedDeclaration"><translation>Hay una declaración en un lugar no permitido.</translation></message>
    <message id="XmlNoRoot"><translation>No contiene ningún elemento.</translation></message>
    <message id="XmlNotWritable"><translation>No se puede escribir el archivo de datos: no se pueden guardar los cambios ni las mediciones descargadas. Compruebe los permisos del archivo y de su carpeta.</translation></message>
    <message id="XmlSeveralRoots"><translation>Contiene más de un elemento raíz.</translation></message>
    <message id="XmlTextOutsideRoot"><translation>Contiene texto fuera de su elemento raíz.</translation></message>
    <message id="XmlTooDeep"><translation>Sus elementos están anidados en más de %1 niveles.</translation></message>
    <message id="XmlTooLarge"><translation>Ocuparía más de 512 MiB.</translation></message>
    <message id="XmlTooManyParts"><translation>Contiene más de %1 elementos, atributos y textos, demasiados para un archivo de su tamaño.</translation></message>
    <message id="XmlTooManyRecords"><translation>Contiene más de %1 registros, demasiados para un archivo de su tamaño.</translation></message>
    <message id="XmlWrongRoot"><translation>Su elemento raíz es «%1», no «ZEL».</translation></message>
</context>
<context>
    <name>monitor</name>
    <message id="monitorAccessDenied"><translation>Hay un tensiómetro conectado, pero este programa no puede usarlo: lo está usando otro programa o falta el permiso para el dispositivo USB.</translation></message>
    <message id="monitorBadCheckField"><translation>La respuesta del tensiómetro ha llegado dañada y no se ha usado. Vuelva a intentarlo.</translation></message>
    <message id="monitorBadFixedContent"><translation>No se ha podido interpretar la respuesta del tensiómetro y no se ha usado. Vuelva a intentarlo.</translation></message>
    <message id="monitorClockNotSet"><translation>El reloj del tensiómetro no está ajustado.</translation></message>
    <message id="monitorInterrupted"><translation>La comunicación con el tensiómetro se ha detenido antes de completarse.</translation></message>
    <message id="monitorNoAcknowledgement"><translation>El tensiómetro no ha aceptado la orden. Apáguelo, vuelva a encenderlo e inténtelo de nuevo.</translation></message>
    <message id="monitorNoDevice"><translation>No hay ningún tensiómetro conectado. Conéctelo y vuelva a intentarlo.</translation></message>
    <message id="monitorNotTaken"><translation>El tensiómetro lo ha confirmado, pero sigue teniendo otro dato. Vuelva a intentarlo.</translation></message>
    <message id="monitorReadFailed"><translation>Se ha interrumpido la conexión con el tensiómetro. Compruebe el cable y vuelva a intentarlo.</translation></message>
    <message id="monitorSuccess"><translation>El tensiómetro ha hecho lo que se le ha pedido.</translation></message>
    <message id="monitorTimeOut"><translation>El tensiómetro no ha respondido a tiempo. Compruebe que está encendido y vuelva a intentarlo.</translation></message>
    <message id="monitorUnconfirmed"><translation>Se ha enviado al tensiómetro, pero no se ha podido leer qué tiene ahora. Compruébelo antes de volver a intentarlo.</translation></message>
    <message id="monitorUnfitID"><translation>El tensiómetro no puede guardar este ID, así que no se ha enviado nada. Un ID para el tensiómetro tiene de 1 a 11 letras, cifras o signos, sin acentos ni «ñ».</translation></message>
    <message id="monitorWriteFailed"><translation>El tensiómetro no acepta lo que se le envía. Desconéctelo, vuelva a conectarlo e inténtelo otra vez.</translation></message>
    <message id="simulatedMissing"><translation>Falta el valor de «%1».</translation></message>
    <message id="simulatedNoPlan"><translation>Debe contener un objeto JSON.</translation></message>
    <message id="simulatedNotAllowed"><translation>El valor de «%1» debe ser uno de estos: %2</translation></message>
    <message id="simulatedNotJson"><translation>No es JSON válido: cerca del carácter %1, %2.</translation></message>
    <message id="simulatedNotList"><translation>El valor de «%1» debe ser una lista.</translation></message>
    <message id="simulatedNotObject"><translation>El valor de «%1» debe ser un objeto.</translation></message>
    <message id="simulatedNotText"><translation>El valor de «%1» debe ser un texto.</translation></message>
    <message id="simulatedNotTime"><translation>El valor de «%1» debe ser una hora como 2026-11-01T07:12, de los años 2000 a 2099, o la palabra undated.</translation></message>
    <message id="simulatedNotWhole"><translation>El valor de «%1» debe ser un número entero del intervalo %2.</translation></message>
    <message id="simulatedRefused"><translation>No se puede usar el archivo del tensiómetro simulado %1: %2</translation></message>
    <message id="simulatedTooMany"><translation>La lista «%1» debe tener como máximo %2 entradas.</translation></message>
    <message id="simulatedUnencodable"><translation>El valor de «%1» tiene caracteres que el tensiómetro no conoce.</translation></message>
    <message id="simulatedUnknownKey"><translation>La clave «%1» es desconocida.</translation></message>
    <message id="simulatedUnreadable"><translation>No se puede leer el archivo del tensiómetro simulado %1: %2</translation></message>
    <message id="simulatedWrongLength"><translation>El valor de «%1» debe tener este número de caracteres: %2</translation></message>
</context>
<context>
    <name>analysis</name>
    <message id="beforeAndSince"><translation>%1 antes, %2 desde entonces: %3</translation></message>
    <message id="excludedOfDays" numerus="yes"><translation><numerusform>%n excluida</numerusform><numerusform>%n excluidas</numerusform></translation></message>
    <message id="fewBefore"><translation>menos de %1 mediciones antes</translation></message>
    <message id="fewOnBothSides"><translation>menos de %1 mediciones tanto antes como después</translation></message>
    <message id="fewSince"><translation>menos de %1 mediciones desde entonces</translation></message>
    <message id="highMark"><translation>%1 y negrita: igual o superior a %2</translation></message>
    <message id="leftBeforeNoon" numerus="yes"><translation><numerusform>%n antes del mediodía</numerusform><numerusform>%n antes del mediodía</numerusform></translation></message>
    <message id="leftExcluded" numerus="yes"><translation><numerusform>%n excluida</numerusform><numerusform>%n excluidas</numerusform></translation></message>
    <message id="leftFromNoon" numerus="yes"><translation><numerusform>%n a partir del mediodía</numerusform><numerusform>%n a partir del mediodía</numerusform></translation></message>
    <message id="leftOut"><translation>no contadas: %1</translation></message>
    <message id="leftOutsidePeriod" numerus="yes"><translation><numerusform>%n fuera del periodo</numerusform><numerusform>%n fuera del periodo</numerusform></translation></message>
    <message id="leftUndated" numerus="yes"><translation><numerusform>%n sin fecha</numerusform><numerusform>%n sin fecha</numerusform></translation></message>
    <message id="leftUnmeasured" numerus="yes"><translation><numerusform>%n sin valores de presión</numerusform><numerusform>%n sin valores de presión</numerusform></translation></message>
    <message id="leftWithoutDate" numerus="yes"><translation><numerusform>%n sin fecha alguna</numerusform><numerusform>%n sin fecha alguna</numerusform></translation></message>
    <message id="limitDiaAlone"><translation>DIA %1 mmHg</translation></message>
    <message id="limitsBoth"><translation>%1/%2 mmHg</translation></message>
    <message id="limitSysAlone"><translation>SYS %1 mmHg</translation></message>
    <message id="listedExcluded" numerus="yes"><translation><numerusform>, %n de ellas excluida</numerusform><numerusform>, %n de ellas excluidas</numerusform></translation></message>
    <message id="missingDays" numerus="yes"><translation><numerusform>%n día más</numerusform><numerusform>%n días más</numerusform></translation></message>
    <message id="missingEvenings" numerus="yes"><translation><numerusform>%n tarde más</numerusform><numerusform>%n tardes más</numerusform></translation></message>
    <message id="missingMornings" numerus="yes"><translation><numerusform>%n mañana más</numerusform><numerusform>%n mañanas más</numerusform></translation></message>
    <message id="missingReadings" numerus="yes"><translation><numerusform>%n medición más</numerusform><numerusform>%n mediciones más</numerusform></translation></message>
    <message id="noHighMark"><translation>No se marca ningún valor como alto</translation></message>
    <message id="noneBefore"><translation>ninguna medición en los 14 días anteriores, %1 desde entonces</translation></message>
    <message id="noneBeforeOrSince"><translation>ninguna medición antes ni desde entonces</translation></message>
    <message id="noneSince"><translation>%1 antes, ninguna medición desde entonces</translation></message>
    <message id="otherZoneOfDays" numerus="yes"><translation><numerusform>%n medición guardada en otra zona horaria; horas de este equipo</numerusform><numerusform>%n mediciones guardadas en otra zona horaria; horas de este equipo</numerusform></translation></message>
    <message id="readingCount" numerus="yes"><translation><numerusform>%n medición</numerusform><numerusform>%n mediciones</numerusform></translation></message>
    <message id="rowsCut"><translation>Los comentarios abarcan más días sin mediciones de los que la lista puede mostrar: como máximo %1, por lo que faltan algunos.</translation></message>
    <message id="unmeasuredOfDays" numerus="yes"><translation><numerusform>%n sin valores de presión, sin contar</numerusform><numerusform>%n sin valores de presión, sin contar</numerusform></translation></message>
</context>
<context>
    <name>app</name>
    <message id="12-hours"><translation>12 horas</translation></message>
    <message id="24-hours"><translation>24 horas</translation></message>
    <message id="aboutData"><translation>Archivo de datos: %1</translation></message>
    <message id="aboutLicence"><translation>Licencia: MIT. ZEL se ofrece sin garantía alguna. ZEL utiliza Qt (LGPL 3), hidapi (BSD), pugixml (MIT), ICU (licencia Unicode) y expected (CC0), cada uno con su propia licencia.</translation></message>
    <message id="addComment"><translation>Añadir un comentario</translation></message>
    <message id="addCommentHint"><translation>Arrástrelo hasta un día de la franja que hay debajo del gráfico del pulso para añadir allí un comentario. Con el teclado, púlselo o pulse la tecla Insert.</translation></message>
    <message id="addCommentTooLong"><translation>Se pueden añadir comentarios cuando el periodo tiene 47 días o menos.</translation></message>
    <message id="addDay"><translation>Más días: uno más en cada extremo del periodo</translation></message>
    <message id="addDayHint"><translation>Más días: uno más en cada extremo del periodo (+)</translation></message>
    <message id="afib"><translation>FA</translation></message>
    <message id="age"><translation>Edad: %1</translation></message>
    <message id="answerNo"><translation>No</translation></message>
    <message id="answerYes"><translation>Sí</translation></message>
    <message id="AP_Title"><translation>ZEL – mediciones de la presión arterial</translation></message>
    <message id="argumentUnknown"><translation>argumento inesperado «%1»; véase zel --help</translation></message>
    <message id="argumentWithoutFile"><translation>%1= necesita el nombre de un archivo; véase zel --help</translation></message>
    <message id="backupAlsoTo"><translation>Copiar también en:</translation></message>
    <message id="backupChoose"><translation>E&amp;legir…</translation></message>
    <message id="backupChooseTitle"><translation>Segunda carpeta para las copias del archivo de datos</translation></message>
    <message id="backupClose"><translation>&amp;Cerrar</translation></message>
    <message id="backupConfirm"><translation>¿Volver a esta copia? %1. Lo que hay ahora se conserva como otra copia, para que se pueda volver a ello.</translation></message>
    <message id="backupCreate"><translation>Copiar a&amp;hora</translation></message>
    <message id="backupDaily"><translation>Antes del primer cambio del día</translation></message>
    <message id="backupDamaged"><translation>Archivo de datos dañado</translation></message>
    <message id="backupDay"><translation>Día</translation></message>
    <message id="backupExplained"><translation>Copias del archivo de datos en la carpeta %1. Por si este disco se estropea, indique una segunda carpeta en otro, en una memoria USB o en la red.</translation></message>
    <message id="backupFar"><translation>Segunda carpeta: %1</translation></message>
    <message id="backupKind"><translation>Copia</translation></message>
    <message id="backupMade"><translation>Hecha por usted</translation></message>
    <message id="backupNone"><translation>Todavía no hay ninguna copia. Se hace una antes del primer cambio de cada día.</translation></message>
    <message id="backupNoSecondFolder"><translation>sin segunda carpeta</translation></message>
    <message id="backupOffered"><translation>La copia legible más reciente es %1, con %2. ¿Volver a ella? El archivo dañado se conserva a su lado como otra copia.</translation></message>
    <message id="backupReplaced"><translation>Estado previo a una restauración</translation></message>
    <message id="backupRestore"><translation>&amp;Restaurar…</translation></message>
    <message id="backupRestored"><translation>La copia %1 está en uso. Lo que había antes se conserva como %2.</translation></message>
    <message id="backupSize"><translation>Tamaño</translation></message>
    <message id="backupStop"><translation>&amp;Quitar</translation></message>
    <message id="backupTitle"><translation>Copias de seguridad</translation></message>
    <message id="backupUnreadable"><translation>no se puede leer esta copia</translation></message>
    <message id="beforeAndSinceHint"><translation>Presión media en mmHg y número de mediciones: los 14 días anteriores al comentario, y desde su primer día hasta que empieza otro comentario, 28 días como máximo</translation></message>
    <message id="BeginDate"><translation>El primer día debe ser anterior al último, de modo que el periodo abarque dos días o más. Las fechas se han dejado como estaban.</translation></message>
    <message id="beginEarlier"><translation>Empezar un día antes</translation></message>
    <message id="beginLater"><translation>Empezar un día después</translation></message>
    <message id="birthDateIncomplete"><translation>Indique año, mes y día, o ninguno de los tres.</translation></message>
    <message id="birthDateInFuture"><translation>Ese día aún no ha llegado.</translation></message>
    <message id="birthDateTooOld"><translation>De esa fecha hace más de %1 años.</translation></message>
    <message id="birthDayNone"><translation>Día</translation></message>
    <message id="birthDayRefused"><translation>Ese mes no tiene día %1.</translation></message>
    <message id="birthMonthNone"><translation>Mes</translation></message>
    <message id="birthYearNone"><translation>Año</translation></message>
    <message id="birthYearRefused"><translation>Indique el año con cuatro cifras, por ejemplo 1956.</translation></message>
    <message id="bloodChart"><translation>Presión arterial a lo largo del tiempo</translation></message>
    <message id="bloodScroller"><translation>Desplazar la escala de presión</translation></message>
    <message id="cancel"><translation>Cancelar</translation></message>
    <message id="cancelPrint"><translation>Cerrar sin imprimir</translation></message>
    <message id="cellWithRemark"><translation>%1, %2</translation></message>
    <message id="changeReadingAction"><translation>Cambiar medición…</translation></message>
    <message id="changeReadingTitle"><translation>Cambiar medición</translation></message>
    <message id="chartKeys"><translation>%1 en el periodo. Las teclas de flecha desplazan el periodo, más y menos lo amplían y lo reducen, y Ctrl con las flechas izquierda y derecha va de una medición a otra.</translation></message>
    <message id="cholestrolRefused"><translation>Indique un número de 10 a 5000 mg/dL, por ejemplo 200. 1 mmol/L equivale a unos 38,7 mg/dL.</translation></message>
    <message id="choosePrinter"><translation>Elegir una impresora</translation></message>
    <message id="clockAhead"><translation>%1 de adelanto respecto a este equipo</translation></message>
    <message id="clockBehind"><translation>%1 de retraso respecto a este equipo</translation></message>
    <message id="clockDays" numerus="yes"><translation><numerusform>%n día</numerusform><numerusform>%n días</numerusform></translation></message>
    <message id="clockHours" numerus="yes"><translation><numerusform>%n hora</numerusform><numerusform>%n horas</numerusform></translation></message>
    <message id="clockMinutes" numerus="yes"><translation><numerusform>%n minuto</numerusform><numerusform>%n minutos</numerusform></translation></message>
    <message id="clockNotSet"><translation>sin éxito; puede que siga sin estar en hora. %1</translation></message>
    <message id="clockNotSetAtGreeting"><translation>No se ha podido ajustar el reloj del tensiómetro. %1</translation></message>
    <message id="clockRight"><translation>Igual que en este equipo</translation></message>
    <message id="clockSet"><translation>hecho. Ahora muestra la hora de este equipo.</translation></message>
    <message id="clockUnset"><translation>Sin ajustar</translation></message>
    <message id="clockUnsetAsk"><translation>El reloj del tensiómetro no está ajustado, así que sus mediciones se guardan sin fecha ni hora. ¿Ajustarlo a la hora de este equipo?</translation></message>
    <message id="closeWindow"><translation>Cerrar</translation></message>
    <message id="colourAction"><translation>Color: %1</translation></message>
    <message id="colourBlue"><translation>Azul</translation></message>
    <message id="colourButton"><translation>Color del comentario</translation></message>
    <message id="colourGrey"><translation>Gris oscuro</translation></message>
    <message id="colourHint"><translation>Elija el color de los comentarios nuevos y del comentario que haya seleccionado con un clic o con una tecla.</translation></message>
    <message id="colourOrange"><translation>Naranja</translation></message>
    <message id="colourPicker"><translation>Color del comentario</translation></message>
    <message id="colourYellow"><translation>Amarillo</translation></message>
    <message id="columnComment"><translation>Comentario</translation></message>
    <message id="columnComments"><translation>Comentarios</translation></message>
    <message id="columnDate"><translation>Fecha</translation></message>
    <message id="columnDia"><translation>DIA
mmHg</translation></message>
    <message id="columnFile"><translation>Archivo</translation></message>
    <message id="columnMam"><translation>MAM</translation></message>
    <message id="columnPatient"><translation>Paciente</translation></message>
    <message id="columnPressure"><translation>%1
mmHg</translation></message>
    <message id="columnPulse"><translation>Pulso
lpm</translation></message>
    <message id="columnReadings"><translation>Mediciones</translation></message>
    <message id="columnState"><translation>Estado</translation></message>
    <message id="columnSys"><translation>SYS
mmHg</translation></message>
    <message id="columnTime"><translation>Hora</translation></message>
    <message id="commentBegin"><translation>Desde</translation></message>
    <message id="commentBeginDay"><translation>Primer día del comentario</translation></message>
    <message id="commentCount" numerus="yes"><translation><numerusform>%n comentario</numerusform><numerusform>%n comentarios</numerusform></translation></message>
    <message id="commentDayFar"><translation>Faltan más de dos años para «%1»: compruebe el año. Las fechas se han dejado como estaban.</translation></message>
    <message id="commentDayHint"><translation>Escriba una fecha y pulse Intro.</translation></message>
    <message id="commentDayOrder"><translation>El último día de un comentario no puede ser anterior al primero. Las fechas se han dejado como estaban.</translation></message>
    <message id="commentDayUnread"><translation>«%1» no es una fecha válida para un comentario: escríbala en la forma %2, con un año a partir de 1900. Las fechas se han dejado como estaban.</translation></message>
    <message id="commentEmpty"><translation>El comentario del %1 no tiene texto. ¿Eliminarlo?</translation></message>
    <message id="commentEmptyTitle"><translation>Comentario sin texto</translation></message>
    <message id="commentEnd"><translation>Hasta</translation></message>
    <message id="commentEndDay"><translation>Último día del comentario</translation></message>
    <message id="commentInClipboard"><translation>No se ha podido guardar el comentario que se estaba escribiendo al cerrarse el programa; su texto está ahora en el portapapeles: péguelo donde quiera conservarlo. %1</translation></message>
    <message id="commentNotSaved"><translation>No se ha guardado el comentario; su texto sigue en el campo. %1</translation></message>
    <message id="commentPanel"><translation>Comentario</translation></message>
    <message id="commentPatientGone"><translation>El paciente %1 ya no está en el archivo de datos, así que el comentario que estaba escribiendo no se puede guardar allí. Su texto está ahora en el portapapeles: péguelo donde quiera conservarlo.</translation></message>
    <message id="commentPosition"><translation>%1 de %2</translation></message>
    <message id="commentStay"><translation>No se ha podido guardar el comentario. %1

¿Quedarse aquí y conservar el texto para volver a intentarlo? Si responde «No», el texto se pierde.</translation></message>
    <message id="commentText"><translation>Texto del comentario</translation></message>
    <message id="commentUnchanged"><translation>No se ha podido guardar el comentario. %1</translation></message>
    <message id="ConfirmDelPatient"><translation>¿Eliminar los datos de %1, con todas sus mediciones y comentarios? Edición &gt; Deshacer permite recuperarlos mientras no se cierre ZEL.</translation></message>
    <message id="confirmDropNew"><translation>Los datos de %1 aún no se han guardado. ¿Eliminar lo introducido? No se podrá recuperar.</translation></message>
    <message id="confirmPrintSave"><translation>Se han cambiado los datos de %1, y solo se imprime o exporta lo que está guardado. ¿Guardar antes los cambios?</translation></message>
    <message id="confirmSendID"><translation>%2 ¿Escribir en él el ID %1? A partir de entonces sus mediciones pertenecerán a este paciente.</translation></message>
    <message id="confirmSendSave"><translation>Se han cambiado los datos de %1. ¿Guardar los cambios?</translation></message>
    <message id="copyRows"><translation>Copiar</translation></message>
    <message id="correlationView"><translation>Presión sistólica frente a diastólica</translation></message>
    <message id="dataChangedElsewhere"><translation>Otro programa ha cambiado el archivo de datos. Se muestra como está ahora.</translation></message>
    <message id="dataFile"><translation>Archivo de datos</translation></message>
    <message id="dataFileUnreadable"><translation>No se puede usar el archivo de datos</translation></message>
    <message id="dataPanel"><translation>Datos</translation></message>
    <message id="dataUnreadNow"><translation>En este momento no se puede leer el archivo de datos ni guardar nada. Lo que se muestra es lo que había antes.</translation></message>
    <message id="DateError"><translation>Revise las fechas</translation></message>
    <message id="dayHint"><translation>Escriba una fecha y pulse Intro, o abra el calendario con la flecha.</translation></message>
    <message id="dayOfDownload"><translation>%1, día de una descarga</translation></message>
    <message id="daysButtons"><translation>Días</translation></message>
    <message id="dayUnread"><translation>«%1» no es una fecha válida: escríbala en la forma %2, con un año a partir de 1900.</translation></message>
    <message id="dayUnreadLeft"><translation>«%1» no es una fecha válida: escríbala en la forma %2, con un año a partir de 1900. La fecha se ha dejado como estaba.</translation></message>
    <message id="dayWithoutReading"><translation>%1, ninguna medición ese día</translation></message>
    <message id="dd mm yyyy"><translation>dd mm aaaa</translation></message>
    <message id="DeleteComment"><translation>Eliminar comentario</translation></message>
    <message id="deleteCommentButton"><translation>Eliminar…</translation></message>
    <message id="deleteCommentHint"><translation>Eliminar este comentario, previa confirmación.</translation></message>
    <message id="DeletePatient"><translation>Eliminar paciente</translation></message>
    <message id="deletePatientButton"><translation>E&amp;liminar</translation></message>
    <message id="deletePatientHint"><translation>Eliminar este paciente con todas sus mediciones y comentarios, previa confirmación.</translation></message>
    <message id="deleteReadingsAction"><translation>Eliminar medición…</translation></message>
    <message id="deleteReadingsQuestion"><translation>¿Eliminar lo introducido a mano (%1)?</translation></message>
    <message id="deleteReadingsTitle"><translation>Eliminar medición</translation></message>
    <message id="DeleteTheComment"><translation>¿Eliminar este comentario? Edición &gt; Deshacer permite recuperarlo mientras no se cierre ZEL.</translation></message>
    <message id="demonstrationButton"><translation>Probar con un tensiómetro de demostración</translation></message>
    <message id="demonstrationIsOwnData"><translation>La demostración guarda sus datos en la carpeta %1, pero esa carpeta remite a los datos reales de usted. No se ha iniciado nada, para que no se mezclen mediciones inventadas con las suyas.</translation></message>
    <message id="demonstrationNoFolder"><translation>La demostración guarda sus datos en la carpeta %1, que no se puede crear.</translation></message>
    <message id="demonstrationNote"><translation>Abre una segunda ventana con un tensiómetro simulado y mediciones inventadas, que se guardan aparte de sus propios datos.</translation></message>
    <message id="demonstrationNotStarted"><translation>No se ha podido iniciar la demostración.</translation></message>
    <message id="demonstrationStarted"><translation>La demostración se abre en su propia ventana.</translation></message>
    <message id="demonstrationStrip"><translation>Demostración: el tensiómetro es simulado; sus mediciones son inventadas y se guardan aparte de sus propios datos.</translation></message>
    <message id="demonstrationTitle"><translation>Demostración – %1</translation></message>
    <message id="download"><translation>Descargar mediciones</translation></message>
    <message id="downloadAdvice"><translation>Deje conectado el tensiómetro. Sus mediciones se guardan cuando han llegado todas.</translation></message>
    <message id="downloadButton"><translation>&amp;Descargar</translation></message>
    <message id="downloadCancel"><translation>Cancelar la descarga</translation></message>
    <message id="downloadCancelled"><translation>Descarga cancelada. No se ha guardado nada; las mediciones siguen en el tensiómetro.</translation></message>
    <message id="downloadDayUnknown"><translation>desconocido</translation></message>
    <message id="downloadEmpty"><translation>El tensiómetro no contiene mediciones.</translation></message>
    <message id="downloadFailed"><translation>No se han podido descargar las mediciones y no se ha guardado nada. Siguen en el tensiómetro. %1</translation></message>
    <message id="downloadFetched" numerus="yes"><translation><numerusform>%n medición descargada</numerusform><numerusform>%n mediciones descargadas</numerusform></translation></message>
    <message id="downloadHint"><translation>Recoger las mediciones del tensiómetro (Ctrl+D). El tensiómetro debe estar conectado y tener el ID de este paciente.</translation></message>
    <message id="downloadNew" numerus="yes"><translation><numerusform>%1, %n nueva</numerusform><numerusform>%1, %n nuevas</numerusform></translation></message>
    <message id="downloadNotFlushed"><translation>Las mediciones se han guardado, pero no es seguro que se conserven. %1</translation></message>
    <message id="downloadNothingNew"><translation>%1, ninguna nueva: todas estaban ya guardadas</translation></message>
    <message id="downloadNotReadBack"><translation>%1. Después no se ha podido leer el archivo de datos, así que no se ha vaciado la memoria del tensiómetro. %2</translation></message>
    <message id="downloadNotStored"><translation>No se han podido guardar las mediciones. Siguen en el tensiómetro. %1</translation></message>
    <message id="downloadOtherMonitor"><translation>Las mediciones del tensiómetro pertenecen a un ID distinto del de este paciente, así que no se ha guardado nada. Conecte el tensiómetro de este paciente y vuelva a intentarlo.</translation></message>
    <message id="downloadProgress"><translation>Progreso de la descarga</translation></message>
    <message id="downloadsNew"><translation>Mediciones nuevas</translation></message>
    <message id="downloadsNone"><translation>%1: todavía no se ha descargado nada del tensiómetro.</translation></message>
    <message id="downloadsSummary" numerus="yes"><translation><numerusform>%1: %n descarga. Mediciones nuevas: %2.</numerusform><numerusform>%1: %n descargas. Mediciones nuevas: %2.</numerusform></translation></message>
    <message id="downloadStarting"><translation>Consultando el tensiómetro…</translation></message>
    <message id="downloadsTitle"><translation>Descargas</translation></message>
    <message id="downloadStopping"><translation>Deteniendo…</translation></message>
    <message id="downloadTypedLeftOut" numerus="yes"><translation><numerusform>%n introducida a mano queda excluida desde ahora (también medida por el tensiómetro)</numerusform><numerusform>%n introducidas a mano quedan excluidas desde ahora (también medidas por el tensiómetro)</numerusform></translation></message>
    <message id="downloadWaiting" numerus="yes"><translation><numerusform>No llega nada del tensiómetro. Se seguirá esperando %n segundo como máximo. Puede cancelar la descarga: no se pierde nada.</numerusform><numerusform>No llega nada del tensiómetro. Se seguirá esperando %n segundos como máximo. Puede cancelar la descarga: no se pierde nada.</numerusform></translation></message>
    <message id="dropLeftOut"><translation>Solo se pueden importar archivos XML de este equipo. No están en la lista: %1</translation></message>
    <message id="DupNewPatient"><translation>Ya hay un paciente nuevo sin guardar: el primero de la lista. Guárdelo o elimínelo antes.</translation></message>
    <message id="EndDate"><translation>El último día debe ser posterior al primero, de modo que el periodo abarque dos días o más. Las fechas se han dejado como estaban.</translation></message>
    <message id="endEarlier"><translation>Terminar un día antes</translation></message>
    <message id="endLater"><translation>Terminar un día después</translation></message>
    <message id="eraseFailed"><translation>%1. Las mediciones están bien guardadas, pero no se ha podido vaciar la memoria del tensiómetro: todavía las contiene. %2</translation></message>
    <message id="eraseNotSeen"><translation>%1. Las mediciones están bien guardadas, pero no se ha podido comprobar si la memoria del tensiómetro está vacía ahora. %2</translation></message>
    <message id="eraseThem"><translation>&amp;Eliminar</translation></message>
    <message id="exportAll"><translation>Exportar todos los pacientes como archivos XML</translation></message>
    <message id="exportAlsoFailed"><translation>Lo mismo ha ocurrido con: %1</translation></message>
    <message id="exportButton"><translation>&amp;Exportar todo…</translation></message>
    <message id="exportCancelled"><translation>Después se ha cancelado la exportación; los demás pacientes no se han exportado.</translation></message>
    <message id="exportCSV"><translation>Exportar las mediciones del paciente actual como archivo CSV</translation></message>
    <message id="exportCSVButton"><translation>Exportar &amp;CSV…</translation></message>
    <message id="exportCSVFolder"><translation>Elija la carpeta para el archivo CSV</translation></message>
    <message id="exportCSVHint"><translation>Escribe los datos y las mediciones del paciente actual en una tabla, para una hoja de cálculo.</translation></message>
    <message id="exportFailed" numerus="yes"><translation><numerusform>No se ha podido escribir %n archivo:</numerusform><numerusform>No se han podido escribir %n archivos:</numerusform></translation></message>
    <message id="exportFhirFolder"><translation>Elija la carpeta para el archivo FHIR</translation></message>
    <message id="exportFolder"><translation>Elija la carpeta para los archivos de los pacientes</translation></message>
    <message id="exportHint"><translation>Escribe un archivo por paciente, que este programa puede volver a importar.</translation></message>
    <message id="exporting"><translation>Exportando pacientes</translation></message>
    <message id="exportKept" numerus="yes"><translation><numerusform>%n archivo que ya existía se ha dejado como estaba.</numerusform><numerusform>%n archivos que ya existían se han dejado como estaban.</numerusform></translation></message>
    <message id="ExportMsg" numerus="yes"><translation><numerusform>Se ha escrito %n archivo en la carpeta %1.</numerusform><numerusform>Se han escrito %n archivos en la carpeta %1.</numerusform></translation></message>
    <message id="exportNobody"><translation>Todavía no hay pacientes que exportar. Añada o importe antes un paciente.</translation></message>
    <message id="exportNoPatient"><translation>No se ha elegido ningún paciente. Elija antes el paciente que desea exportar.</translation></message>
    <message id="exportReplace" numerus="yes"><translation><numerusform>La carpeta %1 ya contiene el archivo %2. ¿Reemplazarlo? Si responde «No», se queda como está.</numerusform><numerusform>La carpeta %1 ya contiene %n de los archivos (%2). ¿Reemplazarlos? Si responde «No», se quedan como están y solo se escriben los demás.</numerusform></translation></message>
    <message id="exportReplaceTitle"><translation>¿Reemplazar archivos?</translation></message>
    <message id="ExportTitle"><translation>Exportación</translation></message>
    <message id="fieldAddress"><translation>Dirección</translation></message>
    <message id="fieldCholestrol"><translation>Colesterol (mg/dL)</translation></message>
    <message id="fieldDateOfBirth"><translation>Fecha de nacimiento</translation></message>
    <message id="fieldDiabetic"><translation>Diabetes</translation></message>
    <message id="fieldFamilyHistory"><translation>Antecedentes familiares</translation></message>
    <message id="fieldFamilyName"><translation>Apellidos</translation></message>
    <message id="fieldGivenNames"><translation>Nombre</translation></message>
    <message id="fieldHeightCm"><translation>Estatura (cm)</translation></message>
    <message id="fieldHeightFtIn"><translation>Estatura (pies/pulgadas)</translation></message>
    <message id="fieldID"><translation>ID</translation></message>
    <message id="fieldMissing"><translation>Rellene este campo.</translation></message>
    <message id="fieldPatientNotes"><translation>Notas sobre este paciente</translation></message>
    <message id="fieldPhoneEmail"><translation>Teléfono / correo</translation></message>
    <message id="fieldRequired"><translation>Obligatorio</translation></message>
    <message id="fieldSex"><translation>Sexo</translation></message>
    <message id="fieldSmoker"><translation>Fumador/a</translation></message>
    <message id="fieldWeightKg"><translation>Peso (kg)</translation></message>
    <message id="fieldWeightLb"><translation>Peso (lb)</translation></message>
    <message id="fileAlreadyHere"><translation>ya existe</translation></message>
    <message id="fileAlreadyHereHint"><translation>Ya hay en la lista un paciente con este ID; la importación se rechazaría.</translation></message>
    <message id="fileBeingRead"><translation>leyendo…</translation></message>
    <message id="fileNotImportable"><translation>no se puede importar</translation></message>
    <message id="fileNotReadable"><translation>no legible</translation></message>
    <message id="fileTooLargeToCount"><translation>más de 64 MiB: sin contar</translation></message>
    <message id="firstCopy"><translation>Hay una copia de datos anteriores: %1, con %2. Si se perdió el archivo de datos, vuelva a ella.</translation></message>
    <message id="firstCopyButton"><translation>Volver a una copia…</translation></message>
    <message id="firstStepDownload"><translation>Pulse «Descargar». Las mediciones aparecen en el gráfico y en la tabla.</translation></message>
    <message id="firstStepMonitor"><translation>Conecte el tensiómetro con su cable USB. Si aún no tiene el ID de este paciente, pulse «Enviar ID».</translation></message>
    <message id="firstStepPatient"><translation>Introduzca los datos y el ID del paciente cuya presión arterial mide el tensiómetro y pulse «Guardar».</translation></message>
    <message id="firstSteps"><translation>Aún no hay pacientes: tres pasos hasta las primeras mediciones</translation></message>
    <message id="heightRefusedCm"><translation>Indique un número de 20 a 300 cm, por ejemplo 175.</translation></message>
    <message id="heightRefusedFtIn"><translation>Indique pies y pulgadas separados por una barra, por ejemplo 5/9. Las pulgadas llegan hasta 11.</translation></message>
    <message id="highFrom"><translation>Límites a partir de los cuales se marcan los valores</translation></message>
    <message id="highFromHint"><translation>Los valores iguales o superiores a estos límites aparecen en negrita y marcados, aquí y en el papel. El gráfico, la estadística, el histograma y la correlación usan los límites de la configuración.</translation></message>
    <message id="highFromLabel"><translation>Marcar &amp;valores desde</translation></message>
    <message id="histogramView"><translation>Distribución de los valores</translation></message>
    <message id="IDNotForMonitor"><translation>El ID «%1» no es adecuado para el tensiómetro. Un tensiómetro guarda ID de 1 a 11 letras, cifras y signos simples, sin acentos ni «ñ» y sin espacios al principio ni al final.</translation></message>
    <message id="IDRefused"><translation>Un ID tiene de 1 a 11 letras, cifras o signos simples, sin acentos ni «ñ»: un tensiómetro no puede guardar más.</translation></message>
    <message id="IDStays"><translation>El ID no se puede cambiar: las mediciones y los comentarios dependen de él.</translation></message>
    <message id="ihd"><translation>Arritmia</translation></message>
    <message id="importAll"><translation>&amp;Todos</translation></message>
    <message id="importAllFiles"><translation>Elegir todos los archivos</translation></message>
    <message id="importButton"><translation>&amp;Importar</translation></message>
    <message id="importButtonFiles" numerus="yes"><translation><numerusform>&amp;Importar %n archivo</numerusform><numerusform>&amp;Importar %n archivos</numerusform></translation></message>
    <message id="importCancelled" numerus="yes"><translation><numerusform>Después se ha cancelado la importación; %n archivo no se ha leído.</numerusform><numerusform>Después se ha cancelado la importación; %n archivos no se han leído.</numerusform></translation></message>
    <message id="importDropped"><translation>Archivos arrastrados a la ventana</translation></message>
    <message id="importedFiles" numerus="yes"><translation><numerusform>Se ha importado %n archivo:</numerusform><numerusform>Se han importado %n archivos:</numerusform></translation></message>
    <message id="importFilesButton"><translation>&amp;Importar…</translation></message>
    <message id="importFolder"><translation>Elija la carpeta desde la que importar</translation></message>
    <message id="importFolderButton"><translation>Elegir &amp;carpeta…</translation></message>
    <message id="importFrom"><translation>Archivos de %1</translation></message>
    <message id="importHint"><translation>Incorpora pacientes de archivos XML exportados anteriormente.</translation></message>
    <message id="importing"><translation>Importando pacientes</translation></message>
    <message id="importList"><translation>Lista de archivos XML</translation></message>
    <message id="importNone"><translation>No se ha importado ningún archivo.</translation></message>
    <message id="importRefused" numerus="yes"><translation><numerusform>No se ha importado %n archivo:</numerusform><numerusform>No se han importado %n archivos:</numerusform></translation></message>
    <message id="importTaken"><translation>%1: %2, %3, %4</translation></message>
    <message id="importTitle"><translation>Importar pacientes</translation></message>
    <message id="includeUndated"><translation>Mediciones sin fecha</translation></message>
    <message id="includeUndatedHint"><translation>Mostrar y contar también las mediciones que el tensiómetro guardó sin fecha.</translation></message>
    <message id="infoDia"><translation>Diastólica</translation></message>
    <message id="infoLine"><translation>%1: %2</translation></message>
    <message id="infoPulse"><translation>Pulso</translation></message>
    <message id="infoRemark"><translation>Observación</translation></message>
    <message id="infoSys"><translation>Sistólica</translation></message>
    <message id="keep"><translation>&amp;Conservar</translation></message>
    <message id="keysCloseMonitorBar"><translation>Cerrar la barra del tensiómetro</translation></message>
    <message id="keysFirstLast"><translation>Primeras, últimas mediciones</translation></message>
    <message id="keysFromReading"><translation>De una medición a otra</translation></message>
    <message id="keysKey"><translation>Tecla</translation></message>
    <message id="keysManualHint"><translation>Abrir el manual (F1).</translation></message>
    <message id="keysMovePeriod"><translation>Desplazar el periodo</translation></message>
    <message id="keysMoveScale"><translation>Desplazar la escala</translation></message>
    <message id="keysPlace"><translation>Dónde</translation></message>
    <message id="keysTitle"><translation>Atajos de teclado</translation></message>
    <message id="keysToMonitorBar"><translation>Ir a la barra del tensiómetro</translation></message>
    <message id="keysWhat"><translation>Qué hace</translation></message>
    <message id="keysWholePeriod"><translation>Un periodo entero hacia atrás, hacia delante</translation></message>
    <message id="keysWidenPeriod"><translation>Ampliar, reducir el periodo</translation></message>
    <message id="languageNotSaved"><translation>No se ha cambiado el idioma; el resto de la configuración está guardado. %1</translation></message>
    <message id="lastDownload"><translation>Última descarga</translation></message>
    <message id="lastDownloadNone"><translation>ninguna</translation></message>
    <message id="leaveOutAction"><translation>Excluir…</translation></message>
    <message id="leaveOutButton"><translation>&amp;Excluir</translation></message>
    <message id="leaveOutExample"><translation>por ejemplo: manguito flojo</translation></message>
    <message id="leaveOutExplained"><translation>Excluir de medias, estadísticas y gráficos: %1. Lo excluido sigue en la lista, tachado y con su motivo, y se puede volver a incluir.</translation></message>
    <message id="leaveOutNoReason"><translation>Indique un motivo.</translation></message>
    <message id="leaveOutReason"><translation>&amp;Motivo:</translation></message>
    <message id="leaveOutTitle"><translation>Excluir</translation></message>
    <message id="limitsHome"><translation>%1/%2 (en casa)</translation></message>
    <message id="limitsLow"><translation>%1/%2 (más estrictos)</translation></message>
    <message id="limitsNotKept"><translation>Los límites valen hasta que se cierre el programa. No se han podido conservar para la próxima vez: %1</translation></message>
    <message id="limitsOffice"><translation>%1/%2 (en consulta)</translation></message>
    <message id="limitsOwn"><translation>límites propios</translation></message>
    <message id="mainMenu"><translation>Menú principal</translation></message>
    <message id="manualChapters"><translation>Capítulos</translation></message>
    <message id="manualTitle"><translation>Manual</translation></message>
    <message id="map"><translation>PAM</translation></message>
    <message id="menuAbout"><translation>&amp;Acerca de ZEL</translation></message>
    <message id="menuBackups"><translation>Copias de se&amp;guridad…</translation></message>
    <message id="menuCopyRows"><translation>Copiar filas</translation></message>
    <message id="menuDeleteComment"><translation>Eliminar comentario</translation></message>
    <message id="menuDeletePatient"><translation>Eliminar paciente</translation></message>
    <message id="menuDownload"><translation>Descargar mediciones</translation></message>
    <message id="menuDownloads"><translation>Descargas…</translation></message>
    <message id="menuEdit"><translation>&amp;Edición</translation></message>
    <message id="menuExportFhir"><translation>&amp;Exportar paciente como FHIR…</translation></message>
    <message id="menuFewerDays"><translation>Menos días</translation></message>
    <message id="menuFile"><translation>&amp;Archivo</translation></message>
    <message id="menuFindPatient"><translation>Buscar paciente</translation></message>
    <message id="menuHelp"><translation>A&amp;yuda</translation></message>
    <message id="menuKeys"><translation>A&amp;tajos de teclado</translation></message>
    <message id="menuManual"><translation>&amp;Manual</translation></message>
    <message id="menuMoreDays"><translation>Más días</translation></message>
    <message id="menuNewPatient"><translation>Paciente nuevo</translation></message>
    <message id="menuPrint"><translation>&amp;Imprimir…</translation></message>
    <message id="menuQuit"><translation>&amp;Salir</translation></message>
    <message id="menuRedo"><translation>&amp;Rehacer</translation></message>
    <message id="menuRedoStep"><translation>&amp;Rehacer: %1</translation></message>
    <message id="menuSavePatient"><translation>Guardar paciente</translation></message>
    <message id="menuSavePdf"><translation>Guardar como P&amp;DF…</translation></message>
    <message id="menuSelectRows"><translation>Seleccionar todas las filas</translation></message>
    <message id="menuSendID"><translation>Enviar ID al tensiómetro</translation></message>
    <message id="menuSettings"><translation>&amp;Configuración…</translation></message>
    <message id="menuTimeChart"><translation>Gráfico de evolución</translation></message>
    <message id="menuUndo"><translation>&amp;Deshacer</translation></message>
    <message id="menuUndoStep"><translation>&amp;Deshacer: %1</translation></message>
    <message id="menuView"><translation>Ver</translation></message>
    <message id="minusDay"><translation>Menos días: uno menos en cada extremo del periodo</translation></message>
    <message id="minusDayHint"><translation>Menos días: uno menos en cada extremo del periodo (−)</translation></message>
    <message id="mm dd yyyy"><translation>mm dd aaaa</translation></message>
    <message id="monitorChangedMeanwhile"><translation>Entretanto se ha desconectado o cambiado el tensiómetro; no se ha descargado nada.</translation></message>
    <message id="monitorClock"><translation>Reloj</translation></message>
    <message id="monitorConnected"><translation>Tensiómetro conectado</translation></message>
    <message id="monitorConnectedID"><translation>El tensiómetro tiene el ID %1. Pulse «Descargar» para recoger las mediciones de este paciente.</translation></message>
    <message id="monitorCounting"><translation>Consultando cuántas mediciones contiene el tensiómetro. Puede tardar hasta 20 segundos…</translation></message>
    <message id="monitorDownloading"><translation>Descargando mediciones…</translation></message>
    <message id="monitorErasing"><translation>Vaciando la memoria del tensiómetro…</translation></message>
    <message id="monitorGreeting"><translation>Leyendo el reloj y el ID del tensiómetro…</translation></message>
    <message id="monitorHoldsNone"><translation>El tensiómetro no tiene ahora ningún ID.</translation></message>
    <message id="monitorHoldsOther"><translation>El tensiómetro tiene ahora el ID %1, que no pertenece a ningún paciente de la lista.</translation></message>
    <message id="monitorHoldsPatient"><translation>El tensiómetro tiene ahora el ID %1, de %2.</translation></message>
    <message id="monitorHoldsReadings" numerus="yes"><translation><numerusform>Contiene %n medición.</numerusform><numerusform>Contiene %n mediciones.</numerusform></translation></message>
    <message id="monitorHoldsUnknown"><translation>No se ha podido leer qué ID tiene ahora el tensiómetro.</translation></message>
    <message id="monitorID"><translation>ID</translation></message>
    <message id="monitorIDSimilar"><translation>El ID %1 de %2 se le parece mucho, pero es otro.</translation></message>
    <message id="monitorLooking"><translation>Buscando un tensiómetro…</translation></message>
    <message id="monitorNotAnswering"><translation>Conectado, pero no responde como debería. %1</translation></message>
    <message id="monitorNotConnected"><translation>No conectado. Conecte el tensiómetro a un puerto USB.</translation></message>
    <message id="monitorPanel"><translation>Tensiómetro</translation></message>
    <message id="monitorReadingsUnknown"><translation>No se ha podido leer cuántas mediciones contiene.</translation></message>
    <message id="monitorReady"><translation>Conectado</translation></message>
    <message id="monitorSendingID"><translation>Escribiendo el ID en el tensiómetro…</translation></message>
    <message id="monitorSettingClock"><translation>Ajustando el reloj del tensiómetro…</translation></message>
    <message id="monitorState"><translation>Estado</translation></message>
    <message id="monitorTrouble"><translation>Conectado, pero la última comunicación ha fallado y se está intentando de nuevo. %1</translation></message>
    <message id="monitorWithoutID"><translation>El tensiómetro conectado no tiene ningún ID. Elija un paciente y pulse «Enviar ID» para que sea el tensiómetro de ese paciente.</translation></message>
    <message id="newIDFromDevice"><translation>El tensiómetro tiene el ID %1, que no pertenece a ningún paciente de la lista. Añada un paciente con este ID, o elija un paciente y pulse «Enviar ID».</translation></message>
    <message id="NewPatient"><translation>Paciente nuevo</translation></message>
    <message id="newPatientButton"><translation>&amp;Nuevo</translation></message>
    <message id="newPatientHint"><translation>Introducir un paciente nuevo (Ctrl+N).</translation></message>
    <message id="newPatientWithID"><translation>Paciente nuevo con este ID</translation></message>
    <message id="newReadingAction"><translation>Medición nueva…</translation></message>
    <message id="newReadingHint"><translation>Introducir una medición que no haya guardado ninguno de sus tensiómetros (Ctrl+N).</translation></message>
    <message id="newReadingTitle"><translation>Medición nueva</translation></message>
    <message id="nextComment"><translation>Comentario siguiente</translation></message>
    <message id="nextHint"><translation>Página siguiente (AvPág)</translation></message>
    <message id="nextPage"><translation>Página siguiente</translation></message>
    <message id="no"><translation>&amp;No</translation></message>
    <message id="noCommentPage"><translation>Sin comentarios</translation></message>
    <message id="noCommentPageAdvice"><translation>Este paciente aún no tiene comentarios. Se colocan en el gráfico.</translation></message>
    <message id="noComments"><translation>Todavía no hay comentarios. Los comentarios se colocan en el gráfico.</translation></message>
    <message id="NoData"><translation>Aún no hay mediciones</translation></message>
    <message id="NoDataAdvice"><translation>Conecte el tensiómetro, elija al paciente en la página «Pacientes» y pulse «Descargar», o introduzca una medición con Ctrl+N.</translation></message>
    <message id="noDisplay"><translation>no hay pantalla en la que abrir una ventana. Inicie zel en una sesión de escritorio o use las órdenes que no necesitan ventana: véase zel --help</translation></message>
    <message id="noFiles"><translation>No hay archivos XML en esta carpeta</translation></message>
    <message id="noFilesAdvice"><translation>Elija la carpeta a la que se exportaron los pacientes.</translation></message>
    <message id="noHome"><translation>la variable de entorno HOME no indica una carpeta (ruta absoluta), así que no hay lugar para los datos.</translation></message>
    <message id="noID"><translation>ninguno</translation></message>
    <message id="none"><translation>ninguno</translation></message>
    <message id="noneInPeriod"><translation>No hay mediciones en este periodo</translation></message>
    <message id="noneInPeriodAdvice"><translation>Elija otras fechas arriba, o bien «Todo» y «Día entero». Las mediciones sin fecha se muestran si además está marcada la casilla «Mediciones sin fecha».</translation></message>
    <message id="nonePrintedAdvice"><translation>Cierre esta ventana y elija otras fechas en la página «Mediciones» o «Gráfico», o bien «Todo» y «Día entero» allí. Las mediciones sin fecha se imprimen si está marcada la casilla «Mediciones sin fecha».</translation></message>
    <message id="noPage"><translation>Ninguna página</translation></message>
    <message id="noPatientFound"><translation>Ningún paciente encontrado</translation></message>
    <message id="noPatientFoundAdvice"><translation>Ningún nombre ni ID contiene lo que se busca.</translation></message>
    <message id="noPatientSelected"><translation>Ningún paciente seleccionado</translation></message>
    <message id="noPrinterNote"><translation>Este equipo no tiene ninguna impresora. Puede guardar las páginas como PDF o instalar una impresora en la configuración del sistema.</translation></message>
    <message id="NoPrnter"><translation>Sin impresora</translation></message>
    <message id="NoPrnterMsg"><translation>Este equipo no tiene ninguna impresora, así que no se puede imprimir. Instale una en la configuración del sistema y vuelva a intentarlo, o guarde las páginas como PDF.</translation></message>
    <message id="notes"><translation>Notas</translation></message>
    <message id="notKnown"><translation>–</translation></message>
    <message id="noValue"><translation>n. d.</translation></message>
    <message id="ok"><translation>&amp;Aceptar</translation></message>
    <message id="openCalendar"><translation>Abrir el calendario</translation></message>
    <message id="ownDia"><translation>Límite diastólico propio en mmHg, 0 si no hay</translation></message>
    <message id="ownSys"><translation>Límite sistólico propio en mmHg, 0 si no hay</translation></message>
    <message id="pad"><translation>Arritmia</translation></message>
    <message id="pageChart"><translation>Gráfico</translation></message>
    <message id="pagePatients"><translation>Pacientes</translation></message>
    <message id="pageReadings"><translation>Mediciones</translation></message>
    <message id="pageTabs"><translation>Páginas</translation></message>
    <message id="pageText"><translation>%1/%2</translation></message>
    <message id="patientCount" numerus="yes"><translation><numerusform>%n paciente</numerusform><numerusform>%n pacientes</numerusform></translation></message>
    <message id="patientDeleted"><translation>Se han eliminado los datos de %1.</translation></message>
    <message id="patientEditor"><translation>Datos del paciente</translation></message>
    <message id="patientGone"><translation>%1 ya no está en el archivo de datos: otro programa ha eliminado sus datos o aquí se ha deshecho un cambio. Lo que ha escrito sigue aquí, y con «Guardar» se vuelve a añadir el paciente.</translation></message>
    <message id="patientHeading"><translation>%1 %2 (ID %3)</translation></message>
    <message id="patientID"><translation>ID</translation></message>
    <message id="patientIDOnly"><translation>ID %1</translation></message>
    <message id="patientIDTwice"><translation>El archivo de datos contiene más de un paciente con el ID %1. No se pueden distinguir, así que no se cambia ni se elimina ninguno de ellos.</translation></message>
    <message id="patientList"><translation>Lista de pacientes</translation></message>
    <message id="patientName"><translation>Nombre</translation></message>
    <message id="patientNameless"><translation>Paciente sin nombre</translation></message>
    <message id="patientPartlySaved"><translation>No se han podido guardar todos los datos de %1: en el archivo de datos no hay lugar para algunos. Lo que no se ha podido guardar sigue en los campos.</translation></message>
    <message id="patientRefused"><translation>Todavía no se ha guardado nada. Corrija lo que está marcado:
%1</translation></message>
    <message id="patientReplaced"><translation>%1 ya no está en el archivo de datos: otro programa ha eliminado sus datos. Ahora se muestra otro paciente.</translation></message>
    <message id="patientSaved"><translation>Se han guardado los datos de %1.</translation></message>
    <message id="patientsDetail"><translation>Elija un paciente o introduzca uno nuevo.</translation></message>
    <message id="patientsInputFields"><translation>Los apellidos, el nombre y el ID son necesarios. Todavía no se ha guardado nada; rellene lo que está marcado.</translation></message>
    <message id="patientTotal"><translation>Pacientes</translation></message>
    <message id="pdfChart"><translation>gráfico</translation></message>
    <message id="pdfComments"><translation>comentarios</translation></message>
    <message id="pdfCorrelation"><translation>correlación</translation></message>
    <message id="pdfFiles"><translation>Archivos PDF (*.pdf)</translation></message>
    <message id="pdfHistogram"><translation>distribución</translation></message>
    <message id="pdfProfile"><translation>datos del paciente</translation></message>
    <message id="pdfReadings"><translation>mediciones</translation></message>
    <message id="pdfStatistics"><translation>estadística y mediciones</translation></message>
    <message id="pdfSummary"><translation>resumen</translation></message>
    <message id="pdfTrend"><translation>tendencia</translation></message>
    <message id="periodBar"><translation>Periodo y mediciones que se muestran</translation></message>
    <message id="periodBegin"><translation>Primer día del periodo</translation></message>
    <message id="periodEnd"><translation>Último día del periodo</translation></message>
    <message id="periodFrom"><translation>&amp;Del</translation></message>
    <message id="periodTo"><translation>a&amp;l</translation></message>
    <message id="personalData"><translation>Datos personales</translation></message>
    <message id="pp"><translation>PP</translation></message>
    <message id="previewView"><translation>Vista previa de la página</translation></message>
    <message id="previousComment"><translation>Comentario anterior</translation></message>
    <message id="previousHint"><translation>Página anterior (RePág)</translation></message>
    <message id="previousPage"><translation>Página anterior</translation></message>
    <message id="print"><translation>Imprimir</translation></message>
    <message id="printAddAddress"><translation>Imprimir los datos del médico al pie de cada página</translation></message>
    <message id="printButton"><translation>&amp;Imprimir</translation></message>
    <message id="printDetails"><translation>&amp;Datos del médico</translation></message>
    <message id="printDetailsHint"><translation>Imprime al pie de cada página los datos del médico que constan en la configuración.</translation></message>
    <message id="printDone"><translation>Enviado a la impresora %1</translation></message>
    <message id="printer"><translation>Impresora</translation></message>
    <message id="printerButton"><translation>I&amp;mpresora…</translation></message>
    <message id="printerGone"><translation>La impresora «%1» ya no está disponible, así que no se ha impreso nada. Compruebe que está encendida y conectada, o elija otra.</translation></message>
    <message id="printerLabel"><translation>I&amp;mpresora</translation></message>
    <message id="printerShown"><translation>Impresora: %1</translation></message>
    <message id="printFailed"><translation>No se han podido entregar todas las páginas a la impresora «%1». El trabajo se ha retirado y no se imprime nada. Compruebe su cola de impresión y que el disco no está lleno, y vuelva a intentarlo.</translation></message>
    <message id="printNoData"><translation>No hay nada que imprimir: esta sección no tiene datos para este paciente y periodo.</translation></message>
    <message id="printNoPatient"><translation>No hay ningún paciente cuyo informe se pueda imprimir. Elija uno, o introduzca y guarde antes uno nuevo.</translation></message>
    <message id="printOption"><translation>Sección que se imprime</translation></message>
    <message id="printOptionLabel"><translation>&amp;Sección</translation></message>
    <message id="privacyAsked"><translation>Otros usuarios de este equipo pueden leer %1.

¿Impedirles el acceso? Solo se cambian los permisos del archivo de datos, de su carpeta y de sus copias.</translation></message>
    <message id="privacyAskedMore"><translation>%1 y %2 más</translation></message>
    <message id="privacyMended"><translation>Ahora solo usted puede leer el archivo de datos y sus copias.</translation></message>
    <message id="privacyTitle"><translation>Otros pueden leer los datos de los pacientes</translation></message>
    <message id="programName"><translation>ZEL</translation></message>
    <message id="programPurpose"><translation>Mediciones de la presión arterial, del tensiómetro a su historial</translation></message>
    <message id="programVersion"><translation>Versión %1</translation></message>
    <message id="ProgressPatientInfo"><translation>%1 %2 (ID %3)</translation></message>
    <message id="ProgressProcessInfo"><translation>%1 de %2 mediciones</translation></message>
    <message id="pulseChart"><translation>Pulso a lo largo del tiempo, con los comentarios</translation></message>
    <message id="pulseScroller"><translation>Desplazar la escala del pulso</translation></message>
    <message id="readingDay"><translation>Fecha</translation></message>
    <message id="readingInWords"><translation>%1 %2, %3/%4, pulso %5</translation></message>
    <message id="readingList"><translation>Lista de mediciones</translation></message>
    <message id="readingsCounted"><translation>%1. Contadas: %2</translation></message>
    <message id="readingsFromTo"><translation>%1, del %2 al %3</translation></message>
    <message id="readingsListed"><translation>%1. En la lista: %2</translation></message>
    <message id="readingsNoted"><translation>%1. %2</translation></message>
    <message id="readingsOn"><translation>%1, el %2</translation></message>
    <message id="readingStored"><translation>Guardada: %1.</translation></message>
    <message id="readingStoredOtherHalf"><translation>Guardada, fuera del momento del día mostrado: %1.</translation></message>
    <message id="readingStoredOutside"><translation>Guardada, fuera de los días mostrados: %1.</translation></message>
    <message id="readingTime"><translation>Hora</translation></message>
    <message id="readingTotal"><translation>Mediciones de este paciente</translation></message>
    <message id="redoFailed"><translation>No se ha rehecho «%1». %2</translation></message>
    <message id="redone"><translation>Rehecho: %1</translation></message>
    <message id="requiredNote"><translation>* campo obligatorio</translation></message>
    <message id="riskFactors"><translation>Factores de riesgo</translation></message>
    <message id="sameID"><translation>El ID %1 pertenece a otro paciente de la lista. Todavía no se ha guardado nada; elija otro ID.</translation></message>
    <message id="sameIDTitle"><translation>ID ya en uso</translation></message>
    <message id="savedPdf"><translation>Guardado como %1</translation></message>
    <message id="saveIt"><translation>&amp;Guardar</translation></message>
    <message id="saveNot"><translation>&amp;No guardar</translation></message>
    <message id="SavePatient"><translation>Guardar paciente</translation></message>
    <message id="savePatientButton"><translation>G&amp;uardar</translation></message>
    <message id="savePatientHint"><translation>Guardar lo escrito (Ctrl+S).</translation></message>
    <message id="savePdf"><translation>Guardar como PDF</translation></message>
    <message id="savePdfButton"><translation>Guardar como PD&amp;F…</translation></message>
    <message id="saveReading"><translation>&amp;Guardar</translation></message>
    <message id="searchPatients"><translation>Buscar nombre o ID</translation></message>
    <message id="searchPatientsHint"><translation>Mostrar solo los pacientes cuyo nombre o ID contiene esto (Ctrl+F).</translation></message>
    <message id="selectAllRows"><translation>Seleccionar todo</translation></message>
    <message id="sendClock"><translation>Ajustar el reloj del tensiómetro a la hora de este equipo</translation></message>
    <message id="sendClockBusy"><translation>Ajustando el reloj…</translation></message>
    <message id="sendClockButton"><translation>Ajustar el &amp;reloj</translation></message>
    <message id="sendID"><translation>Enviar ID al tensiómetro</translation></message>
    <message id="sendIDButton"><translation>En&amp;viar ID</translation></message>
    <message id="SendIDDataMsg" numerus="yes"><translation><numerusform>Todavía contiene %n medición. Antes de escribir en él el ID %1: ¿conservar esta medición para el nuevo ID o eliminarla del tensiómetro de forma definitiva?</numerusform><numerusform>Todavía contiene %n mediciones. Antes de escribir en él el ID %1: ¿conservar estas mediciones para el nuevo ID o eliminarlas del tensiómetro de forma definitiva?</numerusform></translation></message>
    <message id="SendIDDataTitle"><translation>Mediciones en el tensiómetro</translation></message>
    <message id="sendIDFailed"><translation>No se ha podido enviar el ID al tensiómetro. %1</translation></message>
    <message id="sendIDFailedErased"><translation>Se han eliminado las mediciones del tensiómetro, pero no se le ha podido enviar el ID. %1</translation></message>
    <message id="sendIDHint"><translation>Escribir el ID de este paciente en el tensiómetro conectado, que tiene otro o ninguno.</translation></message>
    <message id="settingCancel"><translation>Cerrar sin guardar</translation></message>
    <message id="settingData"><translation>Datos de los pacientes</translation></message>
    <message id="settingDate"><translation>Formato de fecha</translation></message>
    <message id="settingDateLabel"><translation>Formato de &amp;fecha</translation></message>
    <message id="settingDia"><translation>Límite diastólico en mmHg</translation></message>
    <message id="settingDiaLabel"><translation>&amp;Diastólica</translation></message>
    <message id="settingDisplay"><translation>Presentación</translation></message>
    <message id="settingErase"><translation>Vaciar la memoria del tensiómetro después de cada descarga</translation></message>
    <message id="settingEraseButton"><translation>&amp;Vaciar la memoria tras descargar</translation></message>
    <message id="settingEraseHint"><translation>Sus mediciones se eliminan del tensiómetro en cuanto están todas bien guardadas aquí.</translation></message>
    <message id="settingLanguage"><translation>Idioma</translation></message>
    <message id="settingLanguageLabel"><translation>Idi&amp;oma</translation></message>
    <message id="settingLanguageSystem"><translation>El del sistema</translation></message>
    <message id="settingLanguageWhen"><translation>El nuevo idioma se usará la próxima vez que abra ZEL.</translation></message>
    <message id="settingLimits"><translation>Límites de presión arterial</translation></message>
    <message id="settingMAP"><translation>Mostrar la presión arterial media</translation></message>
    <message id="settingMAPButton"><translation>Presión arterial &amp;media (PAM)</translation></message>
    <message id="settingOK"><translation>Guardar la configuración</translation></message>
    <message id="settingPhysician"><translation>Médico, para el pie de los informes impresos</translation></message>
    <message id="settingPhysicianTitle"><translation>Médico</translation></message>
    <message id="settingPhysicianUse"><translation>Figura al pie de los informes si se marca «Datos del médico» al imprimir.</translation></message>
    <message id="settingPP"><translation>Mostrar la presión de pulso</translation></message>
    <message id="settingPPButton"><translation>&amp;Presión de pulso (PP)</translation></message>
    <message id="settingPPorMAP"><translation>Mostrar con cada medición</translation></message>
    <message id="settings"><translation>Configuración</translation></message>
    <message id="settingsButton"><translation>Configuración</translation></message>
    <message id="settingsHint"><translation>Configuración, exportación e importación (Ctrl+,)</translation></message>
    <message id="settingsNotSaved"><translation>No se ha guardado la configuración. %1</translation></message>
    <message id="settingsPartlySaved"><translation>No se ha podido guardar toda la configuración: en el archivo de datos no hay lugar para una parte de ella.</translation></message>
    <message id="settingSys"><translation>Límite sistólico en mmHg</translation></message>
    <message id="settingSysLabel"><translation>&amp;Sistólica</translation></message>
    <message id="settingTime"><translation>Formato de hora</translation></message>
    <message id="settingTimeLabel"><translation>Formato de &amp;hora</translation></message>
    <message id="settingUnits"><translation>Unidades de peso y estatura</translation></message>
    <message id="settingUnitsLabel"><translation>&amp;Unidades</translation></message>
    <message id="settingWHO"><translation>Usar los límites de la Organización Mundial de la Salud</translation></message>
    <message id="settingWHOButton"><translation>&amp;Límites de la OMS (140/90)</translation></message>
    <message id="settingWHOHint"><translation>Fija ambos límites en los de la Organización Mundial de la Salud: 140 y 90 mmHg.</translation></message>
    <message id="show afib readings"><translation>Ver FA</translation></message>
    <message id="show ihd readings"><translation>Ver arritmia</translation></message>
    <message id="show pad readings"><translation>Ver arritmia</translation></message>
    <message id="showCorrelation"><translation>Correlación</translation></message>
    <message id="showGraph"><translation>Gráfico</translation></message>
    <message id="showHistogram"><translation>Histograma</translation></message>
    <message id="showMam"><translation>Ver MAM</translation></message>
    <message id="showTrend"><translation>Tendencia</translation></message>
    <message id="sideButton"><translation>Estadística y comentarios</translation></message>
    <message id="sideColumn"><translation>Tensiómetro y datos</translation></message>
    <message id="sideHint"><translation>Mostrar u ocultar la estadística y los comentarios junto a las mediciones.</translation></message>
    <message id="spokenDia"><translation>Presión diastólica, mmHg</translation></message>
    <message id="spokenFrequent"><translation>%1: lo más frecuente, de %2 a %3, en el %4 por ciento de las mediciones.</translation></message>
    <message id="spokenMap"><translation>Presión arterial media, mmHg</translation></message>
    <message id="spokenMeasure"><translation>%1: media %2, mínimo %3, máximo %4.</translation></message>
    <message id="spokenPP"><translation>Presión de pulso, mmHg</translation></message>
    <message id="spokenPulse"><translation>Pulso, latidos por minuto</translation></message>
    <message id="spokenSys"><translation>Presión sistólica, mmHg</translation></message>
    <message id="statisticAll"><translation>Todos los días con mediciones</translation></message>
    <message id="statisticAllHint"><translation>Usar todos los días, de la primera medición a la última. Para usar solo una parte, elija otras fechas arriba.</translation></message>
    <message id="statisticPanel"><translation>Estadística</translation></message>
    <message id="statisticWholeDay"><translation>A cualquier hora del día: %1</translation></message>
    <message id="statusBroken"><translation>Tensiómetro conectado, falla la comunicación</translation></message>
    <message id="statusConnected"><translation>Tensiómetro conectado</translation></message>
    <message id="statusDamaged"><translation>Tensiómetro conectado, respuestas dañadas</translation></message>
    <message id="statusLocked"><translation>Tensiómetro conectado, sin permiso</translation></message>
    <message id="statusNotConnected"><translation>Sin tensiómetro</translation></message>
    <message id="statusRefusing"><translation>Tensiómetro conectado, rechaza órdenes</translation></message>
    <message id="statusSilent"><translation>Tensiómetro conectado, no responde</translation></message>
    <message id="stepProgress"><translation>%1 de %2 archivos</translation></message>
    <message id="storedNotReadBack"><translation>El cambio está guardado, pero después no se ha podido leer el archivo de datos. %1</translation></message>
    <message id="Synchronization"><translation>¿Ajustar el reloj del tensiómetro?</translation></message>
    <message id="synctimeAsk"><translation>El reloj del tensiómetro va con %1. ¿Ajustarlo a la hora de este equipo, para que las mediciones nuevas tengan la fecha y la hora correctas?</translation></message>
    <message id="tabChart"><translation>&amp;Gráfico</translation></message>
    <message id="tabHint"><translation>%1 (Ctrl+%2)</translation></message>
    <message id="tabPatients"><translation>&amp;Pacientes</translation></message>
    <message id="tabReadings"><translation>&amp;Mediciones</translation></message>
    <message id="takeInAction"><translation>Volver a incluir</translation></message>
    <message id="timeScroller"><translation>Desplazar el periodo por las mediciones</translation></message>
    <message id="timeScrollerHint"><translation>Desplazar el periodo por las mediciones. La rueda del ratón sobre el gráfico hace lo mismo; con Ctrl, girarla hacia delante muestra menos días, más de cerca, y hacia atrás, más días.</translation></message>
    <message id="TimeSync"><translation>Reloj del tensiómetro</translation></message>
    <message id="TimeSyncMsg"><translation>Ajuste del reloj del tensiómetro: %1</translation></message>
    <message id="timeUnread"><translation>«%1» no se puede leer como hora: escríbala como %2 o %3.</translation></message>
    <message id="trendApart"><translation>Mañanas y tardes por separado</translation></message>
    <message id="trendApartHint"><translation>Dibujar con líneas propias las mediciones de antes del mediodía y las realizadas a partir del mediodía.</translation></message>
    <message id="trendApartNeedsDay"><translation>Solo se muestra una mitad del día, de modo que no hay nada que separar. Pulse antes «Día entero»; entonces se podrá elegir esto.</translation></message>
    <message id="trendDays"><translation>%1 a %2</translation></message>
    <message id="trendFigures"><translation>%1 (%2 a %3)</translation></message>
    <message id="trendInfoEvening"><translation>%1, desde el mediodía</translation></message>
    <message id="trendInfoMorning"><translation>%1, antes del mediodía</translation></message>
    <message id="trendKeys"><translation>%1, %2. Izquierda y derecha muestran las cifras de un punto tras otro; Inicio y Fin, las del primero y el último.</translation></message>
    <message id="trendPeriod"><translation>Días</translation></message>
    <message id="trendReadings"><translation>Mediciones</translation></message>
    <message id="trendView"><translation>Tendencia de la presión sistólica y diastólica y del pulso</translation></message>
    <message id="undoDropped"><translation>

Por eso este cambio se omite a partir de ahora; los demás no se ven afectados.</translation></message>
    <message id="undoFailed"><translation>No se ha deshecho «%1». %2</translation></message>
    <message id="undone"><translation>Deshecho: %1</translation></message>
    <message id="unitMmHg"><translation>mmHg</translation></message>
    <message id="unitPulse"><translation>latidos por minuto</translation></message>
    <message id="unsavedDelete"><translation>¿Eliminar lo escrito para %1? Si no, se le volverá a preguntar la próxima vez que abra ZEL.</translation></message>
    <message id="unsavedFound"><translation>Al cerrarse el programa, no se pudo guardar lo que se estaba escribiendo para %1. ¿Continuar ahora con ello?</translation></message>
    <message id="unsavedTitle"><translation>Sin guardar todavía</translation></message>
    <message id="usualColumns"><translation>Columnas y orden predeterminados</translation></message>
    <message id="valueHigh"><translation>%1, igual o superior al límite</translation></message>
    <message id="valueMmHg"><translation>%1 mmHg</translation></message>
    <message id="valuePulse"><translation>%1 por minuto</translation></message>
    <message id="valueWithUnit"><translation>%1, %2</translation></message>
    <message id="viewAll"><translation>&amp;Todo</translation></message>
    <message id="viewAllHint"><translation>Todas las mediciones, del primer día al último.</translation></message>
    <message id="viewAM"><translation>Maña&amp;na</translation></message>
    <message id="viewAMHint"><translation>Las mediciones de antes del mediodía de los días mostrados.</translation></message>
    <message id="viewBoth"><translation>Día enter&amp;o</translation></message>
    <message id="viewBothHint"><translation>Las mediciones de todas las horas de los días mostrados.</translation></message>
    <message id="viewChoiceNeeded"><translation>Las mediciones sin fecha no pertenecen a ningún día y solo se pueden mostrar con «Todo». Pulse antes «Todo»; entonces se podrá elegir esto.</translation></message>
    <message id="viewDays"><translation>Días mostrados</translation></message>
    <message id="viewHalf"><translation>Momento del día mostrado</translation></message>
    <message id="viewLast"><translation>%1 días</translation></message>
    <message id="viewLastHint"><translation>Los %1 días hasta el último con alguna medición.</translation></message>
    <message id="viewLastName"><translation>Últimos %1 días</translation></message>
    <message id="viewPM"><translation>Tarde</translation></message>
    <message id="viewPMHint"><translation>Las mediciones a partir del mediodía de los días mostrados.</translation></message>
    <message id="viewTabs"><translation>Vistas</translation></message>
    <message id="viewWeek"><translation>Semana de medi&amp;ción</translation></message>
    <message id="viewWeekHint"><translation>Los siete días con los que se calcula la media de la semana de medición.</translation></message>
    <message id="weekBelow"><translation>Inferior a %1 (con un decimal: %2)</translation></message>
    <message id="weekDays" numerus="yes"><translation><numerusform>%1 en %n día</numerusform><numerusform>%1 en %n días</numerusform></translation></message>
    <message id="weekEnd"><translation>Último día de la semana de medición</translation></message>
    <message id="weekEvenings"><translation>Tarde %1</translation></message>
    <message id="weekExcluded" numerus="yes"><translation><numerusform>%n excluida</numerusform><numerusform>%n excluidas</numerusform></translation></message>
    <message id="weekExcludedLater" numerus="yes"><translation><numerusform>%n de días posteriores, excluida</numerusform><numerusform>%n de días posteriores, excluidas</numerusform></translation></message>
    <message id="weekFirstDay" numerus="yes"><translation><numerusform>%n del primer día, sin contar</numerusform><numerusform>%n del primer día, sin contar</numerusform></translation></message>
    <message id="weekMean"><translation>%1 mmHg</translation></message>
    <message id="weekMeanHint"><translation>Media %1/%2 mmHg, pulso %3</translation></message>
    <message id="weekMissing"><translation>Incompleta, necesita %1</translation></message>
    <message id="weekMornings"><translation>Mañana %1</translation></message>
    <message id="weekNoMean"><translation>Sin media</translation></message>
    <message id="weekOtherZone" numerus="yes"><translation><numerusform>%n medición se guardó en otra zona horaria; su hora es la de este equipo</numerusform><numerusform>%n mediciones se guardaron en otra zona horaria; las horas son las de este equipo</numerusform></translation></message>
    <message id="weekPanel"><translation>Semana de medición</translation></message>
    <message id="weekPulse"><translation>pulso %1</translation></message>
    <message id="weekReached"><translation>Igual o superior a %1 (con un decimal: %2)</translation></message>
    <message id="weekReadings" numerus="yes"><translation><numerusform>%n medición</numerusform><numerusform>%n mediciones</numerusform></translation></message>
    <message id="weekRule"><translation>Regla de la media</translation></message>
    <message id="weekRuleAha"><translation>AHA</translation></message>
    <message id="weekRuleEsh"><translation>ESH</translation></message>
    <message id="weekRuleHint"><translation>ESH: sin contar el primer día, 12 mediciones en otros 2 días o más
NICE: sin contar el primer día, 2 mediciones cada mañana y 2 cada tarde de otros 3 días o más
AHA: 12 mediciones en 3 días o más</translation></message>
    <message id="weekRuleNice"><translation>NICE</translation></message>
    <message id="weekTo"><translation>hasta</translation></message>
    <message id="weekUnmeasured" numerus="yes"><translation><numerusform>%n sin valores de presión, sin contar</numerusform><numerusform>%n sin valores de presión, sin contar</numerusform></translation></message>
    <message id="weightRefusedKg"><translation>Indique un número de 0,2 a 1000 kg, por ejemplo 72,5.</translation></message>
    <message id="weightRefusedLb"><translation>Indique un número de 0,5 a 2200 lb, por ejemplo 160,5.</translation></message>
    <message id="windowNotForgotten"><translation>El archivo %1 guarda cómo quedó la ventana. No se ha podido eliminar.</translation></message>
    <message id="windowNotReset"><translation>ZEL ya está abierto para este archivo de datos; se ha traído su ventana al frente. Ciérrela y vuelva a iniciarlo con --reset-view.</translation></message>
    <message id="windowShown"><translation>ZEL ya está abierto para este archivo de datos; se ha traído su ventana al frente.</translation></message>
    <message id="windowSilent"><translation>ZEL ya está abierto para este archivo de datos, pero su ventana no responde. Puede estar ocupado con un disco o una impresora lentos, o estar bloqueado: si no continúa en un minuto, ciérrelo desde el monitor del sistema de su equipo.

¿Abrir otra ventana además? No causa ningún daño: se conserva lo que guarden ambas.</translation></message>
    <message id="yes"><translation>&amp;Sí</translation></message>
    <message id="yyyy mm dd"><translation>aaaa mm dd</translation></message>
</context>
<context>
    <name>chart</name>
    <message id="abovePoints" numerus="yes"><translation><numerusform>%n punto sobrepasa la escala por arriba</numerusform><numerusform>%n puntos sobrepasan la escala por arriba</numerusform></translation></message>
    <message id="aboveScale" numerus="yes"><translation><numerusform>%n medición por encima de la escala</numerusform><numerusform>%n mediciones por encima de la escala</numerusform></translation></message>
    <message id="aboveScaleShort"><translation>%1 por arriba</translation></message>
    <message id="average"><translation>Media</translation></message>
    <message id="belowPoints" numerus="yes"><translation><numerusform>%n punto sobrepasa la escala por abajo</numerusform><numerusform>%n puntos sobrepasan la escala por abajo</numerusform></translation></message>
    <message id="belowScale" numerus="yes"><translation><numerusform>%n medición por debajo de la escala</numerusform><numerusform>%n mediciones por debajo de la escala</numerusform></translation></message>
    <message id="belowScaleShort"><translation>%1 por abajo</translation></message>
    <message id="chartExcluded" numerus="yes"><translation><numerusform>○ %n excluida</numerusform><numerusform>○ %n excluidas</numerusform></translation></message>
    <message id="dia"><translation>DIA</translation></message>
    <message id="dia too high"><translation>Diastólica alta</translation></message>
    <message id="evening"><translation>Tarde</translation></message>
    <message id="max"><translation>Máx</translation></message>
    <message id="min"><translation>Mín</translation></message>
    <message id="mmHg"><translation>mmHg</translation></message>
    <message id="monthOfYear"><translation>%1 de %2</translation></message>
    <message id="morning"><translation>Mañana</translation></message>
    <message id="noEveningReadings"><translation>No hay mediciones a partir del mediodía en este periodo</translation></message>
    <message id="noMorningReadings"><translation>No hay mediciones antes del mediodía en este periodo</translation></message>
    <message id="noReadingsInPeriod"><translation>No hay mediciones en este periodo</translation></message>
    <message id="normal"><translation>Normal</translation></message>
    <message id="P/min"><translation>lpm</translation></message>
    <message id="pulse"><translation>Pulso</translation></message>
    <message id="sys"><translation>SYS</translation></message>
    <message id="sys and dia too high"><translation>Ambas altas</translation></message>
    <message id="sys too high"><translation>Sistólica alta</translation></message>
    <message id="trendBand"><translation>%1; banda: percentiles 10 a 90, o todas si son menos de 5 mediciones</translation></message>
    <message id="trendBandAll"><translation>%1; banda: todas las mediciones</translation></message>
    <message id="trendBandShort"><translation>%1; banda: percentiles 10 a 90</translation></message>
    <message id="trendCoveredComments" numerus="yes"><translation><numerusform>%n comentario está encima de otro</numerusform><numerusform>%n comentarios están encima de otros</numerusform></translation></message>
    <message id="trendDay"><translation>Mediana de cada día</translation></message>
    <message id="trendEvening"><translation>%1 tarde</translation></message>
    <message id="trendLinked"><translation>%1; punteado: sin mediciones</translation></message>
    <message id="trendMonth"><translation>Mediana de cada mes</translation></message>
    <message id="trendMoreComments" numerus="yes"><translation><numerusform>%n comentario más no cabe aquí</numerusform><numerusform>%n comentarios más no caben aquí</numerusform></translation></message>
    <message id="trendMorning"><translation>%1 mañana</translation></message>
    <message id="trendWeek"><translation>Mediana de cada semana</translation></message>
    <message id="trendWordlessComments" numerus="yes"><translation><numerusform>%n comentario más sin su texto</numerusform><numerusform>%n comentarios más sin su texto</numerusform></translation></message>
</context>
<context>
    <name>report</name>
    <message id="appDescrption"><translation>Informe de presión arterial de ZEL</translation></message>
    <message id="comment"><translation>Comentarios</translation></message>
    <message id="comments"><translation>Comentarios</translation></message>
    <message id="correlation"><translation>Presión sistólica frente a diastólica</translation></message>
    <message id="date"><translation>Fecha</translation></message>
    <message id="formAddress"><translation>Dirección</translation></message>
    <message id="formAge"><translation>Edad</translation></message>
    <message id="formBirth"><translation>Nacimiento</translation></message>
    <message id="formCholesterol"><translation>Colesterol (mg/dL)</translation></message>
    <message id="formDay"><translation>Día</translation></message>
    <message id="formDiabetic"><translation>Diabetes</translation></message>
    <message id="formFamilyHistory"><translation>Ant. familiares</translation></message>
    <message id="formFamilyName"><translation>Apellidos</translation></message>
    <message id="formGivenNames"><translation>Nombre</translation></message>
    <message id="formHeightCm"><translation>Estatura (cm)</translation></message>
    <message id="formHeightFtIn"><translation>Estatura (ft/in)</translation></message>
    <message id="formID"><translation>ID</translation></message>
    <message id="formMonth"><translation>Mes</translation></message>
    <message id="formNotes"><translation>Notas sobre el paciente</translation></message>
    <message id="formPersonal"><translation>Datos personales</translation></message>
    <message id="formPhoneEmail"><translation>Tel. / correo</translation></message>
    <message id="formRisks"><translation>Factores de riesgo</translation></message>
    <message id="formSex"><translation>Sexo</translation></message>
    <message id="formSmoker"><translation>Fumador/a</translation></message>
    <message id="formWeightKg"><translation>Peso (kg)</translation></message>
    <message id="formWeightLb"><translation>Peso (lb)</translation></message>
    <message id="formYear"><translation>Año</translation></message>
    <message id="formYears" numerus="yes"><translation><numerusform>año</numerusform><numerusform>años</numerusform></translation></message>
    <message id="graph"><translation>Gráfico de presión arterial y pulso</translation></message>
    <message id="histogram"><translation>Distribución de las mediciones</translation></message>
    <message id="legendTitle"><translation>%1:</translation></message>
    <message id="mam"><translation>MAM</translation></message>
    <message id="n.a."><translation>n. d.</translation></message>
    <message id="N.A."><translation>n. d.</translation></message>
    <message id="No"><translation>No</translation></message>
    <message id="PatientProfile"><translation>Datos del paciente</translation></message>
    <message id="reportAllComments"><translation>Comentarios de toda fecha, no solo del periodo</translation></message>
    <message id="reportAllTimesOfDay"><translation>%1, a cualquier hora del día</translation></message>
    <message id="reportAverage"><translation>media de varias tomas</translation></message>
    <message id="reportBothAbove"><translation>Ambas por encima: %1</translation></message>
    <message id="reportCommentBars"><translation>Barras: comentarios, por número</translation></message>
    <message id="reportCommentsLeftOut"><translation>En un informe caben %1 comentarios con %2 caracteres en total. Siguen los más recientes; una exportación los contiene todos.</translation></message>
    <message id="reportContinued"><translation>%1, continuación</translation></message>
    <message id="reportCorrelationLimits" numerus="yes"><translation><numerusform>La línea es el límite.</numerusform><numerusform>Las líneas son los límites.</numerusform></translation></message>
    <message id="reportCorrelationNote"><translation>Cada cuadrado es una medición, o varias con los mismos valores, en mmHg.</translation></message>
    <message id="reportCutComments"><translation>…: completos en la sección «Comentarios»</translation></message>
    <message id="reportCutPractitioner"><translation>…: cortado aquí; la configuración contiene el texto completo.</translation></message>
    <message id="reportCutTexts"><translation>…: cortado aquí; el texto completo figura en la página siguiente.</translation></message>
    <message id="reportDays" numerus="yes"><translation><numerusform>%n día</numerusform><numerusform>%n días</numerusform></translation></message>
    <message id="reportDemonstration"><translation>Demostración: datos inventados</translation></message>
    <message id="reportDiaAbove"><translation>Solo la diastólica por encima: %1</translation></message>
    <message id="reportDocument"><translation>Informe de presión arterial: %1 (%2)</translation></message>
    <message id="reportDownloadDay"><translation>↓ amarillo: descarga</translation></message>
    <message id="reportEarlierComments" numerus="yes"><translation><numerusform>%n comentario anterior no se imprime</numerusform><numerusform>%n comentarios anteriores no se imprimen</numerusform></translation></message>
    <message id="reportEmptySections"><translation>Sin datos, por lo que no están en este informe: %1</translation></message>
    <message id="reportEveningOnly"><translation>Solo se muestran las mediciones a partir del mediodía</translation></message>
    <message id="reportFindingUnknown"><translation>n. d.: se desconoce</translation></message>
    <message id="reportFound"><translation>detectada</translation></message>
    <message id="reportGoesOn"><translation>continúa en la página siguiente</translation></message>
    <message id="reportGraphComments"><translation>Recuadros numerados: comentarios.</translation></message>
    <message id="reportGraphDownloads"><translation>↓: día de una descarga.</translation></message>
    <message id="reportGraphExcluded"><translation>○: medición excluida.</translation></message>
    <message id="reportGraphHiddenLimits" numerus="yes"><translation><numerusform>El límite de %1 queda fuera de la escala.</numerusform><numerusform>Los límites de %1 quedan fuera de la escala.</numerusform></translation></message>
    <message id="reportGraphLimits" numerus="yes"><translation><numerusform>Línea discontinua: el límite de %1.</numerusform><numerusform>Líneas discontinuas: los límites de %1.</numerusform></translation></message>
    <message id="reportGraphNote"><translation>Línea superior: presión sistólica; línea inferior: presión diastólica.</translation></message>
    <message id="reportHistogramNote"><translation>La longitud de cada barra es la proporción, en porcentaje, de las mediciones que caen en su intervalo de 10 mmHg o de 10 latidos por minuto.</translation></message>
    <message id="reportKeepLimits" numerus="yes"><translation><numerusform>Igual o inferior a %1: %2</numerusform><numerusform>Igual o inferior a los límites de %1: %2</numerusform></translation></message>
    <message id="reportLeftOutReading"><translation>%1 %2   %3/%4 mmHg, pulso %5</translation></message>
    <message id="reportLeftOutTitle" numerus="yes"><translation><numerusform>%n medición excluida, y su motivo</numerusform><numerusform>%n mediciones excluidas, y sus motivos</numerusform></translation></message>
    <message id="reportLimitDia"><translation>%1 mmHg de diastólica</translation></message>
    <message id="reportLimits"><translation>%1/%2 mmHg</translation></message>
    <message id="reportLimitSys"><translation>%1 mmHg de sistólica</translation></message>
    <message id="reportMeasured"><translation>Media en mmHg (mediciones): %1</translation></message>
    <message id="reportMoreNumbers" numerus="yes"><translation><numerusform>y %n más</numerusform><numerusform>y %n más</numerusform></translation></message>
    <message id="reportMorningOnly"><translation>Solo se muestran las mediciones de antes del mediodía</translation></message>
    <message id="reportNoData"><translation>No hay nada que imprimir: las secciones elegidas no contienen datos para este paciente y periodo. No se ha escrito ningún archivo.</translation></message>
    <message id="reportNoDate"><translation>sin fecha: no se guardó ninguna</translation></message>
    <message id="reportNoFigures"><translation>n/a: sin mediciones</translation></message>
    <message id="reportNoLimits"><translation>No hay límites fijados.</translation></message>
    <message id="reportNoReading"><translation>n. d.: sin medición</translation></message>
    <message id="reportNotFound"><translation>no detectada</translation></message>
    <message id="reportNotPainted"><translation>No se han podido convertir las páginas en un PDF. No se ha escrito ningún archivo.</translation></message>
    <message id="reportNotWritable"><translation>No se ha podido escribir el archivo %1. Compruebe que su carpeta existe y que tiene permiso para escribir en ella.</translation></message>
    <message id="reportPage"><translation>Página %1 de %2</translation></message>
    <message id="reportPatient"><translation>Paciente: %1 %2  ID: %3</translation></message>
    <message id="reportPeriod"><translation>Del %1 al %2</translation></message>
    <message id="reportReadings" numerus="yes"><translation><numerusform>%n medición</numerusform><numerusform>%n mediciones</numerusform></translation></message>
    <message id="reportStruckThrough"><translation>tachada: excluida de todos los cálculos; los motivos figuran después de la tabla</translation></message>
    <message id="reportSysAbove"><translation>Solo la sistólica por encima: %1</translation></message>
    <message id="reportTextTooLong"><translation>… El resto de este texto no se imprime: %1 caracteres más.</translation></message>
    <message id="reportTrendLimits" numerus="yes"><translation><numerusform>Línea recta fina: el límite de %1.</numerusform><numerusform>Líneas rectas finas: los límites de %1.</numerusform></translation></message>
    <message id="reportTrendNote"><translation>Líneas gruesas: medianas. La línea se interrumpe donde no hay mediciones; los puntos unen sus extremos a lo largo de 30 días como máximo.</translation></message>
    <message id="reportWriteFailed"><translation>Ha fallado la escritura del archivo %1, así que no hay archivo nuevo. Compruebe que el disco no está lleno y vuelva a intentarlo.</translation></message>
    <message id="summary"><translation>Resumen</translation></message>
    <message id="summaryAha"><translation>AHA</translation></message>
    <message id="summaryAll"><translation>Todas</translation></message>
    <message id="summaryBelow"><translation>Inferior al umbral de %1 (con un decimal: %2/%3)</translation></message>
    <message id="summaryBorn" numerus="yes"><translation><numerusform>Nacimiento: %1, %n año</numerusform><numerusform>Nacimiento: %1, %n años</numerusform></translation></message>
    <message id="summaryBornOn"><translation>Nacimiento: %1</translation></message>
    <message id="summaryComments"><translation>Cambios: comentarios, primero los más recientes</translation></message>
    <message id="summaryComplete"><translation>Completa</translation></message>
    <message id="summaryCut"><translation>…: abreviado.</translation></message>
    <message id="summaryDia"><translation>DIA, mmHg</translation></message>
    <message id="summaryEither"><translation>SYS, DIA o ambas</translation></message>
    <message id="summaryEsh"><translation>ESH</translation></message>
    <message id="summaryEvening"><translation>Tarde</translation></message>
    <message id="summaryEvenings"><translation>Tarde %1</translation></message>
    <message id="summaryExcluded"><translation>%1 %2  %3/%4: %5</translation></message>
    <message id="summaryFirstDay" numerus="yes"><translation><numerusform>%n del primer día, sin contar</numerusform><numerusform>%n del primer día, sin contar</numerusform></translation></message>
    <message id="summaryFlagged" numerus="yes"><translation><numerusform>Aviso de %1: %2 de %n medición</numerusform><numerusform>Aviso de %1: %2 de %n mediciones</numerusform></translation></message>
    <message id="summaryHigh"><translation>Igual o superior a %1</translation></message>
    <message id="summaryHighOf" numerus="yes"><translation><numerusform>%1 de %n medición</numerusform><numerusform>%1 de %n mediciones</numerusform></translation></message>
    <message id="summaryID"><translation>ID %1</translation></message>
    <message id="summaryIncomplete"><translation>Incompleta, necesita %1</translation></message>
    <message id="summaryInFull"><translation>…: texto completo en «%1».</translation></message>
    <message id="summaryLastDays" numerus="yes"><translation><numerusform>Último día: media (mediciones)</numerusform><numerusform>Últimos %n días: media (mediciones)</numerusform></translation></message>
    <message id="summaryLeftOut"><translation>Sin contar</translation></message>
    <message id="summaryMax"><translation>Máx</translation></message>
    <message id="summaryMean"><translation>Media</translation></message>
    <message id="summaryMin"><translation>Mín</translation></message>
    <message id="summaryMoreComments" numerus="yes"><translation><numerusform>y %n comentario más</numerusform><numerusform>y %n comentarios más</numerusform></translation></message>
    <message id="summaryMoreExcluded" numerus="yes"><translation><numerusform>y %n más excluida</numerusform><numerusform>y %n más excluidas</numerusform></translation></message>
    <message id="summaryMorning"><translation>Mañana</translation></message>
    <message id="summaryMornings"><translation>Mañana %1</translation></message>
    <message id="summaryNice"><translation>NICE</translation></message>
    <message id="summaryNoBirth"><translation>Fecha de nacimiento no indicada</translation></message>
    <message id="summaryNoComments"><translation>Sin comentarios en este periodo</translation></message>
    <message id="summaryNoDated"><translation>Sin mediciones con fecha</translation></message>
    <message id="summaryNone"><translation>Sin mediciones en este periodo</translation></message>
    <message id="summaryNoneCountsYet"><translation>Aún no cuenta ninguna medición</translation></message>
    <message id="summaryNoReason"><translation>sin motivo indicado</translation></message>
    <message id="summaryNote"><translation>Semana de medición: %1 igual o superior a su umbral. %2 Mañana: antes del mediodía. %3</translation></message>
    <message id="summaryNotExamined"><translation>Arritmia: no se ha buscado en ninguna medición</translation></message>
    <message id="summaryNothingLeftOut"><translation>Se cuentan todas las mediciones</translation></message>
    <message id="summaryNoWeek"><translation>Sin mediciones en esta semana</translation></message>
    <message id="summaryOnDays" numerus="yes"><translation><numerusform>%1 en %n día</numerusform><numerusform>%1 en %n días</numerusform></translation></message>
    <message id="summaryOnOtherDays" numerus="yes"><translation><numerusform>%n en otros días</numerusform><numerusform>%n en otros días</numerusform></translation></message>
    <message id="summaryOtherComments" numerus="yes"><translation><numerusform>%n comentario de otros días</numerusform><numerusform>%n comentarios de otros días</numerusform></translation></message>
    <message id="summaryOthers" numerus="yes"><translation><numerusform>En %n medición no se ha buscado</numerusform><numerusform>En %n mediciones no se ha buscado</numerusform></translation></message>
    <message id="summaryOtherZone" numerus="yes"><translation><numerusform>%n medición contada se guardó en otra zona horaria; horas de este equipo</numerusform><numerusform>%n mediciones contadas se guardaron en otra zona horaria; horas de este equipo</numerusform></translation></message>
    <message id="summaryPeriod"><translation>Del %1 al %2</translation></message>
    <message id="summaryPulse"><translation>Pulso %1</translation></message>
    <message id="summaryRate"><translation>Pulso, lpm</translation></message>
    <message id="summaryReached"><translation>Igual o superior al umbral de %1 (con un decimal: %2/%3)</translation></message>
    <message id="summaryReadings"><translation>Mediciones</translation></message>
    <message id="summaryReasonsInFull"><translation>…: abreviado; mediciones excluidas: texto completo en «%1».</translation></message>
    <message id="summarySD"><translation>DE</translation></message>
    <message id="summarySys"><translation>SYS, mmHg</translation></message>
    <message id="summaryTable"><translation>Mediciones del periodo (DE: muestral, n − 1)</translation></message>
    <message id="summaryTrend"><translation>Tendencia</translation></message>
    <message id="summaryTrendComments"><translation>Tendencia y, debajo, los comentarios por número</translation></message>
    <message id="summaryTrendHidden"><translation>Fuera de la escala de la tendencia: %1.</translation></message>
    <message id="summaryTrendLimits"><translation>Líneas rectas finas en la tendencia: %1.</translation></message>
    <message id="summaryTrendNumberless" numerus="yes"><translation><numerusform>Tendencia y, debajo, los comentarios por número; %n sin espacio para su número</numerusform><numerusform>Tendencia y, debajo, los comentarios por número; %n sin espacio para su número</numerusform></translation></message>
    <message id="summaryTyped" numerus="yes"><translation><numerusform>Introducida a mano: %1 de %n medición</numerusform><numerusform>Introducidas a mano: %1 de %n mediciones</numerusform></translation></message>
    <message id="summaryWeek"><translation>Semana de medición (%1)  %2</translation></message>
    <message id="summaryWeekExcluded" numerus="yes"><translation><numerusform>%n de la semana excluida</numerusform><numerusform>%n de la semana excluidas</numerusform></translation></message>
    <message id="summaryWeekTyped" numerus="yes"><translation><numerusform>%n de la semana, introducida</numerusform><numerusform>%n de la semana, introducidas</numerusform></translation></message>
    <message id="summaryWeekUnmeasured" numerus="yes"><translation><numerusform>%n de la semana sin valores de presión</numerusform><numerusform>%n de la semana sin valores de presión</numerusform></translation></message>
    <message id="summaryWeekZone" numerus="yes"><translation><numerusform>%n guardada en otra zona horaria; horas de este equipo</numerusform><numerusform>%n guardadas en otra zona horaria; horas de este equipo</numerusform></translation></message>
    <message id="SWStatistics"><translation>Estadística y mediciones</translation></message>
    <message id="table"><translation>Mediciones</translation></message>
    <message id="time"><translation>Hora</translation></message>
    <message id="trend"><translation>Tendencia de la presión arterial y el pulso</translation></message>
    <message id="Yes"><translation>Sí</translation></message>
</context>
<context>
    <name>cli</name>
    <message id="CliAddMissing"><translation>--id, --family-name y --given-names van con --add.</translation></message>
    <message id="CliAmAndPm"><translation>Indique --am o --pm, no ambas.</translation></message>
    <message id="CliBackupUsage"><translation>Indique list, create, o restore y el nombre de una copia; o folder y, para cambiarla, el nombre de la carpeta o --none.</translation></message>
    <message id="CliBadDate"><translation>--%1 necesita un día del calendario en la forma yyyy-MM-dd, no '%2'.</translation></message>
    <message id="CliBadDays"><translation>--last necesita un número entero de días de 1 a %2, no '%1'.</translation></message>
    <message id="CliBadField"><translation>El valor de --%1 no debe ser '-', ni empezar o terminar con un espacio, ni contener caracteres de control.</translation></message>
    <message id="CliBadID"><translation>El valor de --id debe tener de 1 a 11 letras, cifras o signos simples, sin acentos ni 'ñ': un tensiómetro no puede guardar más.</translation></message>
    <message id="CliBadPaper"><translation>--paper necesita A4 o Letter, no '%1'.</translation></message>
    <message id="CliBadWait"><translation>--wait necesita un número entero de segundos de 0 a %1.</translation></message>
    <message id="CliChangeOfNothing"><translation>--change necesita al menos una de estas opciones: --date, --time, --sys, --dia y --pulse.</translation></message>
    <message id="CliClockUnread"><translation>No se ha podido leer el reloj del tensiómetro. %1</translation></message>
    <message id="CliClockUnset"><translation>No se ha podido ajustar el reloj del tensiómetro. %1</translation></message>
    <message id="CliColumnsForm"><translation>--columns necesita los títulos de las columnas, por ejemplo date=Fecha,time=Hora,sys=Sistólica,dia=Diastólica,pulse=Pulso; solo puede faltar time.</translation></message>
    <message id="CliColumnsHelp"><translation>Para la tabla de otro programa, --columns indica qué contiene cada columna.</translation></message>
    <message id="CliCountUnread"><translation>No se ha podido leer el número de mediciones del tensiómetro. %1</translation></message>
    <message id="CliDatesForm"><translation>--dates admite dmy, mdy o ymd, no '%1'.</translation></message>
    <message id="CliDemonstrationMonitor"><translation>Estos datos son de una demostración y no admiten mediciones de un tensiómetro real. Indique --simulated-monitor.</translation></message>
    <message id="CliDownloadFailed"><translation>No se han podido descargar las mediciones y no se ha guardado nada. %1 Siguen en el tensiómetro: vuelva a intentarlo.</translation></message>
    <message id="CliDownloadNotReadBack"><translation>Las mediciones se han guardado, pero después no se ha podido leer el archivo de datos, así que no se ha vaciado la memoria del tensiómetro. %1</translation></message>
    <message id="CliDownloadUnsaved"><translation>No se han podido guardar las mediciones descargadas. %1 Siguen en el tensiómetro.</translation></message>
    <message id="CliEmptySections"><translation>Sin datos, por lo que no están en el informe: %1</translation></message>
    <message id="CliEraseAfterFailed"><translation>Las mediciones están bien guardadas, pero después no se ha podido vaciar la memoria del tensiómetro. %1 Puede vaciarla con 'zel monitor --erase --yes'.</translation></message>
    <message id="CliEraseAfterUnseen"><translation>Las mediciones están bien guardadas, pero no se ha podido comprobar si la memoria del tensiómetro está vacía ahora. %1 'zel monitor' muestra lo que contiene.</translation></message>
    <message id="CliEraseFailed"><translation>No se ha podido vaciar la memoria del tensiómetro. %1</translation></message>
    <message id="CliEraseNeedsYes"><translation>--erase elimina todas las mediciones del tensiómetro de forma definitiva. Añada --yes si es lo que quiere.</translation></message>
    <message id="CliEraseNoID"><translation>La memoria del tensiómetro se vacía escribiéndole de nuevo su propio ID, pero no tiene ninguno que pueda guardar. Dele antes uno con 'zel monitor --send-id ID'.</translation></message>
    <message id="CliEraseUnseen"><translation>No se ha podido comprobar si la memoria del tensiómetro está vacía ahora. %1</translation></message>
    <message id="CliExcludedLater" numerus="yes"><translation><numerusform>También está excluida %n medición de días posteriores.</numerusform><numerusform>También están excluidas %n mediciones de días posteriores.</numerusform></translation></message>
    <message id="CliExcludedLeftOut" numerus="yes"><translation><numerusform>%n medición de la semana está excluida.</numerusform><numerusform>%n mediciones de la semana están excluidas.</numerusform></translation></message>
    <message id="CliFilesMissing"><translation>Falta indicar un archivo para importar.</translation></message>
    <message id="CliFirstDayLeftOut" numerus="yes"><translation><numerusform>%n medición del primer día de medición no se cuenta.</numerusform><numerusform>%n mediciones del primer día de medición no se cuentan.</numerusform></translation></message>
    <message id="CliFolderMissing"><translation>Falta indicar la carpeta a la que exportar.</translation></message>
    <message id="CliForceReplaces"><translation>--force lo reemplaza.</translation></message>
    <message id="CliFromAfterTo"><translation>El día de --from es posterior al de --to.</translation></message>
    <message id="CliHelp"><translation>Uso: zel [--simulated-monitor[=FILE] | --demonstration] [--language TAG] [--reset-view]
     zel COMMAND [OPTION]...

Conserva las mediciones de tensiómetros automáticos, paciente por paciente.
Sin ninguna orden se abre una ventana. Las órdenes hacen lo mismo sin ella, con el mismo archivo de datos:

  monitor      mostrar el tensiómetro conectado, ajustar su reloj o su ID, o vaciar su memoria
  patients     listar los pacientes, o añadir uno
  download     guardar las mediciones del tensiómetro para un paciente
  readings     listar las mediciones de un paciente
  statistics   mostrar las medias, los mínimos y los máximos de las mediciones de un paciente
  average      mostrar la media de una semana de medición, según las guías de medición domiciliaria
  report       escribir el informe de un paciente como PDF
  export-xml   exportar todos los pacientes, o uno, como archivos XML
  export-csv   exportar un paciente y sus mediciones como archivo CSV
  export-fhir  exportar todos los pacientes, o uno, como archivos FHIR para otros sistemas de historia clínica
  export-table exportar mediciones como tabla para hojas de cálculo
  import       incorporar pacientes de archivos XML exportados, o mediciones de tablas
  settings     mostrar la configuración, o cambiarla en parte
  backup       listar las copias del archivo de datos, hacer una o volver a una
  privacy      decir si otros pueden leer el archivo de datos, o impedírselo

Opciones:
  --simulated-monitor[=FILE]   usar un tensiómetro simulado, descrito por FILE o incorporado, en vez de USB
  --demonstration              una ventana con un tensiómetro simulado y datos propios
  --language TAG               el idioma de los mensajes e informes, por ejemplo es
  --reset-view                 olvidar cómo quedó la ventana: posición, página, paciente, columnas, carpeta
  -h, --help                   mostrar este texto; 'zel COMMAND --help' explica una orden
  --version                    mostrar la versión

Código de salida: 0 hecho, 1 fallido (el motivo aparece en la salida de error), 2 uso incorrecto.</translation></message>
    <message id="CliHelpAverage"><translation>Uso: zel average --patient ID [--rule esh|nice|aha] [--to DAY]

Muestra la media de las mediciones de un paciente en una semana de medición, los siete días que terminan en un
día dado, según la regla de una guía: qué días y mediciones cuentan, cuántos hacen falta y el umbral de la
media. Solo son cifras: lo que significan para el paciente debe decirlo un médico.

  rule        esh: 3 días o más, sin contar el primero, y luego 12 mediciones o más; umbral 135/85
              nice: 4 días o más, sin contar el primero, y luego 2 mediciones por la mañana y 2 por la
              tarde de cada día; umbral 135/85
              aha: 3 días o más y 12 mediciones o más; umbral 130/80
  complete    yes, o no cuando faltan días o mediciones; la media se muestra igualmente
  missing     lo que falta
  days        días con mediciones que cuentan
  readings    mediciones que cuentan
  sys, dia    en mmHg
  pulse       en latidos por minuto
  morning     sys/dia de las de antes del mediodía
  evening     sys/dia de las realizadas a partir del mediodía
  threshold   reached si sys o dia son iguales o superiores a su parte del umbral, antes de redondear

Los días y las horas son los de la zona horaria de este equipo. Las líneas que no tienen nada que decir se
omiten. En la salida de error se indica cuántas mediciones de la semana no se cuentan y cuántas se guardaron
en otra zona horaria.

Opciones:
  --patient ID                 de quién son las mediciones
  --rule RULE                  esh (si no se indica otra), nice o aha
  --to DAY                     último día de la semana (yyyy-MM-dd); si no, el último día con mediciones
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpBackup"><translation>Uso: zel backup list
     zel backup create
     zel backup restore NAME
     zel backup folder [DIR | --none]

Antes del primer cambio de cada día, el archivo de datos se copia en la carpeta Backups, junto a él. Se
conservan las copias de los últimos 14 días y una al mes durante dos años, siempre que no ocupen más de una
décima parte del espacio libre del disco.

list      muestra las copias en formato CSV, primero la más reciente, y lo que contienen
create    hace otra copia ahora y muestra 'written: FILE'
restore   pone una copia en lugar del archivo de datos y muestra 'restored: NAME'; lo que había se conserva
          como otra copia, cuyo nombre muestra ('kept: NAME'); si se restaura esa, se vuelve atrás
folder    muestra la segunda carpeta a la que van las copias, una memoria USB o una carpeta de red, como
          'folder: DIR', después de cambiarla a DIR; sus copias se listan con el nombre completo

Opciones:
  --none                       sin segunda carpeta desde ahora; las copias que contiene se quedan en ella
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpDownload"><translation>Uso: zel download --patient ID [--any-monitor] [OPTION]...

Descarga las mediciones del tensiómetro, guarda las que aún no estaban guardadas y muestra cuántas se han
descargado y cuántas de ellas son nuevas. El progreso aparece en la salida de error. La memoria del
tensiómetro se vacía solo si la configuración lo indica, y solo cuando las mediciones están bien guardadas.
Las mediciones introducidas a mano que también ha medido el tensiómetro quedan excluidas desde entonces; si
las hay, se cuentan como 'left-out'.

Opciones:
  --patient ID                 paciente para el que se guardan
  --any-monitor                descargar aunque el ID del tensiómetro no sea el del paciente
  --wait SECONDS               cuánto esperar al tensiómetro (5 si no se indica)
  --simulated-monitor[=FILE]   usar un tensiómetro simulado, descrito por FILE o incorporado
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpExportCsv"><translation>Uso: zel export-csv DIR --patient ID [--force]

Escribe los datos y las mediciones de un paciente como archivo CSV, con el ID del paciente por nombre, en la
carpeta DIR, y muestra 'written: FILE'. Las fechas y las medidas tienen la forma que indica la configuración.
Contiene todas las mediciones; tras la última coma de una línea figura 'manual' si la medición se introdujo a
mano, y 'excluded: REASON' si está excluida de todos los cálculos.

Opciones:
  --patient ID                 de quién es el archivo
  --force                      reemplazar el archivo si ya existe
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpExportFhir"><translation>Uso: zel export-fhir DIR [--patient ID] [--rule esh|nice|aha] [--force]

Escribe cada paciente, con sus mediciones y la media de la última semana de medición, como un «bundle» HL7
FHIR R4 propio en la carpeta DIR, para los programas que llevan historias clínicas, y muestra una línea
'written: FILE' por cada uno. Los archivos llevan por nombre el ID del paciente. Contienen todas las
mediciones; una medición excluida tiene el estado 'entered-in-error' y su motivo. Los comentarios y las
direcciones no figuran. Un archivo que no se puede escribir se indica en la salida de error, y los demás se
escriben igualmente.

Opciones:
  --patient ID                 solo este paciente
  --rule esh|nice|aha          la regla de la media; esh si no se indica otra
  --force                      reemplazar los archivos que ya existan, en vez de dejarlos como están
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpExportTable"><translation>Uso: zel export-table DIR [--patient ID] [--force]
     zel export-table FILE.csv [--patient ID] [--force]

Escribe las mediciones como tabla para hojas de cálculo: en la carpeta DIR, un archivo 'ID.table.csv' por
paciente o, como FILE.csv, una sola tabla de todos los pacientes. Muestra 'written: FILE' por cada una. La
tabla es UTF-8, con una línea de títulos y una línea por medición, en orden temporal, con el paciente, los
valores, los hallazgos, el origen de la medición, si está excluida y por qué, y el comentario de su día. Los
textos que una hoja de cálculo calcularía empiezan con un apóstrofo. 'zel import' vuelve a incorporar la tabla.

Opciones:
  --patient ID                 solo este paciente
  --force                      reemplazar los archivos que ya existan, en vez de dejarlos como están
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpExportXml"><translation>Uso: zel export-xml DIR [--patient ID] [--force]

Escribe cada paciente, con sus mediciones y comentarios, como un archivo XML propio en la carpeta DIR, y
muestra una línea 'written: FILE' por cada uno. Los archivos llevan por nombre el ID del paciente;
'zel import' los vuelve a incorporar. Un archivo que no se puede escribir se indica en la salida de error, y
los demás se escriben igualmente.

Opciones:
  --patient ID                 solo este paciente
  --force                      reemplazar los archivos que ya existan, en vez de dejarlos como están
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpImport"><translation>Uso: zel import FILE...
     zel import FILE... --patient ID [--columns LIST] [--dates dmy|mdy|ymd]

Incorpora los pacientes de archivos XML exportados, con sus mediciones y comentarios, o los de tablas escritas
por 'zel export-table'. Cada archivo se incorpora entero o no se incorpora: queda fuera si uno de sus pacientes
ya está en la lista. Los archivos no incorporados se indican en la salida de error, con el motivo; de una tabla,
cada línea con errores, con su número. Muestra cuántos archivos se han incorporado y cuántos se han rechazado, y
cuántos pacientes, mediciones y comentarios han aportado, en líneas 'key: value'; con una tabla, también cuántas
mediciones ya se conocían: no se duplican.
Las mediciones de la lista introducidas a mano que una tabla trae de un tensiómetro quedan excluidas desde
entonces, y se cuentan como 'left-out'.

Con --patient, las mediciones de una tabla se añaden a un paciente de la lista. Con --columns es la tabla de
otro programa, por ejemplo --columns "date=Fecha,time=Hora,sys=Sistólica,dia=Diastólica,pulse=Pulso", con los
títulos de su primera línea; time se omite si la hora sigue a la fecha. Esas mediciones cuentan como introducidas
a mano. Las columnas se separan con comas, puntos y comas o tabuladores. Las fechas son como 2026-11-21, salvo
que --dates indique el orden de día, mes y año.

Opciones:
  --patient ID                 a quién añadir las mediciones de una tabla
  --columns LIST               los títulos de las columnas de otro programa
  --dates dmy|mdy|ymd          cómo están escritas sus fechas
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpMonitor"><translation>Uso: zel monitor [OPTION]...
     zel monitor --set-clock [OPTION]...
     zel monitor --send-id ID [OPTION]...
     zel monitor --erase --yes [OPTION]...

Muestra el modelo del tensiómetro conectado, la detección de arritmias (pad, afib o none), el ID, el reloj (o
'not set') y el número de mediciones, en líneas 'key: value'. Contar las mediciones puede tardar hasta 20 s.
Lo que se cambia se vuelve a leer; la orden falla si no coincide.

Opciones:
  --set-clock                  ajustar el reloj del tensiómetro al de este equipo, y mostrarlo
  --send-id ID                 escribir en el tensiómetro un ID de 1 a 11 caracteres simples, y mostrarlo;
                               las mediciones de su memoria se quedan en ella
  --erase                      eliminar todas las mediciones de la memoria, y mostrar cuántas quedan
  --yes                        confirma --erase
  --wait SECONDS               cuánto esperar al tensiómetro (5 si no se indica)
  --simulated-monitor[=FILE]   usar un tensiómetro simulado, descrito por FILE o incorporado
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpPatients"><translation>Uso: zel patients
     zel patients --add --id ID --family-name NAME --given-names NAMES

Lista los pacientes en formato CSV con la cabecera id,family-name,given-names, o añade uno.

Opciones:
  --add                        añadir un paciente; el ID debe ser nuevo
  --id ID                      el ID del paciente, tal como lo tiene el tensiómetro
  --family-name NAME           los apellidos
  --given-names NAMES          el nombre
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpPrivacy"><translation>Uso: zel privacy [--mend]

Indica cuáles de estos archivos pueden leer otros usuarios de este equipo: el archivo de datos, lo que se
guarda junto a él y sus copias; un archivo por línea ('readable by others: FILE'), o bien 'private'.

Opciones:
  --mend                       impedir el acceso a otros: cambia los permisos de estos archivos, de su carpeta
                               y de la carpeta de las copias, y nada más
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpReadings"><translation>Uso: zel readings --patient ID [--from DAY | --last N] [--to DAY] [--am | --pm] [--undated]
                  [--numbers]
     zel readings --patient ID --exclude RECORD --reason TEXT
     zel readings --patient ID --include RECORD
     zel readings --patient ID --add --date DAY --time HH:MM --sys N --dia N --pulse N
     zel readings --patient ID --change RECORD [--date DAY] [--time HH:MM] [--sys N] [--dia N] [--pulse N]
     zel readings --patient ID --delete RECORD

Lista las mediciones de un paciente en formato CSV, primero la más antigua, con la cabecera
date,time,sys,dia,pulse,map,pp,mam,arrhythmia. Las presiones están en mmHg y el pulso en latidos por minuto.
Una medición que el tensiómetro guardó sin fecha lleva n.a y --:-- en su lugar; se omite cuando se indica un
periodo, --am o --pm, salvo que se indique también --undated. Un día sin mediciones al que se refiere un
comentario tiene una línea con su fecha y n.a. en lo demás; si hay demasiados para listarlos todos, lo dice
una frase en la salida de error.

Con --exclude, --include, --add, --change o --delete, en cambio, se modifica el archivo de datos. Una medición
excluida sigue en el archivo y en la lista, con su motivo, y no cuenta en ningún cálculo; una frase en la
salida de error dice cuántas de las mediciones listadas lo están. Una medición introducida a mano lleva la
marca 'introducida'; las presiones y el pulso son números enteros de 30 a 300, la presión diastólica es
inferior a la sistólica y la hora no está en el futuro. --add muestra 'record: RECORD'. Solo se pueden cambiar
o eliminar las mediciones introducidas a mano.
Con --include, una introducida a mano que contaría dos veces, o que no se podría introducir así, sigue excluida.
Cuando vuelve a contar una medida por el tensiómetro, la misma introducida a mano queda excluida desde entonces,
y se cuenta como 'left-out'.

Opciones:
  --patient ID                 de quién son las mediciones
  --from DAY                   solo desde este día (yyyy-MM-dd)
  --to DAY                     solo hasta el final de este día (yyyy-MM-dd)
  --last N                     en vez de --from: N días, hasta el de --to o hasta el último con mediciones
  --am                         solo las mediciones de antes del mediodía
  --pm                         solo las mediciones a partir del mediodía
  --undated                    también las mediciones sin fecha
  --numbers                    con dos columnas más: record, el número de la medición en el archivo de datos,
                               y excluded, por qué está excluida (vacío: cuenta)
  --exclude RECORD             excluir de todos los cálculos la medición con este número
  --reason TEXT                por qué
  --include RECORD             hacer que vuelva a contar
  --add                        guardar una medición introducida a mano
  --change RECORD              cambiar una introducida a mano; lo que no se indica queda como está
  --delete RECORD              eliminar una introducida a mano
  --date DAY                   el día en que se tomó (yyyy-MM-dd)
  --time HH:MM                 la hora, de 00:00 a 23:59
  --sys N                      presión sistólica, mmHg
  --dia N                      presión diastólica, mmHg
  --pulse N                    latidos por minuto
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpReport"><translation>Uso: zel report --patient ID --section KEY[,KEY...] --output FILE.pdf [OPTION]...

Escribe el informe de un paciente como PDF, reemplazando FILE.pdf si existe, y muestra 'written: FILE.pdf'.
Se marcan los valores iguales o superiores a los límites elegidos en la ventana (si no se eligen, 135/85).

Secciones:
  summary                      una página para el médico: medias, tendencia, últimos días, comentarios,
                               mediciones excluidas
  graph                        gráfico de presión arterial y pulso
  PatientProfile               los datos y las notas del paciente
  histogram                    cómo se distribuyen los valores
  correlation                  presión sistólica frente a diastólica
  trend                        medianas y bandas por día, semana o mes
  table                        las mediciones
  comment                      los comentarios
  SWStatistics                 medias, límites y las mediciones
  all                          todas ellas, en este orden

Opciones:
  --patient ID                 de quién es el informe
  --section KEY[,KEY...]       qué imprimir, en el orden indicado
  --from yyyy-MM-dd            primer día del periodo del informe (si no se indica, el de la primera medición)
  --to yyyy-MM-dd              último día (si no se indica, el de la última medición)
  --last N                     en vez de --from: N días, hasta el de --to o hasta el último con mediciones
  --am                         solo las de antes del mediodía (estadística y resumen las toman todas)
  --pm                         solo las realizadas a partir del mediodía (igualmente)
  --apart                      la tendencia tiene líneas propias para mañana y tarde
  --rule esh|nice|aha          cómo calcula el resumen la media de su semana de medición, que termina el
                               último día del periodo con mediciones; esh si no se indica otra; las
                               explica 'zel average --help'
  --practitioner               imprimir al pie los datos del médico que constan en la configuración; en el
                               resumen, en la cabecera
  --paper A4|Letter            el papel; normalmente, el de LC_PAPER o LANG
  --output FILE.pdf            el archivo que se escribe
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpSettings"><translation>Uso: zel settings
     zel settings --set KEY=VALUE [--set KEY=VALUE]...

Muestra la configuración, en líneas 'key: value', o cambia algunos valores y los muestra. Si se rechaza uno de
los valores, no se cambia ninguno. En los textos, \n representa un salto de línea y \\ una barra inversa.

  DateFormat                   dd mm yyyy, mm dd yyyy o yyyy mm dd
  TimeFormat                   12-hours o 24-hours
  MetricFormat                 kg / cm o lb / in
  EraseRecAfterReading         1: vaciar la memoria del tensiómetro tras una descarga bien guardada; si no, 0
  ShowPPorMap                  0: mostrar la presión de pulso; 1: mostrar la presión arterial media
  UserWhoStandard              1: la ventana de configuración muestra los límites como los de la OMS; si no, 0
  SysStandard                  límite sistólico, 0 (ninguno) o de 60 a 260 mmHg
  DiaStandard                  límite diastólico, 0 (ninguno) o de 30 a 160 mmHg, inferior al sistólico
  PhysicianAddress             las líneas del médico en los informes impresos

Opciones:
  --set KEY=VALUE              cambiar un valor de la configuración; se puede indicar varias veces
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliHelpStatistics"><translation>Uso: zel statistics --patient ID [--from DAY | --last N] [--to DAY] [--undated]

Muestra la media, el mínimo y el máximo de las mediciones de un paciente, una magnitud por línea:
'sys: AVERAGE MIN MAX', luego dia, pulse, y map o pp según la configuración. Las presiones están en mmHg y el
pulso en latidos por minuto. Donde no hay mediciones, cada valor es n/a. Si algunas mediciones no se cuentan,
en la salida de error se indica cuántas se cuentan, cuántas no y por qué motivo.

Opciones:
  --patient ID                 de quién son las mediciones
  --from DAY                   solo desde este día (yyyy-MM-dd)
  --to DAY                     solo hasta el final de este día (yyyy-MM-dd)
  --last N                     en vez de --from: N días, hasta el de --to o hasta el último con mediciones
  --undated                    también las mediciones sin fecha
  --simulated-monitor[=FILE]   se admite como en todas las órdenes; esta no necesita tensiómetro
  -h, --help                   mostrar este texto</translation></message>
    <message id="CliIDDoesNotFit"><translation>El tensiómetro no puede guardar el ID '%1': necesita de 1 a 11 caracteres simples (ASCII), sin espacios al principio ni al final.</translation></message>
    <message id="CliIDUnread"><translation>No se ha podido leer el ID del tensiómetro. %1</translation></message>
    <message id="CliIDUnsent"><translation>No se ha podido escribir el ID en el tensiómetro. %1</translation></message>
    <message id="CliLastAndFrom"><translation>Indique --from o --last, no ambas.</translation></message>
    <message id="CliMonitorChanged"><translation>Se ha interrumpido la conexión, y las mediciones que han llegado después podrían ser de otro tensiómetro distinto del consultado. No se ha guardado nada; vuelva a intentarlo.</translation></message>
    <message id="CliMonitorDenied"><translation>%1 Para leerlo hace falta un permiso: instale packaging/70-zel.rules en /etc/udev/rules.d, ejecute 'udevadm control --reload' y vuelva a conectar el tensiómetro.</translation></message>
    <message id="CliMonitorSilent"><translation>Hay un tensiómetro conectado, pero no ha respondido en %1 s. %2</translation></message>
    <message id="CliMonitorWithoutID"><translation>El tensiómetro no tiene ningún ID, así que sus mediciones podrían no ser las del paciente '%1'. Escriba el ID con 'zel monitor --send-id', o use --any-monitor para descargarlas de todos modos.</translation></message>
    <message id="CliNoCommand"><translation>Falta una orden.</translation></message>
    <message id="CliNoFolder"><translation>No hay ninguna carpeta '%1'.</translation></message>
    <message id="CliNoHome"><translation>La variable de entorno HOME no está definida, así que no hay lugar donde buscar el archivo de datos.</translation></message>
    <message id="CliNoLineInTable" numerus="yes"><translation><numerusform>%n paciente no tiene ninguna línea en la tabla: no hay mediciones guardadas de él, como ocurre con todo el que no tiene ID.</numerusform><numerusform>%n pacientes no tienen ninguna línea en la tabla: no hay mediciones guardadas de ellos, como ocurre con todo el que no tiene ID.</numerusform></translation></message>
    <message id="CliNoMonitor"><translation>No se ha encontrado ningún tensiómetro en %1 s. Conéctelo con su cable USB o dele más tiempo con --wait.</translation></message>
    <message id="CliNoSuchPatient"><translation>No hay ningún paciente con el ID '%1'. 'zel patients' los lista.</translation></message>
    <message id="CliNoSuchReading"><translation>el paciente no tiene ninguna medición con el número %1 (zel readings --numbers muestra los números)</translation></message>
    <message id="CliNoSuchRule"><translation>No hay ninguna regla '%1'. Las reglas son %2.</translation></message>
    <message id="CliNoSuchSection"><translation>No hay ninguna sección '%1'. Las secciones son all, o cualquiera de %2, separadas por comas.</translation></message>
    <message id="CliNoTable"><translation>%1: --patient es para tablas de mediciones; este archivo no lo es o no se puede leer. No se ha importado nada de él.</translation></message>
    <message id="CliNotExcluded"><translation>la medición %1 no está excluida</translation></message>
    <message id="CliNotTogether"><translation>--%1 y --%2 no van juntas</translation></message>
    <message id="CliOneJob"><translation>Solo se puede hacer a la vez una de estas cosas: --set-clock, --send-id o --erase.</translation></message>
    <message id="CliOptionMissing"><translation>Falta --%1, o su valor está vacío.</translation></message>
    <message id="CliOptionTwice"><translation>--%1 se ha indicado más de una vez.</translation></message>
    <message id="CliOtherMonitor"><translation>El tensiómetro tiene el ID '%1', no '%2', así que sus mediciones podrían ser de otro paciente. Use --any-monitor para descargarlas de todos modos.</translation></message>
    <message id="CliOtherZone" numerus="yes"><translation><numerusform>%n medición de la semana se guardó en otra zona horaria; el día y la hora son los de este equipo.</numerusform><numerusform>%n mediciones de la semana se guardaron en otra zona horaria; los días y las horas son los de este equipo.</numerusform></translation></message>
    <message id="CliOutputFailed"><translation>No se ha podido escribir la salida.</translation></message>
    <message id="CliPatientKnown"><translation>Ya hay un paciente con el ID '%1'.</translation></message>
    <message id="CliPlanWithoutFile"><translation>--simulated-monitor= necesita detrás el nombre de un archivo; solo, sin '=', es el tensiómetro incorporado.</translation></message>
    <message id="CliProgress"><translation>Recibidas %1 de %2 mediciones</translation></message>
    <message id="CliReadableByOthers"><translation>Otros usuarios de este equipo pueden leer %1. 'zel privacy --mend' se lo impide.</translation></message>
    <message id="CliReadingJobMissing"><translation>--reason va con --exclude; --date, --time, --sys, --dia y --pulse van con --add o --change</translation></message>
    <message id="CliReadingNotUnique"><translation>varias mediciones tienen el número %1; no se puede saber a cuál se refiere</translation></message>
    <message id="CliReadingsExcluded" numerus="yes"><translation><numerusform>%n de estas mediciones está excluida y no cuenta en ningún cálculo; --numbers dice cuál y por qué</numerusform><numerusform>%n de estas mediciones están excluidas y no cuentan en ningún cálculo; --numbers dice cuáles y por qué</numerusform></translation></message>
    <message id="CliSameIDLeftOut" numerus="yes"><translation><numerusform>Se ha omitido %n paciente: otro de la lista tiene el mismo ID, o tampoco tiene ninguno. Para distinguirlos, cada paciente necesita un ID propio.</numerusform><numerusform>Se han omitido %n pacientes: otros de la lista tienen los mismos ID, o tampoco tienen ninguno. Para distinguirlos, cada paciente necesita un ID propio.</numerusform></translation></message>
    <message id="CliSettingForm"><translation>--set necesita KEY=VALUE, no '%1'.</translation></message>
    <message id="CliSettingNotKept"><translation>En el archivo de datos no hay lugar para el valor de configuración %1, así que no se ha cambiado nada.</translation></message>
    <message id="CliSettingTwice"><translation>El valor de configuración %1 se ha indicado más de una vez.</translation></message>
    <message id="CliSettingUnknown"><translation>No hay ningún valor de configuración '%1'. Los que hay son: %2.</translation></message>
    <message id="CliSettingValue"><translation>%1 no admite '%3'; admite %2.</translation></message>
    <message id="CliTableAssumed" numerus="yes"><translation><numerusform>Una tabla no indica el sexo, el tabaquismo ni la diabetes: %n paciente nuevo se ha guardado como mujer, no fumadora y sin diabetes. Compruébelo.</numerusform><numerusform>Una tabla no indica el sexo, el tabaquismo ni la diabetes: %n pacientes nuevos se han guardado como mujeres, no fumadoras y sin diabetes. Compruébelo.</numerusform></translation></message>
    <message id="CliTableKnown"><translation>--patient ID añade las mediciones de una tabla a un paciente de la lista.</translation></message>
    <message id="CliTryHelp"><translation>Pruebe '%1'.</translation></message>
    <message id="CliTypedLeftOut" numerus="yes"><translation><numerusform>%n medición introducida a mano deja de contar en los cálculos: la tabla contiene la misma, procedente de un tensiómetro.</numerusform><numerusform>%n mediciones introducidas a mano dejan de contar en los cálculos: la tabla contiene las mismas, procedentes de un tensiómetro.</numerusform></translation></message>
    <message id="CliUnexpectedWord"><translation>'%1' no se esperaba aquí.</translation></message>
    <message id="CliUnknownCommand"><translation>No hay ninguna orden '%1'.</translation></message>
    <message id="CliUnmeasured" numerus="yes"><translation><numerusform>%n medición sin valores de presión no se cuenta.</numerusform><numerusform>%n mediciones sin valores de presión no se cuentan.</numerusform></translation></message>
    <message id="CliWaiting"><translation>Esperando al tensiómetro, como máximo otros %1 s. Ctrl-C cancela.</translation></message>
    <message id="CliWeekToCome"><translation>La semana termina el %1, un día que aún no ha llegado.</translation></message>
    <message id="CliYesAlone"><translation>--yes va con --erase.</translation></message>
</context>
</TS>
