// SPDX-License-Identifier: MIT
#pragma once

#include "Services.h"
#include "Session.h"

#include <QTemporaryDir>
#include <QVector>
#include <functional>
#include <memory>

//! A box the program showed, as the recording message service saw it.
struct ShownMessage {
    QString text;
    QString title;
    MsgIcon icon;
    MsgButtons buttons;
    int defaultButton;
    MsgAnswer answer;
};

//! Records every box and answers from a queue, or with the default button.
class RecordingMessages : public MessageService {
public:
    MsgAnswer show(const QString &text, const QString &title, MsgIcon icon, MsgButtons buttons, int defaultButton) override;
    QVector<ShownMessage> shown;
    QVector<MsgAnswer> answers;
};

class FakeCursor : public CursorService {
public:
    void setBusy(bool busy) override { m_busy = busy; }
    bool busy() const override { return m_busy; }
private:
    bool m_busy = false;
};

//! A chooser that gives a prepared answer and records what it was asked.
class FakeFileChooser : public FileChooser {
public:
    FileChoice choose(const QString &fileType, const QString &action) override;
    void setDescription(const QString &text) override { m_description = text; }
    QString description() const override { return m_description; }
    FileChoice next;                  //!< the answer to give
    QStringList asked;                //!< "<type>|<action>" per call
private:
    QString m_description;
};

//! A session on a fresh copy of the seeded database in its own temporary program folder, with
//! recording services.
class TestSession {
public:
    //! seeded: copy the built default database; otherwise an empty database with the schema only.
    explicit TestSession(bool seeded = true);
    Session &session() { return m_session; }
    Session *operator->() { return &m_session; }
    QString home() const { return m_dir.path(); }
    RecordingMessages messages;
    FakeCursor cursor;
    FakeFileChooser chooser;
private:
    QTemporaryDir m_dir;
    Session m_session;
};

//! The path of the built default database.
QString seedDatabasePath();

//! The number of the VbError that f throws (its description into *text), or 0 if it throws none.
int errorNumber(const std::function<void()> &f, QString *text = nullptr);
