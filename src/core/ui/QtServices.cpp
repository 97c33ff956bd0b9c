// SPDX-License-Identifier: MIT
#include "QtServices.h"

#include "QtWindowHost.h"
#include "frmShowHelp.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

namespace {
QMessageBox::StandardButton standardOf(MsgAnswer a)
{
    switch (a) {
    case MsgAnswer::OK: return QMessageBox::Ok;
    case MsgAnswer::Cancel: return QMessageBox::Cancel;
    case MsgAnswer::Yes: return QMessageBox::Yes;
    case MsgAnswer::No: return QMessageBox::No;
    case MsgAnswer::Retry: return QMessageBox::Retry;
    case MsgAnswer::Abort: return QMessageBox::Abort;
    case MsgAnswer::Ignore: return QMessageBox::Ignore;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon qtIcon(MsgIcon icon)
{
    switch (icon) {
    case MsgIcon::Information: return QMessageBox::Information;
    case MsgIcon::Warning: return QMessageBox::Warning;
    case MsgIcon::Stop: return QMessageBox::Critical;
    case MsgIcon::Question: return QMessageBox::Question;
    case MsgIcon::None: break;
    }
    return QMessageBox::NoIcon;
}
}  // namespace

MsgAnswer QtMessageService::show(const QString &text, const QString &title, MsgIcon icon, MsgButtons buttons,
                                 int defaultButton)
{
    const auto set = buttonsOf(buttons);
    QMessageBox box(qtIcon(icon), title.isEmpty() ? QApplication::applicationName() : title,
                    QString(text).replace(QLatin1String("\r\n"), QLatin1String("\n")), QMessageBox::NoButton,
                    QApplication::activeWindow());
    for (const MsgAnswer a : set)
        box.addButton(standardOf(a));
    const MsgAnswer dflt = set.value(std::clamp(defaultButton, 1, static_cast<int>(set.size())) - 1);
    box.setDefaultButton(standardOf(dflt));
    const int pressed = box.exec();
    for (const MsgAnswer a : set)
        if (pressed == standardOf(a))
            return a;
    // Closing the box by Escape or its close button gives Cancel where there is one, else the default.
    return set.contains(MsgAnswer::Cancel) ? MsgAnswer::Cancel : dflt;
}

bool QtMessageService::input(const QString &prompt, const QString &title, QString &value)
{
    bool ok = false;
    const QString text = QInputDialog::getText(QApplication::activeWindow(), title, prompt, QLineEdit::Normal, value, &ok);
    if (ok)
        value = text;
    return ok;
}

void QtCursorService::setBusy(bool busy)
{
    if (busy == m_busy)
        return;
    m_busy = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtHelpService::showTopic(int contextId)
{
    // A launcher still waiting for its timer is unloaded first, so that every request runs the load
    // anew and shows the topic asked for.
    m_host.unload(QStringLiteral("frmShowHelp"));
    frmShowHelp::pl_helpKey = contextId;
    m_host.load(QStringLiteral("frmShowHelp"));
}
