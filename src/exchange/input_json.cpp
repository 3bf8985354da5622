#include "exchange/input_json.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <vector>

#include "actions/json/crane_json.h"
#include "base/fault.h"
#include "base/number_text.h"
#include "calculation/load_check.h"
#include "exchange/attached.h"
#include "exchange/input_fields.h"
#include "section/section.h"

namespace borvik {

namespace {

/// Numbers are 32 bits wide, so that 0.1 is written as 0.1, and keys keep their order.
using Json =
    nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t, std::uint64_t, float>;

Json json(const std::string& text) {
    return text;
}
Json json(Single number) {
    return number.stored();
}
Json json(std::int16_t number) {
    return number;
}
Json json(std::int32_t number) {
    return number;
}
Json json(bool flag) {
    return flag;
}

template <class Chosen>
requires std::is_enum_v<Chosen> Json json(Chosen value) {
    const Choice choice = wordsOf(value);
    const int place = static_cast<int>(value) - choice.first;
    if (place < 0 || place >= static_cast<int>(choice.words.size())) return static_cast<int>(value);
    return choice.words[static_cast<std::size_t>(place)];
}

template <class T, int First, int Last>
Json json(const FixedArray<T, First, Last>& items) {
    Json array = Json::array();
    std::size_t used = 0;
    for (const T& item : items) {
        array.push_back(json(item));
        if (!(item == T())) used = array.size();
    }
    array.erase(array.begin() + static_cast<std::ptrdiff_t>(used), array.end());
    return array;
}

// The dimensions by which a section is entered.
struct Dimension {
    const char* name;
    Single SectionRecord::*member;
};
constexpr Dimension kWelded[] = {{"h", &SectionRecord::h},     {"b1", &SectionRecord::b1},
                                 {"b2", &SectionRecord::b2},   {"tw", &SectionRecord::tw},
                                 {"tf1", &SectionRecord::tf1}, {"tf2", &SectionRecord::tf2}};
constexpr Dimension kPlates[] = {
    {"ReinfD", &SectionRecord::ReinfD}, {"ReinfB", &SectionRecord::ReinfB}, {"ReinfT", &SectionRecord::ReinfT}};

bool ofTwoFlanges(const SectionRecord& section) {
    return section.Id == "Iu";
}

bool isEntered(const SectionRecord& section, const Dimension& dimension) {
    const std::string_view name = dimension.name;
    return ofTwoFlanges(section) || (name != "b2" && name != "tf2");
}

Json json(const SectionRecord& section) {
    Json object = {{"Name", section.DisplayName}};
    if (section.Id == "Is" || section.Id == "Iu") {
        object["Welded"] = section.Id;
        for (const Dimension& each : kWelded)
            if (isEntered(section, each)) object[each.name] = json(section.*each.member);
    } else {
        object["Table"] = section.TableName;
    }
    if (!section.Reinforced) return object;
    object["Reinforcement"] = section.ReinfText == "PL2" ? "PL2" : "PL1";  // any other text: at the tips
    for (const Dimension& each : kPlates) object[each.name] = json(section.*each.member);
    return object;
}

[[noreturn]] void fail(const std::string& what) {
    throw InputJsonError(what);
}

/// Changes of single letters that make one name of the other.
std::size_t distance(std::string_view one, std::string_view other) {
    std::vector<std::size_t> row(other.size() + 1);
    for (std::size_t j = 0; j < row.size(); ++j) row[j] = j;
    for (std::size_t i = 1; i <= one.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const std::size_t above = row[j];
            const bool same = std::tolower(static_cast<unsigned char>(one[i - 1])) ==
                              std::tolower(static_cast<unsigned char>(other[j - 1]));
            row[j] = std::min({above + 1, row[j - 1] + 1, diagonal + (same ? 0 : 1)});
            diagonal = above;
        }
    }
    return row.back();
}

[[noreturn]] void failUnknown(const std::string& name, const std::vector<std::string>& known,
                              const std::string& where) {
    const auto nearest = std::min_element(known.begin(), known.end(), [&](const auto& a, const auto& b) {
        return distance(name, a) < distance(name, b);
    });
    fail(where + "there is no \"" + name + "\"; the nearest name is \"" + *nearest + "\"");
}

void take(std::string& field, const Json& value, const std::string& name) {
    if (!value.is_string()) fail(name + " must be a text");
    field = value.get<std::string>();
}

double number(const Json& value, const std::string& name) {
    if (!value.is_number()) fail(name + " must be a number");
    return value.get<double>();
}

void take(Single& field, const Json& value, const std::string& name) {
    field = number(value, name);  // finite: the parser refuses what 32 bits do not hold
}

template <std::signed_integral Whole>
void take(Whole& field, const Json& value, const std::string& name) {
    const double entered = number(value, name);
    if (entered != std::floor(entered) || std::abs(entered) > std::numeric_limits<Whole>::max())
        fail(name + " must be a whole number");
    field = static_cast<Whole>(entered);
}

void take(bool& field, const Json& value, const std::string& name) {
    if (!value.is_boolean()) fail(name + " must be true or false");
    field = value.get<bool>();
}

template <class Chosen>
requires std::is_enum_v<Chosen>
void take(Chosen& field, const Json& value, const std::string& name) {
    if (value.is_number_integer()) {
        std::int16_t stored = 0;
        take(stored, value, name);
        field = static_cast<Chosen>(stored);
        return;
    }
    const Choice choice = wordsOf(field);
    std::string words;
    for (std::size_t i = 0; i < choice.words.size(); ++i) {
        if (value == choice.words[i]) {
            field = static_cast<Chosen>(choice.first + static_cast<int>(i));
            return;
        }
        words += std::string(i == 0 ? "\"" : ", \"") + choice.words[i] + "\"";
    }
    fail(name + " must be one of " + words);
}

template <class T, int First, int Last>
void take(FixedArray<T, First, Last>& field, const Json& value, const std::string& name) {
    constexpr int most = Last - First + 1;
    if (!value.is_array() || value.size() > most)
        fail(name + " must be a list of " + std::to_string(most) + " values at most");
    field = {};
    for (int i = 0; i < static_cast<int>(value.size()); ++i)
        take(field(First + i), value[static_cast<std::size_t>(i)], name + ", value " + std::to_string(i + 1));
}

void takeDimension(SectionRecord& section, const Json& entry, const Dimension& dimension, const std::string& where) {
    if (!entry.contains(dimension.name)) fail(where + dimension.name + " is missing");
    take(section.*dimension.member, entry[dimension.name], where + dimension.name);
}

void checkNames(const Json& object, const std::vector<std::string>& known, const std::string& where) {
    for (const auto& [name, value] : object.items())
        if (std::find(known.begin(), known.end(), name) == known.end()) failUnknown(name, known, where);
}

/// A section from its table name or its dimensions, its properties computed.
SectionRecord sectionOf(const Json& entry, const Project& project, const ReferenceTables& tables,
                        const std::string& where) {
    if (!entry.is_object()) fail(where + "a section must be an object");
    std::vector<std::string> known = {"Name", "Table", "Welded", "Reinforcement"};
    for (const Dimension& each : kWelded) known.emplace_back(each.name);
    for (const Dimension& each : kPlates) known.emplace_back(each.name);
    checkNames(entry, known, where);
    if (entry.contains("Table") == entry.contains("Welded")) fail(where + "either Table or Welded must be given");

    SectionRecord section = blankSection(tables);
    if (entry.contains("Table")) {
        take(section.TableName, entry["Table"], where + "Table");
        section.Id.clear();
    } else {
        take(section.Id, entry["Welded"], where + "Welded");
        if (section.Id != "Is" && section.Id != "Iu") fail(where + "Welded must be \"Is\" or \"Iu\"");
        section.Fab = "W";
        section.TableName.clear();
        for (const Dimension& each : kWelded)
            if (isEntered(section, each)) takeDimension(section, entry, each, where);
    }
    if (entry.contains("Reinforcement")) {
        take(section.ReinfText, entry["Reinforcement"], where + "Reinforcement");
        if (section.ReinfText != "PL1" && section.ReinfText != "PL2")
            fail(where + "Reinforcement must be \"PL1\" or \"PL2\"");
        section.Reinforced = true;
        for (const Dimension& each : kPlates)
            if (entry.contains(each.name)) takeDimension(section, entry, each, where);
        section.ReinfSuffix = "+PL" + generalText(section.ReinfD) + "x" + generalText(section.ReinfT);
    }
    try {
        updateSection(tables, project, section);
    } catch (const RuntimeFault& fault) {
        fail(where + fault.what());
    }
    return section;
}

/// The list of sections, and the section of each span by the name given there or by its own.
void takeSections(Project& project, const Json& input, const ReferenceTables& tables) {
    std::vector<std::string> names;
    if (input.contains("Sections")) {
        if (!input["Sections"].is_array() || input["Sections"].empty()) fail("Sections must be a list with an entry");
        project.SectionList = Array<SectionRecord>(0, -1);
        for (const Json& entry : input["Sections"]) {
            const std::string where = "Sections, entry " + std::to_string(names.size() + 1) + ": ";
            project.SectionList.append(sectionOf(entry, project, tables, where));
            names.push_back(project.SectionList(project.SectionList.last()).DisplayName);
            if (entry.contains("Name")) take(names.back(), entry["Name"], where + "Name");
        }
    } else {
        for (SectionRecord& section : project.SectionList) {
            updateSection(tables, project, section);
            names.push_back(section.DisplayName);
        }
    }
    const int spans = static_cast<int>(std::find(project.Span.begin(), project.Span.end(), 0) - project.Span.begin());
    const Json none = Json::array();
    const Json& ofSpans = input.contains("SpanSections") ? input["SpanSections"] : none;
    if (!ofSpans.is_array() || static_cast<int>(ofSpans.size()) > kMaxSpans)
        fail("SpanSections must be a list of " + std::to_string(kMaxSpans) + " names at most");
    if (!ofSpans.empty() && static_cast<int>(ofSpans.size()) < spans)
        fail("SpanSections names " + std::to_string(ofSpans.size()) + " sections for " + std::to_string(spans) +
             " spans");
    project.SpanSection = Array<SectionRecord>(1, kMaxSpans);
    for (int span = 1; span <= spans; ++span) {
        int place = 0;
        if (!ofSpans.empty()) {
            std::string name;
            take(name, ofSpans[static_cast<std::size_t>(span - 1)], "SpanSections");
            const auto found = std::find(names.begin(), names.end(), name);
            if (found == names.end()) failUnknown(name, names, "SpanSections: ");
            place = static_cast<int>(found - names.begin());
        }
        project.SpanSection(span) = project.SectionList(place);
    }
    MarkSectionsInUse(project);
}

}  // namespace

std::string inputJson(const Project& project) {
    Json object = Json::object();
    for (const InputField& field : inputFields())
        std::visit([&](auto member) { object[field.name] = json(project.*member); }, field.member);
    std::vector<const SectionRecord*> sections;
    const auto add = [&](const SectionRecord& section) {
        const bool there = std::any_of(sections.begin(), sections.end(),
                                       [&](const auto* each) { return each->DisplayName == section.DisplayName; });
        if (!there && !section.DisplayName.empty()) sections.push_back(&section);
    };
    Json ofSpans = Json::array();
    for (int span = 1; span <= kMaxSpans && project.Span(span) != 0 && project.SpanSection.has(span); ++span) {
        add(project.SpanSection(span));
        ofSpans.push_back(project.SpanSection(span).DisplayName);
    }
    for (const SectionRecord& section : project.SectionList) add(section);
    Json list = Json::array();
    for (const SectionRecord* section : sections) list.push_back(json(*section));
    object["Sections"] = std::move(list);
    object["SpanSections"] = std::move(ofSpans);
    if (!project.Attached.empty()) object["Attached"] = kAttachedMark;
    return withAttached(object.dump(2, ' ', false, Json::error_handler_t::replace) + "\n", project);
}

Project projectFromJson(const std::string& text, const ReferenceTables& tables) {
    Json input;
    try {
        input = Json::parse(text);
    } catch (const Json::exception& error) {
        fail("no JSON: " + std::string(error.what()));
    }
    if (input.is_object() && input.contains("Input") && input.contains("Schema")) input = Json(input["Input"]);
    if (!input.is_object()) fail("the input must be a JSON object");
    std::vector<std::string> known = {"Sections", "SpanSections", "Attached"};
    for (const InputField& field : inputFields()) known.emplace_back(field.name);
    checkNames(input, known, "");

    Project project = DefaultProject(tables);
    for (const InputField& field : inputFields())
        if (input.contains(field.name))
            std::visit([&](auto member) { take(project.*member, input[field.name], field.name); }, field.member);
    if (!input.contains("HasLoadsY")) {
        Project settled = project;  // a copy: what is entered for a second crane stays with one crane too
        settleLoads(settled, project.CraneType == CraneKind::Overhead ? LoadForm::Overhead : LoadForm::Monorail);
        project.HasLoadsY = settled.HasLoadsY;
    }
    takeSections(project, input, tables);
    if (input.contains("Attached")) {
        // Read anew with all its digits.
        actions::Json whole = actions::parseJson(text);
        if (whole.contains("Input") && whole.contains("Schema")) whole = actions::Json(whole["Input"]);
        project.Attached = whole["Attached"].dump();
        std::string fault;
        (void)attachedOf(project, &fault);
        if (!fault.empty()) fail("Attached: " + fault);
    }
    return project;
}

}  // namespace borvik
