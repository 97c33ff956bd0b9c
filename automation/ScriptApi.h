// SPDX-License-Identifier: MIT
#pragma once

#include <QJSValue>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>

class GuiBridge;
class QJSEngine;
class QWidget;
class QtWindowHost;
class ScriptMessageService;
class Session;

//! What every object of the script API reaches: the engine (script thread), the bridge to the GUI
//! thread, and the program's session, windows and recorded messages (GUI thread).
struct ScriptContext {
    QJSEngine *engine = nullptr;
    GuiBridge *bridge = nullptr;
    Session *session = nullptr;
    QtWindowHost *host = nullptr;
    ScriptMessageService *messages = nullptr;
    //! Runs fn on the GUI thread; a failure there becomes a JavaScript error in the script.
    QVariant gui(const std::function<QVariant()> &fn) const;
    //! A JavaScript value of a QVariant: null for null, arrays and objects for lists and maps,
    //! single-precision numbers by their shortest decimal text.
    QJSValue toJs(const QVariant &v) const;
};

//! A window found by name: a loaded program window, or another top-level window of the program
//! (the main window "frmMDI", the help viewer "HelpViewer"). Null when there is none.
QWidget *findScriptWindow(const ScriptContext &ctx, const QString &name);

//! A control of a window, looked up afresh at every use.
class ControlApi : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(QString text READ text)
    Q_PROPERTY(bool visible READ visible)
    Q_PROPERTY(bool enabled READ enabled)
    Q_PROPERTY(bool locked READ locked)
    Q_PROPERTY(QJSValue value READ value)
    Q_PROPERTY(QString caption READ caption)
    Q_PROPERTY(int foreColor READ foreColor)
    Q_PROPERTY(QJSValue items READ items)
    Q_PROPERTY(QString type READ type)
    Q_PROPERTY(QJSValue rows READ rows)
    Q_PROPERTY(QJSValue columns READ columns)
    Q_PROPERTY(int rowCount READ rowCount)
    Q_PROPERTY(int currentRow READ currentRow)
    Q_PROPERTY(int currentTab READ currentTab)
public:
    ControlApi(const ScriptContext &ctx, QString window, QString name);
    QString name() const { return m_name; }
    QString text() const;
    bool visible() const;
    bool enabled() const;
    bool locked() const;
    QJSValue value() const;
    QString caption() const;
    int foreColor() const;
    QJSValue items() const;
    QString type() const;
    QJSValue rows() const;
    QJSValue columns() const;
    int rowCount() const;
    int currentRow() const;
    int currentTab() const;

    Q_INVOKABLE void setText(const QString &text);
    Q_INVOKABLE void click();
    Q_INVOKABLE void dblClick();
    Q_INVOKABLE void focus();
    Q_INVOKABLE void blur();
    Q_INVOKABLE void keyDown(int code, int shift = 0);
    Q_INVOKABLE void setValue(const QJSValue &value);
    Q_INVOKABLE void select(const QJSValue &textOrIndex);
    Q_INVOKABLE void selectRow(int row);
    Q_INVOKABLE void headClick(const QJSValue &column);
    Q_INVOKABLE void dblClickRow(int row);
    Q_INVOKABLE QString cell(int row, int column) const;
    Q_INVOKABLE void selectTab(int index);

private:
    QVariant with(const std::function<QVariant(QWidget *)> &fn) const;
    ScriptContext m_ctx;
    QString m_window;
    QString m_name;
};

//! The toolbar TB_MDI of a window.
class ToolbarApi : public QObject {
    Q_OBJECT
    Q_PROPERTY(QStringList keys READ keys)
public:
    ToolbarApi(const ScriptContext &ctx, QString window);
    QStringList keys() const;
    //! Presses a button by its 1-based index or its key.
    Q_INVOKABLE void click(const QJSValue &indexOrKey);
    Q_INVOKABLE bool visible(const QJSValue &indexOrKey) const;
    Q_INVOKABLE bool enabled(const QJSValue &indexOrKey) const;
private:
    QVariant button(const QJSValue &indexOrKey, const std::function<QVariant(class ZobToolbar *, int)> &fn) const;
    ScriptContext m_ctx;
    QString m_window;
};

//! A window by its name.
class WindowApi : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString name READ name CONSTANT)
    Q_PROPERTY(QString caption READ caption)
    Q_PROPERTY(bool visible READ visible)
    Q_PROPERTY(bool loaded READ loaded)
    Q_PROPERTY(QStringList controls READ controls)
public:
    WindowApi(const ScriptContext &ctx, QString name);
    QString name() const { return m_name; }
    QString caption() const;
    bool visible() const;
    bool loaded() const;
    QStringList controls() const;
    //! A control by name; a name the window does not have throws.
    Q_INVOKABLE QJSValue control(const QString &name);
    Q_INVOKABLE bool hasControl(const QString &name) const;
    Q_INVOKABLE QJSValue toolbar();
    //! Unloads the window with its own unload logic.
    Q_INVOKABLE void close();
    //! Writes a PNG picture of the window; returns true on success.
    Q_INVOKABLE bool grab(const QString &path);
    Q_INVOKABLE void keyDown(int code, int shift = 0);
    Q_INVOKABLE void click();
private:
    ScriptContext m_ctx;
    QString m_name;
};

//! A menu item of the main window by its control name.
class MenuApi : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool enabled READ enabled)
    Q_PROPERTY(bool visible READ visible)
    Q_PROPERTY(QString caption READ caption)
public:
    MenuApi(const ScriptContext &ctx, QString name);
    bool enabled() const;
    bool visible() const;
    QString caption() const;
    Q_INVOKABLE void trigger();
private:
    QVariant with(const std::function<QVariant(class QAction *)> &fn) const;
    ScriptContext m_ctx;
    QString m_name;
};

//! The global "ui".
class UiApi : public QObject {
    Q_OBJECT
public:
    explicit UiApi(const ScriptContext &ctx);
    Q_INVOKABLE QJSValue window(const QString &name);
    Q_INVOKABLE QStringList windows() const;
    //! Loads and shows a window (modal when asked).
    Q_INVOKABLE void show(const QString &name, bool modal = false);
    Q_INVOKABLE QJSValue menu(const QString &name);
    //! Queues answers for the next boxes (variadic in JavaScript).
    Q_INVOKABLE void answerList(const QStringList &answers);
    Q_INVOKABLE QJSValue messages() const;
    Q_INVOKABLE void clearMessages();
    Q_INVOKABLE QStringList pendingAnswers() const;
    Q_INVOKABLE QString cursor() const;
    //! The number of the help topic on show, 0 when the viewer was never opened.
    Q_INVOKABLE int helpTopic() const;
    //! Asks for a help topic by number, as a Help button does.
    Q_INVOKABLE void showHelp(int number);
    //! Waits until the program is idle.
    Q_INVOKABLE void idle();
private:
    ScriptContext m_ctx;
};

//! The global "db".
class DbApi : public QObject {
    Q_OBJECT
public:
    explicit DbApi(const ScriptContext &ctx) : m_ctx(ctx) {}
    Q_INVOKABLE QJSValue query(const QString &jetSql);
    Q_INVOKABLE int exec(const QString &jetSql);
private:
    ScriptContext m_ctx;
};

//! The open scenario, read and partly written by scripts.
class ScenarioApi : public QObject {
    Q_OBJECT
    Q_PROPERTY(int SID READ SID WRITE setSID)
    Q_PROPERTY(QString Mode READ Mode)
    Q_PROPERTY(int DietID READ DietID WRITE setDietID)
    Q_PROPERTY(int DietType READ DietType WRITE setDietType)
    Q_PROPERTY(QString ScenarioType READ ScenarioType)
    Q_PROPERTY(QString FileName READ FileName)
    Q_PROPERTY(QString FilePath READ FilePath)
    Q_PROPERTY(int SpeciesID READ SpeciesID)
    Q_PROPERTY(int WeightID READ WeightID)
    Q_PROPERTY(double Weight READ Weight)
    Q_PROPERTY(bool exists READ exists)
public:
    explicit ScenarioApi(const ScriptContext &ctx) : m_ctx(ctx) {}
    int SID() const; void setSID(int v);
    QString Mode() const;
    int DietID() const; void setDietID(int v);
    int DietType() const; void setDietType(int v);
    QString ScenarioType() const;
    QString FileName() const;
    QString FilePath() const;
    int SpeciesID() const;
    int WeightID() const;
    double Weight() const;
    bool exists() const;
private:
    ScriptContext m_ctx;
};

//! The open project.
class ProjectApi : public QObject {
    Q_OBJECT
    Q_PROPERTY(int PID READ PID)
    Q_PROPERTY(QString Name READ Name)
    Q_PROPERTY(QString Mode READ Mode)
    Q_PROPERTY(QString FileName READ FileName)
    Q_PROPERTY(QString FilePath READ FilePath)
    Q_PROPERTY(bool exists READ exists)
public:
    explicit ProjectApi(const ScriptContext &ctx) : m_ctx(ctx) {}
    int PID() const;
    QString Name() const;
    QString Mode() const;
    QString FileName() const;
    QString FilePath() const;
    bool exists() const;
private:
    ScriptContext m_ctx;
};

//! The global "session".
class SessionApi : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString user READ user)
    Q_PROPERTY(int userId READ userId)
    Q_PROPERTY(QString home READ home)
    Q_PROPERTY(QJSValue scenario READ scenario)
    Q_PROPERTY(QJSValue project READ project)
public:
    explicit SessionApi(const ScriptContext &ctx);
    QString user() const;
    int userId() const;
    QString home() const;
    QJSValue scenario() const { return m_scenario; }
    QJSValue project() const { return m_project; }
private:
    ScriptContext m_ctx;
    QJSValue m_scenario;
    QJSValue m_project;
};

//! The global "fmt": the legacy conversions.
class FmtApi : public QObject {
    Q_OBJECT
public:
    explicit FmtApi(const ScriptContext &ctx) : m_ctx(ctx) {}
    Q_INVOKABLE QString vbFormat(const QJSValue &value, const QString &pattern);
    Q_INVOKABLE QJSValue CSng(const QJSValue &text);
    Q_INVOKABLE double Val(const QString &text);
    Q_INVOKABLE QJSValue Lookup(const QString &table, const QString &field, const QString &criteria);
private:
    ScriptContext m_ctx;
};

//! The global "fs": reading files; relative paths are taken from the program folder.
class FsApi : public QObject {
    Q_OBJECT
public:
    explicit FsApi(const ScriptContext &ctx) : m_ctx(ctx) {}
    Q_INVOKABLE QJSValue read(const QString &path);
    Q_INVOKABLE bool exists(const QString &path);
    Q_INVOKABLE QStringList list(const QString &dir);
private:
    QString resolve(const QString &path) const;
    ScriptContext m_ctx;
};

//! Calls the invokable methods of a GUI-thread object from the script thread (see exposeObject).
class ObjectBridgeApi : public QObject {
    Q_OBJECT
public:
    ObjectBridgeApi(const ScriptContext &ctx, QObject *target);
    //! The names of the object's invokable methods.
    QStringList methodNames() const;
    Q_INVOKABLE QJSValue invoke(const QString &method, const QVariantList &args);
private:
    ScriptContext m_ctx;
    QPointer<QObject> m_target;
};
