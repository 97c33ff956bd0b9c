// SPDX-License-Identifier: MIT
#pragma once

#include "RequestWindow.h"

#include <QVariant>

class QComboBox;
class QGroupBox;

//! Places any record that carries the six classification columns in the taxonomic hierarchy, and where
//! the request asks for it (collection) also gives it a life stage and a component. Choosing a member
//! at any level fills in its whole ancestry and narrows the level below; Select writes the levels shown
//! into the caller's row.
class frmSelect_Classification : public RequestWindow {
    Q_OBJECT
public:
    frmSelect_Classification(Session &session, QtWindowHost &host);

    bool isMdiChild() const override { return false; }

    //! Shows the caller's classification.
    void LoadData();
    //! Empties the combo of level (0 to 5) and every one below; 0 also empties life stage and component.
    void ClearCombos(int level);

protected:
    void serveRequest() override;

private:
    void bindLists();
    //! Narrows the list of a level (1 to 5; 6 life stage, 7 component, by kingdom) to the children of parent.
    void LoadCombo(int level, qint32 parentId);
    //! A user's choice in the combo of a level: the cascade up and down.
    void choose(int level);
    //! Sets the levels above level from the path through id, narrowing each list below.
    void fillAncestry(int level, qint32 id);
    void select();
    //! New: empties the levels from the phylum down and locks life stage and component.
    void newChoice();
    //! Opens the text search of the hierarchy for the same record.
    void openSearch();
    void setValue(int index, const QVariant &value);
    QVariant valueOf(int index) const;
    QString routine(const QString &name) const;

    QComboBox *m_combos[8];
    QVariant m_tags[8];
    QGroupBox *m_fraCollection = nullptr;
};
