// SPDX-License-Identifier: MIT
// Every window of the program opened by name through the window host, and its grids re-sorted or
// re-filtered, on the normal database and on one 100 times larger; each time next to the time of the
// same window's own statements run directly on SQLite in this process. The statements are those the
// window ran, as SQLite traced them. Then the cold start of the program to the project list, and the
// Lookup and one-row recordset opens next to the same prepared statements on the SQLite C interface.
#include "BenchSupport.h"
#include "DataControl.h"
#include "Database.h"
#include "QtWindowHost.h"
#include "Services.h"
#include "Session.h"
#include "ZobWindow.h"
#include "clsDietItem.h"
#include "frmMDI.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QListWidget>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <sqlite3.h>
#include <vector>

namespace {

constexpr int kRuns = 7;

double nowMs()
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? 0.0 : v[v.size() / 2];
}

//! Answers every box with its default button, silently.
class QuietMessages : public MessageService {
public:
    MsgAnswer show(const QString &, const QString &, MsgIcon, MsgButtons buttons, int defaultButton) override
    {
        const QVector<MsgAnswer> answers = buttonsOf(buttons);
        return answers.value(std::max(0, defaultButton - 1), MsgAnswer::OK);
    }
};
class NoCursor : public CursorService {
public:
    void setBusy(bool) override {}
    bool busy() const override { return false; }
};
class NoHelp : public HelpService {
public:
    void showTopic(int) override {}
};

//! The statements SQLite starts on a connection while it is on; the reads among them can be run again.
class StatementTrace {
public:
    explicit StatementTrace(sqlite3 *db) : m_db(db) {}
    void start()
    {
        m_sql.clear();
        sqlite3_trace_v2(m_db, SQLITE_TRACE_STMT, &StatementTrace::onStatement, this);
    }
    void stop() { sqlite3_trace_v2(m_db, 0, nullptr, nullptr); }
    const QList<QByteArray> &reads() const { return m_sql; }

    //! Prepares, steps to the end and reads every column of each read statement: what a program
    //! written on SQLite itself would do to show the same rows.
    double replayMs() const
    {
        const double t0 = nowMs();
        replayStatements(m_db, m_sql);
        return nowMs() - t0;
    }

private:
    static int onStatement(unsigned, void *self, void *stmt, void *)
    {
        char *text = sqlite3_expanded_sql(static_cast<sqlite3_stmt *>(stmt));
        if (!text)
            return 0;
        const QByteArray sql(text);
        sqlite3_free(text);
        const QByteArray head = sql.trimmed().left(6).toUpper();
        if (head == "SELECT" || head.startsWith("WITH"))
            static_cast<StatementTrace *>(self)->m_sql << sql;
        return 0;
    }
    sqlite3 *m_db;
    QList<QByteArray> m_sql;
};

struct Figure {
    QString what;
    double appMs = 0;
    double sqlMs = 0;
    int statements = 0;
};

//! A program folder holding a private copy of a database.
class CopiedHome {
public:
    explicit CopiedHome(const QString &database)
    {
        const QString copy = m_dir.filePath(QStringLiteral("ZOB.sqlite"));
        m_ok = QFile::copy(database, copy) && QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
    }
    bool ok() const { return m_ok; }
    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
    bool m_ok = false;
};

//! The program on the database of a program folder, started as main() starts it, for "user001".
class Program {
public:
    explicit Program(const QString &home)
    {
        session.messages = &m_messages;
        session.cursor = &m_cursor;
        session.help = &m_help;
        session.windows = &host;
        session.home = home;
        session.userOverride = QStringLiteral("user001");
        m_ok = session.Main();
        if (!m_ok)
            return;
        session.gDietItem = std::make_shared<clsDietItem>(session);
        mdi = std::make_unique<frmMDI>(session, host);
        mdi->show();
        mdi->Form_Load();
        QApplication::processEvents();
    }
    ~Program()
    {
        host.unloadAll();
        mdi.reset();
    }
    bool ok() const { return m_ok; }

    //! The median time of act (after reset each time) with the events it posts, and of its reads on
    //! SQLite.
    Figure measure(const QString &what, const std::function<void()> &reset, const std::function<void()> &act)
    {
        StatementTrace trace(session.gDB->handle());
        std::vector<double> app, sql;
        for (int i = 0; i < kRuns; ++i) {
            reset();
            QApplication::processEvents();
            trace.start();
            const double t0 = nowMs();
            act();
            QApplication::processEvents();
            app.push_back(nowMs() - t0);
            trace.stop();
        }
        for (int i = 0; i < kRuns; ++i)
            sql.push_back(trace.replayMs());
        return {what, median(app), median(sql), static_cast<int>(trace.reads().size())};
    }

    Figure open(const QString &window)
    {
        return measure(
            window + QStringLiteral(" open"), [&] { host.unload(window); }, [&] { host.show(window); });
    }

    template <typename T>
    T *child(const QString &window, const QString &name)
    {
        ZobWindow *w = host.form(window);
        return w ? w->findChild<T *>(name) : nullptr;
    }

    Session session;
    QtWindowHost host{session};
    std::unique_ptr<frmMDI> mdi;

private:
    QuietMessages m_messages;
    NoCursor m_cursor;
    NoHelp m_help;
    bool m_ok = false;
};

QList<Figure> measureWindows(const QString &database)
{
    QList<Figure> out;
    const CopiedHome home(database);
    Program p(home.path());
    if (!home.ok() || !p.ok()) {
        std::fprintf(stderr, "bench_windows: cannot start on %s\n", qPrintable(database));
        return out;
    }
    const QString list = QStringLiteral("frmProjectList");
    out << p.open(list);
    if (DataGrid *grid = p.child<DataGrid>(list, QStringLiteral("ssGrdMain"))) {
        DataControl *dc = grid->dataControl();
        auto column = [dc](const char *field) { return dc->fieldIndex(QLatin1String(field)); };
        int flip = 0;
        out << p.measure(QStringLiteral("frmProjectList sort by a column head"), [] {},
                         [&] { grid->headClick(column(flip++ % 2 ? "Name" : "LastSaved")); });
        out << p.measure(
            QStringLiteral("frmProject open a project from the list"),
            [&] {
                p.host.unload(QStringLiteral("frmProject"));
                p.host.show(list);
            },
            [&] { grid->dblClickRow(0); });
        p.host.unload(QStringLiteral("frmProject"));
    }
    out << p.open(QStringLiteral("frmProject"));
    p.host.unload(QStringLiteral("frmProject"));
    out << p.open(QStringLiteral("frmSetup"));
    if (auto *tables = p.child<QListWidget>(QStringLiteral("frmSetup"), QStringLiteral("LstTables"))) {
        for (const QString &name : {QStringLiteral("Species"), QStringLiteral("Location")}) {
            const QList<QListWidgetItem *> items = tables->findItems(name, Qt::MatchExactly);
            if (items.isEmpty())
                continue;
            out << p.measure(QStringLiteral("frmSetup show the %1 table").arg(name),
                             [&] { tables->setCurrentRow(-1); }, [&] { tables->setCurrentItem(items.first()); });
        }
    }
    p.host.unload(QStringLiteral("frmSetup"));
    for (const QString &w : {QStringLiteral("frmSearch_File"), QStringLiteral("frmGetDir"), QStringLiteral("frmZoom")}) {
        out << p.open(w);
        p.host.unload(w);
    }
    return out;
}

//! Lookup and a one-row recordset beside the same statements prepared once on the C interface.
QList<Figure> measureStore(const QString &database)
{
    QList<Figure> out;
    const CopiedHome home(database);
    Program p(home.path());
    if (!home.ok() || !p.ok())
        return out;
    Session &s = p.session;
    sqlite3 *db = s.gDB->handle();
    constexpr int n = 20000;
    const int species = static_cast<int>(s.gDB->OpenRecordset(QStringLiteral("Select Count(*) From tblSpecies"))->field(0).toInt());
    auto cBaseline = [&](const char *sql, auto bind) {
        sqlite3_stmt *st = nullptr;
        sqlite3_prepare_v2(db, sql, -1, &st, nullptr);
        volatile qint64 sink = 0;
        const double us = perCallMicros(n, [&](int i) {
            sqlite3_reset(st);
            bind(st, i);
            while (sqlite3_step(st) == SQLITE_ROW)
                for (int c = 0; c < sqlite3_column_count(st); ++c)
                    sink = sink + (sqlite3_column_type(st, c) == SQLITE_TEXT ? sqlite3_column_bytes(st, c) : sqlite3_column_int64(st, c));
        });
        sqlite3_finalize(st);
        return us;
    };
    volatile int sink = 0;
    const double lookup = perCallMicros(n, [&](int i) {
        sink = sink + s.Lookup(QStringLiteral("tblSpecies"), QStringLiteral("Common"),
                               QStringLiteral("SpeciesID = ") + QString::number(1 + i % species)).toString().size();
    });
    const double lookupC = cBaseline("SELECT Common FROM tblSpecies WHERE SpeciesID = ?1",
                                     [&](sqlite3_stmt *st, int i) { sqlite3_bind_int(st, 1, 1 + i % species); });
    out << Figure{QStringLiteral("Lookup tblSpecies.Common by key (us)"), lookup, lookupC, 1};
    const double open = perCallMicros(n, [&](int i) {
        auto rs = s.gDB->OpenRecordset(QStringLiteral("Select * from tblSpecies Where SpeciesID = ") + QString::number(1 + i % species),
                                       RecordsetType::Snapshot);
        sink = sink + rs->RecordCount();
    });
    const double openC = cBaseline("SELECT * FROM tblSpecies WHERE SpeciesID = ?1",
                                   [&](sqlite3_stmt *st, int i) { sqlite3_bind_int(st, 1, 1 + i % species); });
    out << Figure{QStringLiteral("OpenRecordset one row of tblSpecies (us)"), open, openC, 1};
    return out;
}

void printTable(const char *title, const QList<Figure> &normal, const QList<Figure> &large, bool micro)
{
    std::printf("\n%s\n", title);
    std::printf("  %-44s | %9s %9s %6s %5s | %9s %9s %6s %5s | %6s\n", "", "normal", "own SQL", "ratio", "stmts", "100x",
                "own SQL", "ratio", "stmts", "growth");
    for (int i = 0; i < normal.size(); ++i) {
        const Figure &a = normal[i];
        const Figure b = i < large.size() ? large[i] : Figure{};
        const char *unit = micro ? "us" : "ms";
        // A window without statements has no ratio: only the fixed 10 ms applies to it.
        auto ratio = [](const Figure &f) { return f.statements ? QString::number(f.appMs / f.sqlMs, 'f', 2) : QStringLiteral("-"); };
        const bool over = micro ? b.appMs > 2 * b.sqlMs : b.appMs > 2 * b.sqlMs + 10;
        std::printf("  %-44s | %7.2f%s %7.2f%s %6s %5d | %7.2f%s %7.2f%s %6s %5d | %6.2f%s\n", qPrintable(a.what), a.appMs,
                    unit, a.sqlMs, unit, qPrintable(ratio(a)), a.statements, b.appMs, unit, b.sqlMs, unit,
                    qPrintable(ratio(b)), b.statements, a.appMs > 0 ? b.appMs / a.appMs : 0.0, over ? " over" : "");
    }
}

//! The program from process start to the project list, in a process of its own.
int coldChild(int argc, char **argv)
{
    QApplication app(argc, argv);
    Program p(QString::fromLocal8Bit(argv[2]));
    if (!p.ok() || !p.host.isLoaded(QStringLiteral("frmProjectList")))
        return 1;
    std::printf("%.3f\n", nowMs());
    std::fflush(stdout);
    std::_Exit(0);   // the time asked for ends here; tearing down is not part of it
}

double coldStartMs(const QString &self, const QString &database)
{
    std::vector<double> times;
    for (int i = 0; i < 5; ++i) {
        const CopiedHome home(database);   // made before the clock starts
        QProcess child;
        const double t0 = nowMs();
        child.start(self, {QStringLiteral("--cold"), home.path()});
        child.waitForFinished(60000);
        const double shown = child.readAllStandardOutput().trimmed().toDouble();
        if (child.exitCode() == 0 && shown > t0)
            times.push_back(shown - t0);
    }
    return median(times);
}

}  // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 3 && QByteArray(argv[1]) == "--cold")
        return coldChild(argc, argv);
    QApplication app(argc, argv);
    const QString normal = QStringLiteral(ZOB_BENCH_DB_NORMAL);
    const QString large = QStringLiteral(ZOB_BENCH_DB_LARGE);
    for (const QString &db : {normal, large})
        if (!QFile::exists(db)) {
            std::fprintf(stderr, "bench_windows: %s is missing; build the target bench_databases first\n", qPrintable(db));
            return 1;
        }

    if (argc == 2 && QByteArray(argv[1]) == "--store") {   // the store figures alone, while tuning
        { const auto l = measureStore(large); const auto s = measureStore(normal); printTable("Lookup and one-row recordset", s, l, true); }
        return 0;
    }
    const QList<Figure> a = measureWindows(normal);
    const QList<Figure> b = measureWindows(large);
    std::printf("bench_windows: median of %d runs; target: within 2x own SQL + 10 ms on the 100x database\n", kRuns);
    printTable("Windows (open, re-sort, re-filter)", a, b, false);
    printTable("Lookup and one-row recordset next to the same prepared statement (target 2x)", measureStore(normal),
               measureStore(large), true);
    const double coldA = coldStartMs(QCoreApplication::applicationFilePath(), normal);
    const double coldB = coldStartMs(QCoreApplication::applicationFilePath(), large);
    std::printf("\nCold start to the project list (target < 300 ms): normal %.1f ms, 100x %.1f ms\n", coldA, coldB);
    return 0;
}
