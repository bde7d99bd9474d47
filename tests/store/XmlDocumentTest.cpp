#include "store/XmlDocument.h"

#include "store/RecordXml.h"

#include <gtest/gtest.h>

#include <random>
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
    for (const char* taken : {"\xEF\xBD\x86", "\xEF\xBB\xBF", "\xEF\xBF\xBD", "&#x10FFFF;", "&#9;", "&#x20;",
                              "&#xD7FF;", "&#xE000;", "&#xFFFD;", "&#x10000;"})
        EXPECT_TRUE(XmlDocument::parse(QByteArray::fromStdString(spoiled("A&amp;B", taken)))) << taken;
    for (const char* refused : {"&#x110000;", "&#xFFFE;", "&#x1F;", "&#xDFFF;", "&#x;", "&#;", "&x20;"})
        EXPECT_FALSE(XmlDocument::parse(QByteArray::fromStdString(spoiled("A&amp;B", refused)))) << refused;
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
             spoiled("A&amp;B", "A\x01"
                                "B"),
             spoiled("a & b", "a\x1F"
                              "b"),
             spoiled("version=\"1.0\"", "version=\"\x01\""),
             spoiled("A&amp;B", "A\xEF\xBF\xBE"
                                "B"),
             spoiled("A&amp;B", "A\xEF\xBF\xBF"),
             spoiled("version=\"1.0\"", "version=\"1.0\" encoding=\"US-ASCII<\""),
             spoiled("version=\"1.0\"", "version=\"1.0\" encoding=\"ISO-8859-1&amp;\""),
             spoiled("version=\"1.0\"", "version=\"1.0\" encoding=\"ISO-8859-1,swaplfnl\""),
             good + "x",
             good.substr(0, good.size() - 2),
             std::string{"<ZEL/>x"},
             "<!DOCTYPE ZEL [<!ENTITY e \"x\">]>" + spoiled("A&amp;B", "&e;").substr(22),
             spoiled("A&amp;B", "A&#0;B"),
             spoiled("A&amp;B", "A&#xD800;B"),
             spoiled("A&amp;B", "A&#x99999999;B"),
             spoiled("A&amp;B", "A&#xyz;B"),
             spoiled("<!-- first -->", "<?xml version=\"1.0\"?>"),
             spoiled("version=\"1.0\"", "version=\"1.0\" encoding=\"no-such\""),
             spoiled("version=\"1.0\"", "version=\"1.0&#x58daAdaAA;\""),
             "\n" + spoiled("version=\"1.0\"", "version=\"1.0\" encoding=\"ISO-8859-1\""),
         }) {
        const auto result = XmlDocument::parse(QByteArray::fromStdString(bad));
        ASSERT_FALSE(result) << bad;
        EXPECT_FALSE(result.error().isEmpty()) << bad;
    }
}

TEST(XmlDocument, TakesABlankBeforeADeclarationOfUtf8) {
    for (const char* encoding : {"", " encoding=\"UTF-8\"", " encoding='utf-8'", " encoding=\"\"",
                                 " otherencoding=\"no-such\"", " other=\" encoding='no-such'\""}) {
        const QByteArray declaration = QByteArray{"<?xml version=\"1.0\""} + encoding + "?>";
        const auto document = XmlDocument::parse("\r\n " + declaration + "<ZEL><A>\xC3\xA4</A></ZEL>");
        ASSERT_TRUE(document) << encoding;
        const QByteArray again = document->serialise().value_or(QByteArray{});
        EXPECT_TRUE(again.startsWith("<?xml") && again.contains("\xC3\xA4")) << again.constData();
        EXPECT_TRUE(XmlDocument::parse(again)) << "without the blank, too: " << again.constData();
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

/// Whatever is taken is written in a form that is taken, and is not changed by another round.
TEST(XmlDocument, WhatIsTakenIsWrittenSoThatItIsTakenAgain) {
    const std::string kinds =
        "<?xml version='1.0' encoding='utf-8'?><!DOCTYPE ZEL><!-- c --><ZEL a='1' b=\"&lt;\">"
        "one<![CDATA[<two>&]]>three&amp;<A> \r\n </A><B>\xC3\xA4&#13;</B><?pi x?></ZEL>";
    const std::string signs = "<>&;'\"=?!-/[] xA9#\r\n\t\x01\x7F\xC3\xEF";
    std::minstd_rand random{7};
    const auto below = [&random](std::size_t end) { return random() % end; };
    int taken = 0;
    for (int round = 0; round < 20'000; ++round) {
        std::string text = round % 2 == 0 ? kinds : good;
        for (std::size_t change = below(4); change > 0; --change) {
            const std::size_t at = below(text.size());
            if (below(2) == 0)
                text[at] = signs[below(signs.size())];
            else
                text.insert(at, text.substr(below(text.size()), below(30)));
        }
        const auto document = XmlDocument::parse(QByteArray::fromStdString(text));
        const auto written = document ? document->serialise() : tl::unexpected{QString{}};
        if (!written) continue;
        ++taken;
        const auto again = XmlDocument::parse(*written);
        ASSERT_TRUE(again) << text << "\nis written as\n" << written->toStdString();
        ASSERT_EQ(again->serialise().value(), *written) << text;
    }
    EXPECT_GT(taken, 2000) << "enough of them to mean something";
}

TEST(XmlDocument, TextBesideCdataIsKept) {
    const QByteArray text = "<ZEL>\n    <A>one<![CDATA[<two>]]>three</A>\n    <B>4</B>\n</ZEL>\n";
    EXPECT_EQ(XmlDocument::parse(text)->serialise().value(), text);
}

/// Wherever it stands among the bytes that are looked at together.
TEST(XmlDocument, RefusesAControlCharacterAnywhere) {
    for (qsizetype before = 0; before < 200; ++before) {
        const QByteArray begin = "<ZEL>" + QByteArray(before, 'x');
        EXPECT_FALSE(XmlDocument::parse(begin + "\x1F</ZEL>")) << before;
        EXPECT_FALSE(XmlDocument::parse(begin + "&no;</ZEL>")) << before;
        EXPECT_FALSE(XmlDocument::parse(begin + "\xEF\xBF\xBF</ZEL>")) << before;
        EXPECT_TRUE(XmlDocument::parse(begin + "\t\r\n \x7F</ZEL>")) << before;
    }
}

/// Each of these few megabytes took seconds, gigabytes or the program's stack.
TEST(XmlDocument, RefusesWhatWouldTakeTooMuch) {
    const auto levels = [](qsizetype count) {
        return "<ZEL>" + QByteArray{"<a>"}.repeated(count) + QByteArray{"</a>"}.repeated(count) + "</ZEL>";
    };
    EXPECT_TRUE(XmlDocument::parse(levels(99)));
    EXPECT_FALSE(XmlDocument::parse(levels(100)));
    EXPECT_FALSE(XmlDocument::parse(levels(200'000)));
    for (const char* hiding :
         {"<!--</a></a>-->", "<?p </a></a>?>", "<b c='</a></a>'/>", "<![CDATA[</a></a>]]>"}) {
        const auto hidden = [hiding](qsizetype count) {
            return "<ZEL>" + (QByteArray{"<a>"} + hiding).repeated(count) + QByteArray{"</a>"}.repeated(count)
                   + "</ZEL>";
        };
        EXPECT_TRUE(XmlDocument::parse(hidden(98))) << hiding;
        EXPECT_FALSE(XmlDocument::parse(hidden(100))) << hiding;
    }
    const auto holds = [](const QByteArray& records) {
        return XmlDocument::parse("<ZEL>" + records + "</ZEL>").has_value();
    };
    const auto within = [](const char* parts, qsizetype count) {
        return "<Own>" + QByteArray{parts}.repeated(count) + "</Own>";
    };
    for (const char* dense :
         {"<a/>", "x<b/>", " x <bbbbbb/>", "<!---->", "<a>x</a>x", "<![CDATA[]]>", "<a b='' c=''/>"}) {
        EXPECT_TRUE(holds(within(dense, 100'000))) << dense;
        EXPECT_FALSE(holds(within(dense, 2'100'000))) << dense;
    }
    EXPECT_TRUE(holds(within("<Sys>131</Sys>\n", 900'000))) << "as in a file of another program";
    EXPECT_TRUE(holds(
        QByteArray{"<MeasureRec><ID>A</ID><RecID>1</RecID><Sys>131</Sys></MeasureRec>"}.repeated(300'000)));
    EXPECT_FALSE(holds(QByteArray{"<Patient>      </Patient>"}.repeated(500'000)))
        << "few parts, but many records";
    EXPECT_FALSE(XmlDocument::parse(within("<a", 2'000'000)))
        << "no tag ends, which takes no look at all the rest";
    QByteArray element = "<ZEL";
    for (int i = 0; i < 100'000; ++i)
        element += " a" + QByteArray::number(i) + "=''";
    EXPECT_TRUE(XmlDocument::parse(element + "/>")) << "many, but each once; compared in linear time";
    EXPECT_FALSE(XmlDocument::parse(element + " a0=''/>"));
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
    for (const char* name : {"HZ-GB-2312", "hz", "ASCII", "ascii", "ISO_8859-9", "ISO-IR-100", "ibm-367"})
        EXPECT_TRUE(
            XmlDocument::parse(QByteArray{"<?xml version='1.0' encoding='"} + name + "'?><ZEL>a</ZEL>"))
            << name;
}

} // namespace
} // namespace zel
