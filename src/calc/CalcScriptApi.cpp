// SPDX-License-Identifier: MIT
#include "CalcScriptApi.h"

#include "Calculations.h"
#include "Intake.h"
#include "ScriptBindings.h"
#include "ScriptSupport.h"
#include "Session.h"
#include "Wildlife.h"

#include <limits>

using scriptapi::guardedCall;
using scriptapi::toId;

namespace {
//! The result of a routine whose error reached the script.
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

const ScriptBindingRegistration reg(QStringLiteral("calc"),
                                    [](Session &s, QObject *parent) { return new CalcScriptApi(s, parent); });
}

CalcScriptApi::CalcScriptApi(Session &session, QObject *parent) : QObject(parent), m_session(session) {}

double CalcScriptApi::ConvertWeightIs(bool valueIsDry, double value, double waterPercent)
{
    return guardedCall(m_lastError, kNoNumber, [&] {
        return static_cast<double>(
            ::ConvertWeightIs(valueIsDry, static_cast<float>(value), static_cast<float>(waterPercent)));
    });
}

bool CalcScriptApi::CalculateDietPorportion(bool isWet)
{
    return guardedCall(m_lastError, false, [&] { return ::CalculateDietPorportion(m_session, isWet); });
}

void CalcScriptApi::ConvertDietProportion(bool fromWet, const QString &mode)
{
    guardedCall(m_lastError, false, [&] {
        ::ConvertDietProportion(m_session, fromWet, mode);
        return true;
    });
}

void CalcScriptApi::ConvertDietProportion(bool fromWet) { ConvertDietProportion(fromWet, QStringLiteral("User")); }

void CalcScriptApi::SumProportions(bool isWet)
{
    guardedCall(m_lastError, false, [&] {
        ::SumProportions(m_session, isWet);
        return true;
    });
}

double CalcScriptApi::GetH2OAvg()
{
    return guardedCall(m_lastError, 0.0, [&] { return static_cast<double>(::GetH2OAvg(m_session)); });
}

QString CalcScriptApi::GetAvgTrophicLevel(const QVariant &id, const QString &tableName)
{
    return guardedCall(m_lastError, QString(), [&] { return ::GetAvgTrophicLevel(m_session, toId(id), tableName); });
}

double CalcScriptApi::GetMEAvg()
{
    return guardedCall(m_lastError, 0.0, [&] { return static_cast<double>(::GetMEAvg(m_session)); });
}

double CalcScriptApi::GetFMR_TDI(const QString &what)
{
    return guardedCall(m_lastError, 0.0, [&] { return static_cast<double>(::GetFMR_TDI(m_session, what)); });
}

double CalcScriptApi::GetDailyDryDiet()
{
    return guardedCall(m_lastError, kNoNumber, [&] { return static_cast<double>(::GetDailyDryDiet(m_session)); });
}

QString CalcScriptApi::GetIntakeEquationText(const QVariant &id, const QString &what)
{
    return guardedCall(m_lastError, QString(), [&] { return ::GetIntakeEquationText(m_session, toId(id), what); });
}

double CalcScriptApi::GetIntakeRate(const QVariant &id, double weight, const QString &kind)
{
    return guardedCall(m_lastError, 0.0,
                       [&] { return ::GetIntakeRate(m_session, toId(id), static_cast<float>(weight), kind); });
}

QString CalcScriptApi::GetClassificationText(const QVariant &id, const QString &table, const QString &field)
{
    return guardedCall(m_lastError, QString(),
                       [&] { return ::GetClassificationText(m_session, toId(id), table, field); });
}

QString CalcScriptApi::GetMeasurementText(const QVariant &id, const QString &table, const QString &field,
                                          const QString &kind)
{
    return guardedCall(m_lastError, QString(),
                       [&] { return ::GetMeasurementText(m_session, toId(id), table, field, kind); });
}

QString CalcScriptApi::CalculationSQL()
{
    return guardedCall(m_lastError, QString(), [&] { return ::CalculationSQL(m_session); });
}
