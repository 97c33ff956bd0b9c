// SPDX-License-Identifier: MIT
#include "PathSpelling.h"

#include "Session.h"

#include <QDir>
#include <QFileInfo>

QString resolvePathCase(const QString &path)
{
    if (path.isEmpty())
        return path;
    const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
    if (QFileInfo::exists(clean))
        return clean;
    const QStringList parts = clean.split(QLatin1Char('/'));
    QString current = clean.startsWith(QLatin1Char('/')) ? QStringLiteral("/") : QString();
    for (const QString &part : parts) {
        if (part.isEmpty())
            continue;
        QString next = current.isEmpty() ? part : Session::join(current, part);
        if (!QFileInfo::exists(next)) {
            const QDir dir(current.isEmpty() ? QStringLiteral(".") : current);
            const QStringList entries = dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
            bool found = false;
            for (const QString &entry : entries) {
                if (entry.compare(part, Qt::CaseInsensitive) == 0) {
                    next = current.isEmpty() ? entry : Session::join(current, entry);
                    found = true;
                    break;
                }
            }
            if (!found)
                return clean;
        }
        current = next;
    }
    return current;
}

namespace {

QString swapCase(const QString &name)
{
    QString out = name;
    for (QChar &c : out)
        c = c.isUpper() ? c.toLower() : c.toUpper();
    return out;
}

}  // namespace

bool pathIgnoresCase(const QString &path)
{
    // Walk up from the path to an existing entry whose name has letters, and ask the disk for the
    // name with its case swapped: found, yet not listed as an entry of its own, means case is ignored.
    QFileInfo probe(resolvePathCase(path.isEmpty() ? QDir::currentPath() : path));
    while (!probe.fileName().isEmpty()) {
        const QString name = probe.fileName();
        const QString swapped = swapCase(name);
        if (probe.exists() && swapped != name) {
            const QDir dir = probe.dir();
            return QFileInfo::exists(dir.filePath(swapped))
                   && !dir.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).contains(swapped);
        }
        probe = QFileInfo(probe.absolutePath());
    }
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    return true;
#else
    return false;
#endif
}

QString shownPath(const QString &path, bool ignoresCase)
{
    return ignoresCase ? path.toUpper() : path;
}

QString shownPath(const QString &path)
{
    return shownPath(path, pathIgnoresCase(path));
}

QString chosenFolder(const QString &folder, bool ignoresCase)
{
    if (!ignoresCase)
        return resolvePathCase(folder);
    return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
}

QString chosenFolder(const QString &folder)
{
    return chosenFolder(folder, pathIgnoresCase(folder));
}

QString keptPath(const QString &path, bool ignoresCase)
{
    return ignoresCase ? path : resolvePathCase(path);
}

QString keptPath(const QString &path)
{
    return keptPath(path, pathIgnoresCase(path));
}
