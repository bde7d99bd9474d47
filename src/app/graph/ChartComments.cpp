#include "app/graph/ChartComments.h"

#include "app/frame/CommentViewController.h"
#include "app/frame/PeriodMoves.h"
#include "chart/CommentBoxes.h"

#include <algorithm>
#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

std::uint32_t degreeOf(int colourIndex) {
    return static_cast<std::uint32_t>(4 - std::clamp(colourIndex, 0, 3));
}

} // namespace

QString colourName(int colourIndex) {
    const std::array names{qtTrId("colourYellow"), qtTrId("colourBlue"), qtTrId("colourOrange"),
                           qtTrId("colourGrey")};
    return names.at(static_cast<std::size_t>(std::clamp(colourIndex, 0, 3)));
}

QString commentImage(int colourIndex, bool hovered) {
    const std::array names{u"Yellow"_s, u"Blue"_s, u"Red"_s, u"Black"_s};
    return u":/images/CD%1%2.svg"_s.arg(names.at(static_cast<std::size_t>(std::clamp(colourIndex, 0, 3))),
                                        hovered ? u"F"_s : u"A"_s);
}

ChartComments::ChartComments(DataStore& dataStore, MessagePanel& messagePanel, QObject* parent)
    : QObject(parent), store(dataStore), messages(messagePanel) {
    connect(&store, &DataStore::currentIDChanged, this, &ChartComments::forgetSelection);
}

void ChartComments::setPanel(CommentViewController& commentPanel) {
    panel = &commentPanel;
    connect(panel, &CommentViewController::commentSelected, this, &ChartComments::noteSelection);
}

void ChartComments::noteSelection(bool byUser) {
    const CommentModel* comment = byUser ? store.getSelectedComment() : nullptr;
    meant = comment ? comment->CommentID : QString();
    how = SelectedBy::user;
    emit selected();
}

SelectedBy ChartComments::selectedBy(const QString& CommentID) const {
    return !meant.isNull() && meant == CommentID ? how : SelectedBy::itself;
}

const CommentModel* ChartComments::find(const QString& CommentID) const {
    const auto found = std::ranges::find(all(), CommentID, [](const auto& each) { return each->CommentID; });
    return found == all().end() ? nullptr : found->get();
}

/// Also where the panel is not in view: what it shows is what its buttons work on.
bool ChartComments::select(const QString& CommentID) { return panel->setCommentScroll(CommentID); }

bool ChartComments::tell(const StoreResult& result) {
    const StoreResult& loaded = store.lastLoad();
    if (!result)
        messages.ShowMessage(describeWithin(qtTrId("commentUnchanged"), result.error()), qtTrId("Warning"));
    else if (!loaded)
        messages.ShowMessage(qtTrId("storedNotReadBack").arg(describe(loaded.error())), qtTrId("Warning"));
    return result.has_value();
}

void ChartComments::create(CommentModel comment) {
    if (!panel->finish()) return;
    const auto added = store.addCommentForCurID(std::move(comment));
    if (!tell(added.map([](const QString&) {})) || !select(*added)) return;
    how = SelectedBy::creation;
    panel->editNew();
}

bool ChartComments::save(const CommentModel& comment) {
    const CommentModel* known = find(comment.CommentID);
    const auto asRead = known ? std::optional<CommentModel>(*known) : std::nullopt;
    if (!tell(store.saveCommentToXML(comment, asRead))) return false;
    select(comment.CommentID);
    return true;
}

void ChartComments::recolour(const QString& CommentID, int colourIndex) {
    const CommentModel* comment = find(CommentID);
    if (!comment || comment->degree == degreeOf(colourIndex)) return;
    CommentModel changed = *comment;
    changed.degree = degreeOf(colourIndex);
    save(changed);
}

void ChartComments::moveEdge(const QString& CommentID, bool right, int days) {
    const CommentModel* comment = find(CommentID);
    const auto dates = comment ? commentPeriod(*comment) : std::nullopt;
    if (!dates) return;
    const Period now{DateToDayBoundary(dates->begin, true), DateToDayBoundary(dates->end, false)};
    const Period moved = right ? movedEnds(now, 0, days) : movedEnds(now, days, 0);
    if (moved.end < moved.begin) return;
    CommentModel changed = *comment;
    changed.beginDate = right ? dates->begin : moved.begin; // the other one as it is, to the letter
    changed.endDate = right ? moved.end : dates->end;
    save(changed);
}

void ChartComments::remove(const QString& CommentID) {
    if (select(CommentID)) panel->deleteComment();
}

void ChartComments::showDates(const CommentModel& comment) { panel->updateDaetInfo(comment); }

} // namespace zel
