// SPDX-License-Identifier: MIT
#pragma once

#include "ScriptContext.h"

#include <QObject>
#include <QStringList>

class QAction;
class ZobToolbar;

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
    QVariant button(const QJSValue &indexOrKey, const std::function<QVariant(ZobToolbar *, int)> &fn) const;
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
    Q_PROPERTY(int pageCount READ pageCount)
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
    //! A report preview's pages, their text in reading order, and the report as a PDF file (a
    //! relative path starts at the program folder); a window that is no report throws.
    int pageCount() const;
    Q_INVOKABLE QString text() const;
    Q_INVOKABLE bool exportPdf(const QString &path);
private:
    //! Runs fn on the GUI thread with the window, null when it is not there.
    QVariant with(const std::function<QVariant(QWidget *)> &fn) const;
    //! The same with a window that must be there.
    QVariant withLoaded(const std::function<QVariant(QWidget *)> &fn) const;
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
    QVariant with(const std::function<QVariant(QAction *)> &fn) const;
    ScriptContext m_ctx;
    QString m_name;
};
