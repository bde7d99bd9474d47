#include "store/PatientModel.h"

#include "store/Log.h"
#include "store/RecordXml.h"
#include "store/Text.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using P = PatientModel;

/// As the pattern "%.*f" writes it. Qt's own would round a half up, not to the even digit.
QString fixedDecimals(double value, int decimals) {
    std::array<char, 64> text; // the largest float has 39 digits
    const auto [end, error] =
        std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed, decimals);
    return error == std::errc{} ? QString::fromLatin1(text.data(), end - text.data()) : QString{};
}

template <auto Member>
constexpr XmlChild<P> measure(const char* name) {
    return {name, [](P& p, std::string_view t) { p.*Member = static_cast<float>(leadingNumber(t)); },
            [](const P& p) { return fixedDecimals(static_cast<double>(p.*Member), 6); }};
}

template <auto Member>
constexpr XmlChild<P> choice(const char* name) {
    return {name, [](P& p, std::string_view t) { p.*Member = toSigned(t); },
            [](const P& p) { return QString::number(p.*Member); }};
}

constexpr std::array patientChildren{
    xml::text<P, &P::ID>("ID"),
    xml::text<P, &P::FamilyName>("FamilyName"),
    xml::text<P, &P::GivenNames>("GivenNames"),
    xml::text<P, &P::Address>("Address"),
    xml::text<P, &P::PhoneEmail>("PhoneEmail"),
    xml::localDate<P, &P::DateOfBirth>("DateOfBirth"),
    measure<&P::Weight>("Weight"),
    measure<&P::Height>("Height"),
    choice<&P::Sex>("Sex"),
    choice<&P::Smoker>("Smoker"),
    choice<&P::Diabetic>("Diabetic"),
    measure<&P::Cholestrol>("Cholestrol"),
    xml::text<P, &P::FamilyHistory>("FamilyHistory"),
    xml::text<P, &P::PatientNotes>("PatientNotes"),
};
constexpr std::span<const XmlChild<P>> patientTable{patientChildren};

constexpr double poundsPerKilogram = 2.20462262185;
constexpr double centimetresPerInch = 2.54;

/// A damaged file may hold a number too large for its field.
QString oneDecimal(double value) {
    return value == 0 || !std::isfinite(value) ? u""_s : fixedDecimals(value, 1);
}

float numberIn(const QString& text) { return static_cast<float>(leadingNumber(text.toStdString())); }

} // namespace

PatientModel PatientModel::initWithXMLNode(pugi::xml_node element) {
    PatientModel patient;
    readChildren(patient, element, patientTable);
    if (patient.ID.isNull()) patient.ID = u""_s; // a null text is nobody
    patient.makeUpDisplayName();
    return patient;
}

pugi::xml_node PatientModel::makeXmlNode(pugi::xml_node root) {
    const pugi::xml_node element = root.append_child("Patient");
    addChildren(element, patientTable);
    return element;
}

void PatientModel::updateXMLNode(pugi::xml_node element, bool copyPrimary, const PatientModel* before) const {
    const auto table = copyPrimary ? patientTable : patientTable.subspan(1); // the ID stands first
    writeChildren(*this, element, table, before);
}

void PatientModel::makeUpDisplayName() { DisplayName = FamilyName + u',' + GivenNames; }

QString PatientModel::getWeightStr(const SettingModel& settings) const {
    const double kilograms = static_cast<double>(Weight);
    return oneDecimal(settings.isMetric() ? kilograms : kilograms * poundsPerKilogram);
}

QString PatientModel::getHeightStr(const SettingModel& settings) const {
    if (settings.isMetric() || Height == 0) return oneDecimal(static_cast<double>(Height));
    constexpr double tallest = 1e6; // whatever a damaged file says
    const int inches = static_cast<int>(std::min(static_cast<double>(Height) / centimetresPerInch, tallest));
    return QString::asprintf("%d/%d", inches / 12, inches % 12);
}

QString PatientModel::getCholestrolStr() const { return oneDecimal(static_cast<double>(Cholestrol)); }

void PatientModel::convertAndSetWeight(const QString& text, const SettingModel& settings) {
    const double value = static_cast<double>(numberIn(text));
    Weight = static_cast<float>(settings.isMetric() ? value : value / poundsPerKilogram);
}

bool PatientModel::convertAndSetHeight(const QString& text, const SettingModel& settings) {
    if (settings.isMetric()) {
        Height = numberIn(text);
        return true;
    }
    const QStringList parts = text.split(u'/');
    if (parts.size() < 2) {
        qCDebug(lcStore, "convertAndSetHeight parameter error");
        return false;
    }
    const double inches =
        static_cast<double>(numberIn(parts[0])) * 12 + static_cast<double>(numberIn(parts[1]));
    Height = static_cast<float>(inches * centimetresPerInch);
    return true;
}

QString PatientModel::exportCSV(const SettingModel& settings) const {
    const auto plain = [](const char* title, const QString& value) {
        return QLatin1StringView{title} + u',' + value + u",\n"_s;
    };
    const auto quoted = [&plain](const char* title, const QString& value) {
        return plain(title, u'"' + toDoubleQuote(value) + u'"');
    };
    const QString birth = isNilDate(DateOfBirth) ? QString{} : DateToStr(DateOfBirth, u"yyyy/M/d"_s);
    return plain("ID", ID) + plain("Family Name", FamilyName) + plain("Given Name(s)", GivenNames)
           + quoted("Address", Address) + quoted("Phone / E-Mail", PhoneEmail) + plain("Date of Birth", birth)
           + plain("Weight", getWeightStr(settings) + (settings.isMetric() ? u"(kg)"_s : u"(lb)"_s))
           + plain("Height", getHeightStr(settings) + (settings.isMetric() ? u"(cm)"_s : u"(ft/in)"_s))
           + plain("Sex", Sex == 1 ? u"Male"_s : u"Female"_s) + plain("Smoker", toYesNo(Smoker))
           + plain("Diabetic", toYesNo(Diabetic)) + plain("Cholesterol", getCholestrolStr() + u"(mg/dL)"_s)
           + quoted("Family history", FamilyHistory) + quoted("Patient Notes", PatientNotes);
}

QString toYesNo(std::int32_t value) { return value == 1 ? u"Yes"_s : u"No"_s; }

QString toDoubleQuote(const QString& text) {
    QString doubled = text;
    doubled.replace(u'"', "\"\""_L1);
    qCDebug(lcStore, "before: %s after: %s", qUtf8Printable(text), qUtf8Printable(doubled));
    return doubled;
}

bool StrModified(const QString& a, const QString& b) {
    if (a.isNull() != b.isNull()) return false;
    return a.isNull() || a != b;
}

bool DateModified(const Date& a, const Date& b) {
    if (a.has_value() != b.has_value()) return false;
    return !a || std::chrono::abs(*a - *b) >= std::chrono::days{1};
}

bool PatientModel::isTheSanme(const PatientModel& other) const {
    return !StrModified(ID, other.ID) && !StrModified(FamilyName, other.FamilyName)
           && !StrModified(GivenNames, other.GivenNames) && !StrModified(Address, other.Address)
           && !StrModified(PhoneEmail, other.PhoneEmail) && !DateModified(DateOfBirth, other.DateOfBirth)
           && Sex == other.Sex && Smoker == other.Smoker && Diabetic == other.Diabetic
           && !StrModified(FamilyHistory, other.FamilyHistory)
           && !StrModified(PatientNotes, other.PatientNotes);
}

} // namespace zel
