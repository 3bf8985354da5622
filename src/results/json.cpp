#include "results/json.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "calculation/check_working.h"
#include "exchange/attached.h"
#include "exchange/input_json.h"
#include "groups/group_runs.h"
#include "notes/notes.h"
#include "results/ratios.h"
#include "results/reaction_tables.h"
#include "second_opinion/second_opinion.h"

namespace borvik {

namespace {

/// JSON whose numbers are 32 bits wide, so that 0.1 is written as 0.1, and whose keys keep their order.
using Json =
    nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool, std::int64_t, std::uint64_t, float>;

Json json(Single number) {
    return number.stored();
}
Json json(std::int16_t number) {
    return number;
}
Json json(bool flag) {
    return flag;
}
Json json(const std::string& text) {
    return text;
}

template <class T>
Json json(const std::optional<T>& item);
Json json(const RowSet& rows, int count = kFatigueRows);

template <class Items>
Json list(const Items& items) {
    Json array = Json::array();
    for (const auto& item : items) array.push_back(json(item));
    return array;
}

template <class T>
Json json(const std::vector<T>& items) {
    return list(items);
}

Json json(const RowSet& rows, int count) {
    Json texts = Json::array();
    for (int row = 1; row <= count; ++row) texts.push_back(rows(row));
    return texts;
}

Json json(const Array<RowSet>& sets, int count) {
    Json array = Json::array();
    for (const RowSet& set : sets) array.push_back(json(set, count));
    return array;
}

template <class T>
Json json(const Array<T>& items) {
    return list(items);
}

Json json(const Table<Single>& table) {
    Json rows = Json::array();
    for (int row = 1; row <= table.rows(); ++row) {
        Json columns = Json::array();
        for (int column = 1; column <= table.columns(); ++column) columns.push_back(json(table(row, column)));
        rows.push_back(std::move(columns));
    }
    return rows;
}

Json json(const Cube<Single>& cube) {
    Json rows = Json::array();
    for (int row = 1; row <= cube.rows(); ++row) {
        Json columns = Json::array();
        for (int column = 1; column <= cube.columns(); ++column) {
            Json slots = Json::array();
            for (int slot = 1; slot <= cube.slots(); ++slot) slots.push_back(json(cube(row, column, slot)));
            columns.push_back(std::move(slots));
        }
        rows.push_back(std::move(columns));
    }
    return rows;
}

void addFields(Json&) {}

template <class Value, class... Others>
void addFields(Json& object, const char* name, const Value& value, const Others&... others) {
    object[name] = json(value);
    addFields(object, others...);
}

/// Object of alternating names and values.
template <class... NamesAndValues>
Json fields(const NamesAndValues&... namesAndValues) {
    Json object = Json::object();
    addFields(object, namesAndValues...);
    return object;
}

Json json(const SectionRecord& s) {
    return fields("Id", s.Id, "Fab", s.Fab, "TableName", s.TableName, "TableIndex", s.TableIndex, "CType", s.CType,  //
                  "ReinfText", s.ReinfText, "ReinfSuffix", s.ReinfSuffix, "Reinforced", s.Reinforced,                //
                  "DisplayName", s.DisplayName, "InUse", s.InUse,                                                    //
                  "h", s.h, "b1", s.b1, "b2", s.b2, "tw", s.tw, "tf1", s.tf1, "tf2", s.tf2, "R", s.R,                //
                  "ReinfD", s.ReinfD, "ReinfB", s.ReinfB, "ReinfT", s.ReinfT, "TfMax", s.TfMax,                      //
                  "A", s.A, "It", s.It, "Iy", s.Iy, "Iz", s.Iz, "IzLoadedFlange", s.IzLoadedFlange,                  //
                  "IzTop", s.IzTop, "IzBottom", s.IzBottom, "Iw", s.Iw, "GIt", s.GIt, "EIw", s.EIw, "Weight", s.Weight,
                  "EzEl", s.EzEl, "EzEffPos", s.EzEffPos, "EzEffNeg", s.EzEffNeg, "EzPl", s.EzPl,  //
                  "Hw", s.Hw, "CWeb", s.CWeb, "CTop", s.CTop, "CBottom", s.CBottom,                //
                  "ClassTopFlange", s.ClassTopFlange, "ClassBottomFlange", s.ClassBottomFlange,    //
                  "WebFatigueClass", s.WebFatigueClass, "ClassWebPos", s.ClassWebPos, "ClassWebNeg", s.ClassWebNeg,
                  "ClassPos", s.ClassPos, "ClassNeg", s.ClassNeg,                                      //
                  "Av", s.Av, "WyPos", s.WyPos, "WyNeg", s.WyNeg, "Wely1", s.Wely1, "Wely2", s.Wely2,  //
                  "WelMin", s.WelMin, "Wply", s.Wply, "WplZ", s.WplZ, "WplZTop", s.WplZTop, "WplZBottom", s.WplZBottom,
                  "WeffTopPos", s.WeffTopPos, "WeffBottomPos", s.WeffBottomPos,                        //
                  "WeffTopNeg", s.WeffTopNeg, "WeffBottomNeg", s.WeffBottomNeg,                        //
                  "VzRd", s.VzRd, "VplRd", s.VplRd,                                                    //
                  "MyRdPos", s.MyRdPos, "MyRdPosTop", s.MyRdPosTop, "MyRdPosBottom", s.MyRdPosBottom,  //
                  "MyRdNeg", s.MyRdNeg, "MyRdNegTop", s.MyRdNegTop, "MyRdNegBottom", s.MyRdNegBottom,  //
                  "MzRd", s.MzRd, "Zs", s.Zs, "Zg", s.Zg, "ZjPos", s.ZjPos, "ZjNeg", s.ZjNeg);
}

Json json(const PositionLog& log) {
    return fields("StepNo", log.StepNo, "StepSpan1", log.StepSpan1, "StepV1", log.StepV1, "StepA1", log.StepA1,  //
                  "StepB1", log.StepB1, "StepSpan2", log.StepSpan2, "StepV5", log.StepV5, "StepA5", log.StepA5,  //
                  "StepB5", log.StepB5);
}

Json json(const UlsResults& r) {
    return fields("RzMax", r.RzMax, "RzMin", r.RzMin, "RyMax", r.RyMax, "RyMin", r.RyMin,  //
                  "MyMaxPoint", r.MyMaxPoint, "MyMinPoint", r.MyMinPoint,                  //
                  "VzMaxPoint", r.VzMaxPoint, "VzMinPoint", r.VzMinPoint,                  //
                  "MzMaxPoint", r.MzMaxPoint, "MzMinPoint", r.MzMinPoint,                  //
                  "VyMaxPoint", r.VyMaxPoint, "VyMinPoint", r.VyMinPoint,                  //
                  "MyMaxSpan", r.MyMaxSpan, "MyMinSpan", r.MyMinSpan,                      //
                  "VzMaxSpan", r.VzMaxSpan, "VzMinSpan", r.VzMinSpan,                      //
                  "MzMaxSpan", r.MzMaxSpan, "MzMinSpan", r.MzMinSpan,                      //
                  "VyMaxSpan", r.VyMaxSpan, "VyMinSpan", r.VyMinSpan,                      //
                  "MySupportSpan", r.MySupportSpan);
}

Json json(const SlsResults& r) {
    return fields("UzMaxPoint", r.UzMaxPoint, "UyMaxPoint", r.UyMaxPoint,  //
                  "UzMaxSpan", r.UzMaxSpan, "UyMaxSpan", r.UyMaxSpan);
}

/// The rows of every check, its key before their names; null and empty texts where it doesn't apply. Governing rows of
/// deflections follow behind the spans of both.
Json json(const CheckResults& results) {
    Json object = Json::object();
    const auto addGoverning = [&](const StaticCheck& check, const CheckResult* result) {
        object[std::string(check.key) + "Gov"] = json(result ? result->governing : RowSet(), check.governingRows);
    };
    for (const StaticCheck& check : staticChecks()) {
        const CheckResult* result = results.find(check.key);
        if (result && result->check != &check) continue;
        const std::string key = check.key;
        for (std::size_t i = 0; i < check.extremes.size(); ++i)
            object[key + check.extremes[i].name] = result ? json(result->extremes[i], check.rows) : Json(nullptr);
        object[key + "Span"] = result ? json(result->spans, check.rows) : Json(nullptr);
        if (check.state == LimitState::Ultimate) addGoverning(check, result);
    }
    for (const StaticCheck& check : staticChecks())
        if (check.state == LimitState::Serviceability) addGoverning(check, results.find(check.key));
    return object;
}

Json json(const StressSet& s) {
    return fields("Sig1Max", s.Sig1Max, "Sig1Min", s.Sig1Min, "Sig1Range", s.Sig1Range,                          //
                  "Sig2Max", s.Sig2Max, "Sig2Min", s.Sig2Min, "Sig2Range", s.Sig2Range,                          //
                  "TauMax", s.TauMax, "TauMin", s.TauMin, "TauRange", s.TauRange,                                //
                  "SigSupMax", s.SigSupMax, "SigSupMin", s.SigSupMin, "SigSupRange", s.SigSupRange,              //
                  "RzMax", s.RzMax, "RzMin", s.RzMin,                                                            //
                  "Sig1MaxPeak", s.Sig1MaxPeak, "Sig1MinPeak", s.Sig1MinPeak, "Sig1RangePeak", s.Sig1RangePeak,  //
                  "Sig2MaxPeak", s.Sig2MaxPeak, "Sig2MinPeak", s.Sig2MinPeak, "Sig2RangePeak", s.Sig2RangePeak,  //
                  "TauMaxPeak", s.TauMaxPeak, "TauMinPeak", s.TauMinPeak, "TauRangePeak", s.TauRangePeak);
}

template <class T>
Json json(const std::optional<T>& item) {
    return item ? json(*item) : Json(nullptr);
}

Json stressSets(const FatigueResults& fatigue) {
    return fields("Cr1", fatigue.Cr1, "Cr2", fatigue.Cr2, "Cr12", fatigue.Cr12);
}

Json fatigueRows(const FatigueResults& fatigue) {
    Json object = Json::object();
    for (int detail = 1; detail <= 6; ++detail) {
        object["FatRows" + std::to_string(detail)] = json(fatigue.FatRows(detail));
        object["FatResult" + std::to_string(detail)] = json(fatigue.FatResult(detail));
    }
    return object;
}

Json projectHead(const Project& p) {
    return fields("Proj", p.Proj, "Ident", p.Ident, "NofSpans", p.NofSpans, "BeamLength", p.BeamLength,  //
                  "CraneLength1", p.CraneLength1, "CraneLength2", p.CraneLength2, "CranesLength", p.CranesLength);
}

Json note(const NoteRule& rule, const NoteFinding& finding) {
    Json changes = Json::array();
    for (const NoteChange& change : finding.changes)
        changes.push_back(fields("What", change.what, "Shown", Single(change.shown), "Other", Single(change.other),
                                 "Ratio", change.ratio));
    Json object =
        fields("Key", std::string(rule.key), "Check", std::string(nameOf(rule.check)), "Effect",
               std::string(nameOf(rule.effect)), "Assumption", rule.assumption, "Says", std::string(rule.says), "With",
               std::string(rule.with), "Clause", std::string(rule.clause), "Here", finding.remark);
    object["Changes"] = std::move(changes);
    return object;
}

/// The notes in their order, then the assumptions.
Json json(const Notes& notes) {
    Json array = Json::array();
    for (const Note& each : notes.notes) array.push_back(note(*each.rule, each.finding));
    for (const NoteRule* rule : notes.assumptions) array.push_back(note(*rule, {}));
    return array;
}

/// Null where there is no such number: an infinite factor.
Json finite(double value) {
    return std::isfinite(value) ? Json(value) : Json(nullptr);
}

Json json(const AnnexA& annex) {
    const AnnexAInput& in = annex.of;
    return {{"My", in.My},
            {"Mz", in.Mz},
            {"B", in.B},
            {"MbRd", in.MbRd},
            {"MzRd", in.MzRd},
            {"BRd", in.BRd},
            {"CMz", in.CMz},
            {"kw", annex.kw},
            {"kzw", annex.kzw},
            {"kalpha", finite(annex.kalpha)},
            {"Ratio", finite(annex.ratio)}};
}

Json json(const PositionOpinion& p) {
    const TorsionState& t = p.cut.torsion;
    Json object{{"Extremes", p.extremes}, {"Wheel1", p.wheel1}, {"Eccentricity", p.eccentricity}};
    object["Factor"] = p.factor ? Json(*p.factor) : Json(nullptr);
    object["BucklingSpan"] = p.factor ? Json(p.bucklingSpan) : Json(nullptr);
    for (const auto& [key, of] : {std::pair("Sagging", p.sagging), std::pair("Hogging", p.hogging)})
        object[key] = {{"My", of.My}, {"Mz", of.Mz}, {"Mcr", of.Mcr}, {"ChiLT", of.chi}, {"Ratio", of.ratio}};
    object["Torsion"] = {{"Mz", p.Mz}, {"B", p.B}, {"Phi", p.phi}, {"Tw", p.Tw}, {"FlangeMoment", p.flangeMoment}};
    object["Elastic"] = {{"X", t.x},
                         {"My", p.cut.My},
                         {"Vz", p.cut.Vz},
                         {"Mz", p.cut.Mz},
                         {"Vy", p.cut.Vy},
                         {"B", t.B},
                         {"Phi", t.phi},
                         {"Tt", t.Tt},
                         {"Tw", t.Tw()},
                         {"Tips", p.stresses.tips},
                         {"TauFlange", p.stresses.tauFlange},
                         {"TauMiddle", p.stresses.tauMiddle},
                         {"TauWeb", p.stresses.tauWeb},
                         {"Equivalent", p.stresses.equivalent},
                         {"Ratio", p.stresses.ratio}};
    object["AnnexA"] = p.annex ? json(*p.annex) : Json(nullptr);
    object["Ratio"] = finite(p.ratio());
    return object;
}

Json json(const SecondOpinion& opinion) {
    Json object{{"Fault", opinion.fault.empty() ? Json(nullptr) : Json(opinion.fault)},
                {"NoAnnexA", opinion.noAnnex.empty() ? Json(nullptr) : Json(opinion.noAnnex)},
                {"LowestFactor", opinion.lowestFactor > 0 ? Json(opinion.lowestFactor) : Json(nullptr)},
                {"LargestRatio", finite(opinion.largestRatio())},
                {"Spans", Json::array()},
                {"Mode", Json::array()},
                {"TorsionLine", Json::array()}};
    for (const SpanOpinion& span : opinion.spans) {
        const LineSection& s = span.section.line;
        Json of{{"Iz", s.Iz}, {"It", s.It}, {"Iw", s.Iw}, {"Zj", s.zj}, {"Governing", span.governing}};
        of["Checked"] = Json::array();
        for (const auto& checked : span.checked)
            of["Checked"].push_back(checked ? Json{{"My", checked->My},
                                                   {"Mcr", checked->Mcr},
                                                   {"ChiLT", checked->chi},
                                                   {"Ratio", checked->ratio}}
                                            : Json(nullptr));
        of["Positions"] = Json::array();
        for (const PositionOpinion& position : span.positions) of["Positions"].push_back(json(position));
        object["Spans"].push_back(std::move(of));
    }
    for (const ModePoint& point : opinion.mode)
        object["Mode"].push_back({{"X", point.x}, {"V", point.v}, {"Phi", point.phi}});
    for (const TorsionState& t : opinion.torsion)
        object["TorsionLine"].push_back({{"X", t.x}, {"Phi", t.phi}, {"B", t.B}, {"Tt", t.Tt}, {"Tw", t.Tw()}});
    return object;
}

Json json(const SupportForces& forces) {
    Json array = Json::array();
    for (const SupportForce& force : forces) array.push_back({{"Rz", force.Rz}, {"Ry", force.Ry}});
    return array;
}

Json json(const std::vector<PlacedWheel>& wheels) {
    Json array = Json::array();
    for (const PlacedWheel& wheel : wheels)
        array.push_back({{"Wheel", wheel.number}, {"X", wheel.x}, {"V", wheel.V}, {"H", wheel.H}});
    return array;
}

Json json(const EndForces& end) {
    Json object;
    for (const auto& [key, force] : {std::pair("Reactions", end.total), std::pair("G", end.dead),
                                     std::pair("Q", end.crane), std::pair("QDynamic", end.craneDynamic)})
        object[key] = {{"Rz", force.Rz}, {"Ry", force.Ry}};
    return object;
}

Json json(const SupportReactions& reactions) {
    Json object{{"Eccentricity", reactions.eccentricity}, {"Sets", Json::array()}};
    for (const ReactionSet& set : reactions.sets) {
        Json of{{"Loads", nameOf(set)}, {"Extremes", Json::array()}};
        for (const ReactionCase& each : set.cases) {
            of["Extremes"].push_back({{"Support", each.support},
                                      {"Extreme", nameOf(each)},
                                      {"OfCranesAlone", each.ofCranesAlone},
                                      {"Wheels", json(each.wheels)},
                                      {"Reactions", json(each.total)},
                                      {"G", json(each.dead)},
                                      {"Q", json(each.crane)},
                                      {"QDynamic", json(each.craneDynamic)}});
        }
        object["Sets"].push_back(std::move(of));
    }
    object["Joints"] = Json::array();
    for (const JointReactions& joint : reactions.joints) {
        Json of{{"Support", joint.support}, {"Mirrored", joint.mirrored}, {"Extremes", Json::array()}};
        for (const JointCase& each : joint.cases)
            of["Extremes"].push_back(
                {{"Extreme", std::string(each.effect == Effect::Rz ? "Rz" : "Ry") + (each.largest ? " max" : " min")},
                 {"Wheels", json(each.wheels)},
                 {"Left", json(each.left)},
                 {"Right", json(each.right)}});
        object["Joints"].push_back(std::move(of));
    }
    return object;
}

Json json(const std::vector<CheckWorking>& workings) {
    Json array = Json::array();
    for (const CheckWorking& working : workings) {
        Json of{{"Check", working.key}, {"Title", working.title}, {"Span", working.span}, {"Lines", Json::array()}};
        for (std::size_t i = 0; i < working.steps.size(); ++i) {
            const WorkingStep& step = working.steps[i];
            if (step.isHeading)
                of["Lines"].push_back({{"Heading", step.symbol}});
            else
                of["Lines"].push_back({{"Symbol", step.symbol},
                                       {"Formula", step.formula},
                                       {"Numbers", withNumbers(working.steps, i)},
                                       {"Value", finite(step.value)},
                                       {"Unit", step.unit},
                                       {"Clause", step.clause}});
        }
        array.push_back(std::move(of));
    }
    return array;
}

Json sections(const Project& project) {
    Json array = Json::array();
    for (int span = 1; span <= project.NofSpans; ++span) array.push_back(json(project.SpanSection(span)));
    return array;
}

Json json(const GroupMatrix& matrix) {
    Json runs = Json::array();
    for (const GroupRun& run : matrix.runs) {
        Json ratios = Json::object();
        for (std::size_t column = 0; column < matrix.checks.size(); ++column) {
            const auto& ratio = run.ratios[column];
            ratios[matrix.checks[column]] = ratio && std::isfinite(*ratio) ? json(Single(*ratio)) : Json(nullptr);
        }
        runs.push_back(fields("Name", nameOf(run.choice), "Group", static_cast<std::int16_t>(run.choice.group), "Crane",
                              static_cast<std::int16_t>(run.choice.crane), "Reversed", run.choice.reversed, "FarRail",
                              run.choice.farRail, "Refusal", run.refusal));
        runs.back()["Ratios"] = std::move(ratios);
        runs.back()["HL"] = json(Single(run.HL));
        Json reactions = Json::array();
        for (const GroupReaction& each : run.reactions)
            reactions.push_back(fields("RzMax", Single(each.RzMax), "RzMin", Single(each.RzMin), "RyMax",
                                       Single(each.RyMax), "RyMin", Single(each.RyMin)));
        runs.back()["Reactions"] = std::move(reactions);
    }
    Json governing = Json::object();
    for (std::size_t column = 0; column < matrix.checks.size(); ++column) {
        const int row = matrix.governing[column];
        governing[matrix.checks[column]] =
            row < 0 ? Json(nullptr) : Json(nameOf(matrix.runs[static_cast<std::size_t>(row)].choice));
    }
    Json all = Json::object();
    all["Runs"] = std::move(runs);
    all["Governing"] = std::move(governing);
    all["LargestRatio"] = matrix.largestRun < 0 ? Json(nullptr) : json(Single(matrix.largest));
    return all;
}

}  // namespace

std::string resultsJson(const Session& session, const std::vector<std::string>& messages,
                        const std::optional<std::string>& file, const std::string& program, const JsonExtras& extras) {
    Json document = fields("Schema", std::int16_t{1}, "Program", program, "File", file, "Calculated",
                           session.Calculated, "Messages", messages);
    document["Fault"] = session.Fault.empty() ? Json(nullptr) : json(session.Fault);
    document["Project"] = projectHead(session.project);
    for (const char* key : {"Sections", "Uls", "Sls", "Checks", "Fls", "Steps", "Fatigue", "Notes", "LargestRatio"})
        document[key] = nullptr;
    if (session.Calculated && session.results) {
        const Results& results = *session.results;
        document["Sections"] = sections(session.project);
        document["Uls"] = json(results.Uls);
        document["Sls"] = json(results.Sls);
        document["Checks"] = json(results.Checks);
        document["Fls"] = stressSets(results.Fatigue);
        document["Steps"] = json(results.Steps);
        document["Fatigue"] = fatigueRows(results.Fatigue);
        if (extras.notes && session.notes) document["Notes"] = json(*session.notes);
        const double largest = verdictOf(results).largest;
        document["LargestRatio"] = std::isfinite(largest) ? json(Single(largest)) : Json(nullptr);
    }
    Project plain = session.project;
    plain.Attached.clear();
    document["Input"] = Json::parse(inputJson(plain));
    if (!session.project.Attached.empty()) document["Input"]["Attached"] = kAttachedMark;
    if (extras.opinion != nullptr) document["SecondOpinion"] = json(*extras.opinion);
    if (extras.workings != nullptr) document["Derivations"] = json(*extras.workings);
    if (extras.reactions != nullptr) document["SupportReactions"] = json(*extras.reactions);
    if (extras.groups != nullptr) document["Groups"] = json(*extras.groups);
    // A file name need not be UTF-8; what isn't becomes the replacement character.
    return withAttached(document.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n", session.project);
}

}  // namespace borvik
