#pragma once
// How a record and its XML element go over into each other. Each record has one table of its element's
// children, in the file's order, that reads, writes and makes it.

#include "store/XmlDate.h"

#include <QString>

#include <pugixml.hpp>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace zel {

/// The element's text: its character data, without that of elements inside it. A view into the document, or
/// into \p scratch when it stands in several pieces.
[[nodiscard]] std::string_view elementText(pugi::xml_node element, std::string& scratch);
[[nodiscard]] QString elementText(pugi::xml_node element);

/// Replaces the element's text; comments and elements inside it stay. Characters that XML cannot hold are
/// left out. An element that has the text already is not touched.
void setElementText(pugi::xml_node element, const QString& value);

[[nodiscard]] QString toQString(std::string_view utf8);
/// As the pattern "%d" writes it: numbers above 2147483647 come out negative, and are read back the same.
[[nodiscard]] QString toDecimal(std::uint32_t value);
[[nodiscard]] std::uint32_t toUnsigned(std::string_view text);
[[nodiscard]] std::int32_t toSigned(std::string_view text);

/// As strcmp() == 0, without the call: a file holds a million names, most of them equal at once.
[[nodiscard]] constexpr bool isSameName(const char* a, const char* b) {
    while (*a != '\0' && *a == *b)
        ++a, ++b;
    return *a == *b;
}

/// A processing instruction has a name too, but is no element.
[[nodiscard]] inline bool isElement(pugi::xml_node node, const char* name) {
    return node.type() == pugi::node_element && isSameName(node.name(), name);
}

/// The first child element of that name; null when there is none.
[[nodiscard]] inline pugi::xml_node firstElement(pugi::xml_node parent, const char* name) {
    return parent.find_child([name](pugi::xml_node node) { return isElement(node, name); });
}

/// The text of the first child element of that name: where a record holds one twice, every reader takes the
/// first. Empty when there is none.
[[nodiscard]] inline QString childText(pugi::xml_node record, const char* name) {
    return elementText(firstElement(record, name));
}

/// One child element of a record. A child without read is only made; one with made = false is read and
/// rewritten where a file has it.
template <class Record>
struct XmlChild {
    const char* name;
    void (*read)(Record&, std::string_view text) = nullptr;
    QString (*write)(const Record&) = nullptr;
    bool made = true;
};

namespace xml {

template <class Record, auto Member>
constexpr XmlChild<Record> text(const char* name) {
    return {name, [](Record& r, std::string_view t) { r.*Member = toQString(t); },
            [](const Record& r) { return r.*Member; }};
}

template <class Record, auto Member>
constexpr XmlChild<Record> number(const char* name) {
    return {name, [](Record& r, std::string_view t) { r.*Member = toUnsigned(t); },
            [](const Record& r) { return toDecimal(r.*Member); }};
}

template <class Record, auto Member>
constexpr XmlChild<Record> date(const char* name) {
    return {name, [](Record& r, std::string_view t) { r.*Member = XMLStrToDate(t); },
            [](const Record& r) { return XMLDateToStr(r.*Member); }};
}

/// A date whose day stays the one in the file's text, whatever the time zone.
template <class Record, auto Member>
constexpr XmlChild<Record> localDate(const char* name) {
    return {name, [](Record& r, std::string_view t) { r.*Member = XMLStrToLocalDate(t); },
            [](const Record& r) { return XMLDateToStr(r.*Member); }};
}

} // namespace xml

/// Reads every child that the table knows, by exact name, the first of each; others are ignored, missing ones
/// change nothing.
template <class Record>
void readChildren(Record& record, pugi::xml_node element, std::span<const XmlChild<Record>> table) {
    std::string scratch;
    std::uint32_t seen = 0; // one bit for each of the table
    std::size_t next = 0;   // children usually stand in the table's order
    for (pugi::xml_node child = element.first_child(); child; child = child.next_sibling()) {
        const char* const name = child.name();
        for (std::size_t tried = 0; tried < table.size(); ++tried) {
            const XmlChild<Record>& known = table[next];
            const std::uint32_t bit = 1U << next;
            next = next + 1 == table.size() ? 0 : next + 1;
            if (!isSameName(name, known.name)) continue;
            if (child.type() != pugi::node_element || (seen & bit) != 0) break;
            seen |= bit;
            if (known.read) known.read(record, elementText(child, scratch));
            break;
        }
    }
}

/// Sets the text of each existing child that the table knows; adds none. With \p before, only where the
/// field differs from it: the others keep their text to the letter, also one that was not understood.
template <class Record>
void writeChildren(const Record& record, pugi::xml_node element, std::span<const XmlChild<Record>> table,
                   const Record* before = nullptr) {
    for (const XmlChild<Record>& known : table) {
        if (!known.write) continue;
        const QString text = known.write(record);
        if (before && text == known.write(*before)) continue;
        if (const pugi::xml_node child = firstElement(element, known.name)) setElementText(child, text);
    }
}

/// Adds the children that a new element is made with, empty.
template <class Record>
void addChildren(pugi::xml_node element, std::span<const XmlChild<Record>> table) {
    for (const XmlChild<Record>& known : table) {
        if (known.made) element.append_child(known.name);
    }
}

} // namespace zel
