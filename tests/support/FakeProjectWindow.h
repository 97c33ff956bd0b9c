// SPDX-License-Identifier: MIT
// The project window as the project object sees it: seven boxes and a state, nothing shown.
#pragma once

#include "clsProject.h"

#include <array>

class FakeProjectWindow : public ProjectWindow {
public:
    void load() override {}
    void show() override {}
    QString projectText(int index) const override { return texts.at(size_t(index)); }
    void setProjectText(int index, const QString &text) override { texts.at(size_t(index)) = text; }
    qint32 stateProvinceId() const override { return 0; }
    void clearControls() override { texts.fill(QString()); }
    void setScenarioCommands(bool) override {}
    void setProjectSource(const QString &) override {}
    void setScenarioSource(const QString &) override {}
    std::array<QString, 7> texts;
};
