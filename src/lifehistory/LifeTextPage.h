// SPDX-License-Identifier: MIT
#pragma once

#include "LifePage.h"

#include <memory>

class DataControl;
class QPlainTextEdit;

//! A page of free text by topic: the topic's options (none for a page of one topic), the text, its
//! references and its general references as numbered lists, and a navigator over the topic's rows.
class LifeTextPage : public LifePage {
    Q_OBJECT
public:
    //! boxArray names the three boxes (text, "References", "General References"); optionArray the
    //! topic options, or a page of one topic ("optBodySize") that shows none.
    LifeTextPage(Session &session, FormBuilder &b, const QString &dcName, const QString &boxArray,
                 const QString &optionArray);
    ~LifeTextPage() override;
    void load(qint32 speciesId) override;
    DataControl *dataControl() const { return m_dc; }

private:
    //! Shows the current row's text and its two reference lists, and the position.
    void reposition();

    Session &m_session;
    QString m_optionArray;
    std::unique_ptr<OptionArray> m_options;
    DataControl *m_dc;
    QPlainTextEdit *m_boxes[3];
    QLabel *m_empty;
};
