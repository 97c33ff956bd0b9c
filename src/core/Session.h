// SPDX-License-Identifier: MIT
#pragma once

#include "Database.h"
#include "Services.h"

#include <QString>
#include <QVariant>
#include <memory>

class clsScenario;
class clsProject;
class clsDietItem;

//! The text Lookup gives for a missing row or a null field.
inline const QString kNotFound = QStringLiteral("not found");

//! What the legacy program held in process-wide variables: the database, the paths, the user, the
//! current scenario, project and diet item, the trace level, and the services through which it talks
//! to the user. One instance for the process; each test makes its own.
class Session {
public:
    Session();
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    // --- state (the legacy globals) ---
    std::shared_ptr<Database> gDB;
    QString home;                   //!< the program folder (the executable's, or --home)
    QString gPathDatabase;
    QString gConnectionString;
    QString gUserName;
    qint32 gUserID = 0;
    QString gSQL;                   //!< scratch text of the statement about to run
    qint16 gDiagLevel = 0;
    QString gDiagText;
    QString gMsgTitle;              //!< stays empty: no routine assigns it
    QString gSpeciesTaxon, gSpeciesCommon, gSpeciesLatin;
    QString gSelectedDir;
    QString userOverride;           //!< --user: replaces the operating system's login name

    std::shared_ptr<clsScenario> gScenario;
    std::shared_ptr<clsProject> gProject;
    std::shared_ptr<clsDietItem> gDietItem;

    // --- services (not owned) ---
    MessageService *messages = nullptr;
    CursorService *cursor = nullptr;
    FileChooser *fileChooser = nullptr;
    HelpService *help = nullptr;
    WindowHost *windows = nullptr;

    //! The file name of the database in the program folder.
    static QString databaseFileName() { return QStringLiteral("ZOB.sqlite"); }
    //! Joins a folder and a name with the platform's separator (the legacy code wrote "\").
    static QString join(const QString &folder, const QString &name);

    // --- start-up ---
    //! Sets the paths from the program folder and opens gDB. Throws VbError when the database
    //! cannot be opened (missing or damaged file, or a file without the program's tables: 3343).
    void openDatabase();
    //! Steps 2 to 4 of the start: paths, database, the diet-item object. Reports a failure in the
    //! shared form as "AppInit" and returns false; the caller then ends the process.
    bool Main();
    //! The user check of the main window's load: returns true for a known user; for a new one adds
    //! his rows and folders (AddUser) and returns false. The caller shows the welcome message.
    bool startUser();
    //! The welcome message of a new user, word for word.
    static QString welcomeMessage();

    // --- routines of the start-up module ---
    QString NetworkUserName();
    bool IsValidUser(const QString &userName);
    void AddUser();
    void AddUserComment(qint32 userId, const QString &comment);
    //! Writes text as one line; mode "Overwrite" replaces the file, any other appends. Returns true
    //! for failure (the legacy sense).
    bool GF_SetFileContent(const QString &path, const QString &text, const QString &mode);
    //! The first line of a text file, "" on failure.
    QString GF_GetFileContent(const QString &path);
    //! The shared error box: "Error in routine <Routine>" CR LF CR LF <Description> CR LF <Number>.
    void PuS_ErrorMessage(const QString &description, qint16 number, const QString &routine);
    //! One value of one row, or the text "not found" for no row or a null field; an error shows
    //! the shared box and gives an empty value.
    QVariant Lookup(const QString &table, const QString &field, const QString &criteria);
    //! Adds a blank row and gives its key; errors go to the caller.
    qint32 GetNewRecordID(const QString &table, const QString &keyField, const QString &linkField,
                          qint32 linkId, qint32 intakeTypeId);

    // --- cursor and messages, null-safe ---
    void setHourglass(bool busy) { if (cursor) cursor->setBusy(busy); }
    void resetCursor() { setHourglass(false); }
    MsgAnswer msgBox(const QString &text, const QString &title, MsgIcon icon,
                     MsgButtons buttons = MsgButtons::OK, int defaultButton = 1);
};
