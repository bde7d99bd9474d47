#include "store/CommentModel.h"

#include "store/RecordXml.h"

#include <array>

namespace zel {

namespace {

using C = CommentModel;
constexpr std::array commentChildren{
    xml::text<C, &C::ID>("ID"),           xml::text<C, &C::CommentID>("CommentID"),
    xml::number<C, &C::degree>("Degree"), xml::date<C, &C::beginDate>("BeginDate"),
    xml::date<C, &C::endDate>("EndDate"), xml::text<C, &C::comment>("Comment"),
};
constexpr std::span<const XmlChild<C>> commentTable{commentChildren};

} // namespace

CommentModel CommentModel::initWithXMLNode(pugi::xml_node element, const LocalZone& zone) {
    CommentModel comment;
    readChildren(comment, element, commentTable);
    comment.beginDay = zone.day(comment.beginDate);
    comment.endDay = zone.day(comment.endDate);
    return comment;
}

pugi::xml_node CommentModel::makeXmlNode(pugi::xml_node root) {
    const pugi::xml_node element = root.append_child("Comment");
    addMissingChildren(element, commentTable);
    return element;
}

void CommentModel::addMissingXmlChildren(pugi::xml_node element) {
    addMissingChildren(element, commentTable);
}

void CommentModel::updateXMLNode(pugi::xml_node element) const {
    writeChildren(*this, element, commentTable);
}

} // namespace zel
