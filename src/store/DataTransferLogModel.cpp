#include "store/DataTransferLogModel.h"

#include "store/RecordXml.h"

#include <array>

namespace zel {

namespace {

using L = DataTransferLogModel;
constexpr std::array dataTransferLogChildren{
    xml::text<L, &L::ID>("ID"),
    xml::text<L, &L::RecID>("RecID"),
    xml::date<L, &L::transferDate>("TransferDate"),
    xml::number<L, &L::numofRecord>("NumofRecord"),
};
constexpr std::span<const XmlChild<L>> dataTransferLogTable{dataTransferLogChildren};

} // namespace

DataTransferLogModel DataTransferLogModel::initWithXMLNode(pugi::xml_node element, const LocalZone& zone) {
    DataTransferLogModel entry;
    readChildren(entry, element, dataTransferLogTable);
    entry.transferDay = zone.day(entry.transferDate);
    return entry;
}

pugi::xml_node DataTransferLogModel::makeXmlNode(pugi::xml_node root) {
    const pugi::xml_node element = root.append_child("DataTransferLog");
    addChildren(element, dataTransferLogTable);
    return element;
}

void DataTransferLogModel::updateXMLNode(pugi::xml_node element) const {
    writeChildren(*this, element, dataTransferLogTable);
}

} // namespace zel
