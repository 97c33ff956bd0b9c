// SPDX-License-Identifier: MIT
#include "frmZoom.h"

#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "Utilities.h"
#include "ZobToolbar.h"

#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyle>
#include <QTextEdit>

namespace {
const WindowRegistration<frmZoom> reg(QStringLiteral("frmZoom"));

QString textOf(const QWidget *w)
{
    if (auto *e = qobject_cast<const QLineEdit *>(w)) return e->text();
    if (auto *p = qobject_cast<const QPlainTextEdit *>(w)) return p->toPlainText();
    if (auto *t = qobject_cast<const QTextEdit *>(w)) return t->toPlainText();
    return {};
}

void setTextOf(QWidget *w, const QString &text)
{
    if (auto *e = qobject_cast<QLineEdit *>(w)) e->setText(text);
    else if (auto *p = qobject_cast<QPlainTextEdit *>(w)) p->setPlainText(text);
    else if (auto *t = qobject_cast<QTextEdit *>(w)) t->setPlainText(text);
}
}  // namespace

frmZoom::frmZoom(Session &session, QtWindowHost &host) : ZobWindow(session, host, QStringLiteral("frmZoom"))
{
    setCaption(QStringLiteral("Zoom"));
    HelpContextID = 3520;
    FormBuilder b(this);
    ZobToolbar *tb = b.toolbar();
    tb->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Clear"), QStringLiteral("Clear the text"), QStringLiteral("Clear"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("OK"), QStringLiteral("Keep the text and close"), QStringLiteral("OK"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Bigger"), QStringLiteral("Larger text"), QStringLiteral("A+"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Smaller"), QStringLiteral("Smaller text"), QStringLiteral("A-"));
    tb->addSeparatorButton();
    tb->addButton(QStringLiteral("Help"), QStringLiteral("Help"), QStringLiteral("Help"));
    tb->button(2)->setIcon(style()->standardIcon(QStyle::SP_LineEditClearButton));
    tb->button(4)->setIcon(style()->standardIcon(QStyle::SP_DialogOkButton));
    tb->button(6)->setIcon(style()->standardIcon(QStyle::SP_ArrowUp));
    tb->button(8)->setIcon(style()->standardIcon(QStyle::SP_ArrowDown));
    m_txtZoom = b.memo(QStringLiteral("txtZoom"));
    m_txtZoom->setTabChangesFocus(false);
    FormBuilder::userTyped(m_txtZoom);
    resize(640, 440);
    connect(tb, &ZobToolbar::ButtonClick, this, [this](int index, const QString &) { TB_MDI_ButtonClick(index); });
}

bool frmZoom::ZoomText(QWidget *target, const QString &caption, bool readOnly)
{
    m_target = target;
    m_written = false;
    setCaption(caption);
    m_txtZoom->setPlainText(textOf(target));
    setLocked(m_txtZoom, readOnly);
    m_txtZoom->setReadOnly(readOnly);
    if (QAction *clear = toolbar()->button(2))
        clear->setVisible(!readOnly);
    if (QAction *ok = toolbar()->button(4))
        ok->setToolTip(readOnly ? QStringLiteral("Close") : QStringLiteral("Keep the text and close"));
    m_txtZoom->setFocus();
    QPointer<frmZoom> self(this);
    host().show(objectName(), true);
    return self ? m_written : false;
}

void frmZoom::TB_MDI_ButtonClick(int index)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmDE_AE.LoadForm")}, [&] {
        QFont font = m_txtZoom->font();
        switch (index) {
        case 2:
            m_txtZoom->clear();
            break;
        case 4:
            if (m_target && !m_txtZoom->isReadOnly()) {
                setTextOf(m_target, m_txtZoom->toPlainText());
                m_written = true;
            }
            unloadMe();
            break;
        case 6:
            font.setPointSize(font.pointSize() + 2);
            m_txtZoom->setFont(font);
            break;
        case 8:
            // The platform takes no size below 1 point.
            if (font.pointSize() - 2 < 1)
                throw VbError(380, QStringLiteral("Invalid property value"));
            font.setPointSize(font.pointSize() - 2);
            m_txtZoom->setFont(font);
            break;
        case 10:
            showHelp();
            break;
        default:
            break;
        }
    });
}

bool frmZoom::Form_KeyDown(int keyCode, int shift)
{
    Q_UNUSED(shift);
    if (keyCode != 27)
        return false;
    unloadMe();
    return true;
}
