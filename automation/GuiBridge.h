// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QVariant>
#include <condition_variable>
#include <functional>
#include <mutex>

//! Carries calls from the script thread to the GUI thread and waits until the GUI is idle again.
//!
//! A call is posted to the GUI thread. The caller returns when the call has finished and the events it
//! caused have run (a few rounds of posted events and zero timers), or, when the call opened a modal
//! window, as soon as the nested event loop of that window has settled in the same way. So a script
//! can press a button that opens a modal window and then work inside it.
class GuiBridge : public QObject {
    Q_OBJECT
public:
    //! Lives in the thread that constructs it (the GUI thread).
    GuiBridge();
    ~GuiBridge() override;

    //! Runs fn on the GUI thread (from any other thread). An exception thrown by fn comes back as
    //! a BridgeError carrying its text. Called on the GUI thread itself, fn simply runs.
    QVariant call(const std::function<QVariant()> &fn);

    //! Makes every waiting and later call fail at once (the program is ending).
    void shutdown();

private:
    struct CallState;
    void settle(const std::shared_ptr<CallState> &state, bool afterDone, int hops);

    std::mutex m_mutex;
    std::condition_variable m_cv;
    bool m_shutdown = false;
};

//! The failure of a call carried to the GUI thread: the text of the error raised there.
class BridgeError : public std::exception {
public:
    explicit BridgeError(QString message) : m_message(std::move(message)), m_what(m_message.toStdString()) {}
    const QString &message() const { return m_message; }
    const char *what() const noexcept override { return m_what.c_str(); }
private:
    QString m_message;
    std::string m_what;
};
