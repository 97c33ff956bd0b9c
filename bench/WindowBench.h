// SPDX-License-Identifier: MIT
#pragma once
// The machinery of the window benchmark: the program started for "user001" on a private copy of a
// database, the trace of the statements SQLite runs for it, and the timing of one window action
// beside the same read statements run directly on SQLite. The window cases of each layer
// (bench/windows/*.cpp) use it through WindowBench.

#include "BenchSupport.h"
#include "DataControl.h"
#include "Database.h"
#include "QtWindowHost.h"
#include "Services.h"
#include "Session.h"
#include "ZobWindow.h"
#include "clsDietItem.h"
#include "frmMDI.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <sqlite3.h>
#include <vector>

namespace windowbench {

//! Runs of one action (ZOB_BENCH_RUNS, 5 unless told); an action whose first run takes longer than
//! kSlowMs gets kSlowRuns.
inline const int kRuns = qEnvironmentVariableIntValue("ZOB_BENCH_RUNS") > 0 ? qEnvironmentVariableIntValue("ZOB_BENCH_RUNS") : 5;
constexpr int kSlowRuns = 3;
constexpr double kSlowMs = 500;
//! The time one action may take: a statement still running then is interrupted, the action is run
//! once only and its row says so, so that a window that takes minutes does not hold up the table.
constexpr double kBudgetMs = 5000;

inline double nowMs()
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

//! ZOB_BENCH_VERBOSE set: each row is told as it is measured, with the slowest statement of a slow one.
inline bool verbose()
{
    static const bool on = qEnvironmentVariableIsSet("ZOB_BENCH_VERBOSE");
    return on;
}

//! ZOB_BENCH_ONLY set: only the rows whose text holds it are run ZOB_BENCH_RUNS times (for a profiler
//! on one window); the others once, as the later rows need what they leave.
inline bool measured(const QString &what)
{
    static const QString only = qEnvironmentVariable("ZOB_BENCH_ONLY");
    return only.isEmpty() || what.contains(only);
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
        return benchMillis([this] { replayStatements(m_db, m_sql); });
    }

    //! The read that takes longest on SQLite, and its time (each stopped at budgetMs).
    std::pair<QByteArray, double> slowest(double budgetMs) const;

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
    //! The window's action, or its statements on SQLite, were stopped at kBudgetMs.
    bool appStopped = false;
    bool sqlStopped = false;
};

//! Interrupts the statements of a connection once a time is past (SQLite's progress handler).
class Deadline {
public:
    Deadline(sqlite3 *db, double ms) : m_db(db), m_at(nowMs() + ms)
    {
        sqlite3_progress_handler(m_db, 10000, &Deadline::check, this);
    }
    ~Deadline() { sqlite3_progress_handler(m_db, 0, nullptr, nullptr); }
    bool passed() const { return m_passed; }

private:
    static int check(void *self)
    {
        auto *d = static_cast<Deadline *>(self);
        d->m_passed = d->m_passed || nowMs() > d->m_at;
        return d->m_passed ? 1 : 0;
    }
    sqlite3 *m_db;
    double m_at;
    bool m_passed = false;
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
        sqlite3 *db = session.gDB->handle();
        StatementTrace trace(db);
        std::vector<double> app, sql;
        Figure f{what};
        int runs = measured(what) ? kRuns : 1;
        for (int i = 0; i < runs; ++i) {
            reset();
            QApplication::processEvents();
            // Windows unloaded by reset (or by the run before) are deleted later, when the event loop
            // they were unloaded from runs again: in the program, as soon as the user's action is done.
            // A benchmark has no such loop, so they are deleted here, or their widgets would pile up
            // and slow every later window that looks through the program's widgets.
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            trace.start();
            const double t0 = nowMs();
            {
                const Deadline deadline(db, kBudgetMs);
                act();
                QApplication::processEvents();
                f.appStopped = deadline.passed();
            }
            app.push_back(nowMs() - t0);
            trace.stop();
            if (f.appStopped)
                runs = 1;
            else if (i == 0 && app.front() > kSlowMs)
                runs = kSlowRuns;
        }
        for (int i = 0; i < runs && !f.sqlStopped; ++i) {
            const Deadline deadline(db, kBudgetMs);
            sql.push_back(trace.replayMs());
            f.sqlStopped = deadline.passed();
        }
        // Where the time of a slow window goes, when asked: its slowest statement.
        if (verbose() && benchMedian(sql) > 100) {
            const auto [statement, ms] = trace.slowest(kBudgetMs);
            std::fprintf(stderr, "%s: slowest statement %s%.0f ms: %s\n", qPrintable(what), ms >= kBudgetMs ? ">" : "", ms,
                         statement.constData());
        }
        f.appMs = benchMedian(app);
        f.sqlMs = benchMedian(sql);
        f.statements = static_cast<int>(trace.reads().size());
        return f;
    }

    template <typename T = QWidget>
    T *child(const QString &window, const QString &name)
    {
        ZobWindow *w = host.loaded(window);
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

//! Answers a modal window the first time it is shown during its own lifetime, by clicking one of its
//! buttons as a user would, so that the window that showed it goes on.
class ModalAnswer {
public:
    ModalAnswer(Program &p, const QString &window, const QString &button)
    {
        m_timer.setInterval(0);
        QObject::connect(&m_timer, &QTimer::timeout, [this, &p, window, button] {
            ZobWindow *w = p.host.loaded(window);
            if (p.host.modalDepth() == 0 || !w || !w->isVisible())
                return;
            m_timer.stop();
            if (auto *b = w->findChild<QAbstractButton *>(button))
                b->click();
        });
        m_timer.start();
    }

private:
    QTimer m_timer;
};

//! The window cases' view of one program run: opening a window as its caller does, re-sorting its
//! grid by a column head and re-filtering it, each recorded as a row of the table.
class WindowBench {
public:
    WindowBench(Program &program, QList<Figure> &out) : p(program), m_out(out) {}

    //! The window opened by name as its caller opens it: made, given the caller's request when there
    //! is one, and shown (without a modal loop, so that the benchmark goes on). before runs ahead of
    //! every opening, outside the time.
    void open(const QString &window, const RecordRequest *request = nullptr, const std::function<void()> &before = {},
              const QString &what = {})
    {
        const RecordRequest r = request ? *request : RecordRequest{};
        const bool give = request != nullptr;
        record(p.measure(
            what.isEmpty() ? window + QStringLiteral(" open") : what,
            [&] {
                p.host.unload(window);
                if (before)
                    before();
            },
            [&] { show(window, give ? &r : nullptr); }));
    }
    //! Shows the window (made at first reference), giving it a request first when there is one.
    void show(const QString &window, const RecordRequest *request = nullptr)
    {
        ZobWindow *w = p.host.form(window);
        if (w && request)
            w->setRecord(*request);
        p.host.show(window);
    }

    //! A click on a column head of a grid, alternately on two of its fields.
    void sort(const QString &window, const QString &grid, const QString &first, const QString &second)
    {
        DataGrid *g = p.child<DataGrid>(window, grid);
        DataControl *dc = g ? g->dataControl() : nullptr;
        if (!dc || dc->fieldIndex(first) < 0 || dc->fieldIndex(second) < 0) {
            missing(window, grid + QStringLiteral(" with columns ") + first + QStringLiteral(", ") + second);
            return;
        }
        int flip = 0;
        record(p.measure(QStringLiteral("%1 sort by a column head").arg(window), [] {},
                         [&] { g->headClick(dc->fieldIndex(flip++ % 2 ? first : second)); }));
    }

    //! Any action, with what sets it up each time (outside the time).
    void action(const QString &what, const std::function<void()> &reset, const std::function<void()> &act)
    {
        record(p.measure(what, reset, act));
    }

    //! Two actions that narrow or change what a window lists, timed alternately.
    void refilter(const QString &window, const QString &what, const std::function<void()> &one,
                  const std::function<void()> &other)
    {
        if (!p.host.isLoaded(window)) {
            missing(window, what);
            return;
        }
        int flip = 0;
        record(p.measure(QStringLiteral("%1 %2").arg(window, what), [] {}, [&] { (flip++ % 2 ? other : one)(); }));
    }
    //! Re-filters by clicking two buttons (options, check boxes) of a window alternately.
    void refilterByClicks(const QString &window, const QString &what, const QString &one, const QString &other)
    {
        refilter(window, what, [this, window, one] { click(window, one); }, [this, window, other] { click(window, other); });
    }

    //! A list window: opened for a request, re-sorted by two columns of its grid, re-filtered by two of
    //! its buttons when they are named, and closed.
    struct List {
        QString window, grid, sortBy, thenBy;
        QString filter = {}, one = {}, other = {};
    };
    void list(const List &l, const RecordRequest &r)
    {
        open(l.window, &r);
        sort(l.window, l.grid, l.sortBy, l.thenBy);
        if (!l.filter.isEmpty())
            refilterByClicks(l.window, l.filter, l.one, l.other);
        close(l.window);
    }

    void click(const QString &window, const QString &button)
    {
        if (auto *b = p.child<QAbstractButton>(window, button))
            b->click();
    }
    void close(const QString &window) { p.host.unload(window); }

    //! The smallest key of a table, or of its rows that meet a condition.
    qint32 firstId(const QString &table, const QString &key, const QString &where = {})
    {
        auto rs = p.session.gDB->OpenRecordset(
            QStringLiteral("Select Min(%1) From %2%3").arg(key, table, where.isEmpty() ? QString() : QStringLiteral(" Where ") + where),
            RecordsetType::Snapshot);
        return rs->field(0).toInt();
    }

    Program &p;

private:
    void record(const Figure &f)
    {
        m_out << f;
        if (verbose())
            std::fprintf(stderr, "  %-52s %9.2f ms\n", qPrintable(f.what), f.appMs);
    }
    void missing(const QString &window, const QString &what)
    {
        std::fprintf(stderr, "bench_windows: %s has no %s here\n", qPrintable(window), qPrintable(what));
    }
    QList<Figure> &m_out;
};

inline std::pair<QByteArray, double> StatementTrace::slowest(double budgetMs) const
{
    std::pair<QByteArray, double> out;
    for (const QByteArray &sql : m_sql) {
        const Deadline deadline(m_db, budgetMs);
        const double t0 = nowMs();
        replayStatements(m_db, {sql});
        if (nowMs() - t0 > out.second)
            out = {sql, nowMs() - t0};
    }
    return out;
}

// The window cases, by layer.
void benchSystemWindows(WindowBench &b);
void benchBuilderWindows(WindowBench &b);
void benchCalculationWindows(WindowBench &b);
void benchPickerWindows(WindowBench &b);
void benchEntryWindows(WindowBench &b);
void benchLifeHistoryAndReportWindows(WindowBench &b);

//! A saved wildlife scenario of species 1 with its first weight and a diet copied from the
//! reference data with its items and two intake rates, made the program's current scenario in
//! edit mode as the project window leaves it when it opens the scenario in the builder.
qint32 makeScenario(Program &p);

}  // namespace windowbench
