// SPDX-License-Identifier: MIT
#include "WindowGeometry.h"

#include <algorithm>

#include <QCoreApplication>
#include <QWidget>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>

namespace WindowGeometry {
namespace {

QSettings settings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Zobrel"), QStringLiteral("Zobrel"));
}

const QString kGeometry = QStringLiteral("MainWindow/geometry");
const QString kState = QStringLiteral("MainWindow/state");

QRect availableFor(const QWidget *window)
{
    const QScreen *screen = window->screen() ? window->screen() : QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

}  // namespace

QSize firstSize(const QSize &usual, const QRect &available)
{
    return usual.boundedTo(available.size() * 0.9);
}

QRect fitted(const QRect &wanted, const QRect &bounds)
{
    QRect r(wanted.topLeft(), wanted.size().boundedTo(bounds.size()));
    r.moveLeft(std::clamp(r.left(), bounds.left(), bounds.right() - r.width() + 1));
    r.moveTop(std::clamp(r.top(), bounds.top(), bounds.bottom() - r.height() + 1));
    return r;
}

void manageMainWindow(QMainWindow *window, const QSize &usual)
{
    const QSettings stored = settings();
    // restoreGeometry moves and shrinks a window that would be off the screens of this run.
    if (!window->restoreGeometry(stored.value(kGeometry).toByteArray())) {
        const QRect available = availableFor(window);
        QRect r(QPoint(), firstSize(usual, available));
        r.moveCenter(available.center());
        window->setGeometry(r);
    }
    window->restoreState(stored.value(kState).toByteArray());
    // Saved when the program ends, however it ends (Exit leaves without closing the window).
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, window, [window] {
        QSettings s = settings();
        s.setValue(kGeometry, window->saveGeometry());
        s.setValue(kState, window->saveState());
    });
}

void fitInside(QWidget *frame, const QWidget *area)
{
    // Never smaller than its contents need: a window squeezed below that overlaps its own controls.
    QRect r = fitted(frame->geometry(), area->rect());
    r.setSize(r.size().expandedTo(frame->minimumSizeHint()));
    if (r != frame->geometry())
        frame->setGeometry(r);
}

void fitScreen(QWidget *window)
{
    // Room is left for the window manager's frame, which is not known before the window is shown. A
    // window not yet sized takes its size hint when shown.
    const QSize limit = availableFor(window).size() - QSize(16, 48);
    const QSize current = window->testAttribute(Qt::WA_Resized) ? window->size() : window->sizeHint();
    if (current.isValid() && current != current.boundedTo(limit))
        window->resize(current.boundedTo(limit));
}

}  // namespace WindowGeometry
