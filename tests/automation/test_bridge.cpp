// SPDX-License-Identifier: MIT
// The script runner's own parts: the message boxes it records and answers, and the bridge that
// carries a script's calls to the GUI thread.
#include "GuiBridge.h"
#include "ScriptMessageService.h"
#include "VbError.h"

#include <QEventLoop>
#include <QThread>
#include <gtest/gtest.h>
#include <atomic>

TEST(ScriptMessages, AnswersInOrderAndNoneIsLost)
{
    ScriptMessageService m;
    m.queueAnswers({QStringLiteral("no"), QStringLiteral("Yes")});
    // An OK box cannot take "No": it gets its default and the answers wait.
    EXPECT_EQ(m.show(QStringLiteral("a"), {}, MsgIcon::Information, MsgButtons::OK, 1), MsgAnswer::OK);
    EXPECT_EQ(m.pendingAnswers().size(), 2);
    EXPECT_EQ(m.show(QStringLiteral("b"), {}, MsgIcon::Question, MsgButtons::YesNo, 1), MsgAnswer::No);
    EXPECT_EQ(m.show(QStringLiteral("c"), {}, MsgIcon::Question, MsgButtons::YesNo, 2), MsgAnswer::Yes);
    // With nothing queued, the default button.
    EXPECT_EQ(m.show(QStringLiteral("d"), {}, MsgIcon::Question, MsgButtons::YesNoCancel, 3), MsgAnswer::Cancel);
    const auto shown = m.messages();
    ASSERT_EQ(shown.size(), 4);
    EXPECT_EQ(shown[1].answer, QStringLiteral("No"));
    EXPECT_EQ(shown[3].answer, QStringLiteral("Cancel"));
    QString value;
    m.queueAnswers({QStringLiteral("typed")});
    EXPECT_TRUE(m.input(QStringLiteral("Name?"), {}, value));
    EXPECT_EQ(value, QStringLiteral("typed"));
    EXPECT_FALSE(m.input(QStringLiteral("Name?"), {}, value));
}

TEST(GuiBridgeTest, CallsRunOnTheGuiThreadAndReturnInsideAModalLoop)
{
    GuiBridge bridge;
    QEventLoop modal;
    QThread *gui = QThread::currentThread();
    QVariant first, second;
    QString failure;
    std::atomic<bool> done{false};
    QThread *worker = QThread::create([&] {
        first = bridge.call([&] { return QVariant(QThread::currentThread() == gui); });
        // This call opens a nested loop and must come back while that loop still runs.
        bridge.call([&] { modal.exec(); return QVariant(); });
        second = bridge.call([&] { const bool nested = modal.isRunning(); modal.quit(); return QVariant(nested); });
        try {
            bridge.call([]() -> QVariant { throw VbError(3075, QStringLiteral("Syntax error")); });
        } catch (const BridgeError &e) {
            failure = e.message();
        }
        done = true;
    });
    QEventLoop outer;
    QObject::connect(worker, &QThread::finished, &outer, &QEventLoop::quit);
    worker->start();
    if (!done)
        outer.exec();
    worker->wait();
    delete worker;
    EXPECT_TRUE(first.toBool());
    EXPECT_TRUE(second.toBool());
    EXPECT_EQ(failure, QStringLiteral("3075 Syntax error"));
}
