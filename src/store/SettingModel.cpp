#include "store/SettingModel.h"

#include "store/Dates.h"
#include "store/RecordXml.h"

#include <QStringList>

#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using S = SettingModel;
constexpr std::array settingChildren{
    xml::text<S, &S::dateFormat>("DateFormat"),
    xml::text<S, &S::timeFormat>("TimeFormat"),
    xml::text<S, &S::metricFormat>("MetricFormat"),
    xml::number<S, &S::eraseRecAfterReading>("EraseRecAfterReading"),
    xml::number<S, &S::showPPorMap>("ShowPPorMap"),
    xml::number<S, &S::userWhoStandard>("UserWhoStandard"),
    xml::number<S, &S::sysStandard>("SysStandard"),
    xml::number<S, &S::diaStandard>("DiaStandard"),
    xml::text<S, &S::physicianAddress>("PhysicianAddress"),
};
constexpr std::span<const XmlChild<S>> settingTable{settingChildren};

} // namespace

SettingModel SettingModel::initWithDefault() {
    return {.dateFormat = u"dd mm yyyy"_s,
            .timeFormat = u"12-hours"_s,
            .metricFormat = u"kg / cm"_s,
            .eraseRecAfterReading = 1,
            .showPPorMap = 0,
            .userWhoStandard = 1,
            .sysStandard = 140,
            .diaStandard = 90,
            .physicianAddress = u"Practitioner (Physician)\nPractice\nStreet address\nZip Code and City\n"
                                "Phone\nEmail Address"_s};
}

SettingModel SettingModel::initWithXMLNode(pugi::xml_node element) {
    SettingModel setting;
    readChildren(setting, element, settingTable);
    return setting;
}

pugi::xml_node SettingModel::makeXmlNode(pugi::xml_node root) {
    const pugi::xml_node element = root.append_child("SystemSetting");
    addChildren(element, settingTable);
    SettingModel defaults = initWithDefault();
    defaults.metricFormat = u"lb / in"_s;
    defaults.updateXMLNode(element);
    return element;
}

void SettingModel::updateXMLNode(pugi::xml_node element, const SettingModel* before) const {
    writeChildren(*this, element, settingTable, before);
}

void SettingModel::takeChanges(const SettingModel& shown, const SettingModel& wanted) {
    for (const XmlChild<S>& known : settingTable) {
        const QString text = known.write(wanted);
        if (text != known.write(shown)) known.read(*this, text.toStdString());
    }
}

QString SettingModel::getDateFormat() const {
    if (dateFormat == "dd mm yyyy"_L1) return u"dd/MM/yyyy"_s;
    if (dateFormat == "mm dd yyyy"_L1) return u"MM/dd/yyyy"_s;
    if (dateFormat == "yyyy mm dd"_L1) return u"yyyy/MM/dd"_s;
    return {};
}

QString SettingModel::shownDateFormat() const {
    const QString format = getDateFormat();
    return format.isNull() ? u"yyyy/MM/dd"_s : format;
}

QString SettingModel::timeText(int minuteOfDay) const {
    const int hour = is12Hours() ? hourOnDial(minuteOfDay) : minuteOfDay / 60;
    QString shown = QString::asprintf("%02d:%02d", hour, minuteOfDay % 60);
    if (!is12Hours()) return shown;
    return (minuteOfDay < 12 * 60 ? qtTrId("%1 A") : qtTrId("%1 P")).arg(shown);
}

QString SettingModel::getPractitioner() const {
    const QStringList suggested = initWithDefault().physicianAddress.split(u'\n');
    QStringList own = physicianAddress.split(u'\n');
    own.removeIf([&](const QString& line) { return suggested.contains(line.trimmed()); });
    return own.join(u'\n').trimmed();
}

bool SettingModel::isMetric() const { return metricFormat == "kg / cm"_L1; }

bool SettingModel::is12Hours() const { return timeFormat == "12-hours"_L1; }

} // namespace zel
