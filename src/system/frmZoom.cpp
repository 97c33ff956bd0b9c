// SPDX-License-Identifier: MIT
#include "frmZoom.h"

#include "ControlValue.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "ZobToolbar.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QStyle>

namespace {
const WindowRegistration<frmZoom> reg(QStringLiteral("frmZoom"));
}  // namespace

frmZoom::frmZoom(Session &session, QtWindowHost &host) : ZobWindow(session, host, QStringLiteral("frmZoom"))
{
    setCaption(QStringLiteral("Zoom"));
    HelpContextID = 3520;
    FormBuilder b(this);
    ZobToolbar *tb = buildToolbar(b,
                                  {ToolButton::separator(),
                                   {"Clear", "Clear the text", "Clear", [this] { ControlValue::clear(m_txtZoom); }},
                                   ToolButton::separator(),
                                   {"OK", "Keep the text and close", "OK", [this] { keepAndClose(); }},
                                   ToolButton::separator(),
                                   {"Bigger", "Larger text", "A+", [this] { resizeText(2); }},
                                   ToolButton::separator(),
                                   {"Smaller", "Smaller text", "A-", [this] { resizeText(-2); }},
                                   ToolButton::separator(),
                                   {"Help", "Help", "Help", [this] { showHelp(); }}},
                                  QStringLiteral("frmDE_AE.LoadForm"));
    const std::pair<const char *, QStyle::StandardPixmap> icons[] = {{"Clear", QStyle::SP_LineEditClearButton},
                                                                     {"OK", QStyle::SP_DialogOkButton},
                                                                     {"Bigger", QStyle::SP_ArrowUp},
                                                                     {"Smaller", QStyle::SP_ArrowDown}};
    for (const auto &[key, icon] : icons)
        tb->button(QString::fromLatin1(key))->setIcon(style()->standardIcon(icon));
    m_txtZoom = b.memo(QStringLiteral("txtZoom"));
    m_txtZoom->setTabChangesFocus(false);
    FormBuilder::userTyped(m_txtZoom);
    resize(640, 440);
}

bool frmZoom::ZoomText(QWidget *target, const QString &caption, bool readOnly)
{
    m_target = target;
    m_written = false;
    setCaption(caption);
    ControlValue::setText(m_txtZoom, ControlValue::text(target));
    ControlValue::setLocked(m_txtZoom, readOnly);
    toolbar()->button(QStringLiteral("Clear"))->setVisible(!readOnly);
    toolbar()->button(QStringLiteral("OK"))->setToolTip(readOnly ? QStringLiteral("Close") : QStringLiteral("Keep the text and close"));
    m_txtZoom->setFocus();
    QPointer<frmZoom> self(this);
    host().show(objectName(), true);
    return self ? m_written : false;
}

void frmZoom::keepAndClose()
{
    if (m_target && !ControlValue::locked(m_txtZoom)) {
        ControlValue::setText(m_target, ControlValue::text(m_txtZoom));
        m_written = true;
    }
    unloadMe();
}

void frmZoom::resizeText(int points)
{
    QFont font = m_txtZoom->font();
    // The platform takes no size below 1 point.
    if (font.pointSize() + points < 1)
        throw VbError(380, QStringLiteral("Invalid property value"));
    font.setPointSize(font.pointSize() + points);
    m_txtZoom->setFont(font);
}

bool frmZoom::Form_KeyDown(int keyCode, int shift)
{
    Q_UNUSED(shift);
    if (keyCode != 27)
        return false;
    unloadMe();
    return true;
}
