#include "app/patients/DownloadsDialog.h"

#include "app/widgets/ScreenFit.h"
#include "store/Languages.h"
#include "support/WidgetTest.h"

#include <QApplication>
#include <QPushButton>
#include <QTableWidget>

namespace zel {

using namespace Qt::StringLiterals;

namespace {

class DownloadsDialogTest : public WidgetTest {
protected:
    [[nodiscard]] QWidget& window() override { return *dialog; }
    /// The latest first: \p counts[0] is of this year's first minute.
    void open(const std::vector<int>& counts, const QByteArray& names = "Kim") {
        QByteArray log;
        int minute = 0;
        for (const int count : counts) {
            const QByteArray time = QTime(0, 0).addSecs(60 * minute++).toString(u"hh:mm:ss"_s).toUtf8();
            log += "<DataTransferLog><ID>P1</ID><TransferDate>2026-01-01T" + time
                   + "+01:00</TransferDate><NumofRecord>" + QByteArray::number(count)
                   + "</NumofRecord></DataTransferLog>";
        }
        replaceDataFile("<ZEL><Patient><ID>P1</ID><GivenNames>" + names
                        + "</GivenNames><FamilyName>Adams</FamilyName></Patient>" + log + "</ZEL>");
        ASSERT_TRUE(store.loadXML());
        store.setCurrentID(u"P1"_s);
        dialog = std::make_unique<DownloadsDialog>(store, nullptr);
    }
    void settle(const QSize& freeArea) {
        fitTo(*dialog, dialog->size(), roomWithin(freeArea));
        dialog->show();
        for (int i = 0; i < 5; ++i) // a layout that changes others needs its turns
            QCoreApplication::processEvents();
    }

    std::unique_ptr<DownloadsDialog> dialog;
};

} // namespace

TEST_F(DownloadsDialogTest, theSummarySaysHowOftenAndHowMany) {
    struct Told {
        std::vector<int> counts;
        QString english, polish;
    };
    const Told told[]{
        {{},
         u"Kim Adams (ID P1): nothing has been downloaded from the monitor yet."_s,
         u"Kim Adams (ID P1): z ciśnieniomierza niczego jeszcze nie pobrano."_s},
        {{7},
         u"Kim Adams (ID P1): 1 download. New readings: 7."_s,
         u"Kim Adams (ID P1): 1 pobranie. Nowe pomiary: 7."_s},
        {{1, 0, 200},
         u"Kim Adams (ID P1): 3 downloads. New readings: 201."_s,
         u"Kim Adams (ID P1): 3 pobrania. Nowe pomiary: 201."_s},
        {std::vector<int>(25, 100), u"Kim Adams (ID P1): 25 downloads. New readings: 2500."_s,
         u"Kim Adams (ID P1): 25 pobrań. Nowe pomiary: 2500."_s},
    };
    for (const Told& one : told) {
        SCOPED_TRACE(qPrintable(one.english));
        for (const auto& [language, words] : {std::pair("en", one.english), {"pl", one.polish}}) {
            const ProgramTexts texts(*languageFor(QString::fromLatin1(language)));
            open(one.counts);
            EXPECT_EQ(text("lblDownloads"), words);
            EXPECT_EQ(find<QTableWidget>("tblDownloads").rowCount(), static_cast<int>(one.counts.size()));
        }
    }
    const ProgramTexts texts(english());
    open({7}, "%2");
    EXPECT_EQ(text("lblDownloads"), u"%2 Adams (ID P1): 1 download. New readings: 7."_s)
        << "no name is a place for a number";
}

TEST_F(DownloadsDialogTest, aLongListScrollsOnASmallScreen) {
    const ProgramTexts texts(english());
    for (const QByteArray& names : {QByteArray("Kim"), QByteArray(1000, 'x')}) {
        open(std::vector<int>(600, 3), names);
        for (const QSize& freeArea : {QSize(640, 440), QSize(400, 300)}) {
            SCOPED_TRACE(freeArea.width());
            settle(freeArea);
            EXPECT_LE(dialog->width(), freeArea.width());
            EXPECT_LE(dialog->height(), freeArea.height());
            EXPECT_TRUE(dialog->rect().contains(find<QPushButton>("btnCloseDownloads").geometry()));
            EXPECT_TRUE(find<QTableWidget>("tblDownloads").isVisible());
        }
    }
}

} // namespace zel
