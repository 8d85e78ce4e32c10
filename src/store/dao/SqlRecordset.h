// A recordset over an SQL SELECT: its rows are read when it opens, so that no lock stays.
#pragma once

#include <initializer_list>
#include <string_view>
#include <vector>

#include "store/dao/DatabaseState.h"

namespace sorvane::Dao {

class SqlRecordset final : public RecordsetState {
  public:
    SqlRecordset(DatabaseState& database, std::string_view sql, std::initializer_list<Value> values);

    int RecordCount() override { return static_cast<int>(rows_.size()); }
    bool BOF() override { return rows_.empty(); }
    bool AtEOF() override { return current_ == rows_.size(); }
    bool NoMatch() const override { return false; }
    void Index(std::string_view name) override;
    void Seek(const Value& key) override;
    void MoveFirst() override;
    void MoveNext() override;
    void MoveLast() override;
    Value Get(int ordinal) override;
    void Set(int ordinal, const Value& value) override;
    void AddNew() override;
    void Edit() override;
    void Update() override;
    void Delete() override;
    void Leave() override {}

  protected:
    void Release() override {}

  private:
    void NeedRow() const;

    std::vector<std::vector<Value>> rows_;
    std::size_t current_ = 0;
};

}  // namespace sorvane::Dao
