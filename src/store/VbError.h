// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <exception>
#include <string>

//! Error numbers of the legacy runtime that the program's behaviour depends on.
namespace VbErr {
constexpr int Overflow = 6;
constexpr int DivisionByZero = 11;
constexpr int TypeMismatch = 13;
constexpr int BadFileNameOrNumber = 52;
constexpr int FileNotFound = 53;
constexpr int PathFileAccess = 75;
constexpr int PathNotFound = 76;
constexpr int InvalidUseOfNull = 94;
constexpr int InvalidProcedureCall = 5;
// Database engine errors.
constexpr int UpdateWithoutAddNewOrEdit = 3020;
constexpr int NoCurrentRecord = 3021;
constexpr int DuplicateKey = 3022;
constexpr int CouldNotFindFile = 3024;
constexpr int ReadOnly = 3027;   //!< "Cannot update. Database or object is read-only."
constexpr int InvalidArgument = 3001;
constexpr int CannotOpenDatabase = 3049;
constexpr int TooFewParameters = 3061;
constexpr int SyntaxError = 3075;  //!< "Syntax error ... in query expression"
constexpr int InputTableNotFound = 3078;
constexpr int ItemNotFound = 3265;  //!< field name not in the collection
constexpr int NotDatabaseFormat = 3343;
constexpr int DataTypeConversion = 3421;
constexpr int DataTypeMismatch = 3464;  //!< "Data type mismatch in criteria expression."
constexpr int CurrentlyLocked = 3218;   //!< "Could not update; currently locked."
constexpr int FileInUse = 3045;         //!< "Could not use '<file>'; file already in use."
constexpr int GenericDbError = 3146;  //!< "ODBC--call failed" stands in for anything else
}  // namespace VbErr

//! A run-time error as the legacy runtime raised it: a number and a description.
//! Every layer throws this; the error helper of the core catches it at the routine's boundary.
class VbError : public std::exception {
public:
    VbError(int number, QString description) : m_number(number), m_description(std::move(description)),
        m_what(QString::number(number).append(QLatin1Char(' ')).append(m_description).toStdString()) {}

    int number() const noexcept { return m_number; }
    const QString &description() const noexcept { return m_description; }
    const char *what() const noexcept override { return m_what.c_str(); }

    //! The legacy texts of the common numbers.
    static VbError typeMismatch() { return {VbErr::TypeMismatch, QStringLiteral("Type mismatch")}; }
    static VbError divisionByZero() { return {VbErr::DivisionByZero, QStringLiteral("Division by zero")}; }
    static VbError overflow() { return {VbErr::Overflow, QStringLiteral("Overflow")}; }
    static VbError invalidUseOfNull() { return {VbErr::InvalidUseOfNull, QStringLiteral("Invalid use of Null")}; }
    static VbError noCurrentRecord() { return {VbErr::NoCurrentRecord, QStringLiteral("No current record.")}; }

private:
    int m_number;
    QString m_description;
    std::string m_what;
};
