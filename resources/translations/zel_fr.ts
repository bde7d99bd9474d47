<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<!-- Every text of the program by its key; code asks for them with qtTrId("key"). Sorted by key in each context. -->
<context>
    <name>store</name>
    <message id="%1 A"><translation>%1 AM</translation></message>
    <message id="%1 P"><translation>%1 PM</translation></message>
    <message id=", "><translation>, </translation></message>
    <message id="; "><translation> ; </translation></message>
    <message id="BackupLast"><translation>%1, %2, la dernière du %3</translation></message>
    <message id="BackupPatients" numerus="yes"><translation><numerusform>%n patient</numerusform><numerusform>%n patients</numerusform></translation></message>
    <message id="BackupReadings" numerus="yes"><translation><numerusform>%n mesure</numerusform><numerusform>%n mesures</numerusform></translation></message>
    <message id="ExcludedAsMeasured"><translation>également enregistrée par le tensiomètre</translation></message>
    <message id="ExcludedWithoutReason"><translation>sans motif indiqué</translation></message>
    <message id="ExportAlreadyExists"><translation>Le fichier %1 existe déjà. Il a été laissé tel quel.</translation></message>
    <message id="ExportIsDataFile"><translation>Le fichier %1 est le fichier de données lui-même, qu’aucune exportation ne remplace. Veuillez choisir un autre dossier.</translation></message>
    <message id="ExportNotFlushed"><translation>%1 a été écrit, mais le disque n’a pas confirmé qu’il est durablement enregistré : il pourrait manquer après une coupure de courant. Veuillez vérifier le disque.</translation></message>
    <message id="ExportNotWritten"><translation>Le fichier %1 n’a pas pu être écrit. Veuillez vérifier que le dossier existe, que vous avez le droit d’y écrire et que le disque n’est pas plein.</translation></message>
    <message id="ExportSameFileName"><translation>Le fichier %1 n’a pas été écrit : pour ce disque, il porte le même nom que le fichier qui vient d’être écrit pour le patient ci-dessous. Veuillez exporter vers un disque qui distingue majuscules et minuscules.</translation></message>
    <message id="Female"><translation>Femme</translation></message>
    <message id="fullName"><translation>%1 %2</translation></message>
    <message id="ImportAlreadyKnown"><translation>%1 : un patient ayant l’ID « %2 » figure déjà dans la liste. Un patient n’est jamais écrasé ; rien n’a donc été importé de ce fichier.</translation></message>
    <message id="ImportBadID"><translation>%1 : l’ID « %2 » du fichier contient une fin de ligne ou un autre caractère de contrôle ; il ne pourrait être ni enregistré ni envoyé à un tensiomètre. Rien n’a été importé de ce fichier.</translation></message>
    <message id="ImportBadLines"><translation>%1 : certaines lignes du tableau ne peuvent pas être importées. Rien n’a été importé.</translation></message>
    <message id="ImportMissingColumn"><translation>%1 : le tableau n’a pas de colonne « %2 », ou en a plusieurs. Rien n’a été importé.</translation></message>
    <message id="ImportNoFile"><translation>Ce n’est pas un fichier ordinaire.</translation></message>
    <message id="ImportNoID"><translation>%1 : un patient du fichier n’a pas d’ID. Rien n’a été importé.</translation></message>
    <message id="ImportNoPatient"><translation>%1 : le fichier ne contient aucun patient. Rien n’a été importé.</translation></message>
    <message id="ImportNoReading"><translation>%1 : le tableau ne contient aucune mesure. Rien n’a été importé.</translation></message>
    <message id="ImportNoSuchPatient"><translation>%1 : aucun patient ayant l’ID « %2 » ne figure plus dans la liste. Rien n’a été importé de ce fichier.</translation></message>
    <message id="ImportNotFlushed"><translation>%1 : tout est enregistré, mais le disque ne l’a pas confirmé : ces données pourraient manquer après une coupure de courant.</translation></message>
    <message id="ImportNotReadable"><translation>%1 : le fichier est illisible ou n’a pas été exporté par ce programme. Rien n’a été importé.</translation></message>
    <message id="ImportNotStored"><translation>%1 : le contenu du fichier n’a pas pu être enregistré. Rien n’a été importé.</translation></message>
    <message id="ImportOtherNames"><translation>%1 : le patient ayant l’ID « %2 » n’a pas le même nom dans la liste que dans le tableau ; les mesures sont peut-être celles d’une autre personne. Rien n’a été importé de ce fichier. Pour les importer malgré tout, videz les cellules des noms.</translation></message>
    <message id="ImportSameIDTwice"><translation>%1 : deux patients du fichier ont le même ID, « %2 ». Rien n’a été importé.</translation></message>
    <message id="ImportTooLarge"><translation>%1 : le fichier dépasse 512 Mio. Rien n’a été importé.</translation></message>
    <message id="ImportTooManyLines"><translation>%1 : le tableau a plus de 200 000 lignes. Rien n’a été importé.</translation></message>
    <message id="LanguageMissing"><translation>--language attend une langue, parmi %1</translation></message>
    <message id="languageTag"><translation>fr</translation></message>
    <message id="LanguageTwice"><translation>--language ne peut être indiquée qu’une fois</translation></message>
    <message id="LanguageUnknown"><translation>la langue « %1 » n’existe pas ; les langues sont %2</translation></message>
    <message id="LanguageUnread"><translation>Le choix de la langue dans le fichier %1 est illisible. La langue du système est utilisée jusqu’à ce qu’une autre soit choisie dans les réglages.</translation></message>
    <message id="LimitDiastolic"><translation>Limite diastolique : %1.</translation></message>
    <message id="LimitOrder"><translation>La limite diastolique doit être inférieure à la limite systolique.</translation></message>
    <message id="LimitSystolic"><translation>Limite systolique : %1.</translation></message>
    <message id="Male"><translation>Homme</translation></message>
    <message id="ManualDia"><translation>La pression diastolique doit être un nombre compris entre %1 et %2.</translation></message>
    <message id="ManualDiaNotBelowSys"><translation>La pression diastolique doit être inférieure à la pression systolique.</translation></message>
    <message id="ManualInFuture"><translation>Cette date et cette heure sont encore à venir.</translation></message>
    <message id="ManualNoDate"><translation>Cette date et cette heure n’existent pas. (Une heure manque lors du passage à l’heure d’été, et le 1er janvier 2000 signifie « sans date ».)</translation></message>
    <message id="ManualPulse"><translation>Le pouls doit être un nombre compris entre %1 et %2.</translation></message>
    <message id="ManualSys"><translation>La pression systolique doit être un nombre compris entre %1 et %2.</translation></message>
    <message id="ManualTooEarly"><translation>La date est antérieure à 1900.</translation></message>
    <message id="n.a"><translation>n.a</translation></message>
    <message id="N/A"><translation>N/A</translation></message>
    <message id="NotBackedUp"><translation>Aucune copie du fichier de données n’a pu être créée dans %1 avant cette modification. %2</translation></message>
    <message id="remarkExcluded"><translation>exclue : %1</translation></message>
    <message id="remarkManual"><translation>saisie</translation></message>
    <message id="SecondFolderAway"><translation>Le second dossier pour les copies du fichier de données, %1, est absent ; la copie du jour n’y figure donc pas. Elle y sera placée à la prochaine modification, une fois le dossier de nouveau présent.</translation></message>
    <message id="SecondFolderBroken"><translation>Impossible de lire dans %1 quel second dossier reçoit les copies du fichier de données ; aucun n’en reçoit donc. Veuillez le choisir à nouveau.</translation></message>
    <message id="SecondFolderFailed"><translation>La copie du jour du fichier de données n’a pas pu être écrite dans le second dossier, %1.</translation></message>
    <message id="SecondFolderNoRoom"><translation>La copie du jour du fichier de données n’est pas dans le second dossier, %1 : l’ensemble des copies ne peut y occuper qu’un dixième de l’espace libre du disque, soit moins que la taille du fichier.</translation></message>
    <message id="SecondFolderNotFlushed"><translation>La copie du jour du fichier de données a été écrite dans le second dossier, %1, mais le disque n’a pas confirmé qu’elle est durablement enregistrée : elle pourrait manquer après une coupure de courant.</translation></message>
    <message id="SecondFolderNotRecorded"><translation>Le second dossier pour les copies n’a pas pu être noté dans %1. Rien n’a été modifié.</translation></message>
    <message id="SettingLimit"><translation>0 (aucune) ou un nombre entier de %1 à %2</translation></message>
    <message id="SettingOneOf"><translation>l’une des valeurs %1</translation></message>
    <message id="SettingQuoted"><translation>« %1 »</translation></message>
    <message id="SettingText"><translation>tout texte sans caractère de contrôle</translation></message>
    <message id="stepAddComment"><translation>ajout d’un commentaire (%1)</translation></message>
    <message id="stepAddPatient"><translation>ajout du patient %1</translation></message>
    <message id="stepAddReading"><translation>ajout d’une mesure (%1)</translation></message>
    <message id="stepDeleteComment"><translation>suppression d’un commentaire (%1)</translation></message>
    <message id="stepDeletePatient"><translation>suppression du patient %1</translation></message>
    <message id="stepDeleteReadings" numerus="yes"><translation><numerusform>suppression de %n mesure (%1)</numerusform><numerusform>suppression de %n mesures (%1)</numerusform></translation></message>
    <message id="stepEditComment"><translation>modification d’un commentaire (%1)</translation></message>
    <message id="stepEditPatient"><translation>modification du patient %1</translation></message>
    <message id="stepEditReading"><translation>modification d’une mesure (%1)</translation></message>
    <message id="stepExcludeReadings" numerus="yes"><translation><numerusform>exclusion de %n mesure (%1)</numerusform><numerusform>exclusion de %n mesures (%1)</numerusform></translation></message>
    <message id="stepImport"><translation>importation (%1)</translation></message>
    <message id="stepIncludeReadings" numerus="yes"><translation><numerusform>réintégration de %n mesure (%1)</numerusform><numerusform>réintégration de %n mesures (%1)</numerusform></translation></message>
    <message id="stepSettings"><translation>modification des réglages</translation></message>
    <message id="stillLeftOutRefused" numerus="yes"><translation><numerusform>%n mesure saisie à la main reste exclue. %1</numerusform><numerusform>%n mesures saisies à la main restent exclues. %1</numerusform></translation></message>
    <message id="stillLeftOutTwice" numerus="yes"><translation><numerusform>%n mesure saisie à la main reste exclue : une mesure de la même minute avec les mêmes valeurs compte déjà.</numerusform><numerusform>%n mesures saisies à la main restent exclues : des mesures des mêmes minutes avec les mêmes valeurs comptent déjà.</numerusform></translation></message>
    <message id="StoreAlreadyKnown"><translation>Un patient ayant l’ID « %1 » figure déjà dans la liste. Rien n’a été modifié.</translation></message>
    <message id="StoreBusy"><translation>Un autre programme utilise le fichier de données %1, sur cet ordinateur ou sur un autre qui le partage. Rien n’a été modifié ; veuillez réessayer dans un instant, ou dans quelques minutes si cet autre ordinateur n’est plus relié au réseau.</translation></message>
    <message id="StoreChangedElsewhere"><translation>Un autre programme a modifié ces données entre-temps. Rien n’a été modifié ici ; veuillez les consulter dans leur état actuel.</translation></message>
    <message id="StoreDiskFull"><translation>Le disque est plein : %1 n’a pas pu être écrit. L’ancien contenu est intact. Veuillez libérer de la place sur le disque, puis réessayer.</translation></message>
    <message id="StoreInvalidRecord"><translation>Chaque patient doit avoir son propre ID ; « %1 » ne convient pas. Rien n’a été modifié.</translation></message>
    <message id="StoreLockBlocked"><translation>%1 se trouve à l’endroit où les programmes signalent qu’ils utilisent le fichier de données, mais ne vient pas de l’un d’eux. Rien n’a été modifié ; veuillez le déplacer, puis réessayer.</translation></message>
    <message id="StoreNoPermissions"><translation>D’autres utilisateurs de cet ordinateur peuvent encore lire %1 : ce système de fichiers ne gère pas les droits d’accès. Veuillez conserver les données sur un autre disque.</translation></message>
    <message id="StoreNoReason"><translation>Une mesure ne peut être exclue qu’avec un motif ; veuillez en indiquer un. Rien n’a été modifié.</translation></message>
    <message id="StoreNoRoomForBackup"><translation>Aucune copie du fichier de données n’est conservée dans %1 : l’ensemble des copies ne peut occuper qu’un dixième de l’espace libre du disque, soit moins que la taille du fichier.</translation></message>
    <message id="StoreNoStep"><translation>Il n’y a rien à annuler ni à rétablir.</translation></message>
    <message id="StoreNoSuchBackup"><translation>Aucune copie du fichier de données ne s’appelle « %1 ».</translation></message>
    <message id="StoreNoSuchRecord"><translation>Aucun patient n’a l’ID « %1 ».</translation></message>
    <message id="StoreNotCreated"><translation>Il n’existe pas encore de fichier de données, et %1 n’a pas pu être créé. Veuillez vérifier qu’il est possible d’écrire dans son dossier et que le disque n’est pas plein, puis relancer le programme.</translation></message>
    <message id="StoreNotFlushed"><translation>%1 a été écrit, mais le disque n’a pas confirmé qu’il est durablement enregistré : après une coupure de courant, l’ancien contenu pourrait réapparaître. Veuillez vérifier le disque ; les mesures du tensiomètre restent dans sa mémoire.</translation></message>
    <message id="StoreNotMadePrivate"><translation>D’autres utilisateurs de cet ordinateur peuvent encore lire %1 : ses droits d’accès n’ont pas pu être modifiés.</translation></message>
    <message id="StoreNotManual"><translation>Les mesures provenant d’un tensiomètre ne peuvent être ni modifiées ni supprimées ; elles peuvent être exclues, avec un motif. Rien n’a été modifié.</translation></message>
    <message id="StoreNotParsed"><translation>Le fichier de données %1 est endommagé ou n’est pas un fichier de données de ce programme. Il est laissé tel quel, et rien ne peut être enregistré tant qu’il n’est pas de nouveau lisible : réparez-le, remplacez-le par une copie, ou déplacez-le pour en commencer un nouveau.</translation></message>
    <message id="StoreNotReadable"><translation>Le fichier de données %1 est illisible. Il est laissé tel quel, et rien ne peut être enregistré tant qu’il n’est pas de nouveau lisible.</translation></message>
    <message id="StoreNotWritable"><translation>Le fichier de données %1 ne peut pas être écrit. Rien n’a été modifié ; veuillez vérifier les droits d’accès du fichier et de son dossier.</translation></message>
    <message id="StoreQuotaReached"><translation>L’espace qui vous est attribué sur ce disque est épuisé (quota atteint) : %1 n’a pas pu être écrit. L’ancien contenu est intact. Veuillez supprimer ce dont vous n’avez plus besoin ou demander plus d’espace, puis réessayer.</translation></message>
    <message id="StoreReadFailed"><translation>Le fichier de données %1 est illisible : le disque signale une erreur. Le fichier est laissé tel quel, et rien ne peut être enregistré tant qu’il n’est pas de nouveau lisible. Veuillez faire vérifier le disque.</translation></message>
    <message id="StoreReadingGone"><translation>Cette mesure n’existe plus. Rien n’a été modifié.</translation></message>
    <message id="StoreReadingKnown"><translation>Il existe déjà une mesure de la même minute avec les mêmes valeurs. Rien n’a été modifié.</translation></message>
    <message id="StoreReadingRefused"><translation>La mesure n’a pas été enregistrée.</translation></message>
    <message id="StoreSizeLimit"><translation>La taille des fichiers est limitée sur cet ordinateur : %1 n’a pas pu être écrit. L’ancien contenu est intact. Veuillez vous adresser à la personne qui administre cet ordinateur au sujet de la taille maximale des fichiers.</translation></message>
    <message id="StoreStepChanged"><translation>Les données concernées ont été modifiées depuis, par un autre programme ou à la main. Rien n’a été modifié.</translation></message>
    <message id="StoreStepGone"><translation>Les données concernées ne sont plus dans le fichier de données. Rien n’a été modifié.</translation></message>
    <message id="StoreStepHasRecords"><translation>Depuis, des mesures ou des commentaires ont été ajoutés au patient ayant l’ID « %1 » ; ils n’appartiendraient plus à personne. Rien n’a été modifié.</translation></message>
    <message id="StoreStepPatientGone"><translation>Le patient ayant l’ID « %1 », auquel appartient le commentaire, n’est plus dans le fichier de données. Rien n’a été modifié.</translation></message>
    <message id="StoreStepPatientKnown"><translation>Un patient ayant l’ID « %1 » figure désormais dans la liste. Rien n’a été modifié.</translation></message>
    <message id="StoreStepThere"><translation>Ce qui devait être restauré est déjà de nouveau dans le fichier de données. Rien n’a été modifié.</translation></message>
    <message id="StoreTooLarge"><translation>Le fichier de données %1 dépasse 512 Mio et n’est donc pas lu par ce programme. Il est laissé tel quel, et rien ne peut être enregistré : remplacez-le par une copie plus petite, ou déplacez-le pour en commencer un nouveau.</translation></message>
    <message id="StoreUnreadable"><translation>Le fichier de données %1 a été laissé tel quel : ce qui devait être enregistré n’a pas pu être relu.</translation></message>
    <message id="StoreWriteFailed"><translation>L’écriture du fichier de données %1 a échoué ; le fichier a été laissé tel quel. Veuillez vérifier que le disque n’est pas plein, puis réessayer.</translation></message>
    <message id="TableCell"><translation>« %1 » n’est pas admis dans la colonne « %2 ».</translation></message>
    <message id="TableCells"><translation>Elle a %1 cellules, et la ligne de titres en a %2.</translation></message>
    <message id="TableDateOrder"><translation>« %1 » n’est pas écrit comme 2026-11-21. Indiquez avec --dates l’ordre du jour, du mois et de l’année : dmy, mdy ou ymd.</translation></message>
    <message id="TableLine"><translation>Ligne %1 : %2</translation></message>
    <message id="TableMeanPressure"><translation>Une pression artérielle moyenne de %1 ne va pas avec %2/%3 : les colonnes sont-elles bien attribuées ?</translation></message>
    <message id="TableMoreLines" numerus="yes"><translation><numerusform>… et %n autre ligne</numerusform><numerusform>… et %n autres lignes</numerusform></translation></message>
    <message id="TableNoTime"><translation>« %1 » n’est pas une date avec une année à quatre chiffres, suivie d’une heure.</translation></message>
    <message id="TableNotUtf8"><translation>Son texte n’est pas en UTF-8. Enregistrez-le au format « CSV UTF-8 » dans le programme dont il provient.</translation></message>
    <message id="TableOtherNames"><translation>Le patient « %1 » porte un autre nom dans une ligne précédente.</translation></message>
    <message id="TableOtherPatient"><translation>La mesure est celle du patient « %1 », et non de « %2 ».</translation></message>
    <message id="TablePulsePressure"><translation>Une pression pulsée de %1 ne va pas avec %2/%3 : les colonnes sont-elles bien attribuées ?</translation></message>
    <message id="TableQuotation"><translation>Un guillemet n’est pas fermé à la fin de sa cellule.</translation></message>
    <message id="takenInTypedLeftOut" numerus="yes"><translation><numerusform>%n mesure saisie à la main est désormais exclue (également enregistrée par le tensiomètre).</numerusform><numerusform>%n mesures saisies à la main sont désormais exclues (également enregistrées par le tensiomètre).</numerusform></translation></message>
    <message id="ViewLimitsUnread"><translation>%1, qui indique à partir de quelles valeurs marquer les mesures, est illisible. Tant que d’autres limites ne sont pas choisies, les valeurs sont marquées à partir de %2/%3 mmHg.</translation></message>
    <message id="Warning"><translation>Attention</translation></message>
    <message id="XmlAttributeTwice"><translation>Un élément comporte deux fois le même attribut.</translation></message>
    <message id="XmlBytesNotInEncoding"><translation>Il contient des octets étrangers à son encodage, %1.</translation></message>
    <message id="XmlControlCharacter"><translation>Il contient un caractère de contrôle, ce qui n’est pas permis dans un tel fichier.</translation></message>
    <message id="XmlEncodingUnknown"><translation>Son encodage, %1, est inconnu.</translation></message>
    <message id="XmlEntityNotTaken"><translation>Il fait référence à une entité ou à un caractère non accepté ; seuls le sont les cinq entités propres à XML et ses caractères.</translation></message>
    <message id="XmlErrorNearLine"><translation>Vers la ligne %1 : %2</translation></message>
    <message id="XmlMisplacedDeclaration"><translation>Une déclaration se trouve à un endroit où elle n’est pas permise.</translation></message>
    <message id="XmlNoRoot"><translation>Il ne contient aucun élément.</translation></message>
    <message id="XmlNotWritable"><translation>Le fichier de données ne peut pas être écrit : ni les modifications ni les mesures transférées ne peuvent être enregistrées. Veuillez vérifier les droits d’accès du fichier et de son dossier.</translation></message>
    <message id="XmlSeveralRoots"><translation>Il contient plus d’un élément racine.</translation></message>
    <message id="XmlTextOutsideRoot"><translation>Il contient du texte hors de son élément racine.</translation></message>
    <message id="XmlTooDeep"><translation>Ses éléments sont imbriqués sur plus de %1 niveaux.</translation></message>
    <message id="XmlTooLarge"><translation>Il dépasserait 512 Mio.</translation></message>
    <message id="XmlTooManyParts"><translation>Il contient plus de %1 éléments, attributs et textes, ce qui est trop pour un fichier de cette taille.</translation></message>
    <message id="XmlTooManyRecords"><translation>Il contient plus de %1 enregistrements, ce qui est trop pour un fichier de cette taille.</translation></message>
    <message id="XmlWrongRoot"><translation>Son élément racine est « %1 » et non « ZEL ».</translation></message>
</context>
<context>
    <name>monitor</name>
    <message id="monitorAccessDenied"><translation>Un tensiomètre est branché, mais ce programme ne peut pas l’utiliser : un autre programme s’en sert, ou le droit d’accès au périphérique USB manque.</translation></message>
    <message id="monitorBadCheckField"><translation>La réponse du tensiomètre est arrivée endommagée et n’a pas été utilisée. Veuillez réessayer.</translation></message>
    <message id="monitorBadFixedContent"><translation>La réponse du tensiomètre n’a pas pu être interprétée et n’a pas été utilisée. Veuillez réessayer.</translation></message>
    <message id="monitorClockNotSet"><translation>L’horloge du tensiomètre n’est pas réglée.</translation></message>
    <message id="monitorInterrupted"><translation>L’échange avec le tensiomètre a été interrompu avant la fin.</translation></message>
    <message id="monitorNoAcknowledgement"><translation>Le tensiomètre n’a pas accepté la commande. Veuillez l’éteindre, le rallumer et réessayer.</translation></message>
    <message id="monitorNoDevice"><translation>Aucun tensiomètre n’est branché. Veuillez le brancher et réessayer.</translation></message>
    <message id="monitorNotTaken"><translation>Le tensiomètre a confirmé la réception, mais contient toujours autre chose. Veuillez réessayer.</translation></message>
    <message id="monitorReadFailed"><translation>La liaison avec le tensiomètre a été interrompue. Veuillez vérifier le câble et réessayer.</translation></message>
    <message id="monitorSuccess"><translation>Le tensiomètre a exécuté la demande.</translation></message>
    <message id="monitorTimeOut"><translation>Le tensiomètre n’a pas répondu à temps. Veuillez vérifier qu’il est allumé et réessayer.</translation></message>
    <message id="monitorUnconfirmed"><translation>L’envoi a eu lieu, mais le contenu actuel du tensiomètre n’a pas pu être lu. Veuillez le vérifier avant de réessayer.</translation></message>
    <message id="monitorUnfitID"><translation>Le tensiomètre ne peut pas mémoriser cet ID ; rien n’a donc été envoyé. Un ID destiné au tensiomètre comporte de 1 à 11 lettres, chiffres ou signes, sans accents.</translation></message>
    <message id="monitorWriteFailed"><translation>Le tensiomètre n’accepte pas ce qui lui est envoyé. Veuillez le débrancher, le rebrancher et réessayer.</translation></message>
    <message id="simulatedMissing"><translation>La valeur de « %1 » manque.</translation></message>
    <message id="simulatedNoPlan"><translation>Il doit contenir un objet JSON.</translation></message>
    <message id="simulatedNotAllowed"><translation>La valeur de « %1 » doit être l’une des suivantes : %2</translation></message>
    <message id="simulatedNotJson"><translation>Ce n’est pas du JSON valide : vers le caractère %1, %2.</translation></message>
    <message id="simulatedNotList"><translation>La valeur de « %1 » doit être une liste.</translation></message>
    <message id="simulatedNotObject"><translation>La valeur de « %1 » doit être un objet.</translation></message>
    <message id="simulatedNotText"><translation>La valeur de « %1 » doit être un texte.</translation></message>
    <message id="simulatedNotTime"><translation>La valeur de « %1 » doit être une date avec l’heure, comme 2026-11-01T07:12, dans les années 2000 à 2099, ou le mot undated.</translation></message>
    <message id="simulatedNotWhole"><translation>La valeur de « %1 » doit être un nombre entier dans l’intervalle %2.</translation></message>
    <message id="simulatedRefused"><translation>Le fichier du tensiomètre simulé, %1, ne peut pas être utilisé : %2</translation></message>
    <message id="simulatedTooMany"><translation>La liste « %1 » doit compter au plus %2 éléments.</translation></message>
    <message id="simulatedUnencodable"><translation>La valeur de « %1 » contient des caractères que le tensiomètre ne connaît pas.</translation></message>
    <message id="simulatedUnknownKey"><translation>La clé « %1 » est inconnue.</translation></message>
    <message id="simulatedUnreadable"><translation>Le fichier du tensiomètre simulé, %1, est illisible : %2</translation></message>
    <message id="simulatedWrongLength"><translation>La valeur de « %1 » doit avoir ce nombre de caractères : %2</translation></message>
</context>
<context>
    <name>analysis</name>
    <message id="beforeAndSince"><translation>%1 avant, %2 depuis : %3</translation></message>
    <message id="excludedOfDays" numerus="yes"><translation><numerusform>%n mesure exclue</numerusform><numerusform>%n mesures exclues</numerusform></translation></message>
    <message id="fewBefore"><translation>moins de %1 mesures avant</translation></message>
    <message id="fewOnBothSides"><translation>moins de %1 mesures de part et d’autre</translation></message>
    <message id="fewSince"><translation>moins de %1 mesures depuis</translation></message>
    <message id="highMark"><translation>%1 et gras : à partir de %2</translation></message>
    <message id="leftBeforeNoon" numerus="yes"><translation><numerusform>%n avant midi</numerusform><numerusform>%n avant midi</numerusform></translation></message>
    <message id="leftExcluded" numerus="yes"><translation><numerusform>%n exclue</numerusform><numerusform>%n exclues</numerusform></translation></message>
    <message id="leftFromNoon" numerus="yes"><translation><numerusform>%n à partir de midi</numerusform><numerusform>%n à partir de midi</numerusform></translation></message>
    <message id="leftOut"><translation>non comptées : %1</translation></message>
    <message id="leftOutsidePeriod" numerus="yes"><translation><numerusform>%n hors période</numerusform><numerusform>%n hors période</numerusform></translation></message>
    <message id="leftUndated" numerus="yes"><translation><numerusform>%n sans date</numerusform><numerusform>%n sans date</numerusform></translation></message>
    <message id="leftUnmeasured" numerus="yes"><translation><numerusform>%n sans valeurs de pression</numerusform><numerusform>%n sans valeurs de pression</numerusform></translation></message>
    <message id="leftWithoutDate" numerus="yes"><translation><numerusform>%n sans aucune date</numerusform><numerusform>%n sans aucune date</numerusform></translation></message>
    <message id="limitDiaAlone"><translation>DIA %1 mmHg</translation></message>
    <message id="limitsBoth"><translation>%1/%2 mmHg</translation></message>
    <message id="limitSysAlone"><translation>SYS %1 mmHg</translation></message>
    <message id="listedExcluded" numerus="yes"><translation><numerusform>, dont %n exclue</numerusform><numerusform>, dont %n exclues</numerusform></translation></message>
    <message id="missingDays" numerus="yes"><translation><numerusform>%n jour</numerusform><numerusform>%n jours</numerusform></translation></message>
    <message id="missingEvenings" numerus="yes"><translation><numerusform>%n mesure du soir</numerusform><numerusform>%n mesures du soir</numerusform></translation></message>
    <message id="missingMornings" numerus="yes"><translation><numerusform>%n mesure du matin</numerusform><numerusform>%n mesures du matin</numerusform></translation></message>
    <message id="missingReadings" numerus="yes"><translation><numerusform>%n mesure</numerusform><numerusform>%n mesures</numerusform></translation></message>
    <message id="noHighMark"><translation>Aucune valeur n’est marquée comme élevée</translation></message>
    <message id="noneBefore"><translation>aucune mesure dans les 14 jours précédents, %1 depuis</translation></message>
    <message id="noneBeforeOrSince"><translation>aucune mesure avant ni depuis</translation></message>
    <message id="noneSince"><translation>%1 avant, aucune mesure depuis</translation></message>
    <message id="otherZoneOfDays" numerus="yes"><translation><numerusform>%n mesure enregistrée dans un autre fuseau horaire ; heures de cet ordinateur</numerusform><numerusform>%n mesures enregistrées dans un autre fuseau horaire ; heures de cet ordinateur</numerusform></translation></message>
    <message id="readingCount" numerus="yes"><translation><numerusform>%n mesure</numerusform><numerusform>%n mesures</numerusform></translation></message>
    <message id="rowsCut"><translation>Les commentaires couvrent plus de jours sans mesure que la liste ne peut en afficher : %1 au maximum ; certains manquent donc.</translation></message>
    <message id="unmeasuredOfDays" numerus="yes"><translation><numerusform>%n sans valeurs de pression non comptée</numerusform><numerusform>%n sans valeurs de pression non comptées</numerusform></translation></message>
</context>
<context>
    <name>app</name>
    <message id="12-hours"><translation>12 heures</translation></message>
    <message id="24-hours"><translation>24 heures</translation></message>
    <message id="aboutData"><translation>Fichier de données : %1</translation></message>
    <message id="aboutLicence"><translation>Licence : MIT. ZEL est fourni sans aucune garantie. ZEL utilise Qt (LGPL 3), hidapi (BSD), pugixml (MIT), ICU (licence Unicode) et expected (CC0), chacun selon sa propre licence.</translation></message>
    <message id="addComment"><translation>Ajouter un commentaire</translation></message>
    <message id="addCommentHint"><translation>Faites glisser cette icône vers un jour de la bande située sous le graphique du pouls pour y ajouter un commentaire. Au clavier : actionnez-la ou appuyez sur Inser.</translation></message>
    <message id="addCommentTooLong"><translation>Il est possible d’ajouter des commentaires tant que la période compte 47 jours ou moins.</translation></message>
    <message id="addDay"><translation>Plus de jours : un de plus au début et à la fin de la période</translation></message>
    <message id="addDayHint"><translation>Plus de jours : un de plus au début et à la fin de la période (+)</translation></message>
    <message id="afib"><translation>FA</translation></message>
    <message id="age"><translation>Âge : %1</translation></message>
    <message id="answerNo"><translation>Non</translation></message>
    <message id="answerYes"><translation>Oui</translation></message>
    <message id="AP_Title"><translation>ZEL – mesures de pression artérielle</translation></message>
    <message id="argumentUnknown"><translation>argument inattendu « %1 » ; voir zel --help</translation></message>
    <message id="argumentWithoutFile"><translation>%1= doit être suivie du nom d’un fichier ; voir zel --help</translation></message>
    <message id="backupAlsoTo"><translation>Copies aussi vers :</translation></message>
    <message id="backupChoose"><translation>C&amp;hoisir…</translation></message>
    <message id="backupChooseTitle"><translation>Second dossier pour les copies du fichier de données</translation></message>
    <message id="backupClose"><translation>&amp;Fermer</translation></message>
    <message id="backupConfirm"><translation>Revenir à cette copie ? %1. Les données actuelles sont conservées dans une autre copie ; vous pourrez donc y revenir.</translation></message>
    <message id="backupCreate"><translation>Sauvegarder &amp;maintenant</translation></message>
    <message id="backupDaily"><translation>Avant la première modification du jour</translation></message>
    <message id="backupDamaged"><translation>Fichier de données endommagé</translation></message>
    <message id="backupDay"><translation>Jour</translation></message>
    <message id="backupExplained"><translation>Copies du fichier de données, dans le dossier %1. Pour parer à une panne de ce disque, indiquez un second dossier sur un autre disque, une clé USB ou un partage réseau.</translation></message>
    <message id="backupFar"><translation>Second dossier : %1</translation></message>
    <message id="backupKind"><translation>Copie</translation></message>
    <message id="backupMade"><translation>Créée par vous</translation></message>
    <message id="backupNone"><translation>Il n’y a pas encore de copie. Chaque jour, une copie est créée avant la première modification.</translation></message>
    <message id="backupNoSecondFolder"><translation>aucun second dossier</translation></message>
    <message id="backupOffered"><translation>La copie lisible la plus récente est %1, avec %2. Y revenir ? Le fichier endommagé est conservé à côté, dans une autre copie.</translation></message>
    <message id="backupReplaced"><translation>Données remplacées par une copie restaurée</translation></message>
    <message id="backupRestore"><translation>&amp;Restaurer…</translation></message>
    <message id="backupRestored"><translation>La copie %1 est maintenant utilisée. Les données précédentes sont conservées sous le nom %2.</translation></message>
    <message id="backupSize"><translation>Taille</translation></message>
    <message id="backupStop"><translation>Arrê&amp;ter</translation></message>
    <message id="backupTitle"><translation>Sauvegardes</translation></message>
    <message id="backupUnreadable"><translation>cette copie est illisible</translation></message>
    <message id="beforeAndSinceHint"><translation>Pression moyenne en mmHg, et nombre de mesures : les 14 jours avant le commentaire, puis de son premier jour jusqu’au début d’un autre commentaire, 28 jours au plus</translation></message>
    <message id="BeginDate"><translation>Le premier jour doit précéder le dernier, afin que la période couvre au moins deux jours. Les dates sont restées inchangées.</translation></message>
    <message id="beginEarlier"><translation>Débuter un jour plus tôt</translation></message>
    <message id="beginLater"><translation>Débuter un jour plus tard</translation></message>
    <message id="birthDateIncomplete"><translation>Veuillez indiquer l’année, le mois et le jour, ou aucun des trois.</translation></message>
    <message id="birthDateInFuture"><translation>Cette date est encore à venir.</translation></message>
    <message id="birthDateTooOld"><translation>Cette date remonte à plus de %1 ans.</translation></message>
    <message id="birthDayNone"><translation>Jour</translation></message>
    <message id="birthDayRefused"><translation>Ce mois ne va pas jusqu’au %1.</translation></message>
    <message id="birthMonthNone"><translation>Mois</translation></message>
    <message id="birthYearNone"><translation>Année</translation></message>
    <message id="birthYearRefused"><translation>Veuillez indiquer l’année en quatre chiffres, par exemple 1956.</translation></message>
    <message id="bloodChart"><translation>Pression artérielle au cours du temps</translation></message>
    <message id="bloodScroller"><translation>Déplacer l’échelle de pression</translation></message>
    <message id="cancel"><translation>Annuler</translation></message>
    <message id="cancelPrint"><translation>Fermer sans imprimer</translation></message>
    <message id="cellWithRemark"><translation>%1, %2</translation></message>
    <message id="changeReadingAction"><translation>Modifier la mesure…</translation></message>
    <message id="changeReadingTitle"><translation>Modifier la mesure</translation></message>
    <message id="chartKeys"><translation>%1 sur la période. Les flèches déplacent la période, les touches plus et moins l’élargissent ou la réduisent, Ctrl avec la flèche gauche ou droite passe d’une mesure à l’autre.</translation></message>
    <message id="cholestrolRefused"><translation>Veuillez indiquer un nombre compris entre 10 et 5000 mg/dL, par exemple 200. 1 g/L correspond à 100 mg/dL, et 1 mmol/L à environ 38,7 mg/dL.</translation></message>
    <message id="choosePrinter"><translation>Choisir une imprimante</translation></message>
    <message id="clockAhead"><translation>%1 d’avance sur cet ordinateur</translation></message>
    <message id="clockBehind"><translation>%1 de retard sur cet ordinateur</translation></message>
    <message id="clockDays" numerus="yes"><translation><numerusform>%n jour</numerusform><numerusform>%n jours</numerusform></translation></message>
    <message id="clockHours" numerus="yes"><translation><numerusform>%n heure</numerusform><numerusform>%n heures</numerusform></translation></message>
    <message id="clockMinutes" numerus="yes"><translation><numerusform>%n minute</numerusform><numerusform>%n minutes</numerusform></translation></message>
    <message id="clockNotSet"><translation>échec ; elle est peut-être toujours inexacte. %1</translation></message>
    <message id="clockNotSetAtGreeting"><translation>L’horloge du tensiomètre n’a pas pu être réglée. %1</translation></message>
    <message id="clockRight"><translation>À l’heure de cet ordinateur</translation></message>
    <message id="clockSet"><translation>terminé. Elle est maintenant à l’heure de cet ordinateur.</translation></message>
    <message id="clockUnset"><translation>Non réglée</translation></message>
    <message id="clockUnsetAsk"><translation>L’horloge du tensiomètre n’est pas réglée ; ses mesures n’ont donc ni date ni heure. La mettre à l’heure de cet ordinateur ?</translation></message>
    <message id="closeWindow"><translation>Fermer</translation></message>
    <message id="colourAction"><translation>Couleur : %1</translation></message>
    <message id="colourBlue"><translation>Bleu</translation></message>
    <message id="colourButton"><translation>Couleur du commentaire</translation></message>
    <message id="colourGrey"><translation>Gris foncé</translation></message>
    <message id="colourHint"><translation>Choisissez la couleur des nouveaux commentaires, et celle du commentaire que vous avez sélectionné d’un clic ou au clavier.</translation></message>
    <message id="colourOrange"><translation>Orange</translation></message>
    <message id="colourPicker"><translation>Couleur du commentaire</translation></message>
    <message id="colourYellow"><translation>Jaune</translation></message>
    <message id="columnComment"><translation>Commentaire</translation></message>
    <message id="columnComments"><translation>Commentaires</translation></message>
    <message id="columnDate"><translation>Date</translation></message>
    <message id="columnDia"><translation>DIA
mmHg</translation></message>
    <message id="columnFile"><translation>Fichier</translation></message>
    <message id="columnMam"><translation>MAM</translation></message>
    <message id="columnPatient"><translation>Patient</translation></message>
    <message id="columnPressure"><translation>%1
mmHg</translation></message>
    <message id="columnPulse"><translation>Pouls
bpm</translation></message>
    <message id="columnReadings"><translation>Mesures</translation></message>
    <message id="columnState"><translation>État</translation></message>
    <message id="columnSys"><translation>SYS
mmHg</translation></message>
    <message id="columnTime"><translation>Heure</translation></message>
    <message id="commentBegin"><translation>Du</translation></message>
    <message id="commentBeginDay"><translation>Premier jour du commentaire</translation></message>
    <message id="commentCount" numerus="yes"><translation><numerusform>%n commentaire</numerusform><numerusform>%n commentaires</numerusform></translation></message>
    <message id="commentDayFar"><translation>« %1 » est dans plus de deux ans : vérifiez l’année. Les dates sont restées inchangées.</translation></message>
    <message id="commentDayHint"><translation>Saisissez une date et appuyez sur Entrée.</translation></message>
    <message id="commentDayOrder"><translation>Le dernier jour d’un commentaire ne peut pas précéder son premier jour. Les dates sont restées inchangées.</translation></message>
    <message id="commentDayUnread"><translation>« %1 » n’est pas une date possible pour un commentaire : saisissez-la sous la forme %2, avec une année à partir de 1900. Les dates sont restées inchangées.</translation></message>
    <message id="commentEmpty"><translation>Le commentaire du %1 n’a pas de texte. Le supprimer ?</translation></message>
    <message id="commentEmptyTitle"><translation>Commentaire sans texte</translation></message>
    <message id="commentEnd"><translation>Au</translation></message>
    <message id="commentEndDay"><translation>Dernier jour du commentaire</translation></message>
    <message id="commentInClipboard"><translation>Le commentaire en cours de saisie à la fermeture du programme n’a pas pu être enregistré ; son texte est maintenant dans le presse-papiers : collez-le là où vous voulez le conserver. %1</translation></message>
    <message id="commentNotSaved"><translation>Le commentaire n’a pas été enregistré ; votre texte est toujours dans son champ. %1</translation></message>
    <message id="commentPanel"><translation>Commentaire</translation></message>
    <message id="commentPatientGone"><translation>Le patient %1 n’est plus dans le fichier de données ; le commentaire que vous étiez en train de saisir ne peut donc pas y être enregistré. Votre texte est maintenant dans le presse-papiers : collez-le là où vous voulez le conserver.</translation></message>
    <message id="commentPosition"><translation>%1 sur %2</translation></message>
    <message id="commentStay"><translation>Le commentaire n’a pas pu être enregistré. %1

Rester ici et garder votre texte pour réessayer ? Si vous répondez « Non », votre texte sera perdu.</translation></message>
    <message id="commentText"><translation>Texte du commentaire</translation></message>
    <message id="commentUnchanged"><translation>Le commentaire n’a pas pu être enregistré. %1</translation></message>
    <message id="ConfirmDelPatient"><translation>Supprimer %1 avec toutes ses mesures et tous ses commentaires ? Édition &gt; Annuler les rétablit tant que ZEL n’est pas fermé.</translation></message>
    <message id="confirmDropNew"><translation>Les données de %1 ne sont pas encore enregistrées. Supprimer ce qui a été saisi ? Cela ne pourra pas être rétabli.</translation></message>
    <message id="confirmPrintSave"><translation>La fiche a été modifiée (%1), et seules les données enregistrées sont imprimées ou exportées. Enregistrer d’abord les modifications ?</translation></message>
    <message id="confirmSendID"><translation>%2 Y écrire l’ID %1 ? Les mesures du tensiomètre appartiendront alors à ce patient.</translation></message>
    <message id="confirmSendSave"><translation>La fiche a été modifiée (%1). Enregistrer les modifications ?</translation></message>
    <message id="copyRows"><translation>Copier</translation></message>
    <message id="correlationView"><translation>Pression systolique en fonction de la diastolique</translation></message>
    <message id="dataChangedElsewhere"><translation>Un autre programme a modifié le fichier de données. Son contenu actuel est affiché.</translation></message>
    <message id="dataFile"><translation>Fichier de données</translation></message>
    <message id="dataFileUnreadable"><translation>Le fichier de données est inutilisable</translation></message>
    <message id="dataPanel"><translation>Données</translation></message>
    <message id="dataUnreadNow"><translation>Le fichier de données est momentanément illisible, et rien ne peut être enregistré. L’affichage montre l’état précédent.</translation></message>
    <message id="DateError"><translation>Vérifiez les dates</translation></message>
    <message id="dayHint"><translation>Saisissez une date et appuyez sur Entrée, ou ouvrez le calendrier avec la flèche.</translation></message>
    <message id="dayOfDownload"><translation>%1, jour d’un transfert</translation></message>
    <message id="daysButtons"><translation>Jours</translation></message>
    <message id="dayUnread"><translation>« %1 » n’est pas une date valable : saisissez-la sous la forme %2, avec une année à partir de 1900.</translation></message>
    <message id="dayUnreadLeft"><translation>« %1 » n’est pas une date valable : saisissez-la sous la forme %2, avec une année à partir de 1900. La date est restée inchangée.</translation></message>
    <message id="dayWithoutReading"><translation>%1, aucune mesure ce jour-là</translation></message>
    <message id="dd mm yyyy"><translation>jj mm aaaa</translation></message>
    <message id="DeleteComment"><translation>Supprimer le commentaire</translation></message>
    <message id="deleteCommentButton"><translation>Supprimer…</translation></message>
    <message id="deleteCommentHint"><translation>Supprimer ce commentaire, après confirmation.</translation></message>
    <message id="DeletePatient"><translation>Supprimer le patient</translation></message>
    <message id="deletePatientButton"><translation>&amp;Supprimer</translation></message>
    <message id="deletePatientHint"><translation>Supprimer ce patient avec toutes ses mesures et tous ses commentaires, après confirmation.</translation></message>
    <message id="deleteReadingsAction"><translation>Supprimer la mesure…</translation></message>
    <message id="deleteReadingsQuestion"><translation>Supprimer la saisie manuelle (%1) ?</translation></message>
    <message id="deleteReadingsTitle"><translation>Supprimer la mesure</translation></message>
    <message id="DeleteTheComment"><translation>Supprimer ce commentaire ? Édition &gt; Annuler le rétablit tant que ZEL n’est pas fermé.</translation></message>
    <message id="demonstrationButton"><translation>Essayer avec un tensiomètre de démonstration</translation></message>
    <message id="demonstrationIsOwnData"><translation>La démonstration conserve ses données dans le dossier %1, mais celui-ci mène à vos propres données. Rien n’a été lancé, afin qu’aucune mesure fictive ne se mêle aux vôtres.</translation></message>
    <message id="demonstrationNoFolder"><translation>La démonstration conserve ses données dans le dossier %1, qui ne peut pas être créé.</translation></message>
    <message id="demonstrationNote"><translation>Ouvre une deuxième fenêtre avec un tensiomètre simulé et des mesures fictives, conservées séparément de vos propres données.</translation></message>
    <message id="demonstrationNotStarted"><translation>La démonstration n’a pas pu être lancée.</translation></message>
    <message id="demonstrationStarted"><translation>La démonstration s’ouvre dans sa propre fenêtre.</translation></message>
    <message id="demonstrationStrip"><translation>Démonstration : le tensiomètre est simulé ; ses mesures sont fictives et conservées séparément de vos propres données.</translation></message>
    <message id="demonstrationTitle"><translation>Démonstration – %1</translation></message>
    <message id="download"><translation>Transfert des mesures</translation></message>
    <message id="downloadAdvice"><translation>Veuillez laisser le tensiomètre branché. Ses mesures seront enregistrées quand toutes seront arrivées.</translation></message>
    <message id="downloadButton"><translation>&amp;Transférer</translation></message>
    <message id="downloadCancel"><translation>Annuler le transfert</translation></message>
    <message id="downloadCancelled"><translation>Transfert annulé. Rien n’a été enregistré ; les mesures sont toujours dans le tensiomètre.</translation></message>
    <message id="downloadDayUnknown"><translation>inconnu</translation></message>
    <message id="downloadEmpty"><translation>Le tensiomètre ne contient aucune mesure.</translation></message>
    <message id="downloadFailed"><translation>Les mesures n’ont pas pu être transférées, et rien n’a été enregistré. Elles sont toujours dans le tensiomètre. %1</translation></message>
    <message id="downloadFetched" numerus="yes"><translation><numerusform>%n mesure transférée</numerusform><numerusform>%n mesures transférées</numerusform></translation></message>
    <message id="downloadHint"><translation>Récupérer les mesures du tensiomètre (Ctrl+D). Le tensiomètre doit être branché et contenir l’ID de ce patient.</translation></message>
    <message id="downloadNew" numerus="yes"><translation><numerusform>%1, dont %n nouvelle</numerusform><numerusform>%1, dont %n nouvelles</numerusform></translation></message>
    <message id="downloadNotFlushed"><translation>Les mesures sont enregistrées, mais il n’est pas certain qu’elles le soient durablement. %1</translation></message>
    <message id="downloadNothingNew"><translation>%1, aucune nouvelle : toutes étaient déjà enregistrées</translation></message>
    <message id="downloadNotReadBack"><translation>%1. Le fichier de données n’a pas pu être relu ensuite ; le tensiomètre n’a donc pas été vidé. %2</translation></message>
    <message id="downloadNotStored"><translation>Les mesures n’ont pas pu être enregistrées. Elles sont toujours dans le tensiomètre. %1</translation></message>
    <message id="downloadOtherMonitor"><translation>Les mesures du tensiomètre appartiennent à un autre ID que celui de ce patient ; rien n’a donc été enregistré. Veuillez brancher le tensiomètre de ce patient et réessayer.</translation></message>
    <message id="downloadProgress"><translation>Progression du transfert</translation></message>
    <message id="downloadsNew"><translation>Nouvelles mesures</translation></message>
    <message id="downloadsNone"><translation>%1 : rien n’a encore été transféré du tensiomètre.</translation></message>
    <message id="downloadsSummary" numerus="yes"><translation><numerusform>%1 : %n transfert. Nouvelles mesures : %2.</numerusform><numerusform>%1 : %n transferts. Nouvelles mesures : %2.</numerusform></translation></message>
    <message id="downloadStarting"><translation>Interrogation du tensiomètre…</translation></message>
    <message id="downloadsTitle"><translation>Transferts</translation></message>
    <message id="downloadStopping"><translation>Arrêt en cours…</translation></message>
    <message id="downloadTypedLeftOut" numerus="yes"><translation><numerusform>%n saisie à la main est désormais exclue (également enregistrée par le tensiomètre)</numerusform><numerusform>%n saisies à la main sont désormais exclues (également enregistrées par le tensiomètre)</numerusform></translation></message>
    <message id="downloadWaiting" numerus="yes"><translation><numerusform>Le tensiomètre n’envoie rien. Le transfert attend encore, %n seconde au plus. Vous pouvez l’annuler : rien n’est perdu.</numerusform><numerusform>Le tensiomètre n’envoie rien. Le transfert attend encore, %n secondes au plus. Vous pouvez l’annuler : rien n’est perdu.</numerusform></translation></message>
    <message id="dropLeftOut"><translation>Seuls des fichiers XML présents sur cet ordinateur peuvent être importés. Ne figurent pas dans la liste : %1</translation></message>
    <message id="DupNewPatient"><translation>Il y a déjà un nouveau patient qui n’est pas encore enregistré : le premier de la liste. Veuillez d’abord l’enregistrer ou le supprimer.</translation></message>
    <message id="EndDate"><translation>Le dernier jour doit suivre le premier, afin que la période couvre au moins deux jours. Les dates sont restées inchangées.</translation></message>
    <message id="endEarlier"><translation>Finir un jour plus tôt</translation></message>
    <message id="endLater"><translation>Finir un jour plus tard</translation></message>
    <message id="eraseFailed"><translation>%1. Les mesures sont bien enregistrées, mais le tensiomètre n’a pas pu être vidé : elles y sont toujours. %2</translation></message>
    <message id="eraseNotSeen"><translation>%1. Les mesures sont bien enregistrées, mais il n’a pas été possible de vérifier que le tensiomètre est vide. %2</translation></message>
    <message id="eraseThem"><translation>&amp;Supprimer</translation></message>
    <message id="exportAll"><translation>Exporter tous les patients en fichiers XML</translation></message>
    <message id="exportAlsoFailed"><translation>Il en va de même pour : %1</translation></message>
    <message id="exportButton"><translation>&amp;Exporter tout…</translation></message>
    <message id="exportCancelled"><translation>L’exportation a ensuite été annulée ; les autres patients n’ont pas été exportés.</translation></message>
    <message id="exportCSV"><translation>Exporter les mesures du patient affiché en fichier CSV</translation></message>
    <message id="exportCSVButton"><translation>Exporter en &amp;CSV…</translation></message>
    <message id="exportCSVFolder"><translation>Choisir le dossier du fichier CSV</translation></message>
    <message id="exportCSVHint"><translation>Écrit les données et les mesures du patient affiché sous forme de tableau, pour un tableur.</translation></message>
    <message id="exportFailed" numerus="yes"><translation><numerusform>%n fichier n’a pas pu être écrit :</numerusform><numerusform>%n fichiers n’ont pas pu être écrits :</numerusform></translation></message>
    <message id="exportFhirFolder"><translation>Choisir le dossier du fichier FHIR</translation></message>
    <message id="exportFolder"><translation>Choisir le dossier des fichiers des patients</translation></message>
    <message id="exportHint"><translation>Écrit un fichier par patient, que ce programme peut réimporter.</translation></message>
    <message id="exporting"><translation>Exportation des patients</translation></message>
    <message id="exportKept" numerus="yes"><translation><numerusform>%n fichier déjà présent a été laissé tel quel.</numerusform><numerusform>%n fichiers déjà présents ont été laissés tels quels.</numerusform></translation></message>
    <message id="ExportMsg" numerus="yes"><translation><numerusform>%n fichier a été écrit dans le dossier %1.</numerusform><numerusform>%n fichiers ont été écrits dans le dossier %1.</numerusform></translation></message>
    <message id="exportNobody"><translation>Il n’y a encore aucun patient à exporter. Ajoutez d’abord un patient ou importez-en un.</translation></message>
    <message id="exportNoPatient"><translation>Aucun patient n’est choisi. Choisissez d’abord le patient à exporter.</translation></message>
    <message id="exportReplace" numerus="yes"><translation><numerusform>Le dossier %1 contient déjà le fichier %2. Le remplacer ? Avec « Non », il reste tel quel.</numerusform><numerusform>Le dossier %1 contient déjà %n de ces fichiers (%2). Les remplacer ? Avec « Non », ils restent tels quels, et seuls les autres sont écrits.</numerusform></translation></message>
    <message id="exportReplaceTitle"><translation>Remplacer des fichiers ?</translation></message>
    <message id="ExportTitle"><translation>Exportation</translation></message>
    <message id="fieldAddress"><translation>Adresse</translation></message>
    <message id="fieldCholestrol"><translation>Cholestérol (mg/dL)</translation></message>
    <message id="fieldDateOfBirth"><translation>Date de naissance</translation></message>
    <message id="fieldDiabetic"><translation>Diabète</translation></message>
    <message id="fieldFamilyHistory"><translation>Antécédents familiaux</translation></message>
    <message id="fieldFamilyName"><translation>Nom</translation></message>
    <message id="fieldGivenNames"><translation>Prénom(s)</translation></message>
    <message id="fieldHeightCm"><translation>Taille (cm)</translation></message>
    <message id="fieldHeightFtIn"><translation>Taille (pieds/pouces)</translation></message>
    <message id="fieldID"><translation>ID</translation></message>
    <message id="fieldMissing"><translation>Veuillez remplir ce champ.</translation></message>
    <message id="fieldPatientNotes"><translation>Notes sur ce patient</translation></message>
    <message id="fieldPhoneEmail"><translation>Téléphone / e-mail</translation></message>
    <message id="fieldRequired"><translation>Obligatoire</translation></message>
    <message id="fieldSex"><translation>Sexe</translation></message>
    <message id="fieldSmoker"><translation>Tabagisme</translation></message>
    <message id="fieldWeightKg"><translation>Poids (kg)</translation></message>
    <message id="fieldWeightLb"><translation>Poids (lb)</translation></message>
    <message id="fileAlreadyHere"><translation>déjà présent</translation></message>
    <message id="fileAlreadyHereHint"><translation>Un patient avec cet ID figure déjà dans la liste ; l’import serait refusé.</translation></message>
    <message id="fileBeingRead"><translation>lecture…</translation></message>
    <message id="fileNotImportable"><translation>non importable</translation></message>
    <message id="fileNotReadable"><translation>illisible</translation></message>
    <message id="fileTooLargeToCount"><translation>plus de 64 Mio : non compté</translation></message>
    <message id="firstCopy"><translation>Une copie de données antérieures existe : %1, avec %2. Si le fichier de données a été perdu, revenez-y.</translation></message>
    <message id="firstCopyButton"><translation>Revenir à une copie…</translation></message>
    <message id="firstStepDownload"><translation>Cliquez sur « Transférer ». Les mesures apparaissent dans le graphique et le tableau.</translation></message>
    <message id="firstStepMonitor"><translation>Branchez le tensiomètre avec son câble USB. S’il ne contient pas encore l’ID de ce patient, cliquez sur « Envoyer l’ID ».</translation></message>
    <message id="firstStepPatient"><translation>Ajoutez le patient dont le tensiomètre mesure la pression artérielle, attribuez-lui un ID et cliquez sur « Enregistrer ».</translation></message>
    <message id="firstSteps"><translation>Pas encore de patients : trois étapes jusqu’aux premières mesures</translation></message>
    <message id="heightRefusedCm"><translation>Veuillez indiquer un nombre compris entre 20 et 300 cm, par exemple 175.</translation></message>
    <message id="heightRefusedFtIn"><translation>Veuillez indiquer les pieds et les pouces séparés par une barre oblique, par exemple 5/9. Les pouces vont jusqu’à 11.</translation></message>
    <message id="highFrom"><translation>Limites à partir desquelles les valeurs sont marquées</translation></message>
    <message id="highFromHint"><translation>Les valeurs égales ou supérieures à ces limites apparaissent en gras avec une marque, ici et sur papier. Le graphique, les statistiques, l’histogramme et la corrélation gardent les limites des réglages.</translation></message>
    <message id="highFromLabel"><translation>Mar&amp;quer à partir de</translation></message>
    <message id="histogramView"><translation>Répartition des valeurs</translation></message>
    <message id="IDNotForMonitor"><translation>L’ID « %1 » ne convient pas au tensiomètre. Un tensiomètre mémorise des ID de 1 à 11 lettres simples, chiffres et signes, sans accents et sans espace au début ni à la fin.</translation></message>
    <message id="IDRefused"><translation>Un ID comporte de 1 à 11 lettres simples, chiffres ou signes, sans accents : un tensiomètre ne peut pas en mémoriser davantage.</translation></message>
    <message id="IDStays"><translation>L’ID ne peut pas être modifié : les mesures et les commentaires y sont rattachés.</translation></message>
    <message id="ihd"><translation>Aryth.</translation></message>
    <message id="importAll"><translation>&amp;Tout</translation></message>
    <message id="importAllFiles"><translation>Choisir tous les fichiers</translation></message>
    <message id="importButton"><translation>&amp;Importer</translation></message>
    <message id="importButtonFiles" numerus="yes"><translation><numerusform>&amp;Importer %n fichier</numerusform><numerusform>&amp;Importer %n fichiers</numerusform></translation></message>
    <message id="importCancelled" numerus="yes"><translation><numerusform>L’importation a ensuite été annulée ; %n fichier n’a pas été lu.</numerusform><numerusform>L’importation a ensuite été annulée ; %n fichiers n’ont pas été lus.</numerusform></translation></message>
    <message id="importDropped"><translation>Fichiers déposés dans la fenêtre</translation></message>
    <message id="importedFiles" numerus="yes"><translation><numerusform>%n fichier a été importé :</numerusform><numerusform>%n fichiers ont été importés :</numerusform></translation></message>
    <message id="importFilesButton"><translation>&amp;Importer…</translation></message>
    <message id="importFolder"><translation>Choisir le dossier d’importation</translation></message>
    <message id="importFolderButton"><translation>Choisir un &amp;dossier…</translation></message>
    <message id="importFrom"><translation>Fichiers de %1</translation></message>
    <message id="importHint"><translation>Ajoute des patients à partir de fichiers XML exportés auparavant.</translation></message>
    <message id="importing"><translation>Importation des patients</translation></message>
    <message id="importList"><translation>Liste des fichiers XML</translation></message>
    <message id="importNone"><translation>Aucun fichier n’a été importé.</translation></message>
    <message id="importRefused" numerus="yes"><translation><numerusform>%n fichier n’a pas été importé :</numerusform><numerusform>%n fichiers n’ont pas été importés :</numerusform></translation></message>
    <message id="importTaken"><translation>%1 : %2, %3, %4</translation></message>
    <message id="importTitle"><translation>Importer des patients</translation></message>
    <message id="includeUndated"><translation>Mesures sans date</translation></message>
    <message id="includeUndatedHint"><translation>Afficher et compter aussi les mesures que le tensiomètre a enregistrées sans date.</translation></message>
    <message id="infoDia"><translation>Diastolique</translation></message>
    <message id="infoLine"><translation>%1 : %2</translation></message>
    <message id="infoPulse"><translation>Pouls</translation></message>
    <message id="infoRemark"><translation>Remarque</translation></message>
    <message id="infoSys"><translation>Systolique</translation></message>
    <message id="keep"><translation>&amp;Conserver</translation></message>
    <message id="keysCloseMonitorBar"><translation>Fermer la barre du tensiomètre</translation></message>
    <message id="keysFirstLast"><translation>Premières, dernières mesures</translation></message>
    <message id="keysFromReading"><translation>De mesure en mesure</translation></message>
    <message id="keysKey"><translation>Touche</translation></message>
    <message id="keysManualHint"><translation>Ouvrir le manuel (F1).</translation></message>
    <message id="keysMovePeriod"><translation>Déplacer la période</translation></message>
    <message id="keysMoveScale"><translation>Déplacer l’échelle</translation></message>
    <message id="keysPlace"><translation>Où</translation></message>
    <message id="keysTitle"><translation>Raccourcis clavier</translation></message>
    <message id="keysToMonitorBar"><translation>Aller à la barre du tensiomètre</translation></message>
    <message id="keysWhat"><translation>Effet</translation></message>
    <message id="keysWholePeriod"><translation>Une période entière en arrière, en avant</translation></message>
    <message id="keysWidenPeriod"><translation>Allonger, raccourcir la période</translation></message>
    <message id="languageNotSaved"><translation>La langue n’a pas été changée ; les autres réglages sont enregistrés. %1</translation></message>
    <message id="lastDownload"><translation>Dernier transfert</translation></message>
    <message id="lastDownloadNone"><translation>aucun</translation></message>
    <message id="leaveOutAction"><translation>Exclure…</translation></message>
    <message id="leaveOutButton"><translation>&amp;Exclure</translation></message>
    <message id="leaveOutExample"><translation>par exemple : brassard mal serré</translation></message>
    <message id="leaveOutExplained"><translation>%1 : à exclure des moyennes, des statistiques et des graphiques. Ce qui est exclu reste dans la liste, barré, avec son motif, et peut être réintégré.</translation></message>
    <message id="leaveOutNoReason"><translation>Veuillez indiquer un motif.</translation></message>
    <message id="leaveOutReason"><translation>&amp;Motif :</translation></message>
    <message id="leaveOutTitle"><translation>Exclure</translation></message>
    <message id="limitsHome"><translation>%1/%2 (à domicile)</translation></message>
    <message id="limitsLow"><translation>%1/%2 (plus strictes)</translation></message>
    <message id="limitsNotKept"><translation>Les limites sont valables jusqu’à la fermeture du programme. Elles n’ont pas pu être conservées pour le prochain démarrage : %1</translation></message>
    <message id="limitsOffice"><translation>%1/%2 (au cabinet)</translation></message>
    <message id="limitsOwn"><translation>limites au choix</translation></message>
    <message id="mainMenu"><translation>Menu principal</translation></message>
    <message id="manualChapters"><translation>Chapitres</translation></message>
    <message id="manualTitle"><translation>Manuel</translation></message>
    <message id="map"><translation>PAM</translation></message>
    <message id="menuAbout"><translation>À &amp;propos de ZEL</translation></message>
    <message id="menuBackups"><translation>&amp;Sauvegardes…</translation></message>
    <message id="menuCopyRows"><translation>Copier les lignes</translation></message>
    <message id="menuDeleteComment"><translation>Supprimer le commentaire</translation></message>
    <message id="menuDeletePatient"><translation>Supprimer le patient</translation></message>
    <message id="menuDownload"><translation>Transférer les mesures</translation></message>
    <message id="menuDownloads"><translation>Transferts…</translation></message>
    <message id="menuEdit"><translation>Éd&amp;ition</translation></message>
    <message id="menuExportFhir"><translation>&amp;Exporter le patient en FHIR…</translation></message>
    <message id="menuFewerDays"><translation>Moins de jours</translation></message>
    <message id="menuFile"><translation>&amp;Fichier</translation></message>
    <message id="menuFindPatient"><translation>Rechercher un patient</translation></message>
    <message id="menuHelp"><translation>&amp;Aide</translation></message>
    <message id="menuKeys"><translation>&amp;Raccourcis clavier</translation></message>
    <message id="menuManual"><translation>&amp;Manuel</translation></message>
    <message id="menuMoreDays"><translation>Plus de jours</translation></message>
    <message id="menuNewPatient"><translation>Nouveau patient</translation></message>
    <message id="menuPrint"><translation>&amp;Imprimer…</translation></message>
    <message id="menuQuit"><translation>&amp;Quitter</translation></message>
    <message id="menuRedo"><translation>&amp;Rétablir</translation></message>
    <message id="menuRedoStep"><translation>&amp;Rétablir : %1</translation></message>
    <message id="menuSavePatient"><translation>Enregistrer le patient</translation></message>
    <message id="menuSavePdf"><translation>Enregistrer en P&amp;DF…</translation></message>
    <message id="menuSelectRows"><translation>Sélectionner toutes les lignes</translation></message>
    <message id="menuSendID"><translation>Envoyer l’ID au tensiomètre</translation></message>
    <message id="menuSettings"><translation>&amp;Réglages…</translation></message>
    <message id="menuTimeChart"><translation>Évolution au cours du temps</translation></message>
    <message id="menuUndo"><translation>&amp;Annuler</translation></message>
    <message id="menuUndoStep"><translation>&amp;Annuler : %1</translation></message>
    <message id="menuView"><translation>Affichage</translation></message>
    <message id="minusDay"><translation>Moins de jours : un de moins au début et à la fin de la période</translation></message>
    <message id="minusDayHint"><translation>Moins de jours : un de moins au début et à la fin de la période (−)</translation></message>
    <message id="mm dd yyyy"><translation>mm jj aaaa</translation></message>
    <message id="monitorChangedMeanwhile"><translation>Le tensiomètre a été débranché ou remplacé entre-temps ; rien n’a été transféré.</translation></message>
    <message id="monitorClock"><translation>Horloge</translation></message>
    <message id="monitorConnected"><translation>Tensiomètre branché</translation></message>
    <message id="monitorConnectedID"><translation>Le tensiomètre contient l’ID %1. Cliquez sur « Transférer » pour récupérer les mesures de ce patient.</translation></message>
    <message id="monitorCounting"><translation>Comptage des mesures du tensiomètre (jusqu’à 20 secondes)…</translation></message>
    <message id="monitorDownloading"><translation>Transfert des mesures…</translation></message>
    <message id="monitorErasing"><translation>Effacement des mesures du tensiomètre…</translation></message>
    <message id="monitorGreeting"><translation>Lecture de l’horloge et de l’ID du tensiomètre…</translation></message>
    <message id="monitorHoldsNone"><translation>Le tensiomètre ne contient aucun ID.</translation></message>
    <message id="monitorHoldsOther"><translation>Le tensiomètre contient l’ID %1, qui n’appartient à aucun patient ici.</translation></message>
    <message id="monitorHoldsPatient"><translation>Le tensiomètre contient l’ID %1 (%2).</translation></message>
    <message id="monitorHoldsReadings" numerus="yes"><translation><numerusform>Il contient %n mesure.</numerusform><numerusform>Il contient %n mesures.</numerusform></translation></message>
    <message id="monitorHoldsUnknown"><translation>L’ID actuellement contenu dans le tensiomètre n’a pas pu être lu.</translation></message>
    <message id="monitorID"><translation>ID</translation></message>
    <message id="monitorIDSimilar"><translation>L’ID %1 de %2 lui ressemble beaucoup, mais c’en est un autre.</translation></message>
    <message id="monitorLooking"><translation>Recherche d’un tensiomètre…</translation></message>
    <message id="monitorNotAnswering"><translation>Branché, mais ne répond pas correctement. %1</translation></message>
    <message id="monitorNotConnected"><translation>Non branché. Reliez le tensiomètre à un port USB.</translation></message>
    <message id="monitorPanel"><translation>Tensiomètre</translation></message>
    <message id="monitorReadingsUnknown"><translation>Le nombre de mesures qu’il contient n’a pas pu être lu.</translation></message>
    <message id="monitorReady"><translation>Branché</translation></message>
    <message id="monitorSendingID"><translation>Écriture de l’ID dans le tensiomètre…</translation></message>
    <message id="monitorSettingClock"><translation>Réglage de l’horloge du tensiomètre…</translation></message>
    <message id="monitorState"><translation>État</translation></message>
    <message id="monitorTrouble"><translation>Branché, mais le dernier échange a échoué ; nouvel essai en cours. %1</translation></message>
    <message id="monitorWithoutID"><translation>Le tensiomètre branché ne contient pas d’ID. Choisissez un patient et cliquez sur « Envoyer l’ID » pour lui attribuer ce tensiomètre.</translation></message>
    <message id="newIDFromDevice"><translation>Le tensiomètre contient l’ID %1, qui n’appartient à aucun patient ici. Ajoutez un patient avec cet ID, ou choisissez un patient et cliquez sur « Envoyer l’ID ».</translation></message>
    <message id="NewPatient"><translation>Nouveau patient</translation></message>
    <message id="newPatientButton"><translation>&amp;Nouveau</translation></message>
    <message id="newPatientHint"><translation>Ajouter un nouveau patient (Ctrl+N).</translation></message>
    <message id="newPatientWithID"><translation>Nouveau patient avec cet ID</translation></message>
    <message id="newReadingAction"><translation>Nouvelle mesure…</translation></message>
    <message id="newReadingHint"><translation>Saisir une mesure qu’aucun de vos tensiomètres n’a enregistrée (Ctrl+N).</translation></message>
    <message id="newReadingTitle"><translation>Nouvelle mesure</translation></message>
    <message id="nextComment"><translation>Commentaire suivant</translation></message>
    <message id="nextHint"><translation>Page suivante (Page suiv.)</translation></message>
    <message id="nextPage"><translation>Page suivante</translation></message>
    <message id="no"><translation>&amp;Non</translation></message>
    <message id="noCommentPage"><translation>Aucun commentaire</translation></message>
    <message id="noCommentPageAdvice"><translation>Ce patient n’a pas encore de commentaires. Ils se placent sur le graphique.</translation></message>
    <message id="noComments"><translation>Pas encore de commentaires. Les commentaires se placent sur le graphique.</translation></message>
    <message id="NoData"><translation>Pas encore de mesures</translation></message>
    <message id="NoDataAdvice"><translation>Branchez le tensiomètre, choisissez le patient sur la page Patients et cliquez sur « Transférer », ou saisissez une mesure avec Ctrl+N.</translation></message>
    <message id="noDisplay"><translation>il n’y a pas d’écran sur lequel ouvrir une fenêtre. Lancez zel dans une session graphique, ou utilisez ses commandes qui n’ont pas besoin de fenêtre : voir zel --help</translation></message>
    <message id="noFiles"><translation>Aucun fichier XML dans ce dossier</translation></message>
    <message id="noFilesAdvice"><translation>Choisissez le dossier dans lequel les patients ont été exportés.</translation></message>
    <message id="noHome"><translation>la variable d’environnement HOME n’indique aucun dossier (chemin absolu) ; il n’y a donc pas d’emplacement pour les données.</translation></message>
    <message id="noID"><translation>aucun</translation></message>
    <message id="none"><translation>aucun</translation></message>
    <message id="noneInPeriod"><translation>Aucune mesure sur cette période</translation></message>
    <message id="noneInPeriodAdvice"><translation>Choisissez d’autres dates ci-dessus, ou « Tout » et « Journée entière ». Les mesures sans date s’affichent si « Mesures sans date » est également coché.</translation></message>
    <message id="nonePrintedAdvice"><translation>Fermez cette fenêtre et choisissez d’autres dates sur la page Mesures ou Graphique, ou choisissez-y « Tout » et « Journée entière ». Les mesures sans date sont imprimées si « Mesures sans date » est coché.</translation></message>
    <message id="noPage"><translation>Aucune page</translation></message>
    <message id="noPatientFound"><translation>Aucun patient trouvé</translation></message>
    <message id="noPatientFoundAdvice"><translation>Aucun nom ni aucun ID ne contient le texte recherché.</translation></message>
    <message id="noPatientSelected"><translation>Aucun patient choisi</translation></message>
    <message id="noPrinterNote"><translation>Aucune imprimante n’est installée sur cet ordinateur. Vous pouvez enregistrer les pages en PDF, ou installer une imprimante dans les réglages du système.</translation></message>
    <message id="NoPrnter"><translation>Aucune imprimante</translation></message>
    <message id="NoPrnterMsg"><translation>Aucune imprimante n’est installée sur cet ordinateur ; rien ne peut donc être imprimé. Veuillez en installer une dans les réglages du système et réessayer, ou enregistrer les pages en PDF.</translation></message>
    <message id="notes"><translation>Notes</translation></message>
    <message id="notKnown"><translation>–</translation></message>
    <message id="noValue"><translation>n.a.</translation></message>
    <message id="ok"><translation>&amp;OK</translation></message>
    <message id="openCalendar"><translation>Ouvrir le calendrier</translation></message>
    <message id="ownDia"><translation>Limite diastolique au choix en mmHg, 0 pour aucune</translation></message>
    <message id="ownSys"><translation>Limite systolique au choix en mmHg, 0 pour aucune</translation></message>
    <message id="pad"><translation>Aryth.</translation></message>
    <message id="pageChart"><translation>Graphique</translation></message>
    <message id="pagePatients"><translation>Patients</translation></message>
    <message id="pageReadings"><translation>Mesures</translation></message>
    <message id="pageTabs"><translation>Pages</translation></message>
    <message id="pageText"><translation>%1/%2</translation></message>
    <message id="patientCount" numerus="yes"><translation><numerusform>%n patient</numerusform><numerusform>%n patients</numerusform></translation></message>
    <message id="patientDeleted"><translation>%1 : fiche supprimée.</translation></message>
    <message id="patientEditor"><translation>Fiche du patient</translation></message>
    <message id="patientGone"><translation>%1 n’est plus dans le fichier de données : un autre programme a supprimé ce patient, ou une action a été annulée ici. Votre saisie est toujours là, et « Enregistrer » ajoute de nouveau le patient.</translation></message>
    <message id="patientHeading"><translation>%1 %2 (ID %3)</translation></message>
    <message id="patientID"><translation>ID</translation></message>
    <message id="patientIDOnly"><translation>ID %1</translation></message>
    <message id="patientIDTwice"><translation>Le fichier de données contient plusieurs patients ayant l’ID %1. Il est impossible de les distinguer ; aucun d’eux n’est donc modifié ni supprimé.</translation></message>
    <message id="patientList"><translation>Liste des patients</translation></message>
    <message id="patientName"><translation>Nom</translation></message>
    <message id="patientNameless"><translation>Patient sans nom</translation></message>
    <message id="patientPartlySaved"><translation>Certaines données de la fiche n’ont pas pu être enregistrées (%1) : le fichier de données ne prévoit pas d’emplacement pour elles. Elles figurent toujours dans les champs.</translation></message>
    <message id="patientRefused"><translation>Rien n’a encore été enregistré. Veuillez corriger ce qui est marqué :
%1</translation></message>
    <message id="patientReplaced"><translation>%1 n’est plus dans le fichier de données : un autre programme a supprimé ce patient. Un autre patient est maintenant affiché.</translation></message>
    <message id="patientSaved"><translation>%1 : fiche enregistrée.</translation></message>
    <message id="patientsDetail"><translation>Choisissez un patient, ou ajoutez-en un nouveau.</translation></message>
    <message id="patientsInputFields"><translation>Le nom, le prénom et l’ID sont nécessaires. Rien n’a encore été enregistré ; veuillez remplir ce qui est marqué.</translation></message>
    <message id="patientTotal"><translation>Patients</translation></message>
    <message id="pdfChart"><translation>graphique</translation></message>
    <message id="pdfComments"><translation>commentaires</translation></message>
    <message id="pdfCorrelation"><translation>corrélation</translation></message>
    <message id="pdfFiles"><translation>Fichiers PDF (*.pdf)</translation></message>
    <message id="pdfHistogram"><translation>répartition</translation></message>
    <message id="pdfProfile"><translation>fiche du patient</translation></message>
    <message id="pdfReadings"><translation>mesures</translation></message>
    <message id="pdfStatistics"><translation>statistiques et mesures</translation></message>
    <message id="pdfSummary"><translation>synthèse</translation></message>
    <message id="pdfTrend"><translation>tendance</translation></message>
    <message id="periodBar"><translation>Période et mesures à afficher</translation></message>
    <message id="periodBegin"><translation>Premier jour de la période</translation></message>
    <message id="periodEnd"><translation>Dernier jour de la période</translation></message>
    <message id="periodFrom"><translation>&amp;Du</translation></message>
    <message id="periodTo"><translation>a&amp;u</translation></message>
    <message id="personalData"><translation>Données personnelles</translation></message>
    <message id="pp"><translation>PP</translation></message>
    <message id="previewView"><translation>Aperçu de la page</translation></message>
    <message id="previousComment"><translation>Commentaire précédent</translation></message>
    <message id="previousHint"><translation>Page précédente (Page préc.)</translation></message>
    <message id="previousPage"><translation>Page précédente</translation></message>
    <message id="print"><translation>Imprimer</translation></message>
    <message id="printAddAddress"><translation>Imprimer les coordonnées du praticien au bas de chaque page</translation></message>
    <message id="printButton"><translation>&amp;Imprimer</translation></message>
    <message id="printDetails"><translation>&amp;Coordonnées du praticien</translation></message>
    <message id="printDetailsHint"><translation>Imprime au bas de chaque page les lignes du praticien qui figurent dans les réglages.</translation></message>
    <message id="printDone"><translation>Transmis à l’imprimante %1</translation></message>
    <message id="printer"><translation>Imprimante</translation></message>
    <message id="printerButton"><translation>Imp&amp;rimante…</translation></message>
    <message id="printerGone"><translation>L’imprimante « %1 » n’est plus disponible ; rien n’a donc été imprimé. Veuillez vérifier qu’elle est allumée et connectée, ou en choisir une autre.</translation></message>
    <message id="printerLabel"><translation>Imp&amp;rimante</translation></message>
    <message id="printerShown"><translation>Imprimante : %1</translation></message>
    <message id="printFailed"><translation>Les pages n’ont pas pu être transmises en entier à l’imprimante « %1 ». L’impression a été annulée, et rien n’est imprimé. Veuillez vérifier la file d’attente et que le disque n’est pas plein, puis réessayer.</translation></message>
    <message id="printNoData"><translation>Il n’y a rien à imprimer : cette section ne contient aucune donnée pour ce patient et cette période.</translation></message>
    <message id="printNoPatient"><translation>Il n’y a pas de patient dont le rapport puisse être imprimé. Veuillez en choisir un, ou d’abord en ajouter un nouveau et l’enregistrer.</translation></message>
    <message id="printOption"><translation>Section à imprimer</translation></message>
    <message id="printOptionLabel"><translation>&amp;Section</translation></message>
    <message id="privacyAsked"><translation>D’autres utilisateurs de cet ordinateur peuvent lire %1.

Faut-il leur en retirer l’accès ? Seuls les droits d’accès du fichier de données, de son dossier et de ses copies sont modifiés.</translation></message>
    <message id="privacyAskedMore"><translation>%1 et %2 de plus</translation></message>
    <message id="privacyMended"><translation>Désormais, personne d’autre que vous ne peut lire le fichier de données ni ses copies.</translation></message>
    <message id="privacyTitle"><translation>D’autres peuvent lire les données des patients</translation></message>
    <message id="programName"><translation>ZEL</translation></message>
    <message id="programPurpose"><translation>Les mesures de pression artérielle, du tensiomètre au dossier</translation></message>
    <message id="programVersion"><translation>Version %1</translation></message>
    <message id="ProgressPatientInfo"><translation>%1 %2 (ID %3)</translation></message>
    <message id="ProgressProcessInfo"><translation>Mesures : %1 sur %2</translation></message>
    <message id="pulseChart"><translation>Pouls au cours du temps, avec les commentaires</translation></message>
    <message id="pulseScroller"><translation>Déplacer l’échelle du pouls</translation></message>
    <message id="readingDay"><translation>Date</translation></message>
    <message id="readingInWords"><translation>%1 %2, %3/%4, pouls %5</translation></message>
    <message id="readingList"><translation>Liste des mesures</translation></message>
    <message id="readingsCounted"><translation>%1. Comptées : %2</translation></message>
    <message id="readingsFromTo"><translation>%1, du %2 au %3</translation></message>
    <message id="readingsListed"><translation>%1. Affichées : %2</translation></message>
    <message id="readingsNoted"><translation>%1. %2</translation></message>
    <message id="readingsOn"><translation>%1, le %2</translation></message>
    <message id="readingStored"><translation>Enregistrée : %1.</translation></message>
    <message id="readingStoredOtherHalf"><translation>Enregistrée, hors des heures affichées : %1.</translation></message>
    <message id="readingStoredOutside"><translation>Enregistrée, hors des jours affichés : %1.</translation></message>
    <message id="readingTime"><translation>Heure</translation></message>
    <message id="readingTotal"><translation>Mesures de ce patient</translation></message>
    <message id="redoFailed"><translation>L’action « %1 » n’a pas été rétablie. %2</translation></message>
    <message id="redone"><translation>Rétabli : %1</translation></message>
    <message id="requiredNote"><translation>* champ obligatoire</translation></message>
    <message id="riskFactors"><translation>Facteurs de risque</translation></message>
    <message id="sameID"><translation>L’ID %1 appartient à un autre patient de la liste. Rien n’a encore été enregistré ; veuillez choisir un autre ID.</translation></message>
    <message id="sameIDTitle"><translation>ID déjà attribué</translation></message>
    <message id="savedPdf"><translation>Enregistré sous %1</translation></message>
    <message id="saveIt"><translation>&amp;Enregistrer</translation></message>
    <message id="saveNot"><translation>&amp;Ne pas enregistrer</translation></message>
    <message id="SavePatient"><translation>Enregistrer le patient</translation></message>
    <message id="savePatientButton"><translation>&amp;Enregistrer</translation></message>
    <message id="savePatientHint"><translation>Enregistrer la saisie (Ctrl+S).</translation></message>
    <message id="savePdf"><translation>Enregistrer en PDF</translation></message>
    <message id="savePdfButton"><translation>Enregistrer en PD&amp;F…</translation></message>
    <message id="saveReading"><translation>&amp;Enregistrer</translation></message>
    <message id="searchPatients"><translation>Rechercher (nom ou ID)</translation></message>
    <message id="searchPatientsHint"><translation>N’afficher que les patients dont le nom ou l’ID contient ce texte (Ctrl+F).</translation></message>
    <message id="selectAllRows"><translation>Tout sélectionner</translation></message>
    <message id="sendClock"><translation>Mettre l’horloge du tensiomètre à l’heure de cet ordinateur</translation></message>
    <message id="sendClockBusy"><translation>Réglage de l’horloge…</translation></message>
    <message id="sendClockButton"><translation>Régler l’horlo&amp;ge</translation></message>
    <message id="sendID"><translation>Envoyer l’ID au tensiomètre</translation></message>
    <message id="sendIDButton"><translation>En&amp;voyer l’ID</translation></message>
    <message id="SendIDDataMsg" numerus="yes"><translation><numerusform>Il contient encore %n mesure. Avant d’y écrire l’ID %1 : conserver cette mesure pour le nouvel ID, ou la supprimer définitivement du tensiomètre ?</numerusform><numerusform>Il contient encore %n mesures. Avant d’y écrire l’ID %1 : conserver ces mesures pour le nouvel ID, ou les supprimer définitivement du tensiomètre ?</numerusform></translation></message>
    <message id="SendIDDataTitle"><translation>Mesures dans le tensiomètre</translation></message>
    <message id="sendIDFailed"><translation>L’envoi de l’ID au tensiomètre a échoué. %1</translation></message>
    <message id="sendIDFailedErased"><translation>Les mesures ont été supprimées du tensiomètre, mais l’envoi de l’ID a échoué. %1</translation></message>
    <message id="sendIDHint"><translation>Écrire l’ID de ce patient dans le tensiomètre branché, qui en contient un autre ou aucun.</translation></message>
    <message id="settingCancel"><translation>Fermer sans enregistrer</translation></message>
    <message id="settingData"><translation>Données des patients</translation></message>
    <message id="settingDate"><translation>Format de date</translation></message>
    <message id="settingDateLabel"><translation>&amp;Format de date</translation></message>
    <message id="settingDia"><translation>Limite diastolique en mmHg</translation></message>
    <message id="settingDiaLabel"><translation>&amp;Diastolique</translation></message>
    <message id="settingDisplay"><translation>Affichage</translation></message>
    <message id="settingErase"><translation>Vider le tensiomètre après chaque transfert</translation></message>
    <message id="settingEraseButton"><translation>&amp;Vider le tensiomètre après transfert</translation></message>
    <message id="settingEraseHint"><translation>Les mesures sont supprimées du tensiomètre une fois qu’elles sont toutes bien enregistrées ici.</translation></message>
    <message id="settingLanguage"><translation>Langue</translation></message>
    <message id="settingLanguageLabel"><translation>L&amp;angue</translation></message>
    <message id="settingLanguageSystem"><translation>Comme le système</translation></message>
    <message id="settingLanguageWhen"><translation>La langue choisie s’applique au prochain démarrage.</translation></message>
    <message id="settingLimits"><translation>Limites de pression artérielle</translation></message>
    <message id="settingMAP"><translation>Afficher la pression artérielle moyenne</translation></message>
    <message id="settingMAPButton"><translation>Pression artérielle &amp;moyenne (PAM)</translation></message>
    <message id="settingOK"><translation>Enregistrer les réglages</translation></message>
    <message id="settingPhysician"><translation>Praticien, pour le bas des rapports imprimés</translation></message>
    <message id="settingPhysicianTitle"><translation>Praticien</translation></message>
    <message id="settingPhysicianUse"><translation>Figure au bas des rapports imprimés, si c’est demandé dans la fenêtre d’impression.</translation></message>
    <message id="settingPP"><translation>Afficher la pression pulsée</translation></message>
    <message id="settingPPButton"><translation>&amp;Pression pulsée (PP)</translation></message>
    <message id="settingPPorMAP"><translation>Afficher pour chaque mesure</translation></message>
    <message id="settings"><translation>Réglages</translation></message>
    <message id="settingsButton"><translation>Réglages</translation></message>
    <message id="settingsHint"><translation>Réglages, exportation et importation (Ctrl+,)</translation></message>
    <message id="settingsNotSaved"><translation>Les réglages n’ont pas été enregistrés. %1</translation></message>
    <message id="settingsPartlySaved"><translation>Certains réglages n’ont pas pu être enregistrés : le fichier de données ne prévoit pas d’emplacement pour eux.</translation></message>
    <message id="settingSys"><translation>Limite systolique en mmHg</translation></message>
    <message id="settingSysLabel"><translation>&amp;Systolique</translation></message>
    <message id="settingTime"><translation>Format d’heure</translation></message>
    <message id="settingTimeLabel"><translation>Format d’&amp;heure</translation></message>
    <message id="settingUnits"><translation>Unités de poids et de taille</translation></message>
    <message id="settingUnitsLabel"><translation>&amp;Unités</translation></message>
    <message id="settingWHO"><translation>Utiliser les limites de l’Organisation mondiale de la santé</translation></message>
    <message id="settingWHOButton"><translation>&amp;Limites OMS (140/90)</translation></message>
    <message id="settingWHOHint"><translation>Règle les deux limites sur celles de l’Organisation mondiale de la santé : 140 et 90 mmHg.</translation></message>
    <message id="show afib readings"><translation>Afficher FA</translation></message>
    <message id="show ihd readings"><translation>Afficher aryth.</translation></message>
    <message id="show pad readings"><translation>Afficher aryth.</translation></message>
    <message id="showCorrelation"><translation>Corrélation</translation></message>
    <message id="showGraph"><translation>Graphique</translation></message>
    <message id="showHistogram"><translation>Histogramme</translation></message>
    <message id="showMam"><translation>Afficher MAM</translation></message>
    <message id="showTrend"><translation>Tendance</translation></message>
    <message id="sideButton"><translation>Statistiques et commentaires</translation></message>
    <message id="sideColumn"><translation>Tensiomètre et données</translation></message>
    <message id="sideHint"><translation>Afficher ou masquer les statistiques et les commentaires à côté des mesures.</translation></message>
    <message id="spokenDia"><translation>Pression diastolique, mmHg</translation></message>
    <message id="spokenFrequent"><translation>%1 : le plus souvent de %2 à %3, dans %4 pour cent des mesures.</translation></message>
    <message id="spokenMap"><translation>Pression artérielle moyenne, mmHg</translation></message>
    <message id="spokenMeasure"><translation>%1 : moyenne %2, minimum %3, maximum %4.</translation></message>
    <message id="spokenPP"><translation>Pression pulsée, mmHg</translation></message>
    <message id="spokenPulse"><translation>Pouls, battements par minute</translation></message>
    <message id="spokenSys"><translation>Pression systolique, mmHg</translation></message>
    <message id="statisticAll"><translation>Tous les jours avec mesures</translation></message>
    <message id="statisticAllHint"><translation>Prendre toute la durée, de la première à la dernière mesure. Pour n’en prendre qu’une partie, choisissez d’autres dates ci-dessus.</translation></message>
    <message id="statisticPanel"><translation>Statistiques</translation></message>
    <message id="statisticWholeDay"><translation>Toutes heures confondues : %1</translation></message>
    <message id="statusBroken"><translation>Tensiomètre branché, liaison défaillante</translation></message>
    <message id="statusConnected"><translation>Tensiomètre branché</translation></message>
    <message id="statusDamaged"><translation>Tensiomètre branché, réponses endommagées</translation></message>
    <message id="statusLocked"><translation>Tensiomètre branché, accès non autorisé</translation></message>
    <message id="statusNotConnected"><translation>Aucun tensiomètre</translation></message>
    <message id="statusRefusing"><translation>Tensiomètre branché, commandes refusées</translation></message>
    <message id="statusSilent"><translation>Tensiomètre branché, sans réponse</translation></message>
    <message id="stepProgress"><translation>Fichiers : %1 sur %2</translation></message>
    <message id="storedNotReadBack"><translation>La modification est enregistrée, mais le fichier de données n’a pas pu être relu ensuite. %1</translation></message>
    <message id="Synchronization"><translation>Régler l’horloge du tensiomètre ?</translation></message>
    <message id="synctimeAsk"><translation>L’horloge du tensiomètre a %1. La mettre à l’heure de cet ordinateur, pour que les nouvelles mesures reçoivent la bonne date et la bonne heure ?</translation></message>
    <message id="tabChart"><translation>&amp;Graphique</translation></message>
    <message id="tabHint"><translation>%1 (Ctrl+%2)</translation></message>
    <message id="tabPatients"><translation>&amp;Patients</translation></message>
    <message id="tabReadings"><translation>&amp;Mesures</translation></message>
    <message id="takeInAction"><translation>Réintégrer</translation></message>
    <message id="timeScroller"><translation>Déplacer la période parmi les mesures</translation></message>
    <message id="timeScrollerHint"><translation>Déplacer la période parmi les mesures. La molette de la souris au-dessus du graphique fait de même ; avec Ctrl, tournée vers l’avant, elle montre moins de jours, de plus près ; tournée vers vous, davantage de jours.</translation></message>
    <message id="TimeSync"><translation>Horloge du tensiomètre</translation></message>
    <message id="TimeSyncMsg"><translation>Réglage de l’horloge du tensiomètre : %1</translation></message>
    <message id="timeUnread"><translation>« %1 » ne peut pas être lu comme une heure : saisissez-la comme %2 ou %3.</translation></message>
    <message id="trendApart"><translation>Matins et soirs séparés</translation></message>
    <message id="trendApartHint"><translation>Tracer séparément les mesures avant midi et celles à partir de midi.</translation></message>
    <message id="trendApartNeedsDay"><translation>Seule une moitié de la journée est affichée : il n’y a rien à séparer. Choisissez d’abord « Journée entière » ; cette case pourra alors être cochée.</translation></message>
    <message id="trendDays"><translation>du %1 au %2</translation></message>
    <message id="trendFigures"><translation>%1 (de %2 à %3)</translation></message>
    <message id="trendInfoEvening"><translation>%1, à partir de midi</translation></message>
    <message id="trendInfoMorning"><translation>%1, avant midi</translation></message>
    <message id="trendKeys"><translation>%1, %2. Les flèches gauche et droite montrent les valeurs point par point, Origine et Fin celles du premier et du dernier.</translation></message>
    <message id="trendPeriod"><translation>Jours</translation></message>
    <message id="trendReadings"><translation>Mesures</translation></message>
    <message id="trendView"><translation>Tendance des pressions systolique et diastolique et du pouls</translation></message>
    <message id="undoDropped"><translation>

Cette action est donc désormais ignorée ; les autres ne sont pas concernées.</translation></message>
    <message id="undoFailed"><translation>L’action « %1 » n’a pas été annulée. %2</translation></message>
    <message id="undone"><translation>Annulé : %1</translation></message>
    <message id="unitMmHg"><translation>mmHg</translation></message>
    <message id="unitPulse"><translation>battements par minute</translation></message>
    <message id="unsavedDelete"><translation>Supprimer cette saisie (%1) ? Sinon, la question vous sera reposée au prochain démarrage.</translation></message>
    <message id="unsavedFound"><translation>Une saisie en cours à la fermeture du programme n’a pas pu être enregistrée (%1). La reprendre maintenant ?</translation></message>
    <message id="unsavedTitle"><translation>Pas encore enregistré</translation></message>
    <message id="usualColumns"><translation>Colonnes et ordre habituels</translation></message>
    <message id="valueHigh"><translation>%1, atteint ou dépasse la limite</translation></message>
    <message id="valueMmHg"><translation>%1 mmHg</translation></message>
    <message id="valuePulse"><translation>%1 bpm</translation></message>
    <message id="valueWithUnit"><translation>%1, %2</translation></message>
    <message id="viewAll"><translation>&amp;Tout</translation></message>
    <message id="viewAllHint"><translation>Toutes les mesures, du premier au dernier jour.</translation></message>
    <message id="viewAM"><translation>Mati&amp;n</translation></message>
    <message id="viewAMHint"><translation>Les mesures avant midi, pour les jours affichés.</translation></message>
    <message id="viewBoth"><translation>&amp;Journée entière</translation></message>
    <message id="viewBothHint"><translation>Les mesures de la journée entière, pour les jours affichés.</translation></message>
    <message id="viewChoiceNeeded"><translation>Les mesures sans date n’appartiennent à aucun jour et ne s’affichent qu’avec « Tout ». Choisissez d’abord « Tout » ; cette case pourra alors être cochée.</translation></message>
    <message id="viewDays"><translation>Jours affichés</translation></message>
    <message id="viewHalf"><translation>Heures affichées</translation></message>
    <message id="viewLast"><translation>%1 jours</translation></message>
    <message id="viewLastHint"><translation>Les %1 jours jusqu’au dernier comportant une mesure.</translation></message>
    <message id="viewLastName"><translation>%1 derniers jours</translation></message>
    <message id="viewPM"><translation>Soir</translation></message>
    <message id="viewPMHint"><translation>Les mesures à partir de midi, pour les jours affichés.</translation></message>
    <message id="viewTabs"><translation>Vues</translation></message>
    <message id="viewWeek"><translation>&amp;Semaine de mesure</translation></message>
    <message id="viewWeekHint"><translation>Les sept jours dont la moyenne est celle de la semaine de mesure.</translation></message>
    <message id="weekBelow"><translation>Sous le seuil de %1 (au dixième : %2)</translation></message>
    <message id="weekDays" numerus="yes"><translation><numerusform>%1 sur %n jour</numerusform><numerusform>%1 sur %n jours</numerusform></translation></message>
    <message id="weekEnd"><translation>Dernier jour de la semaine de mesure</translation></message>
    <message id="weekEvenings"><translation>Soir %1</translation></message>
    <message id="weekExcluded" numerus="yes"><translation><numerusform>%n exclue</numerusform><numerusform>%n exclues</numerusform></translation></message>
    <message id="weekExcludedLater" numerus="yes"><translation><numerusform>%n de jours suivants exclue</numerusform><numerusform>%n de jours suivants exclues</numerusform></translation></message>
    <message id="weekFirstDay" numerus="yes"><translation><numerusform>%n du premier jour non comptée</numerusform><numerusform>%n du premier jour non comptées</numerusform></translation></message>
    <message id="weekMean"><translation>%1 mmHg</translation></message>
    <message id="weekMeanHint"><translation>Moyenne %1/%2 mmHg, pouls %3</translation></message>
    <message id="weekMissing"><translation>Incomplète, il manque %1</translation></message>
    <message id="weekMornings"><translation>Matin %1</translation></message>
    <message id="weekNoMean"><translation>Aucune moyenne</translation></message>
    <message id="weekOtherZone" numerus="yes"><translation><numerusform>%n mesure a été enregistrée dans un autre fuseau horaire ; son heure est celle de cet ordinateur</numerusform><numerusform>%n mesures ont été enregistrées dans un autre fuseau horaire ; les heures sont celles de cet ordinateur</numerusform></translation></message>
    <message id="weekPanel"><translation>Semaine de mesure</translation></message>
    <message id="weekPulse"><translation>pouls %1</translation></message>
    <message id="weekReached"><translation>Seuil de %1 atteint (au dixième : %2)</translation></message>
    <message id="weekReadings" numerus="yes"><translation><numerusform>%n mesure</numerusform><numerusform>%n mesures</numerusform></translation></message>
    <message id="weekRule"><translation>Règle de la moyenne</translation></message>
    <message id="weekRuleAha"><translation>AHA</translation></message>
    <message id="weekRuleEsh"><translation>ESH</translation></message>
    <message id="weekRuleHint"><translation>ESH : premier jour non compté, 12 mesures sur au moins 2 autres jours
NICE : premier jour non compté, 2 mesures chaque matin et chaque soir d’au moins 3 autres jours
AHA : 12 mesures sur au moins 3 jours</translation></message>
    <message id="weekRuleNice"><translation>NICE</translation></message>
    <message id="weekTo"><translation>au</translation></message>
    <message id="weekUnmeasured" numerus="yes"><translation><numerusform>%n sans valeurs de pression non comptée</numerusform><numerusform>%n sans valeurs de pression non comptées</numerusform></translation></message>
    <message id="weightRefusedKg"><translation>Veuillez indiquer un nombre compris entre 0,2 et 1000 kg, par exemple 72,5.</translation></message>
    <message id="weightRefusedLb"><translation>Veuillez indiquer un nombre compris entre 0,5 et 2200 lb, par exemple 160,5.</translation></message>
    <message id="windowNotForgotten"><translation>Le fichier %1 conserve l’état de la fenêtre. Il n’a pas pu être supprimé.</translation></message>
    <message id="windowNotReset"><translation>ZEL est déjà ouvert pour ce fichier de données ; sa fenêtre a été mise au premier plan. Fermez-la, puis relancez ZEL avec --reset-view.</translation></message>
    <message id="windowShown"><translation>ZEL est déjà ouvert pour ce fichier de données ; sa fenêtre a été mise au premier plan.</translation></message>
    <message id="windowSilent"><translation>ZEL est déjà ouvert pour ce fichier de données, mais sa fenêtre ne répond pas. Elle attend peut-être un disque lent ou une imprimante lente, ou elle est bloquée : si rien ne se passe d’ici une minute, forcez l’arrêt de ZEL dans le moniteur système de votre ordinateur.

Ouvrir une autre fenêtre à côté ? C’est sans risque : ce que les deux enregistrent est conservé.</translation></message>
    <message id="yes"><translation>&amp;Oui</translation></message>
    <message id="yyyy mm dd"><translation>aaaa mm jj</translation></message>
</context>
<context>
    <name>chart</name>
    <message id="abovePoints" numerus="yes"><translation><numerusform>%n point dépasse l’échelle par le haut</numerusform><numerusform>%n points dépassent l’échelle par le haut</numerusform></translation></message>
    <message id="aboveScale" numerus="yes"><translation><numerusform>%n mesure au-dessus de l’échelle</numerusform><numerusform>%n mesures au-dessus de l’échelle</numerusform></translation></message>
    <message id="aboveScaleShort"><translation>%1 au-dessus</translation></message>
    <message id="average"><translation>Moyenne</translation></message>
    <message id="belowPoints" numerus="yes"><translation><numerusform>%n point dépasse l’échelle par le bas</numerusform><numerusform>%n points dépassent l’échelle par le bas</numerusform></translation></message>
    <message id="belowScale" numerus="yes"><translation><numerusform>%n mesure au-dessous de l’échelle</numerusform><numerusform>%n mesures au-dessous de l’échelle</numerusform></translation></message>
    <message id="belowScaleShort"><translation>%1 au-dessous</translation></message>
    <message id="chartExcluded" numerus="yes"><translation><numerusform>○ %n exclue</numerusform><numerusform>○ %n exclues</numerusform></translation></message>
    <message id="dia"><translation>DIA</translation></message>
    <message id="dia too high"><translation>Diastolique trop élevée</translation></message>
    <message id="evening"><translation>Soir</translation></message>
    <message id="max"><translation>Max</translation></message>
    <message id="min"><translation>Min</translation></message>
    <message id="mmHg"><translation>mmHg</translation></message>
    <message id="monthOfYear"><translation>%1 %2</translation></message>
    <message id="morning"><translation>Matin</translation></message>
    <message id="noEveningReadings"><translation>Aucune mesure à partir de midi sur cette période</translation></message>
    <message id="noMorningReadings"><translation>Aucune mesure avant midi sur cette période</translation></message>
    <message id="noReadingsInPeriod"><translation>Aucune mesure sur cette période</translation></message>
    <message id="normal"><translation>Normale</translation></message>
    <message id="P/min"><translation>bpm</translation></message>
    <message id="pulse"><translation>Pouls</translation></message>
    <message id="sys"><translation>SYS</translation></message>
    <message id="sys and dia too high"><translation>Les deux trop élevées</translation></message>
    <message id="sys too high"><translation>Systolique trop élevée</translation></message>
    <message id="trendBand"><translation>%1 ; bande : du 10e au 90e percentile, ou toutes les mesures s’il y en a moins de 5</translation></message>
    <message id="trendBandAll"><translation>%1 ; bande : toutes les mesures</translation></message>
    <message id="trendBandShort"><translation>%1 ; bande : du 10e au 90e percentile</translation></message>
    <message id="trendCoveredComments" numerus="yes"><translation><numerusform>%n commentaire en recouvre un autre</numerusform><numerusform>%n commentaires en recouvrent d’autres</numerusform></translation></message>
    <message id="trendDay"><translation>Médiane de chaque jour</translation></message>
    <message id="trendEvening"><translation>%1 soir</translation></message>
    <message id="trendLinked"><translation>%1 ; pointillés : aucune mesure entre les deux</translation></message>
    <message id="trendMonth"><translation>Médiane de chaque mois</translation></message>
    <message id="trendMoreComments" numerus="yes"><translation><numerusform>%n autre commentaire ne tient pas ici</numerusform><numerusform>%n autres commentaires ne tiennent pas ici</numerusform></translation></message>
    <message id="trendMorning"><translation>%1 matin</translation></message>
    <message id="trendWeek"><translation>Médiane de chaque semaine</translation></message>
    <message id="trendWordlessComments" numerus="yes"><translation><numerusform>%n autre commentaire sans son texte</numerusform><numerusform>%n autres commentaires sans leur texte</numerusform></translation></message>
</context>
<context>
    <name>report</name>
    <message id="appDescrption"><translation>Rapport de pression artérielle – ZEL</translation></message>
    <message id="comment"><translation>Commentaires</translation></message>
    <message id="comments"><translation>Commentaires</translation></message>
    <message id="correlation"><translation>Pression systolique en fonction de la diastolique</translation></message>
    <message id="date"><translation>Date</translation></message>
    <message id="formAddress"><translation>Adresse</translation></message>
    <message id="formAge"><translation>Âge</translation></message>
    <message id="formBirth"><translation>Né(e) le</translation></message>
    <message id="formCholesterol"><translation>Cholestérol (mg/dL)</translation></message>
    <message id="formDay"><translation>Jour</translation></message>
    <message id="formDiabetic"><translation>Diabète</translation></message>
    <message id="formFamilyHistory"><translation>Antécédents</translation></message>
    <message id="formFamilyName"><translation>Nom</translation></message>
    <message id="formGivenNames"><translation>Prénom(s)</translation></message>
    <message id="formHeightCm"><translation>Taille (cm)</translation></message>
    <message id="formHeightFtIn"><translation>Taille (ft/in)</translation></message>
    <message id="formID"><translation>ID</translation></message>
    <message id="formMonth"><translation>Mois</translation></message>
    <message id="formNotes"><translation>Notes sur le patient</translation></message>
    <message id="formPersonal"><translation>Données personnelles</translation></message>
    <message id="formPhoneEmail"><translation>Tél. / e-mail</translation></message>
    <message id="formRisks"><translation>Facteurs de risque</translation></message>
    <message id="formSex"><translation>Sexe</translation></message>
    <message id="formSmoker"><translation>Tabagisme</translation></message>
    <message id="formWeightKg"><translation>Poids (kg)</translation></message>
    <message id="formWeightLb"><translation>Poids (lb)</translation></message>
    <message id="formYear"><translation>Année</translation></message>
    <message id="formYears" numerus="yes"><translation><numerusform>an</numerusform><numerusform>ans</numerusform></translation></message>
    <message id="graph"><translation>Graphique de la pression artérielle et du pouls</translation></message>
    <message id="histogram"><translation>Répartition des mesures</translation></message>
    <message id="legendTitle"><translation>%1 :</translation></message>
    <message id="mam"><translation>MAM</translation></message>
    <message id="n.a."><translation>n.a.</translation></message>
    <message id="N.A."><translation>N.A.</translation></message>
    <message id="No"><translation>Non</translation></message>
    <message id="PatientProfile"><translation>Fiche du patient</translation></message>
    <message id="reportAllComments"><translation>Tous les commentaires, même hors période</translation></message>
    <message id="reportAllTimesOfDay"><translation>%1, toutes heures confondues</translation></message>
    <message id="reportAverage"><translation>moyenne de plusieurs mesures</translation></message>
    <message id="reportBothAbove"><translation>Les deux au-dessus : %1</translation></message>
    <message id="reportCommentBars"><translation>Barres : commentaires, par numéro</translation></message>
    <message id="reportCommentsLeftOut"><translation>Un rapport contient au plus %1 commentaires et %2 caractères. Les plus récents suivent ; une exportation les contient tous.</translation></message>
    <message id="reportContinued"><translation>%1, suite</translation></message>
    <message id="reportCorrelationLimits" numerus="yes"><translation><numerusform>La ligne est la limite.</numerusform><numerusform>Les lignes sont les limites.</numerusform></translation></message>
    <message id="reportCorrelationNote"><translation>Chaque carré est une mesure, ou plusieurs de mêmes valeurs, en mmHg.</translation></message>
    <message id="reportCutComments"><translation>… : texte complet dans la section Commentaires</translation></message>
    <message id="reportCutPractitioner"><translation>… : abrégé ici ; le texte complet figure dans les réglages.</translation></message>
    <message id="reportCutTexts"><translation>… : abrégé ici ; le texte complet figure à la page suivante.</translation></message>
    <message id="reportDays" numerus="yes"><translation><numerusform>%n jour</numerusform><numerusform>%n jours</numerusform></translation></message>
    <message id="reportDemonstration"><translation>Démonstration : données fictives</translation></message>
    <message id="reportDiaAbove"><translation>Diastolique seule au-dessus : %1</translation></message>
    <message id="reportDocument"><translation>Rapport de pression artérielle : %1 (%2)</translation></message>
    <message id="reportDownloadDay"><translation>↓ jaune : transfert</translation></message>
    <message id="reportEarlierComments" numerus="yes"><translation><numerusform>%n commentaire antérieur n’est pas imprimé</numerusform><numerusform>%n commentaires antérieurs ne sont pas imprimés</numerusform></translation></message>
    <message id="reportEmptySections"><translation>Non imprimé, faute de contenu : %1</translation></message>
    <message id="reportEveningOnly"><translation>Seules les mesures à partir de midi sont affichées</translation></message>
    <message id="reportFindingUnknown"><translation>N.A. : inconnue</translation></message>
    <message id="reportFound"><translation>détectée</translation></message>
    <message id="reportGoesOn"><translation>suite à la page suivante</translation></message>
    <message id="reportGraphComments"><translation>Cases numérotées : commentaires.</translation></message>
    <message id="reportGraphDownloads"><translation>↓ : jour d’un transfert.</translation></message>
    <message id="reportGraphExcluded"><translation>○ : mesure exclue.</translation></message>
    <message id="reportGraphHiddenLimits" numerus="yes"><translation><numerusform>La limite de %1 est hors de l’échelle.</numerusform><numerusform>Les limites de %1 sont hors de l’échelle.</numerusform></translation></message>
    <message id="reportGraphLimits" numerus="yes"><translation><numerusform>Ligne en tirets : limite de %1.</numerusform><numerusform>Lignes en tirets : limites de %1.</numerusform></translation></message>
    <message id="reportGraphNote"><translation>Ligne du haut : pression systolique ; ligne du bas : pression diastolique.</translation></message>
    <message id="reportHistogramNote"><translation>La longueur d’une barre est la part, en pourcentage, des mesures comprises dans sa tranche de 10 mmHg ou de 10 battements par minute.</translation></message>
    <message id="reportKeepLimits" numerus="yes"><translation><numerusform>Ne dépassant pas %1 : %2</numerusform><numerusform>Ne dépassant pas les limites de %1 : %2</numerusform></translation></message>
    <message id="reportLeftOutReading"><translation>%1 %2   %3/%4 mmHg, pouls %5</translation></message>
    <message id="reportLeftOutTitle" numerus="yes"><translation><numerusform>%n mesure exclue, avec motif</numerusform><numerusform>%n mesures exclues, avec motif</numerusform></translation></message>
    <message id="reportLimitDia"><translation>%1 mmHg (diastolique)</translation></message>
    <message id="reportLimits"><translation>%1/%2 mmHg</translation></message>
    <message id="reportLimitSys"><translation>%1 mmHg (systolique)</translation></message>
    <message id="reportMeasured"><translation>Moyenne en mmHg (mesures) : %1</translation></message>
    <message id="reportMoreNumbers" numerus="yes"><translation><numerusform>et %n autre</numerusform><numerusform>et %n autres</numerusform></translation></message>
    <message id="reportMorningOnly"><translation>Seules les mesures avant midi sont affichées</translation></message>
    <message id="reportNoData"><translation>Il n’y a rien à imprimer : les sections choisies ne contiennent aucune donnée pour ce patient et cette période. Aucun fichier n’a été écrit.</translation></message>
    <message id="reportNoDate"><translation>n.a : sans date</translation></message>
    <message id="reportNoFigures"><translation>n/a : aucune mesure</translation></message>
    <message id="reportNoLimits"><translation>Aucune limite n’est fixée.</translation></message>
    <message id="reportNoReading"><translation>n.a. : aucune mesure</translation></message>
    <message id="reportNotFound"><translation>non détectée</translation></message>
    <message id="reportNotPainted"><translation>Les pages n’ont pas pu être converties en PDF. Aucun fichier n’a été écrit.</translation></message>
    <message id="reportNotWritable"><translation>Le fichier %1 n’a pas pu être écrit. Veuillez vérifier que son dossier existe et que vous avez le droit d’y écrire.</translation></message>
    <message id="reportPage"><translation>Page %1 sur %2</translation></message>
    <message id="reportPatient"><translation>Patient : %1 %2  ID : %3</translation></message>
    <message id="reportPeriod"><translation>Du %1 au %2</translation></message>
    <message id="reportReadings" numerus="yes"><translation><numerusform>%n mesure</numerusform><numerusform>%n mesures</numerusform></translation></message>
    <message id="reportStruckThrough"><translation>barrée : exclue, ne compte nulle part ; les motifs figurent après le tableau</translation></message>
    <message id="reportSysAbove"><translation>Systolique seule au-dessus : %1</translation></message>
    <message id="reportTextTooLong"><translation>… La suite de ce texte n’est pas imprimée (caractères restants : %1).</translation></message>
    <message id="reportTrendLimits" numerus="yes"><translation><numerusform>Ligne droite fine : limite de %1.</numerusform><numerusform>Lignes droites fines : limites de %1.</numerusform></translation></message>
    <message id="reportTrendNote"><translation>Lignes épaisses : médianes. Une ligne s’interrompt là où il n’y a pas de mesure ; des points en relient les extrémités sur 30 jours au plus.</translation></message>
    <message id="reportWriteFailed"><translation>L’écriture du fichier %1 a échoué ; il n’y a donc pas de nouveau fichier. Veuillez vérifier que le disque n’est pas plein, puis réessayer.</translation></message>
    <message id="summary"><translation>Synthèse</translation></message>
    <message id="summaryAha"><translation>AHA</translation></message>
    <message id="summaryAll"><translation>Toutes</translation></message>
    <message id="summaryBelow"><translation>Sous le seuil de %1 (au dixième : %2/%3)</translation></message>
    <message id="summaryBorn" numerus="yes"><translation><numerusform>Né(e) le %1, %n an</numerusform><numerusform>Né(e) le %1, %n ans</numerusform></translation></message>
    <message id="summaryBornOn"><translation>Né(e) le %1</translation></message>
    <message id="summaryComments"><translation>Changements : commentaires, les plus récents d’abord</translation></message>
    <message id="summaryComplete"><translation>Complète</translation></message>
    <message id="summaryCut"><translation>… : abrégé.</translation></message>
    <message id="summaryDia"><translation>DIA, mmHg</translation></message>
    <message id="summaryEither"><translation>SYS ou DIA ou les deux</translation></message>
    <message id="summaryEsh"><translation>ESH</translation></message>
    <message id="summaryEvening"><translation>Soir</translation></message>
    <message id="summaryEvenings"><translation>Soir %1</translation></message>
    <message id="summaryExcluded"><translation>%1 %2  %3/%4 : %5</translation></message>
    <message id="summaryFirstDay" numerus="yes"><translation><numerusform>%n du premier jour non comptée</numerusform><numerusform>%n du premier jour non comptées</numerusform></translation></message>
    <message id="summaryFlagged" numerus="yes"><translation><numerusform>Arythmie signalée (%1) : %2 sur %n mesure</numerusform><numerusform>Arythmie signalée (%1) : %2 sur %n mesures</numerusform></translation></message>
    <message id="summaryHigh"><translation>À partir de %1</translation></message>
    <message id="summaryHighOf" numerus="yes"><translation><numerusform>%1 sur %n mesure</numerusform><numerusform>%1 sur %n mesures</numerusform></translation></message>
    <message id="summaryID"><translation>ID %1</translation></message>
    <message id="summaryIncomplete"><translation>Incomplète, il manque %1</translation></message>
    <message id="summaryInFull"><translation>… : texte complet dans « %1 ».</translation></message>
    <message id="summaryLastDays" numerus="yes"><translation><numerusform>Dernier jour : moyenne (mesures)</numerusform><numerusform>%n derniers jours : moyenne (mesures)</numerusform></translation></message>
    <message id="summaryLeftOut"><translation>Non pris en compte</translation></message>
    <message id="summaryMax"><translation>Max</translation></message>
    <message id="summaryMean"><translation>Moy.</translation></message>
    <message id="summaryMin"><translation>Min</translation></message>
    <message id="summaryMoreComments" numerus="yes"><translation><numerusform>et %n autre commentaire</numerusform><numerusform>et %n autres commentaires</numerusform></translation></message>
    <message id="summaryMoreExcluded" numerus="yes"><translation><numerusform>et %n autre exclue</numerusform><numerusform>et %n autres exclues</numerusform></translation></message>
    <message id="summaryMorning"><translation>Matin</translation></message>
    <message id="summaryMornings"><translation>Matin %1</translation></message>
    <message id="summaryNice"><translation>NICE</translation></message>
    <message id="summaryNoBirth"><translation>Date de naissance non indiquée</translation></message>
    <message id="summaryNoComments"><translation>Aucun commentaire sur cette période</translation></message>
    <message id="summaryNoDated"><translation>Aucune mesure datée</translation></message>
    <message id="summaryNone"><translation>Aucune mesure sur cette période</translation></message>
    <message id="summaryNoneCountsYet"><translation>Aucune mesure n’est encore comptée</translation></message>
    <message id="summaryNoReason"><translation>sans motif indiqué</translation></message>
    <message id="summaryNote"><translation>Semaine de mesure : %1 à partir de son seuil. %2 Matin : avant midi. %3</translation></message>
    <message id="summaryNotExamined"><translation>Arythmie : non recherchée</translation></message>
    <message id="summaryNothingLeftOut"><translation>Toutes les mesures sont comptées</translation></message>
    <message id="summaryNoWeek"><translation>Aucune mesure pendant cette semaine</translation></message>
    <message id="summaryOnDays" numerus="yes"><translation><numerusform>%1 sur %n jour</numerusform><numerusform>%1 sur %n jours</numerusform></translation></message>
    <message id="summaryOnOtherDays" numerus="yes"><translation><numerusform>%n à d’autres jours</numerusform><numerusform>%n à d’autres jours</numerusform></translation></message>
    <message id="summaryOtherComments" numerus="yes"><translation><numerusform>%n commentaire d’autres jours</numerusform><numerusform>%n commentaires d’autres jours</numerusform></translation></message>
    <message id="summaryOthers" numerus="yes"><translation><numerusform>%n mesure sans recherche d’arythmie</numerusform><numerusform>%n mesures sans recherche d’arythmie</numerusform></translation></message>
    <message id="summaryOtherZone" numerus="yes"><translation><numerusform>%n mesure comptée a été enregistrée dans un autre fuseau horaire ; heures de cet ordinateur</numerusform><numerusform>%n mesures comptées ont été enregistrées dans un autre fuseau horaire ; heures de cet ordinateur</numerusform></translation></message>
    <message id="summaryPeriod"><translation>Du %1 au %2</translation></message>
    <message id="summaryPulse"><translation>Pouls %1</translation></message>
    <message id="summaryRate"><translation>Pouls, bpm</translation></message>
    <message id="summaryReached"><translation>Seuil de %1 atteint (au dixième : %2/%3)</translation></message>
    <message id="summaryReadings"><translation>Mesures</translation></message>
    <message id="summaryReasonsInFull"><translation>… : abrégé ; mesures exclues : texte complet dans « %1 ».</translation></message>
    <message id="summarySD"><translation>ET</translation></message>
    <message id="summarySys"><translation>SYS, mmHg</translation></message>
    <message id="summaryTable"><translation>Mesures de la période (ET : écart-type d’un échantillon, n − 1)</translation></message>
    <message id="summaryTrend"><translation>Tendance</translation></message>
    <message id="summaryTrendComments"><translation>Tendance et, dessous, les commentaires par numéro</translation></message>
    <message id="summaryTrendHidden"><translation>Hors de l’échelle de la tendance : %1.</translation></message>
    <message id="summaryTrendLimits"><translation>Lignes droites fines de la tendance : %1.</translation></message>
    <message id="summaryTrendNumberless" numerus="yes"><translation><numerusform>Tendance et, dessous, les commentaires par numéro ; %n sans place pour son numéro</numerusform><numerusform>Tendance et, dessous, les commentaires par numéro ; %n sans place pour leur numéro</numerusform></translation></message>
    <message id="summaryTyped" numerus="yes"><translation><numerusform>Saisies à la main : %1 sur %n mesure</numerusform><numerusform>Saisies à la main : %1 sur %n mesures</numerusform></translation></message>
    <message id="summaryWeek"><translation>Semaine de mesure (%1)  %2</translation></message>
    <message id="summaryWeekExcluded" numerus="yes"><translation><numerusform>%n exclue</numerusform><numerusform>%n exclues</numerusform></translation></message>
    <message id="summaryWeekTyped" numerus="yes"><translation><numerusform>%n saisie à la main</numerusform><numerusform>%n saisies à la main</numerusform></translation></message>
    <message id="summaryWeekUnmeasured" numerus="yes"><translation><numerusform>%n sans valeurs de pression</numerusform><numerusform>%n sans valeurs de pression</numerusform></translation></message>
    <message id="summaryWeekZone" numerus="yes"><translation><numerusform>%n enregistrée dans un autre fuseau horaire ; heures de cet ordinateur</numerusform><numerusform>%n enregistrées dans un autre fuseau horaire ; heures de cet ordinateur</numerusform></translation></message>
    <message id="SWStatistics"><translation>Statistiques et mesures</translation></message>
    <message id="table"><translation>Mesures</translation></message>
    <message id="time"><translation>Heure</translation></message>
    <message id="trend"><translation>Tendance de la pression artérielle et du pouls</translation></message>
    <message id="Yes"><translation>Oui</translation></message>
</context>
<context>
    <name>cli</name>
    <message id="CliAddMissing"><translation>--id, --family-name et --given-names s’emploient avec --add.</translation></message>
    <message id="CliAmAndPm"><translation>Indiquez soit --am, soit --pm, mais pas les deux.</translation></message>
    <message id="CliBackupUsage"><translation>Indiquez list, create, ou restore et le nom d’une copie ; ou folder et, pour le changer, le nom du dossier ou --none.</translation></message>
    <message id="CliBadDate"><translation>--%1 attend un jour du calendrier sous la forme yyyy-MM-dd, et non '%2'.</translation></message>
    <message id="CliBadDays"><translation>--last attend un nombre entier de jours de 1 à %2, et non '%1'.</translation></message>
    <message id="CliBadField"><translation>La valeur de --%1 ne doit pas être '-', ni commencer ou finir par un espace, ni contenir de caractères de contrôle.</translation></message>
    <message id="CliBadID"><translation>La valeur de --id doit comporter de 1 à 11 lettres simples, chiffres ou signes, sans accents : un tensiomètre ne peut pas en mémoriser davantage.</translation></message>
    <message id="CliBadPaper"><translation>--paper attend A4 ou Letter, et non '%1'.</translation></message>
    <message id="CliBadWait"><translation>--wait attend un nombre entier de secondes de 0 à %1.</translation></message>
    <message id="CliChangeOfNothing"><translation>--change demande au moins l’une des options --date, --time, --sys, --dia et --pulse.</translation></message>
    <message id="CliClockUnread"><translation>L’horloge du tensiomètre n’a pas pu être lue. %1</translation></message>
    <message id="CliClockUnset"><translation>L’horloge du tensiomètre n’a pas pu être réglée. %1</translation></message>
    <message id="CliColumnsForm"><translation>--columns attend les titres des colonnes, par exemple date=Date,time=Heure,sys=Systole,dia=Diastole,pulse=Pouls ; seul time peut manquer.</translation></message>
    <message id="CliColumnsHelp"><translation>Pour le tableau d’un autre programme, --columns indique ce que contiennent ses colonnes.</translation></message>
    <message id="CliCountUnread"><translation>Le nombre de mesures dans le tensiomètre n’a pas pu être lu. %1</translation></message>
    <message id="CliDatesForm"><translation>--dates accepte dmy, mdy ou ymd, et non '%1'.</translation></message>
    <message id="CliDemonstrationMonitor"><translation>Ces données sont celles d’une démonstration et ne reçoivent aucune mesure d’un vrai tensiomètre. Indiquez --simulated-monitor.</translation></message>
    <message id="CliDownloadFailed"><translation>Les mesures n’ont pas pu être transférées, et rien n’a été enregistré. %1 Elles sont toujours dans le tensiomètre : veuillez réessayer.</translation></message>
    <message id="CliDownloadNotReadBack"><translation>Les mesures sont enregistrées, mais le fichier de données n’a pas pu être relu ensuite ; le tensiomètre n’a donc pas été vidé. %1</translation></message>
    <message id="CliDownloadUnsaved"><translation>Les mesures transférées n’ont pas pu être enregistrées. %1 Elles sont toujours dans le tensiomètre.</translation></message>
    <message id="CliEmptySections"><translation>Non imprimé, faute de contenu : %1</translation></message>
    <message id="CliEraseAfterFailed"><translation>Les mesures sont bien enregistrées, mais la mémoire du tensiomètre n’a pas pu être effacée ensuite. %1 Vous pouvez l’effacer avec 'zel monitor --erase --yes'.</translation></message>
    <message id="CliEraseAfterUnseen"><translation>Les mesures sont bien enregistrées, mais il n’a pas été possible de vérifier que le tensiomètre est vide. %1 'zel monitor' montre ce qu’il contient.</translation></message>
    <message id="CliEraseFailed"><translation>La mémoire du tensiomètre n’a pas pu être effacée. %1</translation></message>
    <message id="CliEraseNeedsYes"><translation>--erase supprime définitivement toutes les mesures du tensiomètre. Ajoutez --yes si c’est bien ce que vous voulez.</translation></message>
    <message id="CliEraseNoID"><translation>La mémoire du tensiomètre s’efface en lui redonnant son propre ID, mais il n’en contient aucun qu’il puisse mémoriser. Veuillez d’abord lui en donner un avec 'zel monitor --send-id ID'.</translation></message>
    <message id="CliEraseUnseen"><translation>Il n’a pas été possible de vérifier que la mémoire du tensiomètre est vide. %1</translation></message>
    <message id="CliExcludedLater" numerus="yes"><translation><numerusform>%n mesure de jours suivants est exclue, elle aussi.</numerusform><numerusform>%n mesures de jours suivants sont exclues, elles aussi.</numerusform></translation></message>
    <message id="CliExcludedLeftOut" numerus="yes"><translation><numerusform>%n mesure de la semaine est exclue.</numerusform><numerusform>%n mesures de la semaine sont exclues.</numerusform></translation></message>
    <message id="CliFilesMissing"><translation>Il manque un fichier à importer.</translation></message>
    <message id="CliFirstDayLeftOut" numerus="yes"><translation><numerusform>%n mesure du premier jour de mesure n’est pas comptée.</numerusform><numerusform>%n mesures du premier jour de mesure ne sont pas comptées.</numerusform></translation></message>
    <message id="CliFolderMissing"><translation>Il manque le dossier vers lequel exporter.</translation></message>
    <message id="CliForceReplaces"><translation>--force le remplace.</translation></message>
    <message id="CliFromAfterTo"><translation>Le jour de --from est postérieur à celui de --to.</translation></message>
    <message id="CliHelp"><translation>Usage : zel [--simulated-monitor[=FILE] | --demonstration] [--language TAG] [--reset-view]
        zel COMMAND [OPTION]...

Conserve les mesures de tensiomètres automatiques, patient par patient.
Sans commande, une fenêtre s’ouvre. Les commandes font le même travail sans fenêtre, sur le même fichier :

  monitor      montrer le tensiomètre branché, régler son horloge ou son ID, ou effacer sa mémoire
  patients     lister les patients, ou en ajouter un
  download     enregistrer les mesures du tensiomètre pour un patient
  readings     afficher les mesures d’un patient
  statistics   afficher moyennes, minimums et maximums des mesures d’un patient
  average      afficher la moyenne d’une semaine de mesure, selon les recommandations sur l’automesure
  report       écrire le rapport d’un patient en PDF
  export-xml   exporter tous les patients, ou un seul, en fichiers XML
  export-csv   exporter un patient et ses mesures en fichier CSV
  export-fhir  exporter tous les patients, ou un seul, en fichiers FHIR pour d’autres dossiers médicaux
  export-table exporter des mesures sous forme de tableau, pour un tableur
  import       ajouter des patients à partir de fichiers XML exportés, ou des mesures de tableaux
  settings     afficher les réglages, ou en modifier
  backup       lister les copies du fichier de données, en créer une, ou revenir à l’une d’elles
  privacy      dire si d’autres peuvent lire le fichier de données, ou leur en retirer l’accès

Options :
  --simulated-monitor[=FILE]   au lieu d’un tensiomètre USB, en simuler un, décrit par FILE ou intégré
  --demonstration              une fenêtre avec un tensiomètre simulé et ses propres données
  --language TAG               la langue des messages et des rapports, par exemple fr
  --reset-view                 oublier l’état de la fenêtre : place, page, patient, colonnes, dossier
  -h, --help                   afficher ce texte ; 'zel COMMAND --help' décrit une commande
  --version                    afficher la version

Code de retour : 0 réussi, 1 échec (le motif est sur l’erreur standard), 2 utilisation incorrecte.</translation></message>
    <message id="CliHelpAverage"><translation>Usage : zel average --patient ID [--rule esh|nice|aha] [--to DAY]

Affiche la moyenne des mesures d’un patient pendant une semaine de mesure, les sept jours qui finissent un
jour donné, selon la règle d’une recommandation : quels jours et quelles mesures comptent, combien il en faut,
et le seuil de la moyenne. Ce ne sont que des chiffres : au médecin de dire ce qu’ils signifient.

  rule        esh : 3 jours ou plus, le premier non compté, puis 12 mesures ou plus ; seuil 135/85
              nice : 4 jours ou plus, le premier non compté, puis 2 mesures le matin et 2 le soir de
              chaque jour ; seuil 135/85
              aha : 3 jours ou plus et 12 mesures ou plus ; seuil 130/80
  complete    yes, ou no s’il manque des jours ou des mesures ; la moyenne est tout de même affichée
  missing     ce qui manque
  days        jours comportant des mesures qui comptent
  readings    mesures qui comptent
  sys, dia    en mmHg
  pulse       en battements par minute
  morning     sys/dia des mesures avant midi
  evening     sys/dia des mesures à partir de midi
  threshold   reached (atteint) si sys ou dia est égale ou supérieure à sa part du seuil, avant arrondi

Les jours et les heures sont ceux du fuseau horaire de cet ordinateur. Une ligne qui n’a rien à dire est
omise. Le nombre de mesures de la semaine non comptées, et de celles enregistrées dans un autre fuseau
horaire, est indiqué sur l’erreur standard.

Options :
  --patient ID                 les mesures de quel patient
  --rule RULE                  esh (par défaut), nice ou aha
  --to DAY                     dernier jour de la semaine (yyyy-MM-dd) ; sinon le dernier jour avec mesures
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpBackup"><translation>Usage : zel backup list
        zel backup create
        zel backup restore NAME
        zel backup folder [DIR | --none]

Avant la première modification d’un jour, le fichier de données est copié dans le dossier Backups à côté de
lui. Les copies des 14 derniers jours sont conservées, et une par mois pendant deux ans, tant qu’elles
n’occupent pas plus d’un dixième de l’espace libre du disque.

list      affiche les copies au format CSV, la plus récente d’abord, et ce qu’elles contiennent
create    crée une copie de plus maintenant, et affiche 'written: FILE'
restore   met une copie à la place du fichier de données, et affiche 'restored: NAME' ; les données d’avant
          sont conservées dans une autre copie, dont le nom est affiché ('kept: NAME') ; la restaurer permet
          donc de revenir en arrière
folder    affiche le second dossier qui reçoit les copies, clé USB ou partage réseau : 'folder: DIR', après
          l’avoir fixé à DIR ; ses copies sont listées avec leur nom complet

Options :
  --none                       plus de second dossier désormais ; les copies qu’il contient restent
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpDownload"><translation>Usage : zel download --patient ID [--any-monitor] [OPTION]...

Transfère les mesures du tensiomètre, enregistre celles qui ne le sont pas encore, et affiche combien ont été
transférées et combien d’entre elles sont nouvelles. La progression est indiquée sur l’erreur standard. La
mémoire du tensiomètre n’est effacée que si les réglages le demandent, et une fois les mesures bien
enregistrées.
Les mesures saisies à la main que le tensiomètre a également enregistrées sont dès lors exclues ; s’il y en
a, elles sont comptées sous 'left-out'.

Options :
  --patient ID                 le patient pour lequel les enregistrer
  --any-monitor                transférer même si le tensiomètre contient un autre ID que celui du patient
  --wait SECONDS               durée d’attente du tensiomètre (5 par défaut)
  --simulated-monitor[=FILE]   utiliser un tensiomètre simulé, décrit par FILE ou intégré
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpExportCsv"><translation>Usage : zel export-csv DIR --patient ID [--force]

Écrit les données et les mesures d’un patient en fichier CSV, nommé d’après l’ID du patient, dans le dossier
DIR, et affiche 'written: FILE'. Les dates et les unités suivent les réglages. Toutes les mesures y figurent ;
après la dernière virgule d’une ligne se trouve 'manual' pour une mesure saisie à la main, et
'excluded: REASON' pour une mesure exclue, qui ne compte nulle part.

Options :
  --patient ID                 le fichier de quel patient
  --force                      remplacer le fichier s’il existe déjà
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpExportFhir"><translation>Usage : zel export-fhir DIR [--patient ID] [--rule esh|nice|aha] [--force]

Écrit chaque patient, avec ses mesures et la moyenne de la dernière semaine de mesure, dans son propre
« bundle » HL7 FHIR R4 du dossier DIR, pour les logiciels de dossier médical, et affiche pour chacun une
ligne 'written: FILE'. Les fichiers sont nommés d’après les ID des patients. Toutes les mesures y figurent ;
une mesure exclue a le statut 'entered-in-error' et son motif. Les commentaires et les adresses n’y sont
pas. Un fichier qui ne peut pas être écrit est signalé sur l’erreur standard, et les autres sont écrits
malgré tout.

Options :
  --patient ID                 seulement ce patient
  --rule esh|nice|aha          la règle de la moyenne ; esh par défaut
  --force                      remplacer les fichiers déjà présents, au lieu de les laisser tels quels
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpExportTable"><translation>Usage : zel export-table DIR [--patient ID] [--force]
        zel export-table FILE.csv [--patient ID] [--force]

Écrit les mesures sous forme de tableau, pour un tableur : dans le dossier DIR, un fichier 'ID.table.csv' par
patient, ou, dans FILE.csv, un seul tableau de tous les patients. Affiche 'written: FILE' pour chacun. Le
tableau est en UTF-8, avec une ligne de titres et une ligne par mesure, dans l’ordre chronologique, avec le
patient, les valeurs, les anomalies détectées, l’origine de la mesure, si elle est exclue et pourquoi, et le
commentaire du jour. Les textes qu’un tableur prendrait pour des formules commencent par une apostrophe.
'zel import' réimporte le tableau.

Options :
  --patient ID                 seulement ce patient
  --force                      remplacer les fichiers déjà présents, au lieu de les laisser tels quels
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpExportXml"><translation>Usage : zel export-xml DIR [--patient ID] [--force]

Écrit chaque patient, avec ses mesures et ses commentaires, dans son propre fichier XML du dossier DIR, et
affiche pour chacun une ligne 'written: FILE'. Les fichiers sont nommés d’après les ID des patients ;
'zel import' permet de les réimporter. Un fichier qui ne peut pas être écrit est signalé sur l’erreur
standard, et les autres sont écrits malgré tout.

Options :
  --patient ID                 seulement ce patient
  --force                      remplacer les fichiers déjà présents, au lieu de les laisser tels quels
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpImport"><translation>Usage : zel import FILE...
        zel import FILE... --patient ID [--columns LIST] [--dates dmy|mdy|ymd]

Ajoute les patients de fichiers XML exportés, avec leurs mesures et leurs commentaires, ou ceux de tableaux
écrits par 'zel export-table'. Un fichier est importé en entier ou pas du tout : il ne l’est pas si l’un de ses
patients figure déjà dans la liste. Les fichiers non importés sont signalés sur l’erreur standard, avec le
motif, et pour un tableau chaque ligne fautive, avec son numéro. Affiche combien de fichiers ont été importés et
refusés, et combien de patients, de mesures et de commentaires ils ont apportés, une ligne 'key: value' pour
chacun ; pour un tableau, aussi combien de mesures étaient déjà connues : elles ne sont pas ajoutées en double.
Les mesures de la liste saisies à la main, et qui figurent dans un tableau comme venant d’un
tensiomètre, sont dès lors exclues, et
comptées sous 'left-out'.

Avec --patient, les mesures d’un tableau sont ajoutées à un patient de la liste. Avec --columns, c’est le
tableau d’un autre programme, par exemple --columns "date=Date,time=Heure,sys=Systole,dia=Diastole,pulse=Pouls",
avec les titres de sa première ligne ; time est omis si l’heure suit la date. Ces mesures sont considérées comme
saisies à la main. Les colonnes sont séparées par des virgules, des points-virgules ou des tabulations. Les dates
sont de la forme 2026-11-21, sauf si --dates indique l’ordre du jour, du mois et de l’année.

Options :
  --patient ID                 à qui ajouter les mesures d’un tableau
  --columns LIST               les titres des colonnes d’un autre programme
  --dates dmy|mdy|ymd          comment ses dates sont écrites
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpMonitor"><translation>Usage : zel monitor [OPTION]...
        zel monitor --set-clock [OPTION]...
        zel monitor --send-id ID [OPTION]...
        zel monitor --erase --yes [OPTION]...

Affiche le modèle du tensiomètre branché, sa détection d’arythmie (pad, afib ou none), son ID, son horloge (ou
'not set') et son nombre de mesures, une ligne 'key: value' pour chacun. Compter les mesures peut prendre
jusqu’à 20 s. Ce qui est modifié est relu ; la commande échoue si le résultat n’est pas celui attendu.

Options :
  --set-clock                  mettre l’horloge du tensiomètre à l’heure de cet ordinateur, et l’afficher
  --send-id ID                 écrire dans le tensiomètre un ID de 1 à 11 caractères simples, et l’afficher ;
                               les mesures en mémoire y restent
  --erase                      effacer toutes les mesures de la mémoire, et afficher combien il en reste
  --yes                        confirme --erase
  --wait SECONDS               durée d’attente du tensiomètre (5 par défaut)
  --simulated-monitor[=FILE]   utiliser un tensiomètre simulé, décrit par FILE ou intégré
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpPatients"><translation>Usage : zel patients
        zel patients --add --id ID --family-name NAME --given-names NAMES

Liste les patients au format CSV avec l’en-tête id,family-name,given-names, ou en ajoute un.

Options :
  --add                        ajouter un patient ; l’ID doit être nouveau
  --id ID                      l’ID du patient, tel que le tensiomètre le contient
  --family-name NAME           le nom
  --given-names NAMES          le ou les prénoms
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpPrivacy"><translation>Usage : zel privacy [--mend]

Affiche ce que d’autres utilisateurs de cet ordinateur peuvent lire parmi le fichier de données, ce qui est
conservé à côté et ses copies, un fichier par ligne ('readable by others: FILE'), ou 'private'.

Options :
  --mend                       retirer l’accès aux autres : modifie les droits d’accès de ces fichiers, de
                               leur dossier et du dossier des copies, et rien d’autre
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpReadings"><translation>Usage : zel readings --patient ID [--from DAY | --last N] [--to DAY] [--am | --pm] [--undated]
                     [--numbers]
        zel readings --patient ID --exclude RECORD --reason TEXT
        zel readings --patient ID --include RECORD
        zel readings --patient ID --add --date DAY --time HH:MM --sys N --dia N --pulse N
        zel readings --patient ID --change RECORD [--date DAY] [--time HH:MM] [--sys N] [--dia N] [--pulse N]
        zel readings --patient ID --delete RECORD

Affiche les mesures d’un patient au format CSV, de la plus ancienne à la plus récente, avec l’en-tête
date,time,sys,dia,pulse,map,pp,mam,arrhythmia. Les pressions sont en mmHg, le pouls en battements par minute.
Une mesure que le tensiomètre a enregistrée sans date porte n.a et --:-- à la place ; elle est omise si une
période, --am ou --pm est indiquée, sauf avec --undated. Un jour sans mesure couvert par un commentaire a une
ligne avec sa date, et n.a. pour le reste ; s’il y en a trop pour toutes les lister, une phrase sur l’erreur
standard le signale.

Avec --exclude, --include, --add, --change ou --delete, modifie au contraire le fichier de données. Une mesure
exclue reste dans le fichier et dans la liste, avec son motif, et ne compte nulle part ; une phrase sur
l’erreur standard dit combien des mesures affichées sont exclues. Une mesure saisie à la main est signalée par
manual ; les pressions et le pouls sont des nombres entiers de 30 à 300, la pression diastolique est
inférieure à la systolique, et l’heure n’est pas à venir. --add affiche 'record: RECORD'. Seules les
mesures saisies à la main peuvent être modifiées ou supprimées.
Avec --include, une mesure saisie à la main qui compterait deux fois, ou qui ne pourrait pas être saisie ainsi,
reste exclue. Quand une mesure du tensiomètre compte de nouveau, la même saisie à la main est dès lors exclue,
et comptée sous 'left-out'.

Options :
  --patient ID                 les mesures de quel patient
  --from DAY                   seulement à partir de ce jour (yyyy-MM-dd)
  --to DAY                     seulement jusqu’à la fin de ce jour (yyyy-MM-dd)
  --last N                     au lieu de --from : N jours jusqu’à --to, ou jusqu’au dernier avec une mesure
  --am                         seulement les mesures avant midi
  --pm                         seulement les mesures à partir de midi
  --undated                    aussi les mesures sans date
  --numbers                    avec deux colonnes de plus : record, le numéro de la mesure dans le fichier de
                               données, et excluded, le motif de son exclusion (vide : elle compte)
  --exclude RECORD             exclure la mesure portant ce numéro ; elle ne compte plus nulle part
  --reason TEXT                le motif
  --include RECORD             la réintégrer ; elle compte de nouveau
  --add                        enregistrer une mesure saisie à la main
  --change RECORD              modifier une mesure saisie à la main ; ce qui n’est pas indiqué reste inchangé
  --delete RECORD              supprimer une mesure saisie à la main
  --date DAY                   le jour de la mesure (yyyy-MM-dd)
  --time HH:MM                 l’heure, de 00:00 à 23:59
  --sys N                      pression systolique, mmHg
  --dia N                      pression diastolique, mmHg
  --pulse N                    battements par minute
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpReport"><translation>Usage : zel report --patient ID --section KEY[,KEY...] --output FILE.pdf [OPTION]...

Écrit le rapport d’un patient en PDF, en remplaçant FILE.pdf s’il existe, et affiche 'written: FILE.pdf'.
Les valeurs à partir des limites choisies dans la fenêtre (135/85 par défaut) sont marquées.

Sections :
  summary                      une page pour le médecin : moyennes, tendance, derniers jours, commentaires,
                               ce qui n’est pas pris en compte
  graph                        graphique de la pression artérielle et du pouls
  PatientProfile               les données du patient et les notes
  histogram                    la répartition des valeurs
  correlation                  pression systolique en fonction de la diastolique
  trend                        médianes et bandes par jour, semaine ou mois
  table                        les mesures
  comment                      les commentaires
  SWStatistics                 moyennes, limites et mesures
  all                          toutes, dans cet ordre

Options :
  --patient ID                 le rapport de quel patient
  --section KEY[,KEY...]       ce qu’il faut imprimer, dans l’ordre indiqué
  --from yyyy-MM-dd            premier jour de la période du rapport (par défaut celui de la première mesure)
  --to yyyy-MM-dd              son dernier jour (par défaut celui de la dernière mesure)
  --last N                     au lieu de --from : N jours jusqu’à --to, ou jusqu’au dernier avec une mesure
  --am                         seulement les mesures avant midi (SWStatistics et summary les prennent toutes)
  --pm                         seulement les mesures à partir de midi (de même)
  --apart                      la tendance a des lignes distinctes pour le matin et le soir
  --rule esh|nice|aha          comment la synthèse calcule la moyenne de sa semaine de mesure, qui finit le
                               dernier jour de la période avec mesures ; esh par défaut. 'zel average --help'
                               décrit ces règles
  --practitioner               imprimer au bas les coordonnées du praticien, tirées des réglages ; en tête
                               pour la synthèse
  --paper A4|Letter            le papier ; en général celui de LC_PAPER ou de LANG
  --output FILE.pdf            le fichier à écrire
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpSettings"><translation>Usage : zel settings
        zel settings --set KEY=VALUE [--set KEY=VALUE]...

Affiche les réglages, une ligne 'key: value' pour chacun, ou en modifie certains et affiche ceux-ci. Si l’une
des valeurs est refusée, aucune n’est modifiée. Dans les textes, \n représente une fin de ligne et \\ une
barre oblique inverse.

  DateFormat                   dd mm yyyy, mm dd yyyy ou yyyy mm dd
  TimeFormat                   12-hours ou 24-hours
  MetricFormat                 kg / cm ou lb / in
  EraseRecAfterReading         1 : vider le tensiomètre après un transfert bien enregistré ; sinon 0
  ShowPPorMap                  0 : afficher la pression pulsée ; 1 : la pression artérielle moyenne
  UserWhoStandard              1 : les réglages présentent les limites comme celles de l’OMS ; sinon 0
  SysStandard                  limite systolique, 0 (aucune) ou de 60 à 260 mmHg
  DiaStandard                  limite diastolique, 0 (aucune) ou de 30 à 160 mmHg, inférieure à la systolique
  PhysicianAddress             les lignes du praticien sur les rapports imprimés

Options :
  --set KEY=VALUE              modifier un réglage ; peut être indiquée plusieurs fois
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliHelpStatistics"><translation>Usage : zel statistics --patient ID [--from DAY | --last N] [--to DAY] [--undated]

Affiche la moyenne, le minimum et le maximum des mesures d’un patient, une grandeur par ligne :
'sys: AVERAGE MIN MAX', puis dia, pulse, et map ou pp selon les réglages. Les pressions sont en mmHg, le pouls
en battements par minute. Sans mesure, chaque valeur est n/a. Si des mesures ne sont pas comptées, le nombre
de celles qui le sont, et de celles qui ne le sont pas pour chaque motif, est indiqué sur l’erreur standard.

Options :
  --patient ID                 les mesures de quel patient
  --from DAY                   seulement à partir de ce jour (yyyy-MM-dd)
  --to DAY                     seulement jusqu’à la fin de ce jour (yyyy-MM-dd)
  --last N                     au lieu de --from : N jours jusqu’à --to, ou jusqu’au dernier avec une mesure
  --undated                    aussi les mesures sans date
  --simulated-monitor[=FILE]   acceptée comme partout ; cette commande n’utilise pas de tensiomètre
  -h, --help                   afficher ce texte</translation></message>
    <message id="CliIDDoesNotFit"><translation>Le tensiomètre ne peut pas mémoriser l’ID '%1' : il faut de 1 à 11 caractères simples (ASCII), sans espace au début ni à la fin.</translation></message>
    <message id="CliIDUnread"><translation>L’ID du tensiomètre n’a pas pu être lu. %1</translation></message>
    <message id="CliIDUnsent"><translation>L’ID n’a pas pu être écrit dans le tensiomètre. %1</translation></message>
    <message id="CliLastAndFrom"><translation>Indiquez soit --from, soit --last, mais pas les deux.</translation></message>
    <message id="CliMonitorChanged"><translation>La liaison a été interrompue, et les mesures reçues ensuite peuvent provenir d’un autre tensiomètre que celui qui avait été interrogé. Rien n’a été enregistré ; veuillez réessayer.</translation></message>
    <message id="CliMonitorDenied"><translation>%1 Y accéder demande une autorisation : installez packaging/70-zel.rules dans /etc/udev/rules.d, exécutez 'udevadm control --reload', puis rebranchez le tensiomètre.</translation></message>
    <message id="CliMonitorSilent"><translation>Un tensiomètre est branché, mais n’a pas répondu en %1 s. %2</translation></message>
    <message id="CliMonitorWithoutID"><translation>Le tensiomètre ne contient pas d’ID ; ses mesures ne sont donc peut-être pas celles du patient '%1'. Écrivez l’ID avec 'zel monitor --send-id', ou utilisez --any-monitor pour transférer malgré tout.</translation></message>
    <message id="CliNoCommand"><translation>Il manque une commande.</translation></message>
    <message id="CliNoFolder"><translation>Le dossier '%1' n’existe pas.</translation></message>
    <message id="CliNoHome"><translation>La variable d’environnement HOME n’est pas définie ; l’emplacement du fichier de données est donc inconnu.</translation></message>
    <message id="CliNoLineInTable" numerus="yes"><translation><numerusform>%n patient n’a pas de ligne dans le tableau : aucune mesure n’est enregistrée pour lui, comme pour tout patient sans ID.</numerusform><numerusform>%n patients n’ont pas de ligne dans le tableau : aucune mesure n’est enregistrée pour eux, comme pour tout patient sans ID.</numerusform></translation></message>
    <message id="CliNoMonitor"><translation>Aucun tensiomètre n’a été trouvé en %1 s. Veuillez le relier par son câble USB, ou prolonger l’attente avec --wait.</translation></message>
    <message id="CliNoSuchPatient"><translation>Aucun patient n’a l’ID '%1'. 'zel patients' en donne la liste.</translation></message>
    <message id="CliNoSuchReading"><translation>le patient n’a pas de mesure portant le numéro %1 (zel readings --numbers affiche les numéros)</translation></message>
    <message id="CliNoSuchRule"><translation>La règle '%1' n’existe pas. Les règles sont %2.</translation></message>
    <message id="CliNoSuchSection"><translation>La section '%1' n’existe pas. Les sections sont all, ou celles de votre choix parmi %2, séparées par des virgules.</translation></message>
    <message id="CliNoTable"><translation>%1 : --patient est réservé aux tableaux de mesures ; ce fichier n’en est pas un, ou il est illisible. Rien n’a été importé.</translation></message>
    <message id="CliNotExcluded"><translation>la mesure %1 n’est pas exclue</translation></message>
    <message id="CliNotTogether"><translation>--%1 et --%2 ne peuvent pas être utilisées ensemble</translation></message>
    <message id="CliOneJob"><translation>Une seule des options --set-clock, --send-id et --erase est possible à la fois.</translation></message>
    <message id="CliOptionMissing"><translation>--%1 manque, ou sa valeur est vide.</translation></message>
    <message id="CliOptionTwice"><translation>--%1 est indiquée plusieurs fois.</translation></message>
    <message id="CliOtherMonitor"><translation>Le tensiomètre contient l’ID '%1', et non '%2' ; ses mesures peuvent donc être celles d’un autre patient. Utilisez --any-monitor pour les transférer malgré tout.</translation></message>
    <message id="CliOtherZone" numerus="yes"><translation><numerusform>%n mesure de la semaine a été enregistrée dans un autre fuseau horaire ; le jour et l’heure sont ceux de cet ordinateur.</numerusform><numerusform>%n mesures de la semaine ont été enregistrées dans un autre fuseau horaire ; les jours et les heures sont ceux de cet ordinateur.</numerusform></translation></message>
    <message id="CliOutputFailed"><translation>La sortie n’a pas pu être écrite.</translation></message>
    <message id="CliPatientKnown"><translation>Il existe déjà un patient ayant l’ID '%1'.</translation></message>
    <message id="CliPlanWithoutFile"><translation>--simulated-monitor= doit être suivie du nom d’un fichier ; seule, sans '=', elle désigne le tensiomètre simulé intégré.</translation></message>
    <message id="CliProgress"><translation>Mesures reçues : %1 sur %2</translation></message>
    <message id="CliReadableByOthers"><translation>D’autres utilisateurs de cet ordinateur peuvent lire %1. 'zel privacy --mend' leur en retire l’accès.</translation></message>
    <message id="CliReadingJobMissing"><translation>--reason s’emploie avec --exclude ; --date, --time, --sys, --dia et --pulse s’emploient avec --add ou --change</translation></message>
    <message id="CliReadingNotUnique"><translation>plusieurs mesures portent le numéro %1 ; impossible de savoir laquelle est visée</translation></message>
    <message id="CliReadingsExcluded" numerus="yes"><translation><numerusform>%n de ces mesures est exclue et ne compte nulle part ; --numbers indique laquelle, et pourquoi</numerusform><numerusform>%n de ces mesures sont exclues et ne comptent nulle part ; --numbers indique lesquelles, et pourquoi</numerusform></translation></message>
    <message id="CliSameIDLeftOut" numerus="yes"><translation><numerusform>%n patient a été omis : un autre de la liste a le même ID, ou n’en a pas non plus. Chaque patient doit avoir son propre ID pour être distingué.</numerusform><numerusform>%n patients ont été omis : d’autres de la liste ont les mêmes ID, ou n’en ont pas non plus. Chaque patient doit avoir son propre ID pour être distingué.</numerusform></translation></message>
    <message id="CliSettingForm"><translation>--set attend KEY=VALUE, et non '%1'.</translation></message>
    <message id="CliSettingNotKept"><translation>Le fichier de données ne prévoit pas d’emplacement pour le réglage %1 ; rien n’a donc été modifié.</translation></message>
    <message id="CliSettingTwice"><translation>Le réglage %1 est indiqué plusieurs fois.</translation></message>
    <message id="CliSettingUnknown"><translation>Le réglage '%1' n’existe pas. Les réglages sont : %2.</translation></message>
    <message id="CliSettingValue"><translation>%1 accepte %2, et non '%3'.</translation></message>
    <message id="CliTableAssumed" numerus="yes"><translation><numerusform>Un tableau n’indique ni le sexe, ni le tabagisme, ni le diabète : %n nouveau patient est enregistré comme femme, non-fumeuse et sans diabète. Veuillez vérifier.</numerusform><numerusform>Un tableau n’indique ni le sexe, ni le tabagisme, ni le diabète : %n nouveaux patients sont enregistrés comme femmes, non-fumeuses et sans diabète. Veuillez vérifier.</numerusform></translation></message>
    <message id="CliTableKnown"><translation>--patient ID ajoute les mesures d’un tableau à un patient qui figure dans la liste.</translation></message>
    <message id="CliTryHelp"><translation>Essayez '%1'.</translation></message>
    <message id="CliTypedLeftOut" numerus="yes"><translation><numerusform>%n mesure saisie à la main ne compte désormais nulle part : le tableau contient la même, venant d’un tensiomètre.</numerusform><numerusform>%n mesures saisies à la main ne comptent désormais nulle part : le tableau contient les mêmes, venant d’un tensiomètre.</numerusform></translation></message>
    <message id="CliUnexpectedWord"><translation>'%1' n’est pas attendu ici.</translation></message>
    <message id="CliUnknownCommand"><translation>La commande '%1' n’existe pas.</translation></message>
    <message id="CliUnmeasured" numerus="yes"><translation><numerusform>%n mesure sans valeurs de pression n’est pas comptée.</numerusform><numerusform>%n mesures sans valeurs de pression ne sont pas comptées.</numerusform></translation></message>
    <message id="CliWaiting"><translation>Attente du tensiomètre, encore %1 s au plus. Ctrl-C annule.</translation></message>
    <message id="CliWeekToCome"><translation>La semaine se termine le %1, un jour encore à venir.</translation></message>
    <message id="CliYesAlone"><translation>--yes s’emploie avec --erase.</translation></message>
</context>
</TS>
