// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

class Session;
class DietItemWindow;

//! The six classification ids that the classification picker hands over.
struct Classification {
    qint32 KingdomID = 0;
    qint32 SubkingdomID = 0;
    qint32 PhylumID = 0;
    qint32 ClassID = 0;
    qint32 OrderID = 0;
    qint32 FamilyID = 0;
};

//! The diet item being edited (gDietItem): the values the diet-item entry window collects, and the
//! creation of a new item row in the reference table or in a scenario's copy.
class clsDietItem {
public:
    explicit clsDietItem(Session &session);

    // Properties, in the legacy order.
    qint32 DID = 0;
    QString Mode;
    qint16 DietType = 0;
    bool IsTrial = false;
    qint32 KingdomID = 0;
    qint32 SubkingdomID = 0;
    qint32 PhylumID = 0;
    qint32 ClassID = 0;
    qint32 OrderID = 0;
    qint32 FamilyID = 0;
    qint32 GenusID = 0;
    qint32 SpeciesID = 0;
    qint32 ComponentID = 0;
    qint32 LifestageID = 0;
    qint32 GrossEnergyID = 0;
    qint32 AssEffID = 0;
    qint32 TrophicLevelID = 0;
    qint32 WaterConversionID = 0;
    float TrophicLevel = 0.0f;
    qint32 AE_Percent = 0;
    qint32 Water_Percent = 0;
    qint16 DataSource = 0;
    bool Moisture_Selected = false;
    bool Trophic_Level_Selected = false;

    //! The diet-item entry window while it is loaded; null when it is not open.
    DietItemWindow *window = nullptr;

    //! Adds a row to table ("tblDietItem" or "tblWildlifeDietItems") with DietID, and ScenarioID when
    //! a scenario is open and the table has the column, and returns its DietItemID. The scenario's
    //! copy has no autonumber: a new copy row gets the next id above every item id in use, so that
    //! it never collides with a reference item copied into the same scenario. No handler: errors go
    //! to the caller.
    qint32 AddNew(const QString &table, qint32 dietId);
    //! Copies the six classification ids into this object, kingdom first.
    void UpdateDietItemClass(const Classification &classification);
    //! A number made from the date and time: month, day, hour, minute and second, two digits each
    //! (the year would not fit in 32 bits).
    static qint32 GetDID(const QDateTime &moment = QDateTime::currentDateTime());

private:
    Session &m_session;
};
