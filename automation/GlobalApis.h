// SPDX-License-Identifier: MIT
#pragma once

#include "ScriptContext.h"

#include <QObject>
#include <QStringList>

//! The global "db".
class DbApi : public QObject {
    Q_OBJECT
public:
    explicit DbApi(const ScriptContext &ctx) : m_ctx(ctx) {}
    Q_INVOKABLE QJSValue query(const QString &jetSql);
    Q_INVOKABLE int exec(const QString &jetSql);
private:
    ScriptContext m_ctx;
};

//! The fields of an open model object (the scenario, the project) by name, through the object's
//! field table; the script sees them as properties (see SessionApi). Without the object a field
//! reads as its type's default and a write does nothing.
class ModelObjectApi : public QObject {
    Q_OBJECT
public:
    struct Access {
        QStringList names;
        std::function<bool(Session &)> exists;
        std::function<QVariant(Session &, const QString &)> get;
        std::function<void(Session &, const QString &, const QVariant &)> set;
    };
    ModelObjectApi(const ScriptContext &ctx, Access access) : m_ctx(ctx), m_access(std::move(access)) {}
    QStringList names() const { return m_access.names; }
    Q_INVOKABLE bool exists() const;
    Q_INVOKABLE QJSValue get(const QString &name) const;
    Q_INVOKABLE void set(const QString &name, const QJSValue &value);
private:
    ScriptContext m_ctx;
    Access m_access;
};

//! The global "session": the user, the program folder, and the open scenario and project with a
//! property for each field of theirs and "exists".
class SessionApi : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString user READ user)
    Q_PROPERTY(int userId READ userId)
    Q_PROPERTY(QString home READ home)
    Q_PROPERTY(QJSValue scenario READ scenario)
    Q_PROPERTY(QJSValue project READ project)
public:
    explicit SessionApi(const ScriptContext &ctx);
    QString user() const;
    int userId() const;
    QString home() const;
    QJSValue scenario() const { return m_scenario; }
    QJSValue project() const { return m_project; }
private:
    QJSValue proxy(ModelObjectApi *api) const;
    ScriptContext m_ctx;
    QJSValue m_scenario;
    QJSValue m_project;
};

//! The global "fmt": the legacy conversions.
class FmtApi : public QObject {
    Q_OBJECT
public:
    explicit FmtApi(const ScriptContext &ctx) : m_ctx(ctx) {}
    Q_INVOKABLE QString vbFormat(const QJSValue &value, const QString &pattern);
    Q_INVOKABLE QJSValue CSng(const QJSValue &text);
    Q_INVOKABLE double Val(const QString &text);
    Q_INVOKABLE QJSValue Lookup(const QString &table, const QString &field, const QString &criteria);
private:
    ScriptContext m_ctx;
};

//! The global "fs": reading files; relative paths are taken from the program folder.
class FsApi : public QObject {
    Q_OBJECT
public:
    explicit FsApi(const ScriptContext &ctx) : m_ctx(ctx) {}
    Q_INVOKABLE QJSValue read(const QString &path);
    Q_INVOKABLE bool exists(const QString &path);
    Q_INVOKABLE QStringList list(const QString &dir);
private:
    QString resolve(const QString &path) const;
    ScriptContext m_ctx;
};
