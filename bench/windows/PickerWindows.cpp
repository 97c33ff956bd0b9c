// SPDX-License-Identifier: MIT
// The pickers, each for a caller's record: the four filtered pickers for a diet item classified down
// to the family (narrowed at the family, widened to the kingdom), the references for a diet, the
// references of a species, and the classification and its search for a diet item.
#include "ControlValue.h"
#include "DialogSupport.h"
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
    RecordRequest r = recordOf(QStringLiteral("tblDietItem"), QStringLiteral("DietItemID"), item, QStringLiteral("ReadOnly"));
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
        b.list({name, QStringLiteral("ssCmbSearch"), profile.key, sorted, QStringLiteral("family / kingdom filter"),
                QStringLiteral("optFilter(6)"), QStringLiteral("optFilter(1)")},
               dietItemRequest(classifiedItem(b, profile.table, profile.key)));
    }

    const QString diets = QStringLiteral("tblDiet"), diet = QStringLiteral("DietID");
    RecordRequest forDiet = recordOf(diets, diet, b.firstId(diets, diet), QStringLiteral("Read"));
    forDiet.filter = true;
    forDiet.selectedId = b.firstId(QStringLiteral("tblReferences"), QStringLiteral("ReferenceID"));
    b.list({QStringLiteral("frmSelect_Reference"), QStringLiteral("ssCmbSearch"), QStringLiteral("fldRef_Title"),
            QStringLiteral("fldRef_Author"), QStringLiteral("filter by species, unfiltered"), QStringLiteral("chkSpeciesFilter"),
            QStringLiteral("chkSpeciesFilter")},
           forDiet);

    const RecordRequest forSpecies =
        recordOf({}, {}, b.firstId(QStringLiteral("tblSpecies"), QStringLiteral("SpeciesID")), QStringLiteral("Write"));
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
