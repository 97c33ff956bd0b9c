// SPDX-License-Identifier: MIT
#include "GuiBridge.h"

#include "VbError.h"

#include <QThread>
#include <QTimer>
#include <memory>

namespace {
// Rounds of posted events and zero timers that must pass before the GUI counts as idle: the events a
// call posts (deferred deletes, queued signals, zero timers, the layout of a window just shown) run
// within them.
constexpr int kSettleHops = 4;
}  // namespace

struct GuiBridge::CallState {
    bool started = false;
    bool done = false;
    bool settledRunning = false;   // settled inside a nested loop while the call was still running
    bool settledDone = false;      // settled after the call finished
    QVariant result;
    QString error;
    bool failed = false;
};

GuiBridge::GuiBridge() = default;

GuiBridge::~GuiBridge()
{
    shutdown();
}

void GuiBridge::shutdown()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_shutdown = true;
    m_cv.notify_all();
}

void GuiBridge::settle(const std::shared_ptr<CallState> &state, bool afterDone, int hops)
{
    if (hops == 0) {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (afterDone)
            state->settledDone = true;
        else if (!state->done)
            state->settledRunning = true;
        m_cv.notify_all();
        return;
    }
    // Alternate posted events and zero timers, so that both kinds queued before have run.
    if (hops % 2 == 0)
        QMetaObject::invokeMethod(this, [this, state, afterDone, hops] { settle(state, afterDone, hops - 1); },
                                  Qt::QueuedConnection);
    else
        QTimer::singleShot(0, this, [this, state, afterDone, hops] { settle(state, afterDone, hops - 1); });
}

QVariant GuiBridge::call(const std::function<QVariant()> &fn)
{
    auto run = [](const std::function<QVariant()> &f, QString &error) -> QVariant {
        try {
            return f();
        } catch (const VbError &e) {
            error = QStringLiteral("%1 %2").arg(e.number()).arg(e.description());
        } catch (const BridgeError &e) {
            error = e.message();
        } catch (const std::exception &e) {
            error = QString::fromUtf8(e.what());
        }
        return {};
    };
    if (QThread::currentThread() == thread()) {
        QString error;
        QVariant v = run(fn, error);
        if (!error.isEmpty())
            throw BridgeError(error);
        return v;
    }
    auto state = std::make_shared<CallState>();
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_shutdown)
            throw BridgeError(QStringLiteral("the program is ending"));
    }
    QMetaObject::invokeMethod(this, [this, state, fn, run] {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            state->started = true;
        }
        // Settling starts now too: if the call opens a modal window, it completes inside its loop.
        settle(state, false, kSettleHops);
        QString error;
        QVariant v = run(fn, error);
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            state->done = true;
            state->result = v;
            state->error = error;
            state->failed = !error.isEmpty();
        }
        settle(state, true, kSettleHops);
    }, Qt::QueuedConnection);

    std::unique_lock<std::mutex> lock(m_mutex);
    m_cv.wait(lock, [&] { return m_shutdown || state->settledDone || (state->settledRunning && !state->done); });
    if (m_shutdown && !state->settledDone && !state->settledRunning)
        throw BridgeError(QStringLiteral("the program is ending"));
    if (state->done && state->failed)
        throw BridgeError(state->error);
    return state->done ? state->result : QVariant();
}
