#include "options.h"

#include <CLI/CLI.hpp>
#include <map>

#include "exit_codes.h"
#include "platform/version.h"

namespace borvik {

namespace {

constexpr const char* kFooter = R"(
Messages go to standard error with the file's name in front.
Exit: 0 done, 1 a ratio above X, 2 usage, 3 refused by the input checks, 4 run-time fault in the
calculation, 5 a file can't be read or written. Of several projects the highest counts.)";

void addOptions(CLI::App& app, Options& options) {
    const std::map<std::string, WalkMethod> walks{{"plain", WalkMethod::Plain}, {"fast", WalkMethod::Fast}};
    CLI::Option* files = app.add_option("FILE", options.files, "Projects to calculate (.brvk)")->type_name("");
    app.add_flag("--default", options.useDefault, "The default project instead of files")->excludes(files);
    app.add_option("--tables", options.tables,
                   "Folder of the reference tables (default: beside the program, then the installed data folder)")
        ->type_name("DIR");
    app.add_flag("--summary", options.summary,
                 "Print the summary: control, ratio, reference, ratios over 1 marked (the default when no other "
                 "output is asked)");
    app.add_option("--json", options.json,
                   "Write all results as JSON; \"-\" is standard output; with several projects a folder")
        ->type_name("FILE");
    app.add_option("--save", options.save, "Write the project as it stands after the run")->type_name("FILE.brvk");
    app.add_option("--fail-above", options.failAbove, "Exit 1 if any ratio is greater than X")
        ->type_name("X")
        ->check(CLI::NonNegativeNumber);
    app.add_option("--walk", options.walk, "How the cranes are walked along the beam; both give the same results")
        ->type_name("plain|fast")
        ->transform(CLI::Transformer(walks))
        ->option_text("plain|fast (default: fast)");
    app.add_flag("--quiet", options.quiet, "No progress, and no summary unless it is asked for");
    app.set_version_flag("--version", kProgramAndVersion);
    app.footer(kFooter);
}

/// What the single options can't see.
void checkTogether(const Options& options) {
    if (options.projects() == 0) throw CLI::RequiredError("A project file, or --default,");
    if (options.projects() > 1 && !options.save.empty())
        throw CLI::ValidationError("--save", "takes the project of a single file");
}

}  // namespace

std::variant<Options, int> parseOptions(int argc, const char* const* argv) {
    Options options;
    CLI::App app("Checks steel crane runway beams to EN 1993 without a window.", "borvik-calc");
    addOptions(app, options);
    try {
        app.parse(argc, argv);
        checkTogether(options);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? int{kDone} : int{kUsage};
    }
    return options;
}

}  // namespace borvik
