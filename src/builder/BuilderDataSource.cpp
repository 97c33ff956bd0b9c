// SPDX-License-Identifier: MIT
#include "BuilderDataSource.h"

#include "ControlValue.h"
#include "Session.h"
#include "Utilities.h"
#include "VbFormat.h"
#include "frmZOB.h"

#include <QLabel>
#include <QPalette>

namespace {
QWidget *item(frmZOB &w, const char *name, int index = -1)
{
    const QString n = QString::fromLatin1(name);
    return index < 0 ? w.findChild<QWidget *>(n) : arrayItem<QWidget>(&w, n, index);
}

void paint(QWidget *field, const QColor &color)
{
    if (!field)
        return;
    setForeColor(field, color);
    QPalette p = field->palette();
    p.setColor(QPalette::Base, Qt::white);
    field->setPalette(p);
}
}  // namespace

void applyDataSource(frmZOB &w, qint32 id, int target)
{
    if (target < 0 || target > 6)
        return;
    Session &s = w.session();
    QColor color = legacyColor(0);
    bool locked = true;
    if (id != 0) {
        const QString criteria = QStringLiteral("DataSourceID = %1").arg(id);
        color = legacyColor(vb::CLng(s.Lookup(QStringLiteral("tblDataSource"), QStringLiteral("Forecolor"), criteria)));
        locked = vb::CLng(s.Lookup(QStringLiteral("tblDataSource"), QStringLiteral("IsLocked"), criteria)) != 0;
    }
    QList<QWidget *> lockable;
    QList<QWidget *> coloured;
    switch (target) {
    case 0:
        // The intake factor of the air page goes with the species group, as it always has.
        lockable = {item(w, "txtCommonName"), item(w, "txtLatinName"), item(w, "cboTaxon"), item(w, "txtIntakeMeasureCF", 0)};
        break;
    case 1:
        lockable = {item(w, "txtWeightWeight"), item(w, "txtWeightSex"), item(w, "txtIntakeMeasureCF", 1)};
        item(w, "txtWeightEstimator")->setVisible(locked);
        item(w, "lblSB", 27)->setVisible(locked);
        break;
    case 2:
        lockable = {item(w, "txtDietSeason"), item(w, "txtDietSex"), item(w, "txtDietHabitat"), item(w, "txtIntakeMeasureCF", 2)};
        break;
    case 6:
        lockable = {item(w, "txtIntakeRate", 3)};
        coloured = {item(w, "txtIntakeUnits", 3), item(w, "LblEstimator", 3), item(w, "LblAssignedSpecies")};
        break;
    default: {
        const int n = target - 3;
        lockable = {item(w, "txtIntakeRate", n), item(w, "txtUCF", n), item(w, "txtIntakeMeasureCF", n)};
        coloured = {item(w, "txtIntakeUnits", n), item(w, "LblEstimator", n)};
    }
    }
    for (QWidget *field : lockable) {
        paint(field, color);
        ControlValue::setLocked(field, locked);
    }
    for (QWidget *field : coloured)
        paint(field, color);
    SetDataQuality(s, arrayItem<QLabel>(&w, QStringLiteral("LbLDataSource"), target), id);
    if (target <= 2)
        item(w, "cmdMoreInfo", target)->setVisible(id == 6 || locked);
}
