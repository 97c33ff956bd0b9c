// SPDX-License-Identifier: MIT
#include "PickerScriptApi.h"

#include "QtWindowHost.h"
#include "ScriptBindings.h"
#include "Session.h"
#include "ZobWindow.h"

#include <stdexcept>

namespace {
const ScriptBindingRegistration reg(QStringLiteral("pickers"),
                                    [](Session &s, QObject *parent) { return new PickerScriptApi(s, parent); });
}  // namespace

PickerScriptApi::PickerScriptApi(Session &session, QObject *parent) : QObject(parent), m_session(session) {}

void PickerScriptApi::open(const QString &window, const QVariantMap &request)
{
    auto *host = dynamic_cast<QtWindowHost *>(m_session.windows);
    ZobWindow *w = host ? host->form(window) : nullptr;
    if (!w)
        throw std::runtime_error("the program has no window " + window.toStdString());
    RecordRequest r;
    r.recordId = request.value(QStringLiteral("recordId")).toInt();
    r.table = request.value(QStringLiteral("table")).toString();
    r.keyField = request.value(QStringLiteral("keyField")).toString();
    r.mode = request.value(QStringLiteral("mode"), QStringLiteral("ReadOnly")).toString();
    r.selectedId = request.value(QStringLiteral("selectedId")).toInt();
    r.filter = request.value(QStringLiteral("filter"), true).toBool();
    r.isSelection = r.filter;
    r.collection = request.value(QStringLiteral("collection")).toBool();
    r.entry = request.value(QStringLiteral("entry")).toString();
    w->setRecord(r);
    host->show(window, r.filter);
}
