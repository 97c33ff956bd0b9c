// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class DataControl;
class DataGrid;
class FormBuilder;
class QGroupBox;
class QLabel;
class QPushButton;
class QTabWidget;
class QWidget;
class RecordBinding;
class Session;

//! The pages of the species workbook and what is on them: the species record with its general texts
//! and references, its weights, its diets with their items, and its measured intakes. Each record page
//! has its binding; the lists are grids over their data controls. The window gives the behaviour.
class WorkbookPages : public QObject {
    Q_OBJECT
public:
    WorkbookPages(Session &session, FormBuilder &b, QObject *parent);

    //! The references of a species: those backing a general text (filter 0 to 3) or all (4).
    static QString referenceStatement(qint32 speciesId, int filter);
    //! The measured intakes of a species with the descriptions of their lookups.
    static QString measuredStatement(qint32 speciesId);

    //! The data source combo of a record page (0 species, 1 weight, 2 diet).
    QWidget *dataSource(int page) const { return m_dataSource[page]; }

    QTabWidget *tabs = nullptr;
    QTabWidget *dietTabs = nullptr;
    RecordBinding *species = nullptr, *weight = nullptr, *diet = nullptr;
    //! The binding of each record page, by page index.
    QList<RecordBinding *> records;
    DataControl *dcReference = nullptr, *dcDietItem = nullptr, *dcMeasured = nullptr;
    DataGrid *grdReferences = nullptr, *ssGrdDietItems = nullptr, *ssGridMeasurement = nullptr;
    //! cmdRef(0..6): the four texts' references, all references, the weight's and the diet's reference.
    QList<QPushButton *> cmdRef;
    QPushButton *cmdAdd = nullptr;
    //! cmdEdit(0..2): modify intake, new diet item, edit diet item.
    QList<QPushButton *> cmdEdit;
    QLabel *lblNoWeights = nullptr;
    QList<QGroupBox *> weightFrames;
    //! The texts a double click opens in the text editor.
    QList<QWidget *> memos;

private:
    void speciesPage(FormBuilder &page);
    void weightPage(FormBuilder &page);
    void dietPage(FormBuilder &page);
    void intakePage(FormBuilder &page);
    QWidget *dataSourceField(FormBuilder &b, RecordBinding *record, int page);

    Session &m_session;
    QWidget *m_dataSource[3] = {};
};
