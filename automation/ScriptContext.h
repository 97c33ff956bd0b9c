// SPDX-License-Identifier: MIT
#pragma once

#include <QJSValue>
#include <QString>
#include <QVariant>
#include <functional>

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

//! A script's argument as a QVariant: null and undefined are the null variant.
QVariant jsToVariant(const QJSValue &v);

//! A window found by name: a loaded program window, or another top-level window of the program
//! (the main window "frmMDI", the help viewer "HelpViewer"). Null when there is none.
QWidget *findScriptWindow(const ScriptContext &ctx, const QString &name);

//! On the GUI thread: the control name of window (the window itself for an empty name); throws a
//! BridgeError naming what is missing.
QWidget *requireControl(const ScriptContext &ctx, const QString &window, const QString &name);
