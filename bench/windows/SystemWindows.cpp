// SPDX-License-Identifier: MIT
// The windows of the program's frame: the project list and a project opened from it, the setup with
// its table choice, the file search, the folder chooser and the text zoom; of the runtime's own, the
// About box and the data source check (the help viewer and the runtime's message dialog are left out).
#include "WindowBench.h"

#include <QListWidget>

namespace windowbench {

void benchSystemWindows(WindowBench &b)
{
    Program &p = b.p;
    const QString list = QStringLiteral("frmProjectList");
    const QString project = QStringLiteral("frmProject");
    b.open(list);
    b.sort(list, QStringLiteral("ssGrdMain"), QStringLiteral("Name"), QStringLiteral("LastSaved"));
    if (DataGrid *grid = p.child<DataGrid>(list, QStringLiteral("ssGrdMain")))
        b.action(
            QStringLiteral("frmProject open a project from the list"),
            [&] {
                p.host.unload(project);
                p.host.show(list);
            },
            [&] { grid->dblClickRow(0); });
    b.close(project);
    b.open(project);
    b.close(project);

    const QString setup = QStringLiteral("frmSetup");
    b.open(setup);
    if (auto *tables = p.child<QListWidget>(setup, QStringLiteral("LstTables"))) {
        for (const QString &name : {QStringLiteral("Species"), QStringLiteral("Location")}) {
            const QList<QListWidgetItem *> items = tables->findItems(name, Qt::MatchExactly);
            if (!items.isEmpty())
                b.action(QStringLiteral("frmSetup show the %1 table").arg(name), [=] { tables->setCurrentRow(-1); },
                         [=] { tables->setCurrentItem(items.first()); });
        }
    }
    b.close(setup);
    for (const QString &w : {QStringLiteral("frmSearch_File"), QStringLiteral("frmGetDir"), QStringLiteral("frmZoom"),
                             QStringLiteral("frmSplash")}) {
        b.open(w);
        b.close(w);
    }
    const QString check = QStringLiteral("frmRuntimeCheck");
    b.open(check);
    b.sort(check, QStringLiteral("ssGrdMain"), QStringLiteral("Description"), QStringLiteral("DataSourceID"));
    b.close(check);
}

}  // namespace windowbench
