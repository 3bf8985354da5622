#include "options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <map>
#include <string_view>
#include <system_error>

#include "diagrams/diagrams.h"
#include "exit_codes.h"
#include "pictures.h"
#include "platform/version.h"
#include "results/tables.h"

namespace borvik {

namespace fs = std::filesystem;

namespace {

constexpr const char* kFooter = R"(
Messages go to standard error with the file's name in front.
Exit: 0 done, 1 a ratio above X, 2 usage, 3 refused by the input checks, 4 run-time fault in the
calculation, 5 a file can't be read or written. Of several projects the highest counts.)";

std::string listOf(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) list += (list.empty() ? "" : ", ") + name;
    return list;
}

std::string tableNames() {
    std::vector<std::string> names;
    for (const TableEntry& entry : tableEntries()) names.emplace_back(entry.name);
    return listOf(names);
}

std::string lowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

/// "2:3000" or "2:3000:150".
std::optional<SpanSupport> lateralSupport(const std::string& text) {
    SpanSupport support;
    double z = 0;
    char rest = 0;
    const int found = std::sscanf(text.c_str(), "%d:%lf:%lf%c", &support.span, &support.a, &z, &rest);
    if (found < 2 || found > 3 || (found == 2 && std::count(text.begin(), text.end(), ':') != 1)) return std::nullopt;
    if (!std::isfinite(support.a) || !std::isfinite(z)) return std::nullopt;
    if (found == 3) support.z = z;
    return support;
}

/// What makes the report a document of an office.
void addOfficeOptions(CLI::App& app, Options& options, CLI::Option* report) {
    constexpr std::size_t kMostLetters = 200;
    CLI::Option* firstPage =
        app.add_flag("--first-page", options.extras.firstPage,
                     "The report begins with a page of project, office, largest ratios, standards and contents");
    firstPage->needs(report);
    for (const OfficeField& field : officeFields())
        app.add_option(std::string("--") + field.option, options.extras.office.*field.text,
                       std::string("On the first page: ") + field.title)
            ->type_name("TEXT")
            ->needs(firstPage)
            ->check([](const std::string& text) {
                return text.size() <= kMostLetters ? std::string() : "a text of at most 200 letters is needed";
            });
    app.add_option("--logo", options.extras.logo, "Picture at the head of the report's pages (PNG, JPEG or SVG)")
        ->type_name("FILE")
        ->needs(report);
}

void addOptions(CLI::App& app, Options& options) {
    const std::map<std::string, WalkMethod> walks{{"plain", WalkMethod::Plain}, {"fast", WalkMethod::Fast}};
    const std::map<std::string, DecimalSign> decimals{{"point", DecimalSign::Point}, {"comma", DecimalSign::Comma}};
    const std::map<std::string, ReportScope> scopes{{"uls", ReportScope::Uls},
                                                    {"uls-sls", ReportScope::UlsSls},
                                                    {"all", ReportScope::All},
                                                    {"compressed", ReportScope::Compressed}};
    CLI::Option* files = app.add_option("FILE", options.files, "Projects to calculate (.brvk)")->type_name("");
    CLI::Option* useDefault = app.add_flag("--default", options.useDefault, "The default project instead of files");
    useDefault->excludes(files);
    app.add_option("--from-json", options.fromJson,
                   "A project made of input in JSON instead of files: the \"Input\" of --json, or an object like it")
        ->type_name("FILE")
        ->excludes(files)
        ->excludes(useDefault);
    app.add_option("--tables", options.tables,
                   "Folder of the reference tables (default: beside the program, then the installed data folder)")
        ->type_name("DIR");
    app.add_flag("--summary", options.summary,
                 "Print the summary: control, ratio, reference, ratios over 1 marked (the default when no other "
                 "output is asked)");
    app.add_flag("--notes", options.notes,
                 "Print what the checks assume and leave out where it matters in the project, with the ratio it would "
                 "lead to");
    CLI::Option* opinion = app.add_flag("--second-opinion", options.secondOpinion,
                                        "Print torsion with warping and lateral torsional buckling by finite elements, "
                                        "with EN 1993-6 Annex A; --json then holds them too");
    app.add_option_function<std::vector<std::string>>(
           "--lateral-supports",
           [&options](const std::vector<std::string>& texts) {
               for (const std::string& text : texts)
                   options.opinionOptions.lateralSupports.push_back(*lateralSupport(text));
           },
           "Points held sideways for it: span, mm from its left support and, where it is not the middle of the top "
           "flange, mm above the shear centre")
        ->type_name("SPAN:MM[:Z],...")
        ->delimiter(',')
        ->needs(opinion)
        ->check([](const std::string& text) {
            return lateralSupport(text) ? std::string() : "a place such as 2:3000 is needed, not \"" + text + "\"";
        });
    app.add_flag("--warping-free", options.opinionOptions.freeWarping,
                 "Girders jointed at the supports: their ends warp alone")
        ->needs(opinion);
    app.add_flag("--values", options.values,
                 "Print how each governing ratio comes about, line by line; --json then holds it "
                 "too");
    app.add_flag("--groups", options.groups,
                 "Calculate every group of loads of the project's crane data and print their ratios beside each other; "
                 "--json then holds them too");
    app.add_flag("--reactions", options.reactions,
                 "Print the reactions for the design of supports, by parts and by position of the cranes; --json then "
                 "holds them too");
    app.add_option(
           "--neighbour", options.neighbour,
           "The project whose beam ends on the same end supports, for the sum of two ends (default: the same beam "
           "mirrored)")
        ->type_name("FILE.brvk");
    app.add_option("--reactions-csv", options.reactionsCsv,
                   "Write each of their extremes with what acts at all supports then as comma-separated values")
        ->type_name("FILE");
    app.add_option("--reactions-xlsx", options.reactionsXlsx, "Write the same to a spreadsheet, a sheet each support")
        ->type_name("FILE");
    app.add_option("--json", options.json,
                   "Write all results as JSON; \"-\" is standard output; with several projects a folder")
        ->type_name("FILE");
    app.add_option("--table", options.table, "Print a result table, columns separated by tabs")
        ->type_name("NAME")
        ->check([](const std::string& name) {
            return findTable(name) != nullptr ? std::string() : "unknown table: one of " + tableNames();
        });
    app.add_option("--xlsx", options.xlsx, "Write the table to a spreadsheet instead")
        ->type_name("FILE")
        ->needs("--table");
    app.add_option("--csv", options.csv, "Write the table as comma-separated values instead; \"-\" is standard output")
        ->type_name("FILE")
        ->needs("--table")
        ->excludes("--xlsx");
    app.add_option("--decimal", options.decimal,
                   "Decimal sign of --csv and --reactions-csv; with a comma, semicolons part the cells")
        ->type_name("point|comma")
        ->transform(CLI::Transformer(decimals))
        ->option_text("point|comma (default: point)");
    app.add_option("--workbook", options.workbook, "Write all tables to a spreadsheet, a sheet each")
        ->type_name("FILE");
    app.add_flag("--fingerprint", options.fingerprint,
                 "Print the fingerprint of the input: the first digits of the SHA-256 of its file");
    if (kHasPictures) {
        CLI::Option* report =
            app.add_option("--report", options.report, "Write the report as PDF; with several projects a folder");
        report->type_name("FILE");
        app.add_option("--paper", options.paper, "Size of the report's pages")
            ->type_name("a4|letter")
            ->check(CLI::IsMember({"a4", "letter"}))
            ->option_text("a4|letter (default: as is the custom of the locale)")
            ->needs(report);
        app.add_option("--scope", options.scope, "What the report covers")
            ->type_name("uls|uls-sls|all|compressed")
            ->transform(CLI::Transformer(scopes))
            ->option_text("uls|uls-sls|all|compressed (default: all)")
            ->needs(report);
        for (const ExtraChapter& chapter : extraChapters())
            app.add_flag("--with-" + lowerCase(chapter.name), options.extras.*chapter.wanted,
                         std::string("The report tells ") + chapter.holds)
                ->needs(report);
        addOfficeOptions(app, options, report);
        CLI::Option* picture = app.add_option("--png", options.picture, "File of the diagram; .svg makes an SVG of it");
        picture->type_name("FILE");
        CLI::Option* diagram =
            app.add_option("--diagram", options.diagram, "Draw a diagram of the results, or the sketch");
        diagram->type_name("NAME")->needs(picture)->check([](const std::string& name) {
            return isPictureName(name) ? std::string() : "unknown diagram: one of " + listOf(pictureNames());
        });
        picture->needs(diagram);
        app.add_option("--at", options.at,
                       "Put crane 1 into the diagram, its first wheel so many mm from the start of a span; behind a "
                       "comma crane 2")
            ->type_name("SPAN:MM[,SPAN:MM]")
            ->needs(diagram)
            ->check([](const std::string& text) {
                return beamPlaces(text).empty() ? "a place such as 2:4600 is needed, not \"" + text + "\""
                                                : std::string();
            });
    }
    app.add_option("--save", options.save, "Write the project as it stands after the run")->type_name("FILE.brvk");
    app.add_option("--fail-above", options.failAbove, "Exit 1 if any ratio is greater than X")
        ->check([](const std::string& text) {
            double limit = -1.0;
            const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), limit);
            const bool isRatio = error == std::errc() && *end == '\0' && std::isfinite(limit) && limit >= 0.0;
            return isRatio ? std::string() : "a ratio such as 1.0 is needed, not \"" + text + "\"";
        })
        ->option_text("X");
    app.add_option("--walk", options.walk, "How the cranes are walked along the beam; both give the same results")
        ->type_name("plain|fast")
        ->transform(CLI::Transformer(walks))
        ->option_text("plain|fast (default: fast)");
    app.add_flag("--quiet", options.quiet, "No progress, and no summary unless it is asked for");
    // Crane data are not a project: nothing else can be asked for beside them.
    const std::vector<CLI::Option*> ofProjects =
        app.get_options([&](const CLI::Option* option) { return option != app.get_help_ptr(); });
    CLI::Option* craneLoads =
        app.add_option("--crane-loads", options.craneLoads,
                       "Print wheel loads to EN 1991-3 of the crane data in a JSON file, as JSON");
    craneLoads->type_name("FILE.json");
    for (CLI::Option* option : ofProjects) craneLoads->excludes(option);
    app.set_version_flag("--version", kProgramAndVersion);
    app.footer(kFooter);
}

bool sameFile(const std::string& one, const std::string& other) {
    std::error_code notThere;
    return one == other || fs::equivalent(one, other, notThere);
}

/// What takes outputs without becoming a file: a device or a pipe.
bool isDevice(const std::string& path) {
    std::error_code unknown;
    return fs::is_other(path, unknown);
}

bool endsWith(const std::string& text, std::string_view ending) {
    return lowerCase(text).ends_with(ending);
}

/// An output must never take the place of a project, its own or another: a forgotten file name before "*.brvk" makes
/// the first project the output.
void checkOutputs(const Options& options) {
    struct Output {
        const char* option;
        const std::string& file;
    };
    const Output outputs[] = {{"--json", options.json},
                              {"--xlsx", options.xlsx},
                              {"--csv", options.csv},
                              {"--workbook", options.workbook},
                              {"--reactions-csv", options.reactionsCsv},
                              {"--reactions-xlsx", options.reactionsXlsx},
                              {"--report", options.report},
                              {"--png", options.picture},
                              {"--save", options.save}};
    for (const Output& output : outputs) {
        if (output.file.empty()) continue;
        if (output.file == "-") {
            const std::string_view option = output.option;
            if (option == "--json" || option == "--csv") continue;
            throw CLI::ValidationError(output.option, "needs the name of a file");
        }
        const bool isProject = output.option == std::string_view("--save");
        std::error_code unknown;
        const std::string behindLinks = fs::weakly_canonical(output.file, unknown).string();
        if (!isProject && (endsWith(output.file, ".brvk") || endsWith(behindLinks, ".brvk")))
            throw CLI::ValidationError(output.option, "would overwrite the project " + output.file);
        std::vector<std::string> inputs = options.files;
        if (!options.fromJson.empty()) inputs.push_back(options.fromJson);
        if (!options.neighbour.empty()) inputs.push_back(options.neighbour);
        if (!options.extras.logo.empty()) inputs.push_back(options.extras.logo);
        for (const std::string& input : inputs)
            if (sameFile(output.file, input))
                throw CLI::ValidationError(output.option, "would overwrite its input " + input);
        for (const Output& other : outputs)
            if (&other < &output && !other.file.empty() && sameFile(other.file, output.file) && !isDevice(output.file))
                throw CLI::ValidationError(output.option, "is the same file as that of " + std::string(other.option));
    }
    if (!options.picture.empty() && !isDevice(options.picture) && !endsWith(options.picture, ".png") &&
        !endsWith(options.picture, ".svg"))
        throw CLI::ValidationError("--png", options.picture + " ends in neither .png nor .svg");
}

/// What the single options can't see.
void checkTogether(const Options& options) {
    if (!options.craneLoads.empty()) return;
    if (options.projects() == 0) throw CLI::RequiredError("A project file, or --default,");
    if (options.projects() > 1 && !options.save.empty())
        throw CLI::ValidationError("--save", "takes the project of a single file");
    if (options.projects() > 1 && !options.xlsx.empty())
        throw CLI::ValidationError("--xlsx", "takes the table of a single project");
    if (options.projects() > 1 && !options.workbook.empty())
        throw CLI::ValidationError("--workbook", "takes the tables of a single project");
    if (options.projects() > 1 && !(options.reactionsCsv.empty() && options.reactionsXlsx.empty()))
        throw CLI::ValidationError("--reactions-csv", "and --reactions-xlsx take the reactions of a single project");
    if (options.decimal && options.csv.empty() && options.reactionsCsv.empty())
        throw CLI::ValidationError("--decimal", "needs --csv or --reactions-csv");
    if (options.projects() > 1 && !options.csv.empty() && options.csv != "-")
        throw CLI::ValidationError("--csv", "takes the table of a single project");
    if (options.projects() > 1 && !options.picture.empty())
        throw CLI::ValidationError("--png", "takes the diagram of a single project");
    if (!options.neighbour.empty() && !options.wantsReactions())
        throw CLI::ValidationError("--neighbour", "needs --reactions, --reactions-csv or --reactions-xlsx");
    checkOutputs(options);
}

}  // namespace

std::variant<Options, int> parseOptions(int argc, const char* const* argv) {
    Options options;
    CLI::App app("Checks steel crane runway beams to EN 1993 without a window.", "borvik-calc");
    addOptions(app, options);
    app.failure_message([](const CLI::App* program, const CLI::Error& error) {
        return program->get_name() + ": " + error.what() + "\nRun with --help for more information.\n";
    });
    try {
        app.parse(argc, argv);
        checkTogether(options);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? int{kDone} : int{kUsage};
    }
    return options;
}

}  // namespace borvik
