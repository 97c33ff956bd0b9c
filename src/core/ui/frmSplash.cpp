// SPDX-License-Identifier: MIT
#include "frmSplash.h"

#include "ControlEvents.h"
#include "Diagnostics.h"
#include "QtWindowHost.h"

#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>

frmSplash::frmSplash(Session &session, QtWindowHost &host)
    : ZobWindow(session, host, QStringLiteral("frmSplash")), m_imgSplash(new QLabel(this)),
      m_lblProductName(new QLabel(QStringLiteral("Zobrel 1.0"), this)), m_lblProduct(new QLabel(QStringLiteral("ZOB"), this))
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    setCaption(QStringLiteral("Zobrel 1.0"));
    m_imgSplash->setObjectName(QStringLiteral("imgSplash"));
    m_lblProductName->setObjectName(QStringLiteral("lblProductName"));
    m_lblProduct->setObjectName(QStringLiteral("lblProduct"));

    QFont big = m_lblProductName->font();
    big.setPointSize(22);
    big.setBold(true);
    m_lblProductName->setFont(big);
    QFont huge = big;
    huge.setPointSize(36);
    m_lblProduct->setFont(huge);

    auto *text = new QVBoxLayout;
    text->addStretch(1);
    text->addWidget(m_lblProduct);
    text->addWidget(m_lblProductName);
    text->addStretch(1);
    auto *ok = new QPushButton(QStringLiteral("OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &ZobWindow::unloadMe);
    text->addWidget(ok, 0, Qt::AlignRight);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_imgSplash);
    layout->addLayout(text);
    setStyleSheet(QStringLiteral("frmSplash { background: white; border: 2px solid #1d4f73; }"));

    connect(ControlEvents::of(m_imgSplash), &ControlEvents::Click, this, &ZobWindow::unloadMe);
}

void frmSplash::Form_Load()
{
    guarded(session(), {ErrForm::Qualified, QStringLiteral("frmSplash.Form_Load")}, [&] {
        m_imgSplash->setPixmap(picture(QSize(260, 180)));
    });
}

bool frmSplash::Form_KeyDown(int keyCode, int shift)
{
    Q_UNUSED(shift);
    if (keyCode != 27)
        return false;
    unloadMe();
    return true;
}

void frmSplash::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        unloadMe();
}

QPixmap frmSplash::picture(const QSize &size)
{
    QPixmap pm(size);
    const qreal w = size.width(), h = size.height();
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, h);
    sky.setColorAt(0, QColor(120, 180, 230));
    sky.setColorAt(1, QColor(230, 240, 250));
    p.fillRect(QRectF(0, 0, w, h), sky);
    // Sun.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(250, 215, 90));
    p.drawEllipse(QPointF(w * 0.8, h * 0.22), h * 0.1, h * 0.1);
    // Hills.
    QPainterPath far;
    far.moveTo(0, h * 0.62);
    far.cubicTo(w * 0.25, h * 0.45, w * 0.45, h * 0.7, w * 0.7, h * 0.52);
    far.cubicTo(w * 0.85, h * 0.45, w * 0.95, h * 0.55, w, h * 0.5);
    far.lineTo(w, h);
    far.lineTo(0, h);
    p.setBrush(QColor(96, 150, 90));
    p.drawPath(far);
    // Water.
    p.setBrush(QColor(60, 120, 170));
    p.drawRect(QRectF(0, h * 0.78, w, h * 0.22));
    p.setPen(QPen(QColor(200, 225, 245), 1.5));
    for (int i = 0; i < 4; ++i)
        p.drawLine(QPointF(w * (0.1 + 0.22 * i), h * 0.86), QPointF(w * (0.18 + 0.22 * i), h * 0.86));
    // A hawk in flight.
    QPainterPath bird;
    const QPointF c(w * 0.38, h * 0.3);
    bird.moveTo(c);
    bird.quadTo(c + QPointF(-w * 0.08, -h * 0.1), c + QPointF(-w * 0.16, -h * 0.02));
    bird.quadTo(c + QPointF(-w * 0.07, -h * 0.04), c);
    bird.quadTo(c + QPointF(w * 0.07, -h * 0.04), c + QPointF(w * 0.16, -h * 0.02));
    bird.quadTo(c + QPointF(w * 0.08, -h * 0.1), c);
    p.setPen(QPen(QColor(40, 40, 40), 1));
    p.setBrush(QColor(60, 50, 40));
    p.drawPath(bird);
    // A fish below it.
    p.setBrush(QColor(210, 170, 80));
    p.drawEllipse(QPointF(w * 0.5, h * 0.9), w * 0.04, h * 0.025);
    return pm;
}
