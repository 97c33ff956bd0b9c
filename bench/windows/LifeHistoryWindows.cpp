// SPDX-License-Identifier: MIT
// The life history search from the menu with a search by species name, the browser of the species it
// found, and the report catalogue of the builder's scenario.
#include "ControlValue.h"
#include "WindowBench.h"
#include "ZobToolbar.h"
#include "frmLifeHistory.h"

namespace windowbench {

void reopenScenario(Program &p);

void benchLifeHistoryAndReportWindows(WindowBench &b)
{
    Program &p = b.p;
    const QString search = QStringLiteral("frmSearch_LifeHistory");
    RecordRequest menu;
    menu.keyField = QStringLiteral("NA");
    menu.table = QStringLiteral("NA");
    b.open(search, &menu);
    const auto searchFor = [&p, search](const QString &species) {
        ZobWindow *w = p.host.loaded(search);
        ControlValue::setText(p.child(search, QStringLiteral("txtSearch(0)")), species);
        w->toolbar()->click(QStringLiteral("Search"));
    };
    b.refilter(search, QStringLiteral("search by species name"), [=] { searchFor(QStringLiteral("robin")); },
               [=] { searchFor(QString()); });
    searchFor(QString());

    // The browser as the search's page labels open it, on the first species found.
    const QString browser = QStringLiteral("frmLifeHistory");
    b.action(QStringLiteral("frmLifeHistory open"), [&] { b.close(browser); },
             [&] {
                 auto *found = p.child<DataControl>(search, QStringLiteral("dcSearch"));
                 if (auto *w = p.host.form<frmLifeHistory>(browser); w && found) {
                     w->PuS_SetTab(0);
                     w->showSpecies(found);
                     p.host.show(browser);
                 }
             });
    b.close(browser);
    b.close(search);

    reopenScenario(p);
    b.open(QStringLiteral("frmReports"));
    b.close(QStringLiteral("frmReports"));
}

}  // namespace windowbench
