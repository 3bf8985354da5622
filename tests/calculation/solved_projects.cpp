#include "solved_projects.h"

#include "notes/notes.h"
#include "project/project_file.h"
#include "results/json.h"

namespace borvik::testing_support {

TestSession::TestSession() : Session(LoadTables(BORVIK_SOURCE_DIR "/data")) {}

TestSession::TestSession(const std::filesystem::path& file) : TestSession() {
    LoadProject(file.string(), project);
}

bool TestSession::calculate(WalkMethod method) {
    messages.texts.clear();
    Progress progress;
    if (!Calculate(*this, messages, progress, method)) return false;
    makeNotes(*this);
    return true;
}

std::string TestSession::json() const {
    return resultsJson(*this, messages.texts, std::nullopt, "Borvik", {.notes = true});
}

namespace {

class Chooser {
public:
    explicit Chooser(std::mt19937& random) : random_(random) {}
    [[nodiscard]] int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    [[nodiscard]] double real(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    [[nodiscard]] bool chance(double p) { return std::bernoulli_distribution(p)(random_); }
    template <class T>
    [[nodiscard]] T of(std::initializer_list<T> items) {
        return items.begin()[whole(0, static_cast<int>(items.size()) - 1)];
    }

private:
    std::mt19937& random_;
};

SectionRecord randomSection(const Session& session, Chooser& choose) {
    SectionRecord section;
    if (choose.chance(0.5)) {
        section = session.tables.SectionTable(choose.whole(25, session.tables.SectionTable.last()));
        section.DisplayName = section.TableName;
    } else {
        section = session.project.SectionList(choose.whole(1, 2));
        section.h = choose.whole(5, 12) * 100;
        section.b1 = choose.whole(20, 40) * 10;
        section.b2 = section.Id == "Iu" ? choose.whole(20, 40) * 10 : int(section.b1);
        section.tw = choose.whole(8, 20);
        section.tf1 = choose.whole(12, 35);
        section.tf2 = section.Id == "Iu" ? choose.whole(12, 35) : int(section.tf1);
    }
    section.Reinforced = choose.chance(0.2);
    section.ReinfD = choose.whole(60, 150);
    section.ReinfT = choose.whole(8, 15);
    section.InUse = true;
    return section;
}

void setCranes(Project& p, Chooser& choose) {
    p.CraneType = choose.chance(0.75) ? CraneKind::Overhead : CraneKind::Monorail;
    p.NofCranes = p.CraneType == CraneKind::Overhead && choose.chance(0.5) ? 2 : 1;
    p.TwoCraneMode = TwoCranes{choose.of<std::int16_t>({1, 2})};
    p.MinDistConst = p.NofCranes == 2 && choose.chance(0.3) ? 1.0 : 0.0;
    p.MinAvst = p.NofCranes == 2 ? choose.whole(2, 10) * 100 : 0;
    p.Fixerad = choose.chance(0.05);
    p.StartStopOutside = choose.chance(0.3) ? 1 : 0;
    p.V = p.H = {};
    p.Avst = {};
    for (int crane = 0; crane < p.NofCranes; ++crane) {
        const int wheels = choose.whole(1, 4);
        const double V = choose.whole(10, 120);
        for (int w = 1; w <= wheels; ++w) {
            p.V(4 * crane + w) = choose.chance(0.6) ? V : choose.whole(10, 120);
            p.H(4 * crane + w) = p.HasLoadsY && choose.chance(0.7) ? choose.real(-0.1, 0.1) * V : 0.0;
            if (w < wheels) p.Avst(3 * crane + w) = choose.whole(3, 12) * 100;
        }
    }
    p.CraneClass1 = static_cast<std::int16_t>(choose.whole(0, 9));
    p.CraneClass2 = static_cast<std::int16_t>(choose.whole(0, 9));
    p.CraneClassR = static_cast<std::int16_t>(choose.whole(0, 9));
    p.PsiV1 = choose.real(1, 1.3);
    p.PsiV2 = choose.real(1, 1.3);
    p.PsiH1 = choose.real(1, 2);
    p.PsiH2 = choose.real(1, 2);
}

void setSplices(const Project& p, FixedArray<bool, 1, 10>& inUse, FixedArray<Single, 1, 10>& span,
                FixedArray<Single, 1, 10>& distance, Chooser& choose) {
    for (int splice = 1; splice <= 4; ++splice) {
        inUse(splice) = choose.chance(0.5);
        span(splice) = choose.whole(1, p.NofSpans);
        distance(splice) = choose.whole(0, 4000);
    }
}

}  // namespace

Project randomProject(const Session& session, std::mt19937& random) {
    Chooser choose(random);
    Project p = session.project;
    const int n = choose.whole(1, 5);
    p.NofSpans = static_cast<std::int16_t>(n);
    p.Span = {};
    p.SpanSection = Array<SectionRecord>(1, kMaxSpans);
    for (int i = 1; i <= n; ++i) {
        p.Span(i) = choose.chance(0.5) ? choose.whole(20, 40) * 200 : choose.whole(4000, 8000);
        p.SpanSection(i) = i > 1 && choose.chance(0.4) ? p.SpanSection(i - 1) : randomSection(session, choose);
    }
    p.HasLoadsY = choose.chance(0.8);
    setCranes(p, choose);
    p.Gangway = choose.chance(0.5) ? choose.real(0, 3) : 0.0;
    p.SelfWeight = choose.chance(0.8);
    p.RailOn = choose.chance(0.5);
    p.RailName = session.tables.RailTable(choose.whole(1, session.tables.RailTable.last())).Name;
    p.RailFix = RailFixing{choose.of<std::int16_t>({1, 2, 3})};
    p.LoadLevel = LoadPoint{choose.of<std::int16_t>({1, 2, 3, 4})};
    p.LtbCurve = LtbCase{choose.of<std::int16_t>({2, 3})};
    p.StiffenerMode = EndPost{choose.of<std::int16_t>({1, 2})};
    p.fyk = choose.of({235.0, 275.0, 355.0, 420.0});
    for (bool* detail : {&p.Fat1, &p.Fat2, &p.Fat3, &p.Fat4, &p.Fat5, &p.Fat6, &p.FatR1, &p.FatR2, &p.FatR3, &p.FatR4,
                         &p.FatR5, &p.FatR6})
        *detail = choose.chance(0.7);
    for (std::string* weld : {&p.W1, &p.W2, &p.W3, &p.RW1, &p.RW2, &p.RW3, &p.RW4})
        *weld = choose.chance(0.5) ? "FW" : "FP";
    setSplices(p, p.ChkFat5Sp, p.Fat5Span, p.Fat5d1, choose);
    setSplices(p, p.ChkFatR5Sp, p.FatR5Span, p.FatR5d1, choose);
    return p;
}

}  // namespace borvik::testing_support
