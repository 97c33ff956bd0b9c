// SPDX-License-Identifier: MIT
#include "frmRuntimeDialog.h"

#include "FormBuilder.h"
#include "ZobToolbar.h"

#include <QLineEdit>

frmRuntimeDialog::frmRuntimeDialog(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmRuntimeDialog"))
{
    setCaption(QStringLiteral("Runtime Check Dialog"));
    FormBuilder b(this);
    ZobToolbar *tb = b.toolbar();
    tb->addButton(QStringLiteral("OK"), QStringLiteral("Accept"));
    tb->addButton(QStringLiteral("Cancel"), QStringLiteral("Cancel"));
    m_txtValue = b.textBox(QStringLiteral("txtValue"), QStringLiteral("Value:"));
    FormBuilder::userTyped(m_txtValue);
    connect(tb, &ZobToolbar::ButtonClick, this, [this](int, const QString &key) {
        lastResult = key == QLatin1String("OK") ? QStringLiteral("OK:") + m_txtValue->text() : QStringLiteral("Cancel");
        unloadMe();
    });
}
