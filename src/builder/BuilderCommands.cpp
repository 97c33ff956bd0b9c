// SPDX-License-Identifier: MIT
#include "BuilderCommands.h"

#include "FormBuilder.h"
#include "MenuTable.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "Utilities.h"
#include "ZobToolbar.h"
#include "clsScenario.h"
#include "frmZOB.h"

#include <QAction>
#include <QCoreApplication>
#include <QLayout>
#include <QMenuBar>

namespace {
const QString kReports = QStringLiteral("frmReports");

void buildToolbar(frmZOB &w, FormBuilder &b)
{
    Session &s = w.session();
    ZobToolbar *tb = b.toolbar();
    tb->define({
        {"New", "Add New", "New", [&s] { s.gScenario->AddNew(QStringLiteral("Wildlife")); }},
        {"Open", "Open a scenario file", "Open", [&s] { s.gScenario->OpenFile(s.gScenario->FilePath, s.gScenario->FileName, true); }},
        {"Close", "Close the scenario (it is saved)", "Close", [&w] { w.unloadMe(); }},
        {"Save", "Save the scenario", "Save", [&s] { s.gScenario->Save(QStringLiteral("All")); }},
        {"Print", "Preview and print the scenario's reports", "Print", [&w] { w.host().show(kReports, true); }},
        {"Calculations", "Review the calculations of the scenario", "Calculations", [&w] { w.calculations(); }},
        {"Help", "Help on the page", "Help", [&w] { w.showHelp(); }},
    }, [&w](const std::function<void()> &body) { w.runCommand(QStringLiteral("TB_MDI_ButtonClick"), body); });
    if (!QtWindowHost::isRegistered(kReports)) {
        tb->button(QStringLiteral("Print"))->setEnabled(false);
        tb->button(QStringLiteral("Print"))->setToolTip(missingWindowTip(kReports));
    }
}

void buildMenus(frmZOB &w)
{
    Session &s = w.session();
    auto *bar = new QMenuBar(&w);
    w.layout()->setMenuBar(bar);
    auto options = [](int i) { return arrayName(QStringLiteral("mnuFileOptions"), i); };
    auto file = [&w](std::function<void()> body) {
        return [&w, body] { w.runCommand(QStringLiteral("mnuFileOptions_Click"), body); };
    };
    addMenu(bar, QStringLiteral("mnuFile"), QStringLiteral("&File"), {
        // Unlike the toolbar's New, the menu's goes back to the first pages.
        {options(0), QStringLiteral("&New"), file([&s, &w] {
             s.gScenario->AddNew(QStringLiteral("Wildlife"));
             w.showFirstPages();
         })},
        {options(1), QStringLiteral("&Open..."), file([&s] { s.gScenario->OpenFile(QStringLiteral("Unknown"), QStringLiteral("unknown"), true); })},
        {options(2), QStringLiteral("Close"), file([&w] { w.unloadMe(); })},
        MenuEntry::separatorNamed(options(3)),
        {options(4), QStringLiteral("&Save..."), file([&s] { s.gScenario->Save(QStringLiteral("All")); })},
        {options(5), QStringLiteral("Save &As...")},  // inert in this window
        MenuEntry::separatorNamed(options(6)),
        {options(7), QStringLiteral("&Print")},       // printing goes by the toolbar
        MenuEntry::separatorNamed(options(8)),
        // Exit ends the program at once, without saving or asking.
        {options(9), QStringLiteral("E&xit"), [] { QCoreApplication::exit(0); }},
    }, QStringLiteral("mnuFileTitle"));
    QAction *help = bar->addAction(QStringLiteral("Help"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    QObject::connect(help, &QAction::triggered, &w, [&w] { w.showHelp(); });
}
}  // namespace

void buildBuilderCommands(frmZOB &w, FormBuilder &b)
{
    buildToolbar(w, b);
    buildMenus(w);
}
