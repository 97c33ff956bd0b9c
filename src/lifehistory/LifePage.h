// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>

class DataControl;
class FormBuilder;
class QLabel;
class QRadioButton;
class Session;

//! One page of the life-history browser that loads what the database holds for a species.
class LifePage : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    //! Loads the page for a species; failures are reported in the shared form and the page stays as it was.
    virtual void load(qint32 speciesId) = 0;

signals:
    //! The user chose another option of the page: the owner loads it again for its species.
    void optionChanged();
};

//! A control array of option buttons name(0..n-1) in a frame of its own, the first one chosen at
//! start unless another is given; choosing any of them signals the page.
class OptionArray {
public:
    OptionArray(FormBuilder &b, LifePage *page, const QString &name, const QString &frameCaption,
                const QStringList &captions, int chosen = 0);
    //! The index of the chosen option, -1 when none is.
    int chosen() const;

private:
    QList<QRadioButton *> m_options;
};

//! Reads a page's rows: the statement into the data control, then to the last row and back to the
//! first so that the count is known; failures are reported in the shared form under routine.
void loadRows(Session &session, DataControl *dc, const QString &routine, const std::function<QString()> &statement);

//! A read-only label that says in words that a page has nothing to show; hidden while it has.
QLabel *emptyNote(FormBuilder &b, const QString &name, const QString &words);
