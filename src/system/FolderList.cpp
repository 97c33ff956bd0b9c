// SPDX-License-Identifier: MIT
#include "FolderList.h"

#include "ControlEvents.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QStyle>
#include <QStyledItemDelegate>

namespace {
constexpr int kDepthRole = Qt::UserRole + 1;

//! Indents each folder by its depth, as a folder tree would.
class IndentDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem o(option);
        const int step = o.fontMetrics.horizontalAdvance(QLatin1Char('M'));
        o.rect.adjust(index.data(kDepthRole).toInt() * step, 0, 0, 0);
        QStyledItemDelegate::paint(painter, o, index);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QSize s = QStyledItemDelegate::sizeHint(option, index);
        s.rwidth() += index.data(kDepthRole).toInt() * option.fontMetrics.horizontalAdvance(QLatin1Char('M'));
        return s;
    }
};
}  // namespace

FolderList::FolderList(QWidget *parent) : QListWidget(parent)
{
    setItemDelegate(new IndentDelegate(this));
    setSelectionMode(QAbstractItemView::SingleSelection);
    ControlEvents *events = ControlEvents::of(this);
    connect(events, &ControlEvents::DblClick, this, &FolderList::openCurrent);
    connect(events, &ControlEvents::KeyDown, this, [this](int &keyCode, int) {
        if (keyCode == 13) {
            openCurrent();
            keyCode = 0;
        }
    });
}

bool FolderList::setPath(const QString &path)
{
    const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
    const QFileInfo info(clean);
    if (clean.isEmpty() || !info.isDir())
        return false;
    const QString absolute = QDir(info.absoluteFilePath()).absolutePath();
    clear();
    const QIcon open = style()->standardIcon(QStyle::SP_DirOpenIcon);
    const QIcon closed = style()->standardIcon(QStyle::SP_DirClosedIcon);
    // The folders from the root down to the current one.
    QStringList chain;
    for (QDir d(absolute);; ) {
        chain.prepend(d.absolutePath());
        if (!d.cdUp())
            break;
    }
    int depth = 0;
    QListWidgetItem *current = nullptr;
    for (const QString &folder : chain) {
        const QString name = folder == QLatin1String("/") ? folder : QFileInfo(folder).fileName();
        auto *item = new QListWidgetItem(open, name, this);
        item->setData(Qt::UserRole, folder);
        item->setData(kDepthRole, depth++);
        current = item;
    }
    const QStringList subs = QDir(absolute).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    for (const QString &sub : subs) {
        auto *item = new QListWidgetItem(closed, sub, this);
        item->setData(Qt::UserRole, QDir(absolute).filePath(sub));
        item->setData(kDepthRole, depth);
    }
    {
        const QSignalBlocker block(this);
        setCurrentItem(current);
    }
    const bool changed = absolute != m_path;
    m_path = absolute;
    if (changed)
        emit Change();
    return true;
}

void FolderList::openCurrent()
{
    if (QListWidgetItem *item = currentItem())
        setPath(item->data(Qt::UserRole).toString());
}

DriveList::DriveList(QWidget *parent) : QComboBox(parent)
{
    addItem(style()->standardIcon(QStyle::SP_DriveHDIcon), QStringLiteral("/"), QStringLiteral("/"));
    const QString home = QDir::homePath();
    if (home != QLatin1String("/"))
        addItem(style()->standardIcon(QStyle::SP_DirHomeIcon), home, home);
    connect(this, &QComboBox::activated, this, &DriveList::Change);
}

void DriveList::showRootOf(const QString &folder)
{
    const QString home = QDir::homePath();
    const bool underHome = folder == home || folder.startsWith(home + QLatin1Char('/'));
    const QSignalBlocker block(this);
    setCurrentIndex(underHome && count() > 1 ? 1 : 0);
}

QStringList filesOf(const QString &folder, const QString &pattern)
{
    QDir dir(folder);
    dir.setNameFilters({pattern});
    dir.setFilter(QDir::Files | QDir::Hidden);
    dir.setSorting(QDir::Name | QDir::IgnoreCase);
    return dir.entryList();
}
