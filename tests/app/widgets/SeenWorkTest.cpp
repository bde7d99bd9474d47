#include "app/widgets/SeenWork.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace zel {

TEST(SeenWorkTest, IsDoneWhileItShowsAndOnceWhenItComesToShow) {
    QWidget window;
    QWidget page(&window);
    int done = 0;
    SeenWork work(page, [&done] { ++done; });
    work.want();
    work.want();
    EXPECT_EQ(done, 0) << "nobody sees it yet";
    window.show();
    EXPECT_EQ(done, 1);
    work.want();
    EXPECT_EQ(done, 2) << "at once";
    page.hide();
    page.show();
    EXPECT_EQ(done, 2) << "nothing has changed";
    window.hide();
    work.want();
    EXPECT_EQ(done, 2) << "in a window that is hidden";
    window.show();
    EXPECT_EQ(done, 3);
}

TEST(SeenWorkTest, WhatItChangesItselfIsDoneToo) {
    QWidget page;
    int done = 0;
    SeenWork* again = nullptr;
    SeenWork work(page, [&] {
        if (++done == 1) again->want();
    });
    again = &work;
    work.want();
    page.show();
    EXPECT_EQ(done, 2);
    page.hide();
    page.show();
    EXPECT_EQ(done, 2);
}

} // namespace zel
