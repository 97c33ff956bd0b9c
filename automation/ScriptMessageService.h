// SPDX-License-Identifier: MIT
#pragma once

#include "Services.h"

#include <QStringList>
#include <QVariantList>
#include <QVector>
#include <mutex>

//! A box as a script saw it.
struct RecordedMessage {
    QString text;
    QString title;
    MsgIcon icon = MsgIcon::None;
    MsgButtons buttons = MsgButtons::OK;
    int defaultButton = 1;
    QString answer;   //!< the button name, or for an input box the text given ("Cancel" when cancelled)
    bool isInput = false;
};

//! The message boxes of a program run by a script: every box is recorded and answered at once with
//! the next queued answer, or with its default button when none is queued. An answer that is not
//! one of the box's buttons stays queued for a later box, so an unexpected box never eats it.
class ScriptMessageService : public MessageService {
public:
    MsgAnswer show(const QString &text, const QString &title, MsgIcon icon, MsgButtons buttons, int defaultButton) override;
    //! An input box takes the next queued answer as its text; "Cancel" (or none queued) cancels it.
    bool input(const QString &prompt, const QString &title, QString &value) override;

    //! Queues answers: button names ("Yes", "no", "OK" ...) or texts for input boxes.
    void queueAnswers(const QStringList &answers);
    QStringList pendingAnswers() const;
    QVector<RecordedMessage> messages() const;
    void clear();
    //! The answer of a button name, false when it names none.
    static bool parseAnswer(const QString &name, MsgAnswer &answer);

private:
    mutable std::mutex m_mutex;
    QStringList m_answers;
    QVector<RecordedMessage> m_messages;
};
