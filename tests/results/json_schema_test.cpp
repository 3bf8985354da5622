// Whoever reads the results with a program of their own relies on docs/results.schema.json.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "calculation/calculation.h"
#include "calculation/check_working.h"
#include "exchange/attached.h"
#include "groups/group_runs.h"
#include "notes/notes.h"
#include "project/project_file.h"
#include "reactions/support_reactions.h"
#include "results/json.h"
#include "second_opinion/second_opinion.h"

namespace borvik {
namespace {

using Json = nlohmann::json;

/// What of JSON Schema the file makes use of; a keyword that it doesn't know is a failure.
class Validator {
public:
    explicit Validator(Json schema) : schema_(std::move(schema)) {}
    /// @return where the value breaks the schema; empty: nowhere
    std::string fault(const Json& value) { return fault(value, schema_, ""); }

private:
    static bool isOf(const Json& value, const std::string& type) {
        if (type == "number") return value.is_number();
        return type == value.type_name();
    }
    std::string fault(const Json& value, const Json& rule, const std::string& at) {
        for (const auto& [key, content] : rule.items()) {
            if (key == "description" || key == "title" || key == "$schema" || key == "$defs") continue;
            if (key == "$ref")
                return fault(value, schema_.at(Json::json_pointer(content.get<std::string>().substr(1))), at);
            const std::string found = keyword(value, rule, key, content, at);
            if (!found.empty()) return found;
        }
        return {};
    }
    std::string keyword(const Json& value, const Json& rule, const std::string& key, const Json& content,
                        const std::string& at) {
        if (key == "type") {
            for (const Json& type : content.is_array() ? content : Json::array({content}))
                if (isOf(value, type)) return {};
            return at + " is " + value.type_name();
        }
        if (key == "required") {
            for (const Json& name : content)
                if (value.is_object() && !value.contains(name)) return at + " lacks " + name.get<std::string>();
        } else if (key == "additionalProperties") {
            for (const auto& [name, each] : value.items())
                if (value.is_object() && !rule["properties"].contains(name)) return at + " has an unknown " + name;
        } else if (key == "properties") {
            for (const auto& [name, each] : content.items())
                if (value.is_object() && value.contains(name))
                    if (const std::string found = fault(value[name], each, at + "/" + name); !found.empty())
                        return found;
        } else if (key == "items") {
            for (std::size_t i = 0; value.is_array() && i < value.size(); ++i)
                if (const std::string found = fault(value[i], content, at + "/" + std::to_string(i)); !found.empty())
                    return found;
        } else if (key == "minItems") {
            if (value.is_array() && value.size() < content) return at + " is short";
        } else if (key == "maxItems") {
            if (value.is_array() && value.size() > content) return at + " is long";
        } else {
            return "the keyword " + key + " is not known here";
        }
        return {};
    }

    Json schema_;
};

std::string resultsOf(Session& session) {
    MessageList messages;
    Progress progress;
    if (!Calculate(session, messages, progress)) return resultsJson(session, messages.texts, "a.brvk", "Borvik");
    makeNotes(session);
    const auto workings = checkWorkings(session.tables, session.project, *session.results);
    const SecondOpinion opinion = secondOpinion(session, {});
    const SupportReactions reactions = supportReactions(session.project, *session.results);
    std::optional<GroupMatrix> groups;
    if (const Attached attached = attachedOf(session.project); !attached.cranes.empty())
        groups = compareGroups(session.project, session.tables, attached.cranes, true);
    return resultsJson(session, messages.texts, std::nullopt, "Borvik",
                       {.notes = true,
                        .opinion = &opinion,
                        .workings = &workings,
                        .reactions = &reactions,
                        .groups = groups ? &*groups : nullptr});
}

TEST(ResultsSchema, holdsForEveryResult) {
    std::ifstream file(BORVIK_SOURCE_DIR "/docs/results.schema.json");
    Validator validator(Json::parse(file));
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    const Project start = session.project;
    int calculated = 0;
    for (const char* folder : {"/examples", "/tests/data/vectors"})
        for (const auto& entry : std::filesystem::directory_iterator(std::string(BORVIK_SOURCE_DIR) + folder)) {
            if (entry.path().extension() != ".brvk") continue;
            session.project = start;
            LoadProject(entry.path(), session.project);
            EXPECT_EQ(validator.fault(Json::parse(resultsOf(session))), "") << entry.path();
            calculated += session.Calculated ? 1 : 0;
        }
    EXPECT_GT(calculated, 20);

    session.project = start;
    session.project.Span(1) = 0.0;  // refused: without results
    const Json refused = Json::parse(resultsOf(session));
    EXPECT_TRUE(refused["Uls"].is_null());
    EXPECT_EQ(validator.fault(refused), "");
    Json changed = refused;
    changed["Calculated"] = "no";
    EXPECT_EQ(validator.fault(changed), "/Calculated is string");
    changed = refused;
    changed["Ulz"] = nullptr;
    EXPECT_EQ(validator.fault(changed), " has an unknown Ulz");
}

}  // namespace
}  // namespace borvik
