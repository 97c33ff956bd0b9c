// SPDX-License-Identifier: MIT
#pragma once

#include "LifePage.h"

#include <memory>

class DataControl;
class DataGrid;
class QLineEdit;

//! The specific diets of a species: lifestage and sex options, a navigator over the diets with the
//! current diet's study in read-only boxes, and the diet's items in a grid.
class DietHabitsPage : public LifePage {
    Q_OBJECT
public:
    DietHabitsPage(Session &session, FormBuilder &b);
    ~DietHabitsPage() override;
    void load(qint32 speciesId) override;
    DataControl *diets() const { return m_dc; }
    DataControl *items() const { return m_items; }

private:
    //! Shows the current diet in the boxes and loads its items.
    void reposition();

    Session &m_session;
    std::unique_ptr<OptionArray> m_lifestage, m_sex;
    DataControl *m_dc;
    DataControl *m_items;
    DataGrid *m_grid;
    QList<QPair<QLineEdit *, QString>> m_boxes;
    QLabel *m_empty;
};
