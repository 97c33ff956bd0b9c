// SPDX-License-Identifier: MIT
#include "frmDE_Descriptor.h"

#include "ControlValue.h"
#include "DataControl.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "RecordBinding.h"
#include "Recordset.h"
#include "Session.h"
#include "Utilities.h"

#include <QLineEdit>
#include <QPushButton>

namespace {
const WindowRegistration<frmDE_Descriptor> reg(QStringLiteral("frmDE_Descriptor"));
}  // namespace

frmDE_Descriptor::frmDE_Descriptor(Session &session, QtWindowHost &host) : ZobWindow(session, host, QStringLiteral("frmDE_Descriptor"))
{
    setCaption(QStringLiteral("Maintain Descriptors"));
    HelpContextID = 2575;
    FormBuilder b(this);
    FormBuilder fields = b.frame(QStringLiteral("fraMain"), QStringLiteral("Descriptor")).fields();
    m_dc = b.dataControl(QStringLiteral("dcTable"));
    m_record = new RecordBinding(session, m_dc, QStringLiteral("tblDescriptor"), QStringLiteral("DescriptorID"), this);
    m_record->addField(fields.textBox(QStringLiteral("txtFields"), 0, QStringLiteral("Description:")), QStringLiteral("fldDescriptor"));
    m_record->addField(fields.textBox(QStringLiteral("txtFields"), 1, QStringLiteral("Units:")), QStringLiteral("fldUnits"));
    FormBuilder row = b.row();
    QList<CommandButton> buttons;
    const char *const captions[] = {"&New", "&Save", "&Cancel", "&Delete", "C&lose", "Help", "Edit"};
    for (int i = 0; i < 7; ++i)
        buttons.append({i, QString::fromLatin1(captions[i]), [this, i] { command(i); }});
    commandButtons(row, QStringLiteral("cmdControl"), buttons);
    connect(m_dc, &DataControl::Reposition, this, [this] { runCommand(QStringLiteral("dcTable_Reposition"), [this] { m_record->showRow(); }); });
    resize(480, 220);
}

void frmDE_Descriptor::Form_Load()
{
    m_dc->setDatabase(session().gDB);
    m_dc->setRecordSource(QStringLiteral("tblDescriptor"));
    m_dc->Refresh();
    browse(true);
}

void frmDE_Descriptor::browse(bool on)
{
    SetCmdControls(this, on ? 1 : 0);
    m_record->setLocked(on);
}

void frmDE_Descriptor::command(int index)
{
    switch (index) {
    case 0:
        m_added = session().GetNewRecordID(QStringLiteral("tblDescriptor"), QStringLiteral("DescriptorID"), QString(), 0, 0);
        reload(m_added);
        browse(false);
        break;
    case 1: save(); break;
    case 2: cancel(); break;
    case 3: remove(); break;
    case 4: unloadMe(); break;
    case 5: showHelp(); break;
    case 6:
        if (m_dc->rowCount() == 0) {
            session().msgBox(QStringLiteral("There are no records to edit."), QString(), MsgIcon::Information);
            return;
        }
        browse(false);
        break;
    }
}

void frmDE_Descriptor::save()
{
    if (ControlValue::text(control(QStringLiteral("txtFields(0)"))).trimmed().isEmpty()) {
        session().msgBox(QStringLiteral("Description cannot be blank...!!!"), QString(), MsgIcon::Warning, MsgButtons::OKCancel);
        return;
    }
    m_record->writeRow();
    m_added = 0;
    browse(true);
}

void frmDE_Descriptor::cancel()
{
    // A record added by New and never saved goes again.
    if (m_added > 0)
        session().gDB->Execute(QStringLiteral("Delete * From tblDescriptor Where DescriptorID = %1").arg(m_added));
    m_added = 0;
    reload(m_record->currentId());
    browse(true);
}

void frmDE_Descriptor::remove()
{
    if (m_dc->rowCount() == 0)
        return;
    if (session().msgBox(QStringLiteral("Delete current record ?"), QString(), MsgIcon::Question, MsgButtons::YesNo) != MsgAnswer::Yes)
        return;
    session().gDB->Execute(QStringLiteral("Delete * From tblDescriptor Where DescriptorID = %1").arg(m_record->currentId()));
    reload(0);
}

void frmDE_Descriptor::reload(qint32 id)
{
    m_record->setLocked(true);  // nothing typed is written by the reading again
    m_dc->Refresh();
    m_record->moveToId(id);
    m_record->showRow();
}
