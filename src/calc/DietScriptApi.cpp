// SPDX-License-Identifier: MIT
#include "DietScriptApi.h"

#include "Diet.h"
#include "ScriptBindings.h"
#include "ScriptSupport.h"
#include "Session.h"

using scriptapi::guardedCall;
using scriptapi::toId;

namespace {
const ScriptBindingRegistration reg(QStringLiteral("diet"),
                                    [](Session &s, QObject *parent) { return new DietScriptApi(s, parent); });
}

DietScriptApi::DietScriptApi(Session &session, QObject *parent) : QObject(parent), m_session(session) {}

QString DietScriptApi::GetDietItemsSQL(const QVariant &type, const QVariant &id)
{
    return guardedCall(m_lastError, QString(), [&] {
        // The builder writes the call both ways round; the word tells which argument is the type.
        const bool swapped = id.typeId() == QMetaType::QString && type.typeId() != QMetaType::QString;
        const QVariant &word = swapped ? id : type;
        const QVariant &number = swapped ? type : id;
        return ::GetDietItemsSQL(m_session, word.toString(), toId(number));
    });
}

bool DietScriptApi::Replace()
{
    return guardedCall(m_lastError, false, [&] { return ::ReplaceWildlifeDietItems(m_session); });
}

void DietScriptApi::AddWildlifeDiet(const QVariant &dietId)
{
    guardedCall(m_lastError, false, [&] {
        ::AddWildlifeDiet(m_session, toId(dietId));
        return true;
    });
}

void DietScriptApi::AddWildlifeDietItems(const QVariant &dietId)
{
    guardedCall(m_lastError, false, [&] {
        ::AddWildlifeDietItems(m_session, toId(dietId));
        return true;
    });
}

QString DietScriptApi::GetTrophicLevelText(const QVariant &id, const QString &table)
{
    return guardedCall(m_lastError, QString(), [&] { return ::GetTrophicLevelText(m_session, toId(id), table); });
}

QString DietScriptApi::GetWaterConversionText(const QVariant &id, const QString &table)
{
    return guardedCall(m_lastError, QString(), [&] { return ::GetWaterConversionText(m_session, toId(id), table); });
}

void DietScriptApi::UpdateDS(bool changed)
{
    guardedCall(m_lastError, false, [&] {
        ::UpdateDS(m_session, changed);
        return true;
    });
}
