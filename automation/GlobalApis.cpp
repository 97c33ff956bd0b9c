// SPDX-License-Identifier: MIT
#include "GlobalApis.h"

#include "Database.h"
#include "GuiBridge.h"
#include "Session.h"
#include "VbFormat.h"
#include "clsProject.h"
#include "clsScenario.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJSEngine>

// --- DbApi ---

QJSValue DbApi::query(const QString &jetSql)
{
    const ScriptContext ctx = m_ctx;
    const QVariant v = m_ctx.gui([=]() -> QVariant {
        auto rs = ctx.session->gDB->OpenRecordset(jetSql, RecordsetType::Snapshot);
        const QStringList names = rs->fieldNames();
        QVariantList rows;
        while (!rs->EOF_()) {
            QVariantMap row;
            for (int i = 0; i < names.size(); ++i)
                row.insert(names[i], rs->field(i));
            rows << row;
            rs->MoveNext();
        }
        return rows;
    });
    return m_ctx.toJs(v);
}

int DbApi::exec(const QString &jetSql)
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.session->gDB->Execute(jetSql, true); }).toInt();
}

// --- The open scenario and project ---

namespace {
//! Access to the fields of the model object that member of the session holds.
template <typename T>
ModelObjectApi::Access accessOf(std::shared_ptr<T> Session::*member)
{
    ModelObjectApi::Access a;
    for (const ModelField<T> &f : T::fields())
        a.names << QString::fromLatin1(f.name);
    a.exists = [member](Session &s) { return (s.*member) != nullptr; };
    a.get = [member](Session &s, const QString &name) -> QVariant {
        const ModelField<T> *f = findField(T::fields(), name);
        if (!f)
            throw BridgeError(QStringLiteral("there is no field %1").arg(name));
        if (s.*member)
            return f->get(*(s.*member));
        return f->none();
    };
    a.set = [member](Session &s, const QString &name, const QVariant &value) {
        const ModelField<T> *f = findField(T::fields(), name);
        if (!f)
            throw BridgeError(QStringLiteral("there is no field %1").arg(name));
        if (s.*member)
            f->set(*(s.*member), value);
    };
    return a;
}
}  // namespace

bool ModelObjectApi::exists() const
{
    const ScriptContext ctx = m_ctx;
    const auto exists = m_access.exists;
    return m_ctx.gui([=] { return QVariant(exists(*ctx.session)); }).toBool();
}

QJSValue ModelObjectApi::get(const QString &name) const
{
    const ScriptContext ctx = m_ctx;
    const auto get = m_access.get;
    return m_ctx.toJs(m_ctx.gui([=] { return get(*ctx.session, name); }));
}

void ModelObjectApi::set(const QString &name, const QJSValue &value)
{
    const ScriptContext ctx = m_ctx;
    const auto set = m_access.set;
    const QVariant v = jsToVariant(value);
    m_ctx.gui([=] { set(*ctx.session, name, v); return QVariant(); });
}

SessionApi::SessionApi(const ScriptContext &ctx) : m_ctx(ctx)
{
    m_scenario = proxy(new ModelObjectApi(ctx, accessOf(&Session::gScenario)));
    m_project = proxy(new ModelObjectApi(ctx, accessOf(&Session::gProject)));
}

QJSValue SessionApi::proxy(ModelObjectApi *api) const
{
    // A plain object with a getter and a setter per field, so that scripts read and assign the
    // fields as properties.
    static const char *const kMake = R"((function (api, names) {
        var o = {};
        names.forEach(function (n) {
            Object.defineProperty(o, n, { enumerable: true,
                get: function () { return api.get(n); }, set: function (v) { api.set(n, v); } });
        });
        Object.defineProperty(o, 'exists', { enumerable: true, get: function () { return api.exists(); } });
        return o;
    }))";
    QJSEngine &engine = *m_ctx.engine;
    QJSValue names = engine.newArray(static_cast<uint>(api->names().size()));
    for (int i = 0; i < api->names().size(); ++i)
        names.setProperty(static_cast<quint32>(i), api->names()[i]);
    return engine.evaluate(QString::fromLatin1(kMake)).call({engine.newQObject(api), names});
}

QString SessionApi::user() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.session->gUserName; }).toString();
}

int SessionApi::userId() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.session->gUserID; }).toInt();
}

QString SessionApi::home() const
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.gui([=]() -> QVariant { return ctx.session->home; }).toString();
}

// --- FmtApi ---

QString FmtApi::vbFormat(const QJSValue &value, const QString &pattern)
{
    const QVariant v = jsToVariant(value);
    return m_ctx.gui([=]() -> QVariant { return vb::vbFormat(v, pattern); }).toString();
}

QJSValue FmtApi::CSng(const QJSValue &text)
{
    const QVariant v = jsToVariant(text);
    return m_ctx.toJs(m_ctx.gui([=]() -> QVariant { return QVariant(vb::CSng(v)); }));
}

double FmtApi::Val(const QString &text)
{
    return m_ctx.gui([=]() -> QVariant { return vb::Val(text); }).toDouble();
}

QJSValue FmtApi::Lookup(const QString &table, const QString &field, const QString &criteria)
{
    const ScriptContext ctx = m_ctx;
    return m_ctx.toJs(m_ctx.gui([=]() -> QVariant { return ctx.session->Lookup(table, field, criteria); }));
}

// --- FsApi ---

QString FsApi::resolve(const QString &path) const
{
    if (QDir::isAbsolutePath(path))
        return path;
    const ScriptContext ctx = m_ctx;
    const QString home = m_ctx.gui([=]() -> QVariant { return ctx.session->home; }).toString();
    return QDir(home).filePath(path);
}

QJSValue FsApi::read(const QString &path)
{
    QFile f(resolve(path));
    if (!f.open(QIODevice::ReadOnly)) {
        m_ctx.engine->throwError(QStringLiteral("cannot read %1").arg(path));
        return {};
    }
    return QJSValue(QString::fromUtf8(f.readAll()));
}

bool FsApi::exists(const QString &path)
{
    return QFileInfo::exists(resolve(path));
}

QStringList FsApi::list(const QString &dir)
{
    return QDir(resolve(dir)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name);
}
