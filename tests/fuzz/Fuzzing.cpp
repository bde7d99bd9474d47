#include "Fuzzing.h"

#include <QHashSeed>
#include <QLoggingCategory>

#include <unicode/timezone.h>

#include <algorithm>
#include <sstream>

namespace zel::fuzz {

namespace {

/// Told apart from the empty text.
std::string plain(const QString& text) { return text.isNull() ? "-" : '"' + text.toStdString() + '"'; }

std::string plain(const Date& date) {
    return date ? std::to_string(date->time_since_epoch().count()) : std::string{"-"};
}

void print(std::ostream& out, const PatientModel& p) {
    out << "patient " << plain(p.DisplayName) << plain(p.ID) << plain(p.FamilyName) << plain(p.GivenNames)
        << plain(p.Address) << plain(p.PhoneEmail) << plain(p.DateOfBirth) << ' ' << p.Weight << ' '
        << p.Height << ' ' << p.Sex << ' ' << p.Smoker << ' ' << p.Diabetic << ' ' << p.Cholestrol
        << plain(p.FamilyHistory) << plain(p.PatientNotes) << '\n';
}

void print(std::ostream& out, const ReadingModel& r) {
    out << "reading " << plain(r.ID) << plain(r.RecID) << plain(r.ReadingDate);
    for (const std::uint32_t value : r.values())
        out << ' ' << value;
    out << ' ' << r.day << ' ' << r.minuteOfDay << ' ' << r.erorr << r.bAtBegin << r.bAtEnd << r.bDrawTopLine
        << r.bYellowBackground << r.isPMData << r.isNA << (r.comment ? plain(r.comment->CommentID) : "")
        << '\n';
}

void print(std::ostream& out, const std::unique_ptr<CommentModel>& c) {
    out << "comment " << plain(c->ID) << plain(c->CommentID) << c->degree << plain(c->beginDate)
        << plain(c->endDate) << plain(c->comment) << c->beginDay << ' ' << c->endDay << '\n';
}

void print(std::ostream& out, const DataTransferLogModel& d) {
    out << "download " << plain(d.ID) << plain(d.RecID) << plain(d.transferDate) << ' ' << d.numofRecord
        << '\n';
}

template <class Index>
void printAll(std::ostream& out, const Index& index) {
    std::vector<QString> IDs;
    IDs.reserve(index.size());
    for (const auto& [ID, list] : index)
        IDs.push_back(ID);
    std::ranges::sort(IDs);
    for (const QString& ID : IDs)
        for (const auto& record : index.at(ID))
            print(out, record);
}

} // namespace

void prepare() {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    QHashSeed::setDeterministicGlobalSeed();
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone("Europe/Berlin"));
}

std::string textOf(const Records& records) {
    std::ostringstream out;
    for (const PatientModel& patient : records.gaPatient)
        print(out, patient);
    printAll(out, records.mdReading);
    printAll(out, records.mdComment);
    printAll(out, records.mdDataLog);
    const SettingModel& s = records.gSettingModel;
    out << "settings " << records.hasSetting << plain(s.dateFormat) << plain(s.timeFormat)
        << plain(s.metricFormat) << s.eraseRecAfterReading << ' ' << s.showPPorMap << ' ' << s.userWhoStandard
        << ' ' << s.sysStandard << ' ' << s.diaStandard << plain(s.physicianAddress) << '\n';
    for (const std::int64_t largest : records.largestID)
        out << largest << ' ';
    return out.str();
}

} // namespace zel::fuzz

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    zel::fuzz::prepare();
    return 0;
}
