#include "store/XmlDocument.h"

#include "store/RecordXml.h"

#include <gtest/gtest.h>

#include <string>

namespace zel {
namespace {

using namespace Qt::StringLiterals;

const std::string good =
    "<?xml version=\"1.0\"?>\n<!-- first -->\n<ZEL>\n    <Patient>\n        <ID>A&amp;B</ID>\n"
    "        <Own kind=\"x\" type=\"y\">kept</Own>\n        <Blank>  </Blank>\n"
    "        <!-- & < inside -->\n    </Patient>\n    <Note><![CDATA[a & b]]></Note>\n</ZEL>\n<!-- last "
    "-->\n";

std::string spoiled(const std::string& part, const std::string& by) {
    std::string text = good;
    return text.replace(text.find(part), part.size(), by);
}

TEST(XmlDocument, RefusesWhatIsNotWellFormed) {
    ASSERT_TRUE(XmlDocument::parse(QByteArray::fromStdString(good)));
    for (const std::string& bad : {
             std::string{},
             std::string{" \n"},
             std::string{"no markup"},
             good.substr(0, good.size() / 2),
             good.substr(0, good.size() - 30), // within the last comment
             good + "<ZEL/>",
             good + "text",
             "text" + good,
             spoiled("</Patient>", "</Patent>"),
             spoiled("type=", "kind="),
             spoiled("A&amp;B", "A & B"),
             spoiled("A&amp;B", "A&eacute;B"),
             spoiled("A&amp;B", "A&amp B"),
             spoiled("A&amp;B", "A\xFF"
                                "B"),
             spoiled("A&amp;B", "A\xC3"),
             spoiled("A&amp;B", std::string{"A\0B", 3}),
             "<!DOCTYPE ZEL [<!ENTITY e \"x\">]>" + spoiled("A&amp;B", "&e;").substr(22),
             spoiled("A&amp;B", "A&#0;B"),
             spoiled("A&amp;B", "A&#xD800;B"),
             spoiled("A&amp;B", "A&#x99999999;B"),
             spoiled("A&amp;B", "A&#xyz;B"),
             spoiled("<!-- first -->", "<?xml version=\"1.0\"?>"),
             spoiled("version=\"1.0\"", "version=\"1.0\" encoding=\"no-such\""),
         }) {
        const auto result = XmlDocument::parse(QByteArray::fromStdString(bad));
        ASSERT_FALSE(result) << bad;
        EXPECT_FALSE(result.error().isEmpty()) << bad;
    }
}

TEST(XmlDocument, KeepsEverythingItDoesNotKnow) {
    auto document = XmlDocument::parse(QByteArray::fromStdString(good));
    ASSERT_TRUE(document);
    setElementText(document->root().child("Note"), u"a & b"_s); // what is so already is not rewritten
    setElementText(document->root().child("Patient").child("ID"), u"Ä<\"\U0001F600\x01\xD800\n"_s);
    const QByteArray saved = document->serialise().value();
    EXPECT_EQ(saved, QByteArray::fromStdString(
                         spoiled("A&amp;B", "Ä&lt;\"\U0001F600\n"))); // what XML cannot hold is left out
    const auto again = XmlDocument::parse(saved);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->serialise().value(), saved);
}

TEST(XmlDocument, ChangedTextReplacesAllPiecesAndKeepsWhatIsBetween) {
    auto document = XmlDocument::parse("<ZEL><A>one<!-- c -->two<![CDATA[three]]><B/></A><C>x</C><D/></ZEL>");
    ASSERT_TRUE(document);
    const pugi::xml_node root = document->root();
    EXPECT_EQ(elementText(root.child("A")), u"onetwothree"_s);
    setElementText(root.child("A"), u"new"_s);
    setElementText(root.child("C"), u""_s);
    setElementText(root.child("D"), u"]]>\r\n\r"_s);
    EXPECT_EQ(elementText(root.child("A")), u"new"_s);
    const auto saved = XmlDocument::parse(document->serialise().value());
    ASSERT_TRUE(saved);
    EXPECT_EQ(elementText(saved->root().child("A")), u"new"_s);
    EXPECT_TRUE(saved->root().child("A").child("B"));
    EXPECT_EQ(elementText(saved->root().child("C")), u""_s);
    EXPECT_EQ(elementText(saved->root().child("D")), u"]]>\r\n\r"_s);
}

struct EncodingCase {
    const char* name;
    QByteArray file;
};

QByteArray utf16(const char16_t* text, bool bigEndian) {
    QByteArray bytes;
    for (const char16_t* c = text; *c != 0; ++c) {
        const char high = static_cast<char>(*c >> 8);
        const char low = static_cast<char>(*c & 0xFF);
        bytes.append(bigEndian ? high : low).append(bigEndian ? low : high);
    }
    return bytes;
}

TEST(XmlDocument, KeepsItsEncoding) {
    const char16_t* const wide = u"\uFEFF<ZEL>\n    <A>\u00E4</A>\n</ZEL>\n";
    const QByteArray body = "\n<ZEL>\n    <A>\xE4</A>\n</ZEL>\n";
    for (const auto& [name, file] : {
             EncodingCase{"marked UTF-8", "\xEF\xBB\xBF<ZEL>\n    <A>\xC3\xA4</A>\n</ZEL>\n"},
             EncodingCase{"UTF-16LE", utf16(wide, false)},
             EncodingCase{"UTF-16BE", utf16(wide, true)},
             EncodingCase{"ISO-8859-1", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + body},
             EncodingCase{"windows-1252", "<?xml version='1.0' encoding='windows-1252'?>" + body},
         }) {
        auto document = XmlDocument::parse(file);
        ASSERT_TRUE(document) << name << ": " << document.error().toStdString();
        const pugi::xml_node element = document->root().child("A");
        EXPECT_EQ(elementText(element), u"ä"_s) << name;
        setElementText(element, u"ä€"_s);
        setElementText(element, u"ä"_s);
        EXPECT_EQ(document->serialise().value().replace('\'', '"'), QByteArray{file}.replace('\'', '"'))
            << name;
        setElementText(element, u"ä漢"_s); // not in every one of these encodings
        const auto again = XmlDocument::parse(document->serialise().value());
        ASSERT_TRUE(again) << name;
        EXPECT_EQ(elementText(again->root().child("A")), u"ä漢"_s) << name;
    }
    EXPECT_FALSE(XmlDocument::parse("<?xml version=\"1.0\" encoding=\"US-ASCII\"?><ZEL>\xE4</ZEL>"));
}

} // namespace
} // namespace zel
