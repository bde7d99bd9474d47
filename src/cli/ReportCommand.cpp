#include "cli/Commands.h"
#include "cli/OpenStore.h"
#include "cli/PeriodOptions.h"
#include "cli/RuleOption.h"
#include "cli/Usage.h"
#include "report/ReportDocument.h"
#include "report/ReportPdf.h"

#include <QFileInfo>

namespace zel::cli {

using namespace Qt::StringLiterals;

namespace {

/// What the user asked for, whatever the patient.
struct Order {
    QString ID;
    std::vector<Section> sections;
    DayRange days;
    ViewSelection view;
    AverageRule rule;
    QPageSize paper;
    QString output;
    bool needsPractitioner;
    bool isTrendApart;
};

QString sectionKeys() {
    QStringList keys;
    for (const SectionFacts& row : sections())
        keys += QLatin1StringView(row.key);
    return keys.join(u", "_s);
}

tl::expected<std::vector<Section>, Failure> sectionOption(const Request& request) {
    const auto text = requiredValue(request, u"section"_s);
    if (!text) return tl::unexpected(text.error());
    std::vector<Section> chosen;
    if (*text == "all"_L1) {
        for (const SectionFacts& row : sections())
            chosen.push_back(row.section);
        return chosen;
    }
    for (const QString& key : text->split(u',')) {
        const auto section = sectionByKey(key);
        if (!section) return wrongUsage(qtTrId("CliNoSuchSection").arg(key, sectionKeys()));
        chosen.push_back(*section);
    }
    return chosen;
}

tl::expected<QPageSize, Failure> paperOption(const Request& request, const QPageSize& usual) {
    if (!request.options.isSet(u"paper"_s)) return usual;
    const QString text = request.options.value(u"paper"_s);
    if (text == "A4"_L1) return QPageSize(QPageSize::A4);
    if (text == "Letter"_L1) return QPageSize(QPageSize::Letter);
    return wrongUsage(qtTrId("CliBadPaper").arg(text));
}

tl::expected<Order, Failure> orderOf(const Request& request, const QPageSize& usualPaper) {
    const auto ID = requiredValue(request, u"patient"_s);
    if (!ID) return tl::unexpected(ID.error());
    const auto sections = sectionOption(request);
    if (!sections) return tl::unexpected(sections.error());
    const auto days = dayRange(request);
    if (!days) return tl::unexpected(days.error());
    const auto view = viewOption(request);
    if (!view) return tl::unexpected(view.error());
    const auto rule = ruleOption(request);
    if (!rule) return tl::unexpected(rule.error());
    const auto paper = paperOption(request, usualPaper);
    if (!paper) return tl::unexpected(paper.error());
    const auto output = requiredValue(request, u"output"_s);
    if (!output) return tl::unexpected(output.error());
    return Order{*ID,
                 *sections,
                 *days,
                 *view,
                 *rule,
                 *paper,
                 *output,
                 request.options.isSet(u"practitioner"_s),
                 request.options.isSet(u"apart"_s)};
}

/// A slip of the finger must not cost years of readings.
CommandResult checkOutput(const DataStore& store, const QString& path) {
    if (QFileInfo(path) == QFileInfo(store.getZELXMLPath()))
        return failed(describe(StoreError{StoreErrorCode::isDataFile, path, {}}));
    return {};
}

/// All that is stored of the patient, or the days and the half of the day asked for; undated readings belong
/// to no day.
ReadingSelection selectionOf(const Order& order, const DataStore& store, const Clock& clock) {
    const bool isAll = order.days.isOpen() && order.view == ViewSelection::viewAll;
    return {periodOf(order.days, store.getReadingForCurID(), clock), order.view, isAll};
}

/// Says which sections of those asked for have no page.
void tellEmptySections(const PrintView& view, const Order& order, Surroundings& around) {
    QStringList keys;
    const ReportDocument document(view, order.sections);
    for (const Section section : document.emptySections())
        keys += QLatin1StringView(facts(section).key);
    if (!keys.isEmpty()) printLine(around.err, qtTrId("CliEmptySections").arg(keys.join(u", "_s)));
}

CommandResult writeReport(const Order& order, const DataStore& store, Surroundings& around) {
    auto source = reportSource(store, selectionOf(order, store, around.clock), around.clock);
    if (!source) return failed(qtTrId("CliNoSuchPatient").arg(order.ID));
    source->needPhysicianInfo = order.needsPractitioner;
    source->weekRule = order.rule;
    source->trendApart = order.isTrendApart;
    const PrintView view(std::move(*source), order.paper);
    const auto written = writePdf(view, order.sections, order.output);
    if (!written) return failed(describe(written.error()));
    printLine(around.out, u"written: "_s + order.output);
    if (const StoreResult& limits = store.viewLimitsRead(); !limits)
        printLine(around.err, describeUnreadLimits(limits.error()));
    tellEmptySections(view, order, around);
    return {};
}

CommandResult runReport(const Request& request, Surroundings& around) {
    const auto order = orderOf(request, around.usualPaper);
    if (!order) return tl::unexpected(order.error());
    const OpenedStore store = openStore(around);
    if (!store) return tl::unexpected(store.error());
    if (CommandResult known = checkPatient(**store, order->ID); !known) return known;
    if (CommandResult safe = checkOutput(**store, order->output); !safe) return safe;
    (*store)->setCurrentID(order->ID);
    return writeReport(*order, **store, around);
}

} // namespace

Command reportCommand() {
    return {"report", [] { return qtTrId("CliHelpReport"); },
            [] {
                return QList{valued(u"patient"_s),    valued(u"section"_s), valued(u"from"_s),
                             valued(u"to"_s),         valued(u"last"_s),    flag(u"am"_s),
                             flag(u"pm"_s),           flag(u"apart"_s),     valued(u"rule"_s),
                             flag(u"practitioner"_s), valued(u"paper"_s),   valued(u"output"_s)};
            },
            runReport};
}

} // namespace zel::cli
