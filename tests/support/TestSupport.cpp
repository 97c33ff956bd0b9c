// SPDX-License-Identifier: MIT
#include "TestSupport.h"

#include "Schema.h"
#include "VbError.h"

#include <QFile>
#include <gtest/gtest.h>

MsgAnswer RecordingMessages::show(const QString &text, const QString &title, MsgIcon icon, MsgButtons buttons,
                                  int defaultButton)
{
    const auto set = buttonsOf(buttons);
    MsgAnswer answer = set.value(std::clamp(defaultButton, 1, static_cast<int>(set.size())) - 1);
    if (!answers.isEmpty())
        answer = answers.takeFirst();
    shown.push_back({text, title, icon, buttons, defaultButton, answer});
    return answer;
}

FileChoice FakeFileChooser::choose(const QString &fileType, const QString &action)
{
    asked << fileType + QLatin1Char('|') + action;
    return next;
}

int errorNumber(const std::function<void()> &f, QString *text)
{
    try {
        f();
    } catch (const VbError &e) {
        if (text)
            *text = e.description();
        return e.number();
    }
    return 0;
}

QString seedDatabasePath() { return QStringLiteral(ZOB_SEED_DB); }

TestSession::TestSession(bool seeded)
{
    const QString target = Session::join(m_dir.path(), Session::databaseFileName());
    if (seeded) {
        if (!QFile::copy(seedDatabasePath(), target))
            ADD_FAILURE() << "cannot copy the seeded database from " << ZOB_SEED_DB;
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    } else {
        auto db = Database::create(target);
        createSchema(*db);
    }
    m_session.home = m_dir.path();
    m_session.messages = &messages;
    m_session.cursor = &cursor;
    m_session.fileChooser = &chooser;
    m_session.openDatabase();
}
