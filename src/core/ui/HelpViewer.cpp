// SPDX-License-Identifier: MIT
#include "HelpViewer.h"

#include <QFile>
#include <QPointer>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>
#include <QHBoxLayout>

static void initHelpResources()
{
    Q_INIT_RESOURCE(help);
}

namespace {
QString topicPath(int number)
{
    return QStringLiteral(":/help/%1.html").arg(number);
}
}  // namespace

HelpViewer *HelpViewer::instance(QWidget *parent)
{
    static QPointer<HelpViewer> viewer;
    if (!viewer)
        viewer = new HelpViewer(parent);
    return viewer;
}

bool HelpViewer::hasTopic(int number)
{
    initHelpResources();
    return QFile::exists(topicPath(number));
}

HelpViewer::HelpViewer(QWidget *parent) : QWidget(parent, Qt::Window), m_browser(new QTextBrowser(this))
{
    initHelpResources();
    setObjectName(QStringLiteral("HelpViewer"));
    setWindowTitle(QStringLiteral("Zobrel Help"));
    m_browser->setObjectName(QStringLiteral("txtTopic"));
    m_browser->setOpenLinks(true);
    m_browser->setSearchPaths({QStringLiteral(":/help")});
    auto *contents = new QPushButton(QStringLiteral("&Contents"), this);
    contents->setObjectName(QStringLiteral("cmdContents"));
    auto *back = new QPushButton(QStringLiteral("&Back"), this);
    back->setObjectName(QStringLiteral("cmdBack"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(contents);
    buttons->addWidget(back);
    buttons->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(m_browser);
    resize(640, 520);
    connect(contents, &QPushButton::clicked, this, [this] { showTopic(kContents); });
    connect(back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(m_browser, &QTextBrowser::sourceChanged, this, [this](const QUrl &url) {
        bool ok = false;
        const int n = url.fileName().section(QLatin1Char('.'), 0, 0).toInt(&ok);
        if (ok)
            m_topic = n;
    });
}

void HelpViewer::showTopic(int number)
{
    m_topic = number;
    if (hasTopic(number)) {
        m_browser->setSource(QUrl(QStringLiteral("qrc") + topicPath(number)));
    } else {
        m_browser->setHtml(QStringLiteral("<h2>Topic not found</h2><p>There is no help topic number %1.</p>"
                                          "<p><a href=\"qrc:/help/%2.html\">Go to the contents</a></p>")
                               .arg(number)
                               .arg(kContents));
    }
    show();
    raise();
    activateWindow();
}
