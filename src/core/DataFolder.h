// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

//! Where the program keeps the user's database when it is not told (--home), and the seeded template
//! that a new folder starts from. The build and the installation write only the template; the user's
//! database is a copy of it that no later build touches.
namespace DataFolder {

//! The folder of the template relative to the program's folder: share/zobrel beside bin, the same
//! in the build tree and in an installation.
inline const QString kTemplateFolder = QStringLiteral("../share/zobrel");

//! The template database for a program in programDir, or an empty text when there is none.
QString templatePath(const QString &programDir);

//! The database a new data folder starts from: one that an earlier version kept beside the program
//! in programDir (so that the data made with it carry over), else the template. Empty when neither is there.
QString startingDatabase(const QString &programDir, const QString &fileName);

//! The per-user data folder of the platform (e.g. ~/.local/share/Zobrel on Linux).
QString defaultHome();

enum class Outcome {
    Existing,  //!< the folder already held a database: nothing was touched
    Created,   //!< the folder was made (if needed) and the template copied into it
    Failed     //!< no template, or the folder or the copy could not be made
};

//! Makes sure folder holds a database named fileName: when it has none, the folder is made and the
//! template copied in, writable by the user. An existing database is never replaced.
Outcome prepare(const QString &folder, const QString &fileName, const QString &templateDb);

//! The one-time message of a first start, naming the folder.
QString firstStartMessage(const QString &folder);

}  // namespace DataFolder
