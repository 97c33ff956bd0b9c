// SPDX-License-Identifier: MIT
#include "QtWindowHost.h"
#include "TestSupport.h"
#include "ZobWindow.h"

#include <QApplication>
#include <QTimer>
#include <gtest/gtest.h>

namespace {
//! Counts its loads and unloads; refuses to go while refuse is set.
class frmCounting : public ZobWindow {
public:
    frmCounting(Session &s, QtWindowHost &h) : ZobWindow(s, h, QStringLiteral("frmCounting")) { ++made; }
    void Form_Load() override { ++loads; }
    void Form_Unload(bool &cancel) override
    {
        ++unloads;
        cancel = refuse;
    }
    bool isMdiChild() const override { return false; }
    static inline int made = 0, loads = 0, unloads = 0;
    static inline bool refuse = false;
};

class frmOther : public ZobWindow {
public:
    frmOther(Session &s, QtWindowHost &h) : ZobWindow(s, h, QStringLiteral("frmOther")) {}
    void Form_Unload(bool &) override { order.push_back(objectName()); }
    bool isMdiChild() const override { return false; }
    static inline QStringList order;
};

const WindowRegistration<frmCounting> regCounting(QStringLiteral("frmCounting"));
const WindowRegistration<frmOther> regOther(QStringLiteral("frmOther"));

class WindowHostTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        frmCounting::made = frmCounting::loads = frmCounting::unloads = 0;
        frmCounting::refuse = false;
        frmOther::order.clear();
    }
    TestSession ts;
    QtWindowHost host{ts.session()};
};
}  // namespace

TEST_F(WindowHostTest, FirstReferenceMakesAndLoadsOnceOnly)
{
    ZobWindow *a = host.form(QStringLiteral("frmCounting"));
    ZobWindow *b = host.form(QStringLiteral("frmCounting"));
    host.show(QStringLiteral("frmCounting"));
    EXPECT_EQ(a, b);
    EXPECT_EQ(frmCounting::made, 1);
    EXPECT_EQ(frmCounting::loads, 1);
    EXPECT_EQ(host.loadedWindows(), QStringList{QStringLiteral("frmCounting")});
    EXPECT_EQ(host.form(QStringLiteral("frmNoSuchWindow")), nullptr);
    host.show(QStringLiteral("frmNoSuchWindow"));  // reported, never fatal
    EXPECT_FALSE(host.isLoaded(QStringLiteral("frmNoSuchWindow")));
}

TEST_F(WindowHostTest, UnloadRunsTheUnloadLogicAndCanBeRefused)
{
    host.load(QStringLiteral("frmCounting"));
    frmCounting::refuse = true;
    host.unload(QStringLiteral("frmCounting"));
    EXPECT_EQ(frmCounting::unloads, 1);
    EXPECT_TRUE(host.isLoaded(QStringLiteral("frmCounting")));

    frmCounting::refuse = false;
    host.unload(QStringLiteral("frmCounting"));
    EXPECT_EQ(frmCounting::unloads, 2);
    EXPECT_FALSE(host.isLoaded(QStringLiteral("frmCounting")));

    // The next reference makes a new instance and loads it again.
    host.load(QStringLiteral("frmCounting"));
    EXPECT_EQ(frmCounting::made, 2);
    EXPECT_EQ(frmCounting::loads, 2);
}

TEST_F(WindowHostTest, UnloadAllGoesThroughEveryWindowAndStopsAtARefusal)
{
    host.load(QStringLiteral("frmOther"));
    host.load(QStringLiteral("frmCounting"));
    frmCounting::refuse = true;
    EXPECT_FALSE(host.unloadAll());
    EXPECT_EQ(frmOther::order, QStringList{QStringLiteral("frmOther")});
    EXPECT_EQ(host.loadedWindows(), QStringList{QStringLiteral("frmCounting")});
    frmCounting::refuse = false;
    EXPECT_TRUE(host.unloadAll());
    EXPECT_TRUE(host.loadedWindows().isEmpty());
}

TEST_F(WindowHostTest, ModalShowingReturnsWhenTheWindowIsUnloadedOrHidden)
{
    QTimer::singleShot(0, &host, [this] {
        EXPECT_EQ(host.modalDepth(), 1);
        host.unload(QStringLiteral("frmCounting"));
    });
    host.show(QStringLiteral("frmCounting"), true);
    EXPECT_EQ(host.modalDepth(), 0);
    EXPECT_FALSE(host.isLoaded(QStringLiteral("frmCounting")));

    QTimer::singleShot(0, &host, [this] { host.hide(QStringLiteral("frmOther")); });
    host.show(QStringLiteral("frmOther"), true);
    EXPECT_EQ(host.modalDepth(), 0);
    EXPECT_TRUE(host.isLoaded(QStringLiteral("frmOther")));  // hidden, not unloaded
}
