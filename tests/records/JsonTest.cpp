// The JSON document of an export against the schema that is told of it.
#include <nlohmann/json.hpp>
#include <regex>

#include "records/RecordsWorld.h"

namespace sorvane::testing {
namespace {

using nlohmann::json;

// As much of JSON Schema as ours uses; any other keyword fails the test.
class Schema {
  public:
    explicit Schema(json all) : all_(std::move(all)) {}

    // What is wrong with the value; empty when nothing is.
    std::string Complaint(const json& value) const { return Complaint(value, all_, "document"); }

  private:
    static bool IsOf(const json& value, const std::string& type) {
        return type == "object"    ? value.is_object()
               : type == "array"   ? value.is_array()
               : type == "string"  ? value.is_string()
               : type == "boolean" ? value.is_boolean()
               : type == "integer" ? value.is_number_integer()
               : type == "number"  ? value.is_number()
                                   : type == "null" && value.is_null();
    }

    std::string Complaint(const json& value, const json& schema, const std::string& where) const {
        for (const auto& [word, rule] : schema.items()) {
            const std::string wrong = ComplaintOf(value, schema, word, rule, where);
            if (!wrong.empty()) return wrong;
        }
        return {};
    }

    std::string ComplaintOf(const json& value, const json& schema, const std::string& word, const json& rule,
                            const std::string& where) const {
        if (word == "$ref") return Complaint(value, all_["$defs"][rule.get<std::string>().substr(8)], where);
        if (word == "type") {
            const json types = rule.is_array() ? rule : json::array({rule});
            for (const json& type : types)
                if (IsOf(value, type)) return {};
            return where + " is of another type";
        }
        if (word == "const") return value == rule ? "" : where + " is another";
        if (word == "pattern")
            return !value.is_string() ||
                           std::regex_search(value.get<std::string>(), std::regex(rule.get<std::string>()))
                       ? ""
                       : where + " has another form";
        if (word == "minimum") return !value.is_number() || value >= rule ? "" : where + " is too small";
        if (word == "maximum") return !value.is_number() || value <= rule ? "" : where + " is too large";
        if (word == "maxLength")
            return !value.is_string() || value.get<std::string>().size() <= rule ? ""
                                                                                 : where + " is too long";
        if (word == "required") {
            for (const json& name : rule)
                if (!value.contains(name.get<std::string>()))
                    return where + " lacks " + name.get<std::string>();
            return {};
        }
        if (word == "items") {
            for (const json& item : value) {
                const std::string wrong = Complaint(item, rule, where + "[]");
                if (!wrong.empty()) return wrong;
            }
            return {};
        }
        if (word == "properties") {
            for (const auto& [name, member] : value.items()) {
                if (!rule.contains(name)) continue;
                const std::string wrong = Complaint(member, rule[name], where + "." + name);
                if (!wrong.empty()) return wrong;
            }
            return {};
        }
        if (word == "additionalProperties") {
            for (const auto& [name, member] : value.items())
                if (!schema["properties"].contains(name)) return where + " has " + name + " besides";
            return {};
        }
        for (const char* told : {"$schema", "title", "description", "$defs"})
            if (word == told) return {};
        return "unknown word " + word;
    }

    json all_;
};

class Json : public RecordsWorld {
  public:
    json Exported() {
        Do({"export", "--json", Path("all.json"), "--force"});
        return json::parse(BytesOf(Path("all.json")));
    }
    Schema schema{json::parse(BytesOf(SORVANE_SOURCE_FOLDER "/docs/sorvane-records.schema.json"))};
};

TEST_F(Json, KeepsToItsSchemaForEveryTable) {
    for (const Records::Table& table : Records::Tables()) {
        Make(table.name);
        // A row of nothing, which the schema must know in every field but the marks.
        Sql("INSERT INTO \"" + table.name + "\" (ID1) VALUES (1)");
    }
    const json all = Exported();
    EXPECT_EQ(schema.Complaint(all), "");
    EXPECT_EQ(all["tables"].size(), Records::Tables().size());
    for (const Records::Table& table : Records::Tables()) {
        ASSERT_EQ(all["tables"][table.name].size(), 1U) << table.name;
        EXPECT_EQ(all["tables"][table.name][0].size(), table.fields.size()) << table.name;
    }
    json other = all;
    other["tables"]["WinBC49"][0]["Ball_1"] = "seven";
    EXPECT_EQ(schema.Complaint(other), "document.tables.WinBC49[].Ball_1 is of another type");
}

TEST_F(Json, SaysWhatTheRowsSay) {
    Make("Spent");
    Make("PlayedONTPick3");
    Sql(R"(INSERT INTO Spent VALUES (1, 'Super "7"', 46347, 1250.0625);
           INSERT INTO PlayedONTPick3 VALUES (1, 'ONTPick3', 46347, 0,1,2, '', 1);)");
    const json all = Exported();
    EXPECT_EQ(all["format"], "sorvane-records");
    EXPECT_EQ(
        all["tables"]["Spent"][0],
        json::parse(R"({"ID1": 1, "Lottoflag": "Super \"7\"", "Date": "2026-11-21", "Spent": 1250.0625})"));
    EXPECT_EQ(all["tables"]["PlayedONTPick3"][0]["Way Played"], "");
    EXPECT_EQ(all["tables"]["PlayedONTPick3"][0]["Regular"], true);
    EXPECT_EQ(json::parse(Do({"export", "--json", "-"}).data), all);
}

TEST_F(Json, OfAFileWithoutTablesIsADocumentToo) {
    world.WithDatabase();
    EXPECT_EQ(schema.Complaint(Exported()), "");
}

}  // namespace
}  // namespace sorvane::testing
