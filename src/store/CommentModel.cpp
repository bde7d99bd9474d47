#include "store/CommentModel.h"

#include "store/RecordXml.h"

#include <array>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

using C = CommentModel;
constexpr std::array commentChildren{
    xml::text<C, &C::ID>("ID"),
    xml::text<C, &C::CommentID>("CommentID"),
    xml::number<C, &C::degree>("Degree"),
    xml::localDate<C, &C::beginDate>("BeginDate"),
    xml::localDate<C, &C::endDate>("EndDate"),
    xml::text<C, &C::comment>("Comment"),
};
constexpr std::span<const XmlChild<C>> commentTable{commentChildren};

} // namespace

CommentModel CommentModel::initWithXMLNode(pugi::xml_node element, const LocalZone& zone) {
    CommentModel comment;
    readChildren(comment, element, commentTable);
    if (comment.CommentID.isNull()) comment.CommentID = u""_s; // a null text selects none
    comment.beginDay = zone.day(comment.beginDate);
    comment.endDay = zone.day(comment.endDate);
    return comment;
}

pugi::xml_node CommentModel::makeXmlNode(pugi::xml_node root) {
    const pugi::xml_node element = root.append_child("Comment");
    addChildren(element, commentTable);
    return element;
}

void CommentModel::updateXMLNode(pugi::xml_node element, const CommentModel* before) const {
    writeChildren(*this, element, commentTable, before);
}

bool CommentModel::isSame(const CommentModel& other) const {
    return ID == other.ID && numberInFile() == other.numberInFile() && degree == other.degree
           && beginDate == other.beginDate && endDate == other.endDate && comment == other.comment;
}

} // namespace zel
