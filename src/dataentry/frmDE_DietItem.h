// SPDX-License-Identifier: MIT
#pragma once

#include "Diet.h"
#include "RequestWindow.h"
#include "WindowLinks.h"

class DataControl;
class QLineEdit;
class QPlainTextEdit;

//! One diet item, of the reference data (tblDietItem, for the species workbook, source "Data Entry")
//! or of a scenario's copy (tblWildlifeDietItems, for the builder, source "ZOB"): its name, notes
//! and wet and dry proportions typed here, and the buttons that assign its classification, moisture,
//! trophic level, gross energy and efficiency through the pickers, which write into the row. Save,
//! Close and Select all write the row and end the window; a changed copy of a scenario becomes the
//! user's (data source 6) and the builder reloads its items.
//! The request: the table, the source as its entry mark, and either the item (key "DietItemID") or,
//! with no key field, the diet to which a new item is added.
class frmDE_DietItem : public RequestWindow, public ListView, public DietItemWindow {
    Q_OBJECT
public:
    frmDE_DietItem(Session &session, QtWindowHost &host);
    ~frmDE_DietItem() override;

    //! Binds the item and fills the window; the shown texts are kept as the loaded values.
    void LoadData(qint32 recordId, const QString &source, const QString &table, const QString &key);
    //! Adds an item to the diet (through gDietItem) and loads it.
    void NewDietItem(const QString &source, const QString &table, qint32 dietId);
    //! The text of a gross energy (selector "GE") or assimilation efficiency ("AE") record; "" for none.
    QString Get_AEGE(const QString &selector, qint32 id);

    // ListView: the pickers ask for the assigned texts again after a write.
    void refreshList() override;
    // DietItemWindow
    void setIsChanged(bool changed) override { m_isChanged = changed; }
    bool isChanged() const override { return m_isChanged; }

    qint32 recordId() const { return m_id; }

protected:
    void serveRequest() override;
    void Form_Unload(bool &cancel) override;

private:
    QString rowCriteria() const;
    void fillTexts();
    void saveAndEnd();
    void deleteItem();
    void selectValue(int index);
    //! Asks the builder, if it is loaded, to read its items again: when serving it, or always.
    void tellBuilder(bool always);
    QStringList shownValues() const;

    QString m_source, m_table, m_key;
    qint32 m_id = 0;
    bool m_isChanged = false;
    QStringList m_loaded;
    DataControl *m_dc = nullptr;
    QWidget *m_txtDI[12] = {};
};
