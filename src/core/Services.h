// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

//! The icon of a message box.
enum class MsgIcon { None, Information, Warning, Stop, Question };

//! The buttons of a message box, and the answer given.
enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel, RetryCancel, AbortRetryIgnore };
enum class MsgAnswer { OK, Cancel, Yes, No, Retry, Abort, Ignore };

//! The one way the program talks to the user in a box. In the application it is a QMessageBox; under a
//! script or a test it records the box and answers from a queue (or with the default button).
class MessageService {
public:
    virtual ~MessageService() = default;
    //! Shows a box and returns the button pressed. defaultButton is 1-based as in the legacy runtime
    //! (1 = first button).
    virtual MsgAnswer show(const QString &text, const QString &title, MsgIcon icon,
                           MsgButtons buttons = MsgButtons::OK, int defaultButton = 1) = 0;
    //! Asks for a line of text (an input box); returns false when cancelled.
    virtual bool input(const QString &prompt, const QString &title, QString &value) { Q_UNUSED(prompt); Q_UNUSED(title); Q_UNUSED(value); return false; }
};

//! The buttons of a button set, in order; the default answer of a box.
QVector<MsgAnswer> buttonsOf(MsgButtons buttons);
QString answerName(MsgAnswer answer);
QString iconName(MsgIcon icon);

//! The mouse pointer: default or hourglass. Windows set the hourglass during long work; every error
//! handler resets it. The state can be read, so that tests can check it.
class CursorService {
public:
    virtual ~CursorService() = default;
    virtual void setBusy(bool busy) = 0;
    virtual bool busy() const = 0;
};

//! What the file chooser gives back: a folder, a file name and whether a name was chosen.
struct FileChoice {
    bool saveFile = false;   //!< a name was chosen (the chooser's SaveFile)
    QString path;            //!< folder, no closing separator
    QString file;            //!< file name with extension, no folder
};

//! The file chooser, opened modally for a file type ("ZOB", "NAV", ...) and an action ("Save", "Open").
class FileChooser {
public:
    virtual ~FileChooser() = default;
    virtual FileChoice choose(const QString &fileType, const QString &action) = 0;
    //! The chooser's description box; the marker-file reader writes the file's lines there.
    virtual void setDescription(const QString &text) = 0;
    virtual QString description() const = 0;
};

//! Shows a help topic by its context number.
class HelpService {
public:
    virtual ~HelpService() = default;
    virtual void showTopic(int contextId) = 0;
};

//! Creates, shows and unloads the program's windows by class name. One instance per class.
class WindowHost {
public:
    virtual ~WindowHost() = default;
    virtual bool isLoaded(const QString &name) const = 0;
    virtual void show(const QString &name, bool modal = false) = 0;
    virtual void unload(const QString &name) = 0;
    virtual QStringList loadedWindows() const = 0;
};
