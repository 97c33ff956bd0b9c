// SPDX-License-Identifier: MIT
#include "LifePage.h"

#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "Session.h"

#include <QLabel>
#include <QRadioButton>

OptionArray::OptionArray(FormBuilder &b, LifePage *page, const QString &name, const QString &frameCaption,
                         const QStringList &captions, int chosen)
{
    // A frame of its own keeps the array's buttons exclusive of the page's other arrays.
    FormBuilder frame = b.frame(QStringLiteral("fra") + name.mid(3), frameCaption, true);
    for (int i = 0; i < captions.size(); ++i) {
        QRadioButton *option = frame.option(name, i, captions[i]);
        option->setChecked(i == chosen);
        QObject::connect(option, &QRadioButton::toggled, page, [page](bool on) {
            if (on)
                emit page->optionChanged();
        });
        m_options << option;
    }
    frame.stretch();
}

int OptionArray::chosen() const
{
    for (int i = 0; i < m_options.size(); ++i)
        if (m_options[i]->isChecked())
            return i;
    return -1;
}

QLabel *emptyNote(FormBuilder &b, const QString &name, const QString &words)
{
    QLabel *note = b.label(name, words);
    note->setWordWrap(true);
    note->setStyleSheet(QStringLiteral("color: #7a4b00; font-style: italic;"));
    note->setVisible(false);
    return note;
}

void loadRows(Session &session, DataControl *dc, const QString &routine, const std::function<QString()> &statement)
{
    guarded(session, {ErrForm::Shared, routine}, [&] {
        dc->setDatabase(session.gDB);
        dc->setRecordSource(statement());
        dc->Refresh();
        if (dc->rowCount() > 0) {
            dc->MoveLast();
            dc->MoveFirst();
        }
    });
}
