#include "app/patients/PatientForm.h"

#include "app/patients/PatientMeasures.h"
#include "monitor/BPMModel.h"
#include "store/Text.h"

#include <QDate>

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;
using enum PatientField;

namespace {

struct TextField {
    PatientField field;
    QString PatientModel::*text;
    bool hasLines;
};
constexpr std::array textFields{
    TextField{FamilyName, &PatientModel::FamilyName, false},
    TextField{GivenNames, &PatientModel::GivenNames, false},
    TextField{ID, &PatientModel::ID, false},
    TextField{Address, &PatientModel::Address, true},
    TextField{PhoneEmail, &PatientModel::PhoneEmail, true},
    TextField{FamilyHistory, &PatientModel::FamilyHistory, true},
    TextField{PatientNotes, &PatientModel::PatientNotes, true},
};

struct ChoiceField {
    PatientField field;
    std::int32_t PatientModel::*choice;
};
constexpr std::array choiceFields{
    ChoiceField{Sex, &PatientModel::Sex},
    ChoiceField{Smoker, &PatientModel::Smoker},
    ChoiceField{Diabetic, &PatientModel::Diabetic},
};

constexpr std::array judged{ID, BirthYear, Weight, Height, Cholestrol};
constexpr std::array birthFields{BirthYear, BirthMonth, BirthDay};
constexpr int oldest = 130; ///< years that a human can reach

/// Without control characters; a line end or tab is a blank where the text has one line only.
QString cleaned(const QString& typed, bool hasLines) {
    QString text = typed;
    text.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
    if (!hasLines) {
        text.replace(u'\n', u' ').replace(u'\t', u' ').replace(QChar::LineSeparator, u' ');
        text.replace(QChar::ParagraphSeparator, u' ');
    }
    const auto isControl = [](QChar c) {
        return c.category() == QChar::Other_Control && c != u'\n' && c != u'\t';
    };
    text.removeIf(isControl);
    return hasLines && !TrimStr(text).isEmpty() ? text : TrimStr(text);
}

/// A bare number with its unit.
QString withUnit(const QString& typed, const QString& unit) {
    const QString text = TrimStr(typed);
    const auto isOfNumber = [](QChar c) { return c.isDigit() || c == u'.' || c == u','; };
    return !text.isEmpty() && std::ranges::all_of(text, isOfNumber) ? text + u' ' + unit : typed;
}

/// 5/9 as 5 ft 9 in, which cannot be mistaken for anything else; 69, which is refused, not to pass for 69 cm.
QString withFeet(const QString& typed) {
    const QStringList parts = TrimStr(typed).split(u'/');
    if (parts.size() != 2) return withUnit(typed, u"in"_s);
    return u"%1 ft %2"_s.arg(TrimStr(parts[0]), withUnit(parts[1], u"in"_s));
}

bool isYear(const QString& text) {
    return text.size() == 4 && std::ranges::all_of(text, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool isAnyGiven(const PatientEntry& entry) {
    return !TrimStr(entry[BirthYear]).isEmpty() || entry[BirthMonth].toInt() > 0
           || entry[BirthDay].toInt() > 0;
}

QString birthRefusal(const PatientEntry& entry, Instant today) {
    if (!isAnyGiven(entry)) return {};
    const QString year = TrimStr(entry[BirthYear]);
    if (!year.isEmpty() && !isYear(year)) return qtTrId("birthYearRefused");
    if (year.isEmpty() || entry[BirthMonth].toInt() == 0 || entry[BirthDay].toInt() == 0)
        return qtTrId("birthDateIncomplete");
    const Date birth = PatientForm::birthDate(entry);
    if (!birth) return qtTrId("birthDayRefused").arg(entry[BirthDay].toInt());
    if (*birth > today) return qtTrId("birthDateInFuture");
    return GetAge(*birth, today) > oldest ? qtTrId("birthDateTooOld").arg(oldest) : QString();
}

} // namespace

PatientForm::PatientForm(PatientModel record, SettingModel unitSettings, bool isNew)
    : stored(std::move(record)), settings(std::move(unitSettings)), isUnsaved(isNew), shown(entryOf()) {}

PatientModel PatientForm::newPatient() {
    PatientModel patient;
    patient.DisplayName = qtTrId("NewPatient");
    patient.ID = u"-"_s;
    patient.DateOfBirth = getNilDate();
    for (QString* text : {&patient.FamilyName, &patient.GivenNames, &patient.Address, &patient.PhoneEmail,
                          &patient.FamilyHistory, &patient.PatientNotes})
        *text = u""_s;
    return patient;
}

PatientEntry PatientForm::entryOf() const {
    PatientEntry entry;
    for (const auto& [field, text, hasLines] : textFields)
        entry[field] = stored.*text;
    if (isUnsaved && IsEmptyID(stored.ID)) entry[ID] = u""_s; // the placeholder is no ID to be typed over
    for (const auto& [field, choice] : choiceFields)
        entry[field] = QString::number(stored.*choice == 1 ? 1 : 0);
    if (!isNilDate(stored.DateOfBirth)) {
        entry[BirthYear] = DateToStr(stored.DateOfBirth, u"yyyy"_s);
        entry[BirthMonth] = DateToStr(stored.DateOfBirth, u"M"_s);
        entry[BirthDay] = DateToStr(stored.DateOfBirth, u"d"_s);
    } else {
        entry[BirthMonth] = entry[BirthDay] = u"0"_s;
    }
    entry[Weight] = stored.getWeightStr(settings);
    entry[Height] = stored.getHeightStr(settings);
    entry[Cholestrol] = stored.getCholestrolStr();
    return entry;
}

bool PatientForm::isEdited(PatientField field, const PatientEntry& entry) const {
    return entry[field] != shown[field];
}

bool PatientForm::isBirthEdited(const PatientEntry& entry) const {
    return std::ranges::any_of(birthFields, [&](PatientField field) { return isEdited(field, entry); });
}

Date PatientForm::birthDate(const PatientEntry& entry) {
    const QString year = TrimStr(entry[BirthYear]);
    const int month = entry[BirthMonth].toInt(), day = entry[BirthDay].toInt();
    if (!isYear(year) || !QDate::isValid(year.toInt(), month, day)) return {};
    return StrToDate(u"%1%2%3"_s.arg(year).arg(month, 2, 10, QChar(u'0')).arg(day, 2, 10, QChar(u'0')),
                     u"yyyyMMdd"_s);
}

QString PatientForm::refusal(PatientField field, const PatientEntry& entry, Instant today) const {
    if (field == BirthYear) return isBirthEdited(entry) ? birthRefusal(entry, today) : QString();
    if (!isEdited(field, entry)) return {};
    if (field == ID) {
        const QString typed = cleaned(entry[ID], false);
        return IsEmptyID(typed) || BPMModel::fitsMonitor(typed) ? QString() : qtTrId("IDRefused");
    }
    if (field == Weight && !weightInKg(entry[Weight], settings))
        return settings.isMetric() ? qtTrId("weightRefusedKg") : qtTrId("weightRefusedLb");
    if (field == Height && !heightInCm(entry[Height], settings))
        return settings.isMetric() ? qtTrId("heightRefusedCm") : qtTrId("heightRefusedFtIn");
    if (field == Cholestrol && !cholestrolText(entry[Cholestrol])) return qtTrId("cholestrolRefused");
    return {};
}

std::vector<PatientProblem> PatientForm::problems(const PatientEntry& entry, Instant today) const {
    std::vector<PatientProblem> found;
    for (const PatientField field : required) {
        if (IsEmptyID(cleaned(entry[field], false)))
            found.push_back({field, PatientProblem::Kind::missing, qtTrId("fieldMissing")});
    }
    for (const PatientField field : judged) {
        const QString text = refusal(field, entry, today);
        if (!text.isEmpty()) found.push_back({field, PatientProblem::Kind::refused, text});
    }
    return found;
}

PatientModel PatientForm::record(const PatientEntry& entry) const {
    PatientModel patient = stored;
    setTexts(patient, entry);
    for (const auto& [field, choice] : choiceFields) {
        if (isEdited(field, entry)) patient.*choice = entry[field].toInt();
    }
    if (isBirthEdited(entry)) patient.DateOfBirth = birthDate(entry).value_or(getNilDate());
    setMeasures(patient, entry);
    patient.makeUpDisplayName();
    return patient;
}

void PatientForm::setTexts(PatientModel& patient, const PatientEntry& entry) const {
    for (const auto& [field, text, hasLines] : textFields) {
        if (isEdited(field, entry)) patient.*text = cleaned(entry[field], hasLines);
        // A field is never absent, only empty.
        if ((patient.*text).isNull()) patient.*text = u""_s;
    }
}

void PatientForm::setMeasures(PatientModel& patient, const PatientEntry& entry) const {
    const auto weight = weightInKg(entry[Weight], settings);
    if (weight && isEdited(Weight, entry)) patient.Weight = *weight;
    const auto height = heightInCm(entry[Height], settings);
    if (height && isEdited(Height, entry)) patient.Height = *height;
    const auto cholestrol = cholestrolText(entry[Cholestrol]);
    if (cholestrol && isEdited(Cholestrol, entry)) patient.Cholestrol = cholestrol->toFloat();
}

bool PatientForm::isChanged(const PatientEntry& entry, Instant today) const {
    if (entry == shown) return false;
    const auto differs = [&](PatientField field) { return TrimStr(entry[field]) != shown[field]; };
    const auto isRefused = [&](PatientField field) { return !refusal(field, entry, today).isEmpty(); };
    return std::ranges::any_of(std::array{Weight, Height, Cholestrol}, differs)
           || std::ranges::any_of(judged, isRefused) || !record(shown).isTheSanme(record(entry))
           || record(shown).DateOfBirth != record(entry).DateOfBirth; // a day has not always 86400 s
}

PatientEntry PatientForm::inUnitsOf(const SettingModel& other, PatientEntry entry) const {
    if (other.isMetric() == settings.isMetric()) return entry;
    // What was typed keeps its own unit: shown in another one it would be rounded.
    const bool isMetric = settings.isMetric();
    if (isEdited(Weight, entry))
        entry[Weight] = withUnit(entry[Weight], isMetric ? u"kg"_s : u"lb"_s);
    else
        entry[Weight] = stored.getWeightStr(other);
    if (isEdited(Height, entry))
        entry[Height] = isMetric ? withUnit(entry[Height], u"cm"_s) : withFeet(entry[Height]);
    else
        entry[Height] = stored.getHeightStr(other);
    return entry;
}

} // namespace zel
