// SPDX-License-Identifier: MIT
#pragma once

#include "ZobWindow.h"

#include <QPointer>

class DataControl;
class FormBuilder;
class LifePage;
class QLabel;
class QTabWidget;

//! The life-history browser: what the database knows of one species at a time, read-only, walking
//! through the species the search found. Five pages, four of them with inner tabs, each loaded for
//! the current species when it is shown.
class frmLifeHistory : public ZobWindow {
    Q_OBJECT
public:
    frmLifeHistory(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }
    void Form_Load() override;
    //! Escape closes the browser.
    bool Form_KeyDown(int keyCode, int shift) override;

    //! Selects the outer page index.
    void PuS_SetTab(int index);
    //! Walks the species of a search: its statement and row. Moving here moves the search too.
    void showSpecies(DataControl *found);

private:
    //! Refreshes the species head and loads the page shown (legacy page dispatch).
    void loadPage();
    void showHead();
    //! Builds the inner tab strip of an outer page, its pages built by the makers in order.
    void innerTabs(FormBuilder &page, const QString &name,
                   const QList<QPair<QString, std::function<LifePage *(FormBuilder &)>>> &pages);
    //! A page that loads itself again for the species shown when its options change.
    LifePage *reloadOnOption(LifePage *page);
    qint32 speciesId() const;

    DataControl *m_dcSpecies;
    QLabel *m_txtDisplay;
    QTabWidget *m_outer;
    //! Per outer page: its inner strip (null for the general page) and the pages by inner tab.
    QList<QTabWidget *> m_inner;
    QList<QList<LifePage *>> m_pages;
    QPointer<DataControl> m_found;
};
