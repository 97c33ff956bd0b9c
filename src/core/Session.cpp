// SPDX-License-Identifier: MIT
#include "Session.h"

#include "Diagnostics.h"
#include "PathSpelling.h"
#include "Schema.h"
#include "VbError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <pwd.h>
#include <unistd.h>

Session::Session() = default;
Session::~Session() = default;

QString Session::join(const QString &folder, const QString &name)
{
    if (folder.isEmpty())
        return name;
    if (folder.endsWith(QLatin1Char('/')))
        return folder + name;
    return folder + QLatin1Char('/') + name;
}

MsgAnswer Session::msgBox(const QString &text, const QString &title, MsgIcon icon, MsgButtons buttons, int defaultButton)
{
    if (!messages) {
        const auto set = buttonsOf(buttons);
        return set.value(std::clamp(defaultButton, 1, static_cast<int>(set.size())) - 1);
    }
    return messages->show(text, title, icon, buttons, defaultButton);
}

void Session::openDatabase()
{
    gPathDatabase = join(home, databaseFileName());
    gConnectionString = QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + gPathDatabase
                        + QStringLiteral(";Persist Security Info=False");
    auto db = Database::open(gPathDatabase);
    // A file without the program's tables (an empty file, another program's database) is refused
    // as a damaged one, before anything is written to it.
    for (const QString &table : schemaTables())
        if (!db->hasTable(table))
            throw VbError(VbErr::NotDatabaseFormat, QStringLiteral("Unrecognized database format '%1'.").arg(gPathDatabase));
    // A user's database from an earlier version gets the columns added since.
    upgradeSchema(*db);
    // Several programs may share the file: where the file system allows, they read while one writes.
    db->shareWithOtherPrograms();
    gDB = std::move(db);
}

bool Session::Main()
{
    return guarded(*this, {ErrForm::Shared, QStringLiteral("AppInit")}, [&] { openDatabase(); });
}

QString Session::welcomeMessage()
{
    const QString crlf = QStringLiteral("\r\n");
    return QStringLiteral("Welcome to ZOB.  You are a new user.  ") + crlf
           + QStringLiteral("Please complete ZOB Setup Information before proceeding.") + crlf + crlf
           + QStringLiteral("Add User Information on the User Setup tab. ") + crlf
           + QStringLiteral("Add default comments on the Comments Setup tab. ") + crlf
           + QStringLiteral("Add Report header default values on the Report Setup tab.  ") + crlf + crlf
           + QStringLiteral("Thank you!");
}

bool Session::startUser()
{
    gUserName = NetworkUserName();
    if (IsValidUser(gUserName))
        return true;
    AddUser();
    return false;
}

QString Session::NetworkUserName()
{
    QString name;
    guarded(*this, {ErrForm::Shared, QStringLiteral("NetworkUserName")}, [&] {
        if (!userOverride.isEmpty()) {
            name = userOverride;
            return;
        }
        if (const passwd *pw = getpwuid(geteuid()); pw && pw->pw_name)
            name = QString::fromLocal8Bit(pw->pw_name);
        else
            name = qEnvironmentVariable("USER");
    });
    return name;
}

bool Session::IsValidUser(const QString &userName)
{
    bool valid = false;
    guarded(*this, {ErrForm::Shared, QStringLiteral("IsValidUser")}, [&] {
        // The name goes into the statement as it is: an apostrophe makes the statement fail.
        gSQL = QStringLiteral("Select * From tblUser Where User ='") + userName + QStringLiteral("'");
        auto rs = gDB->OpenRecordset(gSQL, RecordsetType::Snapshot);
        if (!(rs->BOF() && rs->EOF_())) {
            gUserID = rs->field(QStringLiteral("UserID")).toInt();
            gUserName = rs->field(QStringLiteral("USER")).toString();
            valid = true;
        }
        rs->Close();
    });
    return valid;
}

void Session::AddUser()
{
    const QString base = join(home, gUserName);
    auto step = [&](auto &&body) {
        // A path/file access error (75) resumes at the next statement; anything else ends the routine.
        try {
            body();
            return true;
        } catch (const VbError &e) {
            if (e.number() == VbErr::PathFileAccess)
                return true;
            handleError(*this, {ErrForm::Shared, QStringLiteral("AddUser")}, e.number(), e.description());
            return false;
        }
    };
    if (!step([&] {
            auto rs = gDB->OpenRecordset(QStringLiteral("tblUser"), RecordsetType::Dynaset);
            rs->AddNew();
            rs->setField(QStringLiteral("USER"), gUserName);
            rs->setField(QStringLiteral("PathDatabase"), keptPath(join(home, QStringLiteral("ZOB.SQLITE"))));
            rs->setField(QStringLiteral("PathExport"), join(home, QStringLiteral("Export")));
            rs->setField(QStringLiteral("PathProject"), join(base, QStringLiteral("Project")));
            rs->setField(QStringLiteral("PathScenario"), join(base, QStringLiteral("Scenario")));
            rs->setField(QStringLiteral("PathReport"), join(base, QStringLiteral("Report")));
            gUserID = rs->field(QStringLiteral("UserID")).toInt();
            rs->Update();
            rs->Close();
        }))
        return;
    for (const QString &comment : {QStringLiteral("Rationale"), QStringLiteral("Quality"), QStringLiteral("Assumptions"),
                                   QStringLiteral("Uncertainty")})
        AddUserComment(gUserID, comment);
    for (const QString &folder : {base, join(base, QStringLiteral("Project")), join(base, QStringLiteral("Scenario")),
                                  join(base, QStringLiteral("Report"))}) {
        if (!step([&] {
                if (QFileInfo(folder).isDir())
                    throw VbError(VbErr::PathFileAccess, QStringLiteral("Path/File access error"));
                if (!QDir().mkdir(folder))
                    throw VbError(VbErr::PathNotFound, QStringLiteral("Path not found"));
            }))
            return;
    }
}

void Session::AddUserComment(qint32 userId, const QString &comment)
{
    guarded(*this, {ErrForm::Shared, QStringLiteral("AddUserComment")}, [&] {
        auto rs = gDB->OpenRecordset(QStringLiteral("tblComments"), RecordsetType::Dynaset);
        rs->AddNew();
        rs->setField(QStringLiteral("UserID"), userId);
        rs->setField(QStringLiteral("Comment"), comment);
        rs->Update();
        rs->Close();
    });
}

bool Session::GF_SetFileContent(const QString &path, const QString &text, const QString &mode)
{
    bool failed = true;
    if (text.isEmpty())
        return failed;
    QFile file(path);
    const QIODevice::OpenMode how = mode == QLatin1String("Overwrite") ? (QIODevice::WriteOnly | QIODevice::Truncate)
                                                                      : (QIODevice::WriteOnly | QIODevice::Append);
    if (!file.open(how | QIODevice::Text)) {
        const int number = QFileInfo(QFileInfo(path).absolutePath()).isDir() ? VbErr::PathFileAccess : VbErr::PathNotFound;
        const QString description = number == VbErr::PathFileAccess ? QStringLiteral("Path/File access error")
                                                                    : QStringLiteral("Path not found");
        resetCursor();
        msgBox(description, QStringLiteral("Error Number %1 Occurred").arg(number), MsgIcon::Stop);
        return failed;
    }
    QTextStream out(&file);
    out << text << '\n';
    out.flush();
    file.close();
    failed = false;
    return failed;
}

QString Session::GF_GetFileContent(const QString &path)
{
    QString line;
    if (path.isEmpty())
        return line;
    guarded(*this, {ErrForm::Shared, QStringLiteral("GF_GetFileContent")}, [&] {
        QFile file(path);
        if (!file.exists())
            throw VbError(VbErr::FileNotFound, QStringLiteral("File not found"));
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
            throw VbError(VbErr::PathFileAccess, QStringLiteral("Path/File access error"));
        QTextStream in(&file);
        if (in.atEnd())
            throw VbError(62, QStringLiteral("Input past end of file"));
        line = in.readLine();
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
    });
    return line;
}

void Session::PuS_ErrorMessage(const QString &description, qint16 number, const QString &routine)
{
    try {
        resetCursor();
        const ErrorText t = errorText(*this, ErrForm::Shared, routine, number, description);
        msgBox(t.text, t.title, MsgIcon::Stop, MsgButtons::OK, 1);
    } catch (...) {
        // Errors inside the error box are ignored.
    }
}

QVariant Session::Lookup(const QString &table, const QString &field, const QString &criteria)
{
    QVariant result;
    guarded(*this, {ErrForm::Shared, QStringLiteral("Lookup")}, [&] {
        // The database finds the row: text columns compare without case, as FindFirst's criteria do.
        bool found = false;
        const QVariant v = gDB->lookupValue(table, field, criteria, &found);
        result = !found || v.isNull() ? QVariant(kNotFound) : v;
    });
    return result;
}

qint32 Session::GetNewRecordID(const QString &table, const QString &keyField, const QString &linkField, qint32 linkId,
                               qint32 intakeTypeId)
{
    auto rs = gDB->OpenRecordset(table, RecordsetType::Dynaset);
    rs->AddNew();
    const qint32 id = rs->field(keyField).toInt();
    if (linkId != 0)
        rs->setField(linkField, linkId);
    if (intakeTypeId != 0)
        rs->setField(QStringLiteral("IntakeTypeID"), intakeTypeId);
    rs->Update();
    rs->Close();
    return id;
}
