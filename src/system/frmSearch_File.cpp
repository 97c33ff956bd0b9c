// SPDX-License-Identifier: MIT
#include "frmSearch_File.h"

#include "ControlEvents.h"
#include "Diagnostics.h"
#include "FolderList.h"
#include "FormBuilder.h"
#include "Functions.h"
#include "QtWindowHost.h"
#include "Session.h"
#include "SystemLinks.h"
#include "Utilities.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {
const WindowRegistration<frmSearch_File> reg(QStringLiteral("frmSearch_File"));
}  // namespace

frmSearch_File::frmSearch_File(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmSearch_File"))
{
    setCaption(QStringLiteral("Open/Save Scenario"));
    HelpContextID = 3504;
    FormBuilder b(this);

    // Three columns as the classic chooser has them: file name and files, folders and drives, buttons.
    FormBuilder chooser = b.row(1, QStringLiteral("fraChooser"));
    FormBuilder files = chooser.column(3);
    m_txtSelectedFile = static_cast<QLineEdit *>(files.above(new QLineEdit(files.container()), QStringLiteral("txtSelectedFile"),
                                                             QStringLiteral("lblFilename"), QStringLiteral("Filename:")));
    FormBuilder::userTyped(m_txtSelectedFile);
    m_FileMain = static_cast<QListWidget *>(files.above(new QListWidget(files.container()), QStringLiteral("FileMain"),
                                                        QStringLiteral("lblExistingFiles"), QStringLiteral("Existing Files:"), 1));
    m_lstFileType = static_cast<QComboBox *>(files.above(new QComboBox(files.container()), QStringLiteral("lstFileType"),
                                                         QStringLiteral("lblFileType"), QStringLiteral("List files of type:")));
    FormBuilder folders = chooser.column(3);
    QLabel *lblDirectories = folders.label(QStringLiteral("lblDirectories"), QStringLiteral("Directories:"));
    m_lblFolder = folders.label(QStringLiteral("lblFolder"), QString());
    m_lblFolder->setWordWrap(true);
    m_lblFolder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_dirMain = static_cast<FolderList *>(folders.add(new FolderList(folders.container()), QStringLiteral("dirMain")));
    lblDirectories->setBuddy(m_dirMain);
    m_drvMain = static_cast<DriveList *>(folders.above(new DriveList(folders.container()), QStringLiteral("drvMain"), QStringLiteral("lblDrives"),
                                                       QStringLiteral("Drive(s):")));
    FormBuilder buttons = chooser.column(0);
    QPushButton *ok = buttons.button(QStringLiteral("cmdControl"), 0, QStringLiteral("&OK"));
    QPushButton *close = buttons.button(QStringLiteral("cmdControl"), 1, QStringLiteral("&Close"));
    QPushButton *help = buttons.button(QStringLiteral("cmdHelp"), QStringLiteral("&Help"));
    buttons.stretch();
    ok->setDefault(true);
    // The description is read only: a panel that keeps the marker file's lines as they were read.
    m_txtInfo = b.panel(QStringLiteral("txtInfo"), QStringLiteral("File Description:"), 4);
    resize(640, 460);
    connectEvents(ok, close, help);
}

void frmSearch_File::connectEvents(QPushButton *ok, QPushButton *close, QPushButton *help)
{
    connect(ok, &QPushButton::clicked, this, [this] { cmdControl_Click(0); });
    connect(close, &QPushButton::clicked, this, [this] { cmdControl_Click(1); });
    connect(help, &QPushButton::clicked, this, [this] {
        if (this->session().help)
            this->session().help->showTopic(3504);
    });
    connect(m_drvMain, &DriveList::Change, this, [this] { showFolder(m_drvMain->root()); });
    connect(m_dirMain, &FolderList::Change, this, [this] {
        // The folder shown is where the file is taken from or written to.
        Path = m_dirMain->path();
        m_lblFolder->setText(QDir::toNativeSeparators(Path));
        m_drvMain->showRootOf(Path);
        fillFiles();
    });
    connect(m_lstFileType, &QComboBox::currentIndexChanged, this, [this](int row) {
        m_pattern = patternOfRow(row);
        fillFiles();
    });
    connect(m_FileMain, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            GetSelection();
    });
    connect(ControlEvents::of(m_FileMain), &ControlEvents::DblClick, this, [this] {
        if (m_FileMain->currentItem())
            cmdControl_Click(0);
    });
}

QStringList frmSearch_File::fileTypeRows()
{
    return {QStringLiteral("All(*.*)"), QStringLiteral("Species Scenario File(*.ZOB)"),
            QStringLiteral("Project Wildlife File(*.NAV)")};
}

QString frmSearch_File::patternOfRow(int row)
{
    // The rows' words and their patterns do not agree; the patterns go by the row's place.
    switch (row) {
    case 0: return QStringLiteral("*.ZOB");
    case 1: return QStringLiteral("*.KEL");
    case 2: return QStringLiteral("*.NAV");
    case 3: return QStringLiteral("*.MDB");
    default: return QStringLiteral("*.*");
    }
}

void frmSearch_File::setInfo(const QString &text)
{
    m_txtInfo->setText(text);
}

QString frmSearch_File::info() const
{
    return m_txtInfo->text();
}

FileChoice frmSearch_File::OpenForm(const QString &fileType, const QString &action)
{
    const RoutineInfo routine{ErrForm::Shared, QStringLiteral("frmSearch_File.Load"), QStringLiteral("frmSearch_File.Load")};
    m_answered = false;
    SaveFile = false;
    File.clear();
    guarded(session(), routine, [&] {
        FileType = fileType;
        Action = action;
        auto rs = session().gDB->OpenRecordset(QStringLiteral("Select * from tblUser where UserID = %1").arg(session().gUserID),
                                               RecordsetType::Snapshot);
        const QString field = FileType == QLatin1String("NAV") ? QStringLiteral("PathProject") : QStringLiteral("PathScenario");
        const QVariant start = rs->field(field);
        rs->Close();
        Path = resolvePathCase(start.toString());
        {
            const QSignalBlocker block(m_lstFileType);
            m_lstFileType->clear();
            m_lstFileType->addItems(fileTypeRows());
        }
        int row = 4;
        QString caption = QStringLiteral("Open/Save File");
        if (FileType == QLatin1String("ZOB")) {
            row = 0;
            caption = QStringLiteral("Open/Save/Link Scenario");
        } else if (FileType == QLatin1String("KEL")) {
            row = 1;
            caption = QStringLiteral("Open/Save/Link Scenario");
        } else if (FileType == QLatin1String("NAV")) {
            row = 2;
            caption = QStringLiteral("Open/Save Project");
        }
        setCaption(caption);
        m_pattern = FileType == QLatin1String("NAV") ? QStringLiteral("*.NAV")
                    : FileType == QLatin1String("ZOB") ? QStringLiteral("*.ZOB")
                                                       : patternOfRow(row);
        {
            const QSignalBlocker block(m_lstFileType);
            m_lstFileType->setCurrentIndex(row < m_lstFileType->count() ? row : -1);
        }
        m_txtSelectedFile->clear();
        m_txtInfo->clear();
        if (!m_dirMain->setPath(Path)) {
            // Show the program folder rather than nothing, then report the folder that is missing.
            m_dirMain->setPath(session().home);
            throw VbError(VbErr::PathNotFound, QStringLiteral("Path not found"));
        }
        fillFiles();
        traceSuccess(session(), routine);
    });
    if (m_dirMain->path().isEmpty())
        m_dirMain->setPath(session().home);
    m_txtSelectedFile->setFocus();

    FileChoice choice{false, Path, QString()};
    QPointer<frmSearch_File> self(this);
    const auto connection = connect(this, &frmSearch_File::finished, this, [&choice](const FileChoice &c) { choice = c; });
    host().show(objectName(), true);
    if (self)
        disconnect(connection);
    return choice;
}

void frmSearch_File::showFolder(const QString &folder)
{
    if (!m_dirMain->setPath(folder))
        m_drvMain->showRootOf(m_dirMain->path());
}

void frmSearch_File::fillFiles()
{
    const QSignalBlocker block(m_FileMain);
    m_FileMain->clear();
    if (!m_dirMain->path().isEmpty())
        m_FileMain->addItems(filesOf(m_dirMain->path(), m_pattern));
    m_FileMain->setCurrentRow(-1);
}

QString frmSearch_File::selectedFileName() const
{
    if (QListWidgetItem *item = m_FileMain->currentItem())
        return item->text();
    // A name typed in the box that is one of the listed files counts as selected.
    const QString typed = QFileInfo(m_txtSelectedFile->text().trimmed()).fileName();
    for (int i = 0; i < m_FileMain->count(); ++i)
        if (m_FileMain->item(i)->text().compare(typed, Qt::CaseInsensitive) == 0)
            return m_FileMain->item(i)->text();
    return {};
}

void frmSearch_File::GetSelection()
{
    if (Action != QLatin1String("Open")) {
        // Naming a file: the typed text with the type as extension, whatever the text already ends in.
        File = m_txtSelectedFile->text() + QLatin1Char('.') + FileType;
        return;
    }
    File = selectedFileName();
    Path = m_dirMain->path();
    if (File.isEmpty())
        return;
    const bool read = ReadFileHeader(session(), Session::join(Path, File));
    m_txtSelectedFile->setText(read ? QDir::toNativeSeparators(Session::join(Path, File)) : QString());
}

void frmSearch_File::cmdControl_Click(int index)
{
    if (index == 0) {
        GetSelection();
        SaveFile = true;
    } else {
        File.clear();
        SaveFile = false;
    }
    m_answered = true;
    emit finished(FileChoice{SaveFile, Path, File});
    unloadMe();
}

bool frmSearch_File::Form_KeyDown(int keyCode, int shift)
{
    Q_UNUSED(shift);
    if (keyCode != 27)
        return false;
    cmdControl_Click(1);
    return true;
}

void frmSearch_File::Form_Unload(bool &cancel)
{
    Q_UNUSED(cancel);
    // Closed by its title bar or Escape: as Close.
    if (!m_answered) {
        File.clear();
        SaveFile = false;
        m_answered = true;
        emit finished(FileChoice{false, Path, QString()});
    }
}
