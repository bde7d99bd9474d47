#pragma once

#include "store/AtomicFile.h"
#include "store/DataStore.h"
#include "store/XmlFile.h"
#include "support/ManualClock.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zel {

using namespace Qt::StringLiterals;

inline const QByteArray templateFile =
    "<ZEL>\n    <SystemSetting>\n        <DateFormat>yyyy mm dd</DateFormat>\n    </SystemSetting>\n</ZEL>\n";

/// A home without a data file, and a program folder with the template.
struct DataStoreTest : testing::Test {
    QTemporaryDir home;
    QTemporaryDir program;
    ManualClock clock;
    DataStore store{{home.path(), program.path(), program.path()}, clock};
    QString path = store.getZELXMLPath();

    DataStoreTest() { write(program.filePath(u"ZEL_pad.xml"_s), templateFile); }

    static void write(const QString& file, const QByteArray& content) {
        QDir{}.mkpath(QFileInfo{file}.path());
        ASSERT_TRUE(replaceFile(file, content));
    }
    /// With a patient A, and readings and comments that may be of others.
    void dataFileOfA(const QByteArray& records) {
        dataFile("<SystemSetting/><Patient><ID>A</ID></Patient>" + records);
    }
    void dataFile(const QByteArray& records) { write(path, "<ZEL>\n" + records + "</ZEL>\n"); }
    [[nodiscard]] QByteArray content() const { return readFile(path).value_or(QByteArray{}); }

    /// The names of the root's children with their ID or CommentID, in order.
    [[nodiscard]] std::string order() const {
        const auto document = XmlDocument::parse(content());
        std::string names;
        for (const pugi::xml_node node : document->root().children()) {
            names += std::string{names.empty() ? "" : " "} + node.name() + ':' + node.child_value("ID")
                     + node.child_value("RecID") + node.child_value("CommentID");
        }
        return names;
    }

    static PatientModel patient(const QString& ID, const QString& family) {
        PatientModel made;
        made.ID = ID;
        made.FamilyName = family;
        made.GivenNames = u"Given"_s;
        return made;
    }
    static ReadingModel reading(std::uint32_t sys) {
        ReadingModel made;
        made.ReadingDate = getNilReadingDate() + std::chrono::hours{1000};
        made.sys = sys;
        return made;
    }
};

} // namespace zel
