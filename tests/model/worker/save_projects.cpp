// SPDX-License-Identifier: MIT
// One of the programs of the two-program test: save_projects_worker HOME TAG COUNT opens HOME's
// database as the program does, saves COUNT new projects named "TAG <i>", each a second time after
// an edit, and exits with the number of failures (errors and boxes other than the success message).
#include "FakeProjectWindow.h"
#include "TestSupport.h"
#include "VbError.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    if (argc != 4)
        return 100;
    const QString home = QString::fromLocal8Bit(argv[1]);
    const QString tag = QString::fromLocal8Bit(argv[2]);
    const int count = std::atoi(argv[3]);
    Session s;
    RecordingMessages messages;
    FakeFileChooser chooser;
    s.home = home;
    s.messages = &messages;
    s.fileChooser = &chooser;
    if (!s.Main())
        return 101;
    FakeProjectWindow window;
    clsProject project(s);
    project.window = &window;
    int failures = 0;
    for (int i = 0; i < count; ++i) {
        project.AddNew();
        window.texts[0] = QStringLiteral("%1 %2").arg(tag).arg(i);
        chooser.next = {true, home, QStringLiteral("%1-%2.NAV").arg(tag).arg(i)};
        for (const char *purpose : {"first", "second"}) {
            window.texts[1] = QLatin1String(purpose);
            try {
                project.Save();
            } catch (const VbError &e) {
                std::fprintf(stderr, "%s %d: %d %s\n", qPrintable(tag), i, e.number(), qPrintable(e.description()));
                ++failures;
            }
        }
    }
    for (const ShownMessage &m : messages.shown) {
        if (m.text != QLatin1String("Project has been saved successfully")) {
            std::fprintf(stderr, "%s: box %s\n", qPrintable(tag), qPrintable(m.text));
            ++failures;
        }
    }
    return failures;
}
