// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QTextBrowser;

//! The help viewer: shows the topic pages help/<number>.html built into the program, with a
//! contents page (1501). It stays open by itself between requests; there is one for the process.
class HelpViewer : public QWidget {
    Q_OBJECT
public:
    //! The one viewer, made on first use as a window over parent.
    static HelpViewer *instance(QWidget *parent = nullptr);
    //! The number of the contents page.
    static constexpr int kContents = 1501;

    //! Shows a topic and brings the viewer to the front. A number without a page shows a page that
    //! says so, with a link to the contents.
    void showTopic(int number);
    //! The number of the topic on show.
    int currentTopic() const { return m_topic; }
    //! Whether the program has a page for a topic number.
    static bool hasTopic(int number);

private:
    explicit HelpViewer(QWidget *parent);
    QTextBrowser *m_browser;
    int m_topic = 0;
};
