// SPDX-License-Identifier: MIT
#include "DataFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace DataFolder {

QString templatePath(const QString &programDir)
{
    const QString path = QDir::cleanPath(programDir + QLatin1Char('/') + kTemplateFolder + QStringLiteral("/ZOB.sqlite"));
    return QFileInfo(path).isFile() ? path : QString();
}

QString startingDatabase(const QString &programDir, const QString &fileName)
{
    const QString earlier = QDir(programDir).filePath(fileName);
    return QFileInfo(earlier).isFile() ? earlier : templatePath(programDir);
}

QString defaultHome()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

Outcome prepare(const QString &folder, const QString &fileName, const QString &templateDb)
{
    const QString target = QDir(folder).filePath(fileName);
    if (QFileInfo::exists(target))
        return Outcome::Existing;
    if (templateDb.isEmpty() || !QDir().mkpath(folder))
        return Outcome::Failed;
    // Copy under a temporary name first, so that an interrupted copy never looks like a database.
    const QString partial = target + QStringLiteral(".part");
    QFile::remove(partial);
    if (!QFile::copy(templateDb, partial))
        return Outcome::Failed;
    // The template may be read-only (an installed file): the user's copy must be writable.
    QFile::setPermissions(partial, QFile::permissions(partial) | QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    if (!QFile::rename(partial, target)) {
        QFile::remove(partial);
        return Outcome::Failed;
    }
    return Outcome::Created;
}

QString firstStartMessage(const QString &folder)
{
    const QString crlf = QStringLiteral("\r\n");
    return QStringLiteral("Zobrel keeps your data in this folder:") + crlf + QDir::toNativeSeparators(folder) + crlf + crlf
           + QStringLiteral("It holds your database (ZOB.sqlite) and your project, scenario and report folders. "
                            "Copy the whole folder to back up your work; rebuilding or reinstalling the program "
                            "never changes it.");
}

}  // namespace DataFolder
