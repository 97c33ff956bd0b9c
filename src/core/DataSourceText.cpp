// SPDX-License-Identifier: MIT
#include "DataSourceText.h"

#include "Diagnostics.h"
#include "Session.h"

QString GetDataFlagText(Session &s, qint32 id)
{
    auto rs = s.gDB->OpenRecordset(QStringLiteral("tblDataSource"), RecordsetType::Dynaset);
    rs->FindFirst(QStringLiteral("DataSourceID = %1").arg(id));
    QString text;
    if (rs->NoMatch()) {
        s.msgBox(QStringLiteral("Error Data Flag: %1 could not be found in the database.").arg(id), QString(),
                 MsgIcon::Warning);
        text = QStringLiteral("unknown");
    } else {
        text = rs->field(QStringLiteral("Description")).toString() + QStringLiteral("  ");
    }
    rs->Close();
    return text;
}

QString GetDataSourceText(Session &s, qint32 id)
{
    QString text;
    guarded(s, {ErrForm::Shared, QStringLiteral("GetDataSourceText")}, [&] {
        text = s.Lookup(QStringLiteral("tblDataSource"), QStringLiteral("Description"),
                        QStringLiteral("DataSourceID = %1").arg(id)).toString();
    });
    return text;
}
