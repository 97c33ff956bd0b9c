// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QProxyStyle>

//! The program's look: the platform's style, with its standard icons made once, and text laid out
//! without optional shaping. Every window's tool bar and frame asks the style for the same few icons
//! (the tool bar's overflow arrow, the frame's title bar buttons), and the style would read and
//! decode their images again for each window.
class ProgramStyle : public QProxyStyle {
    Q_OBJECT
public:
    //! Makes the program style and its text layout the application's, once; a later call keeps the
    //! ones in place.
    static void install();

    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const override;

private:
    mutable QHash<quint64, QIcon> m_icons;
};
