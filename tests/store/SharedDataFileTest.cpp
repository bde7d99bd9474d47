#include "DataStoreTest.h"
#include "store/FileLock.h"
#include "support/FullDisk.h"

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>

namespace zel {
namespace {

TEST_F(DataStoreTest, DownloadSeesWhatAnotherProgramStored) {
    dataFileOfA("");
    ASSERT_TRUE(store.load());
    DataStore other{{home.path(), program.path(), program.path()}, clock};
    ASSERT_TRUE(other.load());
    other.setCurrentID(u"A"_s);
    store.setCurrentID(u"A"_s);
    EXPECT_EQ(other.newDataTransfer({reading(120)}).value().added, 1U);
    EXPECT_EQ(store.newDataTransfer({reading(120), reading(121)}).value().added, 1U);
    EXPECT_EQ(store.getReadingForCurID().at(0).RecID, u"1000001"_s);
    EXPECT_EQ(store.getReadingForCurID().at(1).RecID, u"1000002"_s);
}

TEST_F(DataStoreTest, SeesWhatAnotherProgramChangedAndNothingElse) {
    dataFile("<SystemSetting><DateFormat>d</DateFormat></SystemSetting><Patient><ID>A</ID><FamilyName/></"
             "Patient>");
    ASSERT_TRUE(store.load());
    DataStore other{{home.path(), program.path(), program.path()}, clock};
    ASSERT_TRUE(other.load());
    EXPECT_FALSE(store.isChangedElsewhere());

    ASSERT_TRUE(store.saveXMLPatient(patient(u"B"_s, u"Baker"_s))); // its own, not read again
    EXPECT_FALSE(store.isChangedElsewhere());
    EXPECT_TRUE(other.isChangedElsewhere());
    store.getSetting().dateFormat = u"y"_s;
    ASSERT_TRUE(store.saveSetting());
    EXPECT_FALSE(store.isChangedElsewhere());

    ASSERT_TRUE(other.saveXMLPatient(patient(u"C"_s, u"Clark"_s)));
    EXPECT_TRUE(other.isChangedElsewhere()) << "what was there before its own change is not shown yet";
    EXPECT_TRUE(store.isChangedElsewhere());
    store.getSetting().dateFormat = u"m"_s;
    ASSERT_TRUE(store.saveSetting());
    EXPECT_TRUE(store.isChangedElsewhere()) << "its own change is merged, the other one not shown yet";
    ASSERT_TRUE(store.takeChanges());
    EXPECT_TRUE(store.validIDinXML(u"C"_s));
    EXPECT_FALSE(store.isChangedElsewhere());

    // As editors write that keep time and size.
    const auto time = std::filesystem::last_write_time(path.toStdString());
    QFile inPlace{path};
    ASSERT_TRUE(inPlace.open(QIODevice::ReadWrite) && inPlace.seek(content().indexOf("Clark")));
    inPlace.write("Cloke");
    inPlace.close();
    std::filesystem::last_write_time(path.toStdString(), time);
    EXPECT_TRUE(store.isChangedElsewhere());
}

TEST_F(DataStoreTest, NeverReplacesWhatItHasNotRead) {
    dataFileOfA("");
    const DataFile file{{home.path(), program.path(), program.path()}, clock};
    const QByteArray foreign = "<ZEL><Patient><ID>B</ID></Patient></ZEL>";
    const auto changeBoth = [&](pugi::xml_node root) { // another program that does not wait for its turn
        root.append_child("Mine");
        write(path, foreign);
        return DataFile::Edit::changed;
    };
    EXPECT_EQ(file.edit(changeBoth).error().code, StoreErrorCode::changedElsewhere);
    EXPECT_EQ(content(), foreign);
    const auto meanwhile = [this] {
        write(path, "<ZEL/>");
        return StoreResult{};
    };
    EXPECT_EQ(file.replace(foreign, meanwhile).error().code, StoreErrorCode::changedElsewhere);
    EXPECT_EQ(content(), "<ZEL/>");
}

TEST_F(DataStoreTest, WhatCannotBeReadNowTakesNothingAway) {
    dataFileOfA("");
    ASSERT_TRUE(store.load());
    const QByteArray whole = content();
    int reloads = 0;
    QObject::connect(&store, &DataStore::reloaded, &store, [&reloads] { ++reloads; });
    for (const QByteArray& now : {whole.first(whole.size() / 2), QByteArray{}, QByteArray{"<Other/>"}}) {
        write(path, now);
        EXPECT_FALSE(store.takeChanges());
        EXPECT_FALSE(store.takeChanges()) << "nor at the next look";
    }
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(store.takeChanges().error().code, StoreErrorCode::notReadable);
    EXPECT_FALSE(QFile::exists(path)) << "no empty one takes its place";
    EXPECT_TRUE(store.validIDinXML(u"A"_s) && store.lastLoad() && reloads == 0);
    write(path, whole);
    EXPECT_TRUE(store.takeChanges());
    EXPECT_EQ(reloads, 1);
}

TEST_F(DataStoreTest, FailedWriteStoresNothingAndSaysSo) {
    dataFileOfA("");
    ASSERT_TRUE(store.load());
    EXPECT_EQ(store.newDataTransfer({reading(120)}).error().code, StoreErrorCode::invalidRecord); // nobody's
    store.setCurrentID(u"A"_s);
    const QByteArray before = content();
    {
        const FullDisk full{static_cast<rlim_t>(before.size() + 100)};
        EXPECT_EQ(store.newDataTransfer({reading(120)}).error().code, StoreErrorCode::sizeLimit);
    }
    EXPECT_EQ(content(), before);
    EXPECT_EQ(store.newDataTransfer({reading(120)}).value().added, 1U);
}

TEST_F(DataStoreTest, WaitsItsTurnWhileAnotherProgramHoldsTheFile) {
    dataFile("<SystemSetting/>");
    const QByteArray before = content();
    {
        FileLock other{path};
        QFile::setPermissions(path, QFile::permissions(path) | QFileDevice::ReadGroup);
        ASSERT_EQ(other.tryTake(), FileLock::Attempt::taken);
        EXPECT_TRUE(QFile::permissions(other.path()) & QFileDevice::ReadGroup) << "others can wait for it";
        // However long it is at work.
        std::filesystem::last_write_time(other.path().toStdString(), std::filesystem::file_time_type::min());
        EXPECT_EQ(store.saveXMLPatient(patient(u"A"_s, u"Abel"_s)).error().code, StoreErrorCode::busy);
        EXPECT_EQ(std::chrono::floor<std::chrono::seconds>(clock.slept()), std::chrono::seconds{3});
        EXPECT_EQ(content(), before);
    }
    EXPECT_TRUE(store.saveXMLPatient(patient(u"A"_s, u"Abel"_s)));
}

TEST_F(DataStoreTest, WhatCouldNotBeReadAgainNeverTakesTheFilesPlace) {
    dataFile("<SystemSetting/>");
    const QByteArray before = content();
    const DataFile file{{home.path(), program.path(), program.path()}, clock};
    const std::function<void(pugi::xml_node)> spoilings[]{
        [](pugi::xml_node root) { root.append_attribute("a").set_value("\x01"); },
        [](pugi::xml_node root) { root.append_child("not a name"); },
        [](pugi::xml_node root) {
            for (int level = 0; level < 100; ++level)
                root = root.append_child("a");
        }};
    for (const auto& spoil : spoilings) {
        const StoreResult result = file.edit([&spoil](pugi::xml_node root) {
            spoil(root);
            return DataFile::Edit::changed;
        });
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().code, StoreErrorCode::unreadable);
        EXPECT_EQ(content(), before);
    }
}

TEST_F(DataStoreTest, HomesThatShareOneFileByALinkTakeTurns) {
    dataFile("<SystemSetting/>");
    const QTemporaryDir otherHome;
    const QString otherPath = otherHome.filePath(u"Library/Application Support/ZELMac/ZEL.xml"_s);
    QDir{}.mkpath(QFileInfo{otherPath}.path());
    ASSERT_TRUE(QFile::link(path, otherPath));
    ManualClock otherClock;
    const DataFile own{{home.path(), program.path(), program.path()}, clock};
    const DataFile linked{{otherHome.path(), program.path(), program.path()}, otherClock};
    const StoreResult done = own.edit([&](pugi::xml_node) {
        const auto change = [](pugi::xml_node) { return DataFile::Edit::changed; };
        const StoreResult second = linked.edit(change);
        EXPECT_TRUE(!second && second.error().code == StoreErrorCode::busy);
        return DataFile::Edit::unchanged;
    });
    EXPECT_TRUE(done);
}

TEST_F(DataStoreTest, WhatKilledProgramsLeftHoldsNobodyUp) {
    const QString lock = path + u".lock"_s;
    const QString temporary = QFileInfo{path}.path() + u"/.ZEL.xml.new-abcdef"_s;
    dataFile("<SystemSetting/>");
    write(temporary, "half a file");
    ASSERT_TRUE(store.load());
    EXPECT_FALSE(QFileInfo::exists(temporary));
    write(lock, "");
    EXPECT_TRUE(store.saveXMLPatient(patient(u"A"_s, u"Abel"_s)));
    ASSERT_TRUE(QDir{}.mkdir(lock));
    EXPECT_TRUE(store.saveXMLPatient(patient(u"B"_s, u"Baker"_s)));
    EXPECT_FALSE(QFileInfo::exists(lock));
    ASSERT_TRUE(QDir{}.mkpath(lock + u"/own"_s));
    const StoreResult blocked = store.saveXMLPatient(patient(u"C"_s, u"Clark"_s));
    ASSERT_FALSE(blocked);
    EXPECT_EQ(blocked.error(), (StoreError{StoreErrorCode::lockBlocked, lock, {}}));
    EXPECT_EQ(clock.slept(), std::chrono::seconds{0}) << "nobody has waited";
}

TEST(FileLock, OnlyAFileOfItsOwnIsOne) {
    using Attempt = FileLock::Attempt;
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"ZEL.xml"_s);
    FileLock lock{file};
    const QByteArray name = QFile::encodeName(lock.path());
    const QString other = folder.filePath(u"other"_s);
    ASSERT_TRUE(QFile::link(other, lock.path()));
    EXPECT_EQ(lock.tryTake(), Attempt::blocked) << "a link, which would make a file elsewhere";
    EXPECT_FALSE(QFileInfo::exists(other));
    QFile::remove(lock.path());
    ASSERT_EQ(mkfifo(name.constData(), 0600), 0);
    EXPECT_EQ(lock.tryTake(), Attempt::blocked) << "a pipe, and it does not wait for a reader";
    QFile::remove(lock.path());
    {
        FileLock first{file};
        ASSERT_EQ(first.tryTake(), Attempt::taken) << "also before there is a data file";
        EXPECT_EQ(lock.tryTake(), Attempt::held);
        QFile::remove(lock.path()); // by somebody who knows better
        EXPECT_EQ(lock.tryTake(), Attempt::taken);
    }
    EXPECT_TRUE(QFileInfo::exists(lock.path())) << "the one before removes only its own";
    FileLock nowhere{folder.filePath(u"no/such/ZEL.xml"_s)};
    EXPECT_EQ(nowhere.tryTake(), Attempt::failed);
    EXPECT_EQ(nowhere.error(), ENOENT);
}

} // namespace
} // namespace zel
