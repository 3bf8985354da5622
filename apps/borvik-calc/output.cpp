#include "output.h"

#include <array>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <system_error>

#include "base/shown_text.h"
#include "base/whole_file.h"
#include "exchange/attached.h"
#include "pictures.h"
#include "platform/version.h"
#include "project/project_file.h"
#include "report_file.h"
#include "results/group_tables.h"
#include "results/json.h"
#include "results/notes_text.h"
#include "results/reaction_tables.h"
#include "results/second_opinion_text.h"
#include "results/spreadsheet.h"
#include "results/summary.h"
#include "results/tables.h"
#include "results/values_text.h"

namespace borvik {

namespace fs = std::filesystem;

namespace {

WorkbookHead headOf(const FinishedRun& run) {
    const std::time_t now = std::time(nullptr);
    std::array<char, sizeof "2026-01-31"> date{};
    std::strftime(date.data(), date.size(), "%Y-%m-%d", std::localtime(&now));
    return {run.session.project.Proj, run.session.project.Ident, run.file.value_or(""), date.data(),
            kProgramAndVersion};
}

void print(const std::string& text) {
    if (!(std::cout << text << std::flush)) throw OutputError("can't write to standard output");
}

}  // namespace

std::vector<std::string> Outputs::write(const FinishedRun& run) {
    std::vector<std::string> remarks;
    std::string failed;
    const auto attempt = [&](auto&& output) {
        try {
            output();
        } catch (const std::runtime_error& error) {
            failed += (failed.empty() ? "" : "; ") + std::string(error.what());
        }
    };
    if (!options_.save.empty())
        attempt([&] {
            if (!SaveProject(options_.save, run.session.project))
                remarks.push_back("characters beyond Windows-1252 were saved as \"?\"");
        });
    if (!options_.json.empty()) attempt([&] { writeJson(run); });
    if (!options_.table.empty()) attempt([&] { writeTable(run); });
    if (!options_.workbook.empty()) attempt([&] { writeWorkbook(run); });
    if (options_.fingerprint)
        attempt([&] { print(run.fingerprint + "  " + withoutControls(run.file.value_or("default project")) + "\n"); });
    if (!options_.report.empty())
        attempt([&] {
            if (canReport(run.session))
                writeReport(run);
            else
                remarks.push_back("no report without results");
        });
    if (!options_.diagram.empty())
        attempt([&] {
            const std::string remark =
                savePictureOf(run.session, options_.diagram, beamPlaces(options_.at), options_.picture);
            if (!remark.empty()) remarks.push_back(remark);
        });
    if (options_.printsSummary()) attempt([&] { writeSummary(run); });
    if (options_.notes) attempt([&] { writeNotes(run); });
    if (options_.secondOpinion) attempt([&] { writeSecondOpinion(run); });
    if (run.workings != nullptr) attempt([&] { printText(run, valuesText(*run.workings)); });
    if (run.reactions != nullptr) attempt([&] { writeReactions(run); });
    if (options_.groups && run.groups != nullptr) attempt([&] { writeGroups(run); });
    if (!failed.empty()) throw OutputError(failed);
    return remarks;
}

void Outputs::writeJson(const FinishedRun& run) {
    const std::string text =
        resultsJson(run.session, run.messages, run.file, kProgramAndVersion,
                    {options_.notes, run.opinion, run.workings, options_.reactions ? run.reactions : nullptr,
                     options_.groups ? run.groups : nullptr});
    if (options_.json == "-") {
        print(text);
        return;
    }
    const std::string file = fileFor(options_.json, run, ".json");
    std::error_code notThere;
    for (const std::string& input : options_.files)
        if (fs::equivalent(file, input, notThere)) throw OutputError("would overwrite its input " + file);
    naming(file, [&] { replaceFile(file, text); });
}

void Outputs::writeReport(const FinishedRun& run) {
    saveReport(run.session, {options_.scope, options_.extras, options_.paper}, fileFor(options_.report, run, ".pdf"));
}

std::string Outputs::fileFor(const std::string& target, const FinishedRun& run, const char* ending) {
    if (options_.projects() == 1 && !fs::is_directory(target)) return target;
    std::error_code failed;
    fs::create_directories(target, failed);
    const std::string stem = run.file ? fs::path(*run.file).stem().string() : "default";
    const auto file = [&](const std::string& name) { return (fs::path(target) / (name + ending)).string(); };
    std::string name = stem;
    for (int number = 2; !taken_.insert(file(name)).second; ++number) name = stem + "-" + std::to_string(number);
    return file(name);
}

/// Several projects make one text, each under its name.
void Outputs::writeTable(const FinishedRun& run) {
    if (!run.session.Calculated || !run.session.results) return;
    if (!findTable(options_.table)->isAvailable(run.session.project))
        throw OutputError("this project has no table " + options_.table);
    if (!options_.xlsx.empty()) {
        writeSpreadsheet(run);
        return;
    }
    const ResultTable table = findTable(options_.table)->fill(run.session.project, *run.session.results);
    if (!options_.csv.empty() && options_.csv != "-") {
        naming(options_.csv,
               [&] { replaceFile(options_.csv, csvText(table, options_.decimal.value_or(DecimalSign::Point))); });
        return;
    }
    const std::string text = options_.projects() > 1 ? run.file.value_or("") + "\n" : "";
    print(text +
          (options_.csv.empty() ? tabSeparated(table) : csvText(table, options_.decimal.value_or(DecimalSign::Point))));
}

void Outputs::writeSpreadsheet(const FinishedRun& run) {
    const TableEntry& entry = *findTable(options_.table);
    naming(options_.xlsx, [&] {
        saveSpreadsheet(options_.xlsx, entry.fill(run.session.project, *run.session.results), entry.title, headOf(run));
    });
}

void Outputs::writeWorkbook(const FinishedRun& run) {
    const Session& session = run.session;
    if (!session.Calculated || !session.results) return;
    std::vector<NamedTable> tables;
    for (const TableEntry& entry : tableEntries())
        if (entry.isAvailable(session.project))
            tables.push_back({entry.title, entry.fill(session.project, *session.results)});
    naming(options_.workbook, [&] { saveWorkbook(options_.workbook, tables, headOf(run)); });
}

void Outputs::writeSummary(const FinishedRun& run) {
    printText(
        run, summaryText(run.session) +
                 (run.groups == nullptr ? "" : "Of all groups of its crane data " + governingText(*run.groups) + "\n"));
}

void Outputs::writeNotes(const FinishedRun& run) {
    printText(run, notesText(run.session));
}

void Outputs::writeSecondOpinion(const FinishedRun& run) {
    printText(run, secondOpinionText(run.session, run.opinion != nullptr ? *run.opinion : SecondOpinion{}));
}

void Outputs::writeReactions(const FinishedRun& run) {
    const Session& session = run.session;
    if (options_.reactions) {
        std::string text = reactionsText(session.project, *session.results, *run.reactions);
        if (run.groups != nullptr) {
            const ResultTable ofGroups = tableOfReactions(*run.groups);
            text += "\nReactions of all groups\n" + tableText(ofGroups) + ofGroups.note + "\n" +
                    buffersText(attachedOf(session.project).cranes);
        }
        printText(run, text);
    }
    if (!options_.reactionsCsv.empty())
        naming(options_.reactionsCsv, [&] {
            replaceFile(options_.reactionsCsv,
                        csvText(actingTogether(*run.reactions, 0), options_.decimal.value_or(DecimalSign::Point)));
        });
    if (!options_.reactionsXlsx.empty())
        naming(options_.reactionsXlsx, [&] {
            saveWorkbook(options_.reactionsXlsx, sheetsOf(*run.reactions, session.project.NofSpans + 1), headOf(run));
        });
}

void Outputs::writeGroups(const FinishedRun& run) {
    printText(run, groupsText(*run.groups));
}

void Outputs::printText(const FinishedRun& run, const std::string& text) {
    print((textPrinted_ ? "\n" : "") + (run.file ? withoutControls(*run.file) + "\n" : "") +
          withoutControls(text, "\n"));
    textPrinted_ = true;
}

}  // namespace borvik
