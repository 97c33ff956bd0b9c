// SPDX-License-Identifier: MIT
#include "frmFind_Classification.h"

#include "ClassificationLevels.h"
#include "ControlValue.h"
#include "DataControl.h"
#include "Diagnostics.h"
#include "FormBuilder.h"
#include "QtWindowHost.h"
#include "Recordset.h"
#include "Session.h"
#include "VbFormat.h"
#include "ZobToolbar.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QListWidget>

namespace {
const WindowRegistration<frmFind_Classification> reg(QStringLiteral("frmFind_Classification"));

const QString kStatement = QStringLiteral(
    "SELECT tblKingdom.KingdomID, tblKingdom.Name As Kingdom, tblSubkingdom.SubkingdomID, tblSubkingdom.Name As "
    "Subkingdom, tblPhylum.PhylumID, tblPhylum.Description As PhylumDesc, tblPhylum.Name As Phylum, tblClass.ClassID, "
    "tblClass.Description As ClassDesc, tblClass.Name As Class, tblOrder.OrderID, tblOrder.Description As OrderDesc, "
    "tblOrder.Name As OrderName, tblFamily.FamilyID, tblFamily.Name As Family, tblFamily.Description As FamilyDesc "
    "FROM (tblKingdom INNER JOIN tblSubkingdom ON tblKingdom.KingdomID = tblSubkingdom.KingdomID) INNER JOIN "
    "(tblPhylum INNER JOIN ((tblClass INNER JOIN tblOrder ON tblClass.ClassID = tblOrder.ClassID) INNER JOIN tblFamily "
    "ON tblOrder.OrderID = tblFamily.OrderID) ON tblPhylum.PhylumID = tblClass.PhylumID) ON tblSubkingdom.SubkingdomID "
    "= tblPhylum.SubkingdomID");
const char *const kSearched[] = {"Kingdom", "SubKingdom", "Phylum", "PhylumDesc", "Class",
                                 "ClassDesc", "OrderName", "OrderDesc", "Family", "FamilyDesc"};
}  // namespace

frmFind_Classification::frmFind_Classification(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmFind_Classification"))
{
    setCaption(QStringLiteral("Classification Search"));
    HelpContextID = 2523;
    FormBuilder b(this);
    buildToolbar(b, {ToolButton::separator(),
                     {"New", "Clear the search", "New", [this] { ControlValue::clear(m_txtSearch); LoadData({}); }},
                     ToolButton::separator(),
                     {"Select", "Assign the highlighted path", "Select", [this] { select(); }},
                     ToolButton::separator(),
                     {"Close", "Close the search", "Close", [this] { unloadMe(); }},
                     ToolButton::separator(),
                     {"Help", "Help", "Help", [this] { showHelp(); }}});
    FormBuilder top = b.row();
    FormBuilder words = top.column(3).fields();
    m_txtSearch = words.textBox(QStringLiteral("txtSearch"), QStringLiteral("Search for:"));
    FormBuilder::userTyped(m_txtSearch);
    m_lstFindCrit = new QListWidget(this);
    m_lstFindCrit->addItems({QStringLiteral("Find Anywhere"), QStringLiteral("Find Exact match"), QStringLiteral("Find Starting with!")});
    m_lstFindCrit->setMaximumHeight(m_lstFindCrit->sizeHintForRow(0) * 4);
    top.column(2).add(m_lstFindCrit, QStringLiteral("LstFindCrit"));
    FormBuilder buttons = top.column(1);
    commandButtons(buttons, QStringLiteral("cmdFind"), {{0, QStringLiteral("&Find"), [this] { find(false); }},
                                                         {1, QStringLiteral("Find &Next >"), [this] { find(true); }}});
    m_dc = b.hiddenData(QStringLiteral("dcSearch"));
    m_grid = b.grid(QStringLiteral("ssCmbSearch"), m_dc,
                    {{"Kingdom"}, {"Subkingdom"}, {"Phylum"}, {"PhylumDesc", "Phylum Desc"}, {"Class"},
                     {"ClassDesc", "Class Desc"}, {"OrderName", "Order"}, {"OrderDesc", "Order Desc"}, {"Family"},
                     {"FamilyDesc", "Family Desc"}},
                    true);
    connect(m_grid, &DataGrid::HeadClick, this, [this](int column) {
        runCommand(QStringLiteral("ssCmbSearch_HeadClick"), [&] { LoadData(m_dc->fields().value(column)); });
    });
    resize(900, 480);
}

void frmFind_Classification::Form_Load()
{
    ControlValue::select(m_lstFindCrit, 0);
    LoadData({});
}

QString frmFind_Classification::orderClause(const QString &sort)
{
    if (sort.isEmpty())
        return QStringLiteral(" ORDER BY tblKingdom.Name, tblSubkingdom.Name, tblPhylum.Name, tblClass.Name, "
                              "tblOrder.Name, tblFamily.Name");
    if (sort == QLatin1String("OrderName"))
        return QStringLiteral(" ORDER BY tblOrder.Name");
    for (int level = 0; level < ClassificationLevels::kCount; ++level)
        if (sort == ClassificationLevels::name(level))
            return QStringLiteral(" ORDER BY %1.Name").arg(ClassificationLevels::table(level));
    return {};
}

void frmFind_Classification::LoadData(const QString &sort)
{
    guarded(session(), {ErrForm::Shared, QStringLiteral("frmFind_Classification.LoadData")}, [&] {
        m_dc->setDatabase(session().gDB);
        m_dc->setRecordSource(kStatement + orderClause(sort));
        m_dc->Refresh();
        m_grid->fitColumns(30);
    });
}

QString frmFind_Classification::findCriteria(int kind, const QString &text)
{
    QString criterion;
    switch (kind) {
    case 1: criterion = QStringLiteral("  = '%1'").arg(text); break;
    case 2: criterion = QStringLiteral("LIKE '%1*'").arg(text); break;
    default: criterion = QStringLiteral("LIKE '*%1*'").arg(text); break;
    }
    QStringList parts;
    for (const char *column : kSearched)
        parts << QStringLiteral("(%1 %2").arg(QString::fromLatin1(column), criterion);
    return parts.join(QStringLiteral(") OR ")) + QLatin1Char(')');
}

void frmFind_Classification::find(bool next)
{
    const QString text = ControlValue::text(m_txtSearch).trimmed();
    if (text.isEmpty()) {
        LoadData({});
        return;
    }
    session().setHourglass(true);
    QCoreApplication::processEvents();
    Recordset *rs = m_dc->recordset();
    if (!rs)
        return;
    const int before = m_dc->currentRow();
    const QString criteria = findCriteria(ControlValue::value(m_lstFindCrit).toInt(), text);
    if (next)
        rs->FindNext(criteria);
    else
        rs->FindFirst(criteria);
    session().resetCursor();
    if (rs->NoMatch()) {
        rs->setAbsolutePosition(before);
        session().msgBox(QStringLiteral("No matching records found."), QString(), MsgIcon::Warning);
        return;
    }
    const int found = rs->AbsolutePosition();
    rs->setAbsolutePosition(before);
    m_dc->moveTo(found);
}

void frmFind_Classification::select()
{
    Recordset &row = m_dc->current();
    session().gSQL = callerRowSql(false);
    auto rs = session().gDB->OpenRecordset(session().gSQL, RecordsetType::Dynaset);
    rs->Edit();
    rs->setField(QStringLiteral("KingdomID"), row.field(QStringLiteral("KingdomID")));
    for (int level = 1; level < ClassificationLevels::kCount; ++level) {
        const QString key = ClassificationLevels::key(level);
        if (vb::CLng(row.field(key)) > 0)
            rs->setField(key, row.field(key));
    }
    rs->Update();
    rs->Close();
    unloadMe();
    host().unload(QStringLiteral("frmSelect_Classification"));
}
