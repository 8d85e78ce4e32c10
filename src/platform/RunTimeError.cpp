#include "platform/RunTimeError.h"

namespace sorvane {

namespace {

struct Row {
    int number;
    std::string_view sentence;
};

constexpr Row Sentences[] = {
    {ErrorNumber::InvalidProcedureCall, "Invalid procedure call"},
    {ErrorNumber::Overflow, "Overflow"},
    {ErrorNumber::OutOfMemory, "Out of memory"},
    {ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    {ErrorNumber::TypeMismatch, "Type mismatch"},
    {ErrorNumber::FileNotFound, "File not found"},
    {ErrorNumber::PathFileAccess, "Path/File access error"},
    {ErrorNumber::PathNotFound, "Path not found"},
    {ErrorNumber::InvalidUseOfNull, "Invalid use of Null"},
    {ErrorNumber::PrinterError, "Printer error"},
    {ErrorNumber::PrinterProperty, "Printer driver does not support the property"},
    {ErrorNumber::PrinterDriver, "Printer driver unavailable"},
    {ErrorNumber::TableExists, "The table exists already"},
    {ErrorNumber::TableNotFound, "The table was not found"},
    {ErrorNumber::IndexNotFound, "The table has no such index"},
    {ErrorNumber::NoIndexSet, "No index is set to seek by"},
    {ErrorNumber::UpdateWithoutEdit, "The row was changed without being opened for it"},
    {ErrorNumber::NoCurrentRecord, "No current record"},
    {ErrorNumber::KeyTaken, "Another row has this key already"},
    {ErrorNumber::StoreFileNotFound, "The database file was not found"},
    {ErrorNumber::DiskFull, "The disk is full"},
    {ErrorNumber::DiskError, "Disk or network error"},
    {ErrorNumber::NoPermission, "The database file may not be used, or is no file"},
    {ErrorNumber::NullInKey, "The key of a row can't be empty"},
    {ErrorNumber::SqlTableNotFound, "The table that was asked for was not found"},
    {ErrorNumber::TextTooLong, "The text is too long for its field"},
    {ErrorNumber::RecordDeleted, "The record is deleted"},
    {ErrorNumber::Locked, "The database is locked by another program"},
    {ErrorNumber::NoSuchField, "The table has no such field"},
    {ErrorNumber::NotADatabase, "The file is no database or is damaged"},
    {ErrorNumber::ObjectClosed, "The object is closed"},
    {ErrorNumber::Conversion, "The value does not convert to its field's type"},
    {ErrorNumber::DialogCancelled, "Cancel was selected"},
};

}  // namespace

std::string_view Sentence(int number) {
    for (const Row& row : Sentences)
        if (row.number == number) return row.sentence;
    return "Application-defined or object-defined error";
}

// Every sentence is a string literal, so it ends in a NUL.
const char* RunTimeError::what() const noexcept { return Sentence(number_).data(); }

void Raise(int number) { throw RunTimeError(number); }

}  // namespace sorvane
