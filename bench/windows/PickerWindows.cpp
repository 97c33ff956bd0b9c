// SPDX-License-Identifier: MIT
// The pickers, each for a caller's record: the four filtered pickers for a diet item classified down
// to the family (narrowed at the family, widened to the kingdom), the references for a diet, the
// references of a species, and the classification and its search for a diet item.
#include "ControlValue.h"
#include "WindowBench.h"
#include "frmSelect_AE.h"
#include "frmSelect_GE.h"
#include "frmSelect_TrophicLevel.h"
#include "frmSelect_WaterConversion.h"

#include <QComboBox>

namespace windowbench {

namespace {
qint32 g_nextItem = 990000000;

//! A diet item of reference diet 1 classified as the first row of a table that has a family.
qint32 classifiedItem(WindowBench &b, const QString &table, const QString &key)
{
    auto row = b.p.session.gDB->OpenRecordset(QStringLiteral("Select * From %1 Where FamilyID > 0 Order By %2").arg(table, key),
                                              RecordsetType::Snapshot);
    QStringList levels{QStringLiteral("KingdomID"), QStringLiteral("SubkingdomID"), QStringLiteral("PhylumID"),
                       QStringLiteral("ClassID"), QStringLiteral("OrderID"), QStringLiteral("FamilyID")};
    QStringList values;
    for (const QString &level : levels)
        values << QString::number(row->field(level).toInt());
    b.p.session.gDB->Execute(QStringLiteral("Insert Into tblDietItem (DietItemID, DietID, Name, %1) Values (%2, 1, 'Bench', %3)")
                                 .arg(levels.join(QStringLiteral(", ")))
                                 .arg(++g_nextItem)
                                 .arg(values.join(QStringLiteral(", "))));
    return g_nextItem;
}

RecordRequest dietItemRequest(qint32 item)
{
    RecordRequest r;
    r.recordId = item;
    r.table = QStringLiteral("tblDietItem");
    r.keyField = QStringLiteral("DietItemID");
    r.mode = QStringLiteral("ReadOnly");
    r.filter = true;
    return r;
}
}  // namespace

void benchPickerWindows(WindowBench &b)
{
    Program &p = b.p;
    // Each with the column its list is sorted by.
    const std::tuple<QString, PickerProfile, QString> filtered[] = {
        {QStringLiteral("frmSelect_GE"), frmSelect_GE::profile(), QStringLiteral("Item")},
        {QStringLiteral("frmSelect_AE"), frmSelect_AE::profile(), QStringLiteral("ConsumerName")},
        {QStringLiteral("frmSelect_WaterConversion"), frmSelect_WaterConversion::profile(), QStringLiteral("Item")},
        {QStringLiteral("frmSelect_TrophicLevel"), frmSelect_TrophicLevel::profile(), QStringLiteral("Item")}};
    for (const auto &[name, profile, sorted] : filtered) {
        const RecordRequest r = dietItemRequest(classifiedItem(b, profile.table, profile.key));
        b.open(name, &r);
        b.sort(name, QStringLiteral("ssCmbSearch"), profile.key, sorted);
        b.refilterByClicks(name, QStringLiteral("family / kingdom filter"), QStringLiteral("optFilter(6)"),
                           QStringLiteral("optFilter(1)"));
        b.close(name);
    }

    const qint32 diet = b.firstId(QStringLiteral("tblDiet"), QStringLiteral("DietID"));
    RecordRequest forDiet;
    forDiet.recordId = diet;
    forDiet.table = QStringLiteral("tblDiet");
    forDiet.keyField = QStringLiteral("DietID");
    forDiet.mode = QStringLiteral("Read");
    forDiet.filter = true;
    forDiet.selectedId = b.firstId(QStringLiteral("tblReferences"), QStringLiteral("ReferenceID"));
    const QString references = QStringLiteral("frmSelect_Reference");
    b.open(references, &forDiet);
    b.sort(references, QStringLiteral("ssCmbSearch"), QStringLiteral("fldRef_Title"), QStringLiteral("fldRef_Author"));
    b.refilterByClicks(references, QStringLiteral("filter by species, unfiltered"), QStringLiteral("chkSpeciesFilter"),
                       QStringLiteral("chkSpeciesFilter"));
    b.close(references);

    RecordRequest forSpecies;
    forSpecies.recordId = b.firstId(QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID"));
    forSpecies.mode = QStringLiteral("Write");
    b.open(QStringLiteral("frmReferenceSpecies"), &forSpecies);
    b.close(QStringLiteral("frmReferenceSpecies"));

    RecordRequest item = dietItemRequest(classifiedItem(b, QStringLiteral("tblGrossEnergy"), QStringLiteral("GrossEnergyID")));
    item.mode = QStringLiteral("Write");
    item.collection = true;
    const QString classification = QStringLiteral("frmSelect_Classification");
    b.open(classification, &item);
    if (auto *kingdom = p.child<QComboBox>(classification, QStringLiteral("ssCmbKingdom")); kingdom && kingdom->count() > 1) {
        const auto choose = [kingdom](int i) {
            kingdom->setCurrentIndex(i);
            emit kingdom->activated(i);
        };
        b.refilter(classification, QStringLiteral("choose a kingdom"), [=] { choose(0); }, [=] { choose(kingdom->count() - 1); });
    }
    b.close(classification);

    item.collection = false;
    const QString search = QStringLiteral("frmFind_Classification");
    b.open(search, &item);
    b.sort(search, QStringLiteral("ssCmbSearch"), QStringLiteral("Family"), QStringLiteral("Class"));
    const auto find = [&b, &p, search](const QString &text) {
        ControlValue::setText(p.child(search, QStringLiteral("txtSearch")), text);
        b.click(search, QStringLiteral("cmdFind(0)"));
    };
    b.refilter(search, QStringLiteral("find a name"), [=] { find(QStringLiteral("ae")); }, [=] { find(QStringLiteral("ia")); });
    b.close(search);
}

}  // namespace windowbench
