// SPDX-License-Identifier: MIT
#include "ScriptMessageService.h"

#include <algorithm>

bool ScriptMessageService::parseAnswer(const QString &name, MsgAnswer &answer)
{
    for (MsgAnswer a : {MsgAnswer::OK, MsgAnswer::Cancel, MsgAnswer::Yes, MsgAnswer::No, MsgAnswer::Retry,
                        MsgAnswer::Abort, MsgAnswer::Ignore}) {
        if (answerName(a).compare(name.trimmed(), Qt::CaseInsensitive) == 0) {
            answer = a;
            return true;
        }
    }
    return false;
}

MsgAnswer ScriptMessageService::show(const QString &text, const QString &title, MsgIcon icon, MsgButtons buttons,
                                     int defaultButton)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto set = buttonsOf(buttons);
    MsgAnswer answer = set.value(std::clamp(defaultButton, 1, static_cast<int>(set.size())) - 1);
    if (!m_answers.isEmpty()) {
        MsgAnswer queued;
        if (parseAnswer(m_answers.first(), queued) && set.contains(queued)) {
            answer = queued;
            m_answers.removeFirst();
        }
    }
    m_messages.push_back({text, title, icon, buttons, defaultButton, answerName(answer), false});
    return answer;
}

bool ScriptMessageService::input(const QString &prompt, const QString &title, QString &value)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    bool ok = false;
    if (!m_answers.isEmpty()) {
        const QString given = m_answers.takeFirst();
        ok = given.compare(QStringLiteral("Cancel"), Qt::CaseInsensitive) != 0;
        if (ok)
            value = given;
    }
    m_messages.push_back({prompt, title, MsgIcon::None, MsgButtons::OKCancel, 1,
                          ok ? value : QStringLiteral("Cancel"), true});
    return ok;
}

void ScriptMessageService::queueAnswers(const QStringList &answers)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_answers += answers;
}

QStringList ScriptMessageService::pendingAnswers() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_answers;
}

QVector<RecordedMessage> ScriptMessageService::messages() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_messages;
}

void ScriptMessageService::clear()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_messages.clear();
}
