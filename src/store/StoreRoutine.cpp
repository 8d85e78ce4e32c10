#include "store/StoreRoutine.h"

#include <filesystem>

#include "platform/Text.h"

namespace sorvane {

namespace {

constexpr std::string_view Advise = "Please advise error number to support.";

std::string SentenceOf(const ErrorTail& tail, int number, std::string_view TableName) {
    if (tail.oneSentence) return std::string(tail.unnamed);
    if (number == ErrorNumber::TableNotFound) {
        if (!tail.unnamed.empty()) return std::string(tail.unnamed);
        return std::string(tail.named).append(TableName).append(" table. ").append(Advise);
    }
    if (number == ErrorNumber::Conversion && !tail.conversion.empty()) return std::string(tail.conversion);
    return std::string("Unexpected error occurred. ").append(Advise);
}

}  // namespace

void ShowStoreError(Session& session, const ErrorTail& tail, int number, std::string_view TableName) {
    if (number == ErrorNumber::TableNotFound && tail.silentWithoutTable) return;
    Global& g = session.global;
    g.Msg = "ERROR #" + Str(number) + g.NL + SentenceOf(tail, number, TableName);
    session.services.dialogs.MsgBox(g.Msg, BoxStyle::Stop, ErrorTitle);
}

void OwnFile::Open() {
    db_.emplace(session_.services.engine.OpenDatabase(DbName_, session_.global.Open));
    db_->OneCommit();
}

void OwnFile::Close() {
    if (!db_) return;
    const int error = ErrorOf([this] { db_->Close(); });
    db_.reset();
    if (error != 0) Raise(error);
}

std::string DatabasePath(const std::string& AppPath) {
    return (std::filesystem::path(AppPath) / "data" / "sorvane.mdb").make_preferred().string();
}

}  // namespace sorvane
