// SPDX-License-Identifier: MIT
#include "frmDE_Reference.h"

#include "Lookups.h"
#include "QtWindowHost.h"

namespace {
const WindowRegistration<frmDE_Reference> reg(QStringLiteral("frmDE_Reference"));

EntryProfile entryProfile()
{
    return {.caption = QStringLiteral("Reference"), .table = QStringLiteral("tblReferences"),
            .key = QStringLiteral("ReferenceID"), .dataControl = QStringLiteral("dcReference"),
            .saveRoutine = QStringLiteral("UpdateRecord")};
}
}  // namespace

frmDE_Reference::frmDE_Reference(Session &session, QtWindowHost &host)
    : EntryWindow(session, host, QStringLiteral("frmDE_Reference"), entryProfile())
{
    FormBuilder f = body().frame(QStringLiteral("fraReference"), QStringLiteral("Reference")).fields();
    textField(f, QStringLiteral("txtAuthor"), QStringLiteral("Author:"), QStringLiteral("fldRef_Author"));
    textField(f, QStringLiteral("txtYear"), QStringLiteral("Year:"), QStringLiteral("fldRef_Year"));
    textField(f, QStringLiteral("txtTitle"), QStringLiteral("Title:"), QStringLiteral("fldRef_Title"), 3);
    textField(f, QStringLiteral("txtSource"), QStringLiteral("Source:"), QStringLiteral("fldRef_Source"), 3);
    dataSourceField(f);
    body().stretch();
    resize(640, 440);
}

QString frmDE_Reference::recordSource(qint32 id) const
{
    return QStringLiteral("SELECT tblReferences.* FROM tblReferences WHERE tblReferences.ReferenceID = %1").arg(id);
}
