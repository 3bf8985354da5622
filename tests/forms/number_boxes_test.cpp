#include <QTabWidget>
#include <cmath>
#include <limits>
#include <optional>

#include "forms/form_support.h"

namespace borvik {
namespace {

constexpr double kNone = std::numeric_limits<double>::infinity();

/// One numeric box of one form: what it accepts, what it says otherwise, and where its number goes.
struct Box {
    DialogKind form;
    const char* name;
    double lowest, highest;
    double step;  ///< the smallest difference that is tried
    int decimals;
    const char* message;
    std::function<double(const Session&)> stored;
    bool openBelow = false, openAbove = false;  ///< the limit itself is refused
    int tab = 0;                                ///< page of the section form
};

void PrintTo(const Box& box, std::ostream* out) {
    *out << box.name;
}

template <class Field>
std::function<double(const Session&)> in(Field Project::*field) {
    return [field](const Session& session) { return double(session.project.*field); };
}

template <class Items>
std::function<double(const Session&)> item(Items Project::*items, int i) {
    return [items, i](const Session& session) { return double((session.project.*items)(i)); };
}

std::function<double(const Session&)> section(Single SectionRecord::*field) {
    return [field](const Session& session) { return double(session.context.CurrentSection.*field); };
}

std::function<double(const Session&)> text(std::string Project::*field) {
    return [field](const Session& session) { return std::stod(session.project.*field); };
}

std::vector<Box> setupBoxes() {
    using P = Project;
    constexpr auto k = DialogKind::Setup;
    const char* load = " 0 < Loadfactor < 4.0 ";
    const char* lamda = " 0.1 <= lamdaLT0 <= 0.8 ";
    const char* limit = " L/200  <= Deformation <= L/2000  ";
    return {{k, "ibeta", 0.1, 1.0, 0.01, 2, " 0.1 <= beta <= 0.8 ", in(&P::Beta)},
            {k, "ibetaw", 0.1, 1.0, 0.01, 2, " 0.1 <= beta <= 1 ", in(&P::Betaw)},
            {k, "igammam0", 0.5, 1.5, 0.01, 2, " 0.5 <= gammam0 <=1.5 ", in(&P::GammaM0)},
            {k, "igammam1", 0.5, 1.5, 0.01, 2, " 0.5 <= gammam1 <=1.5 ", in(&P::GammaM1)},
            {k, "ilamdaLT0", 0.1, 0.8, 0.01, 2, lamda, in(&P::LamdaLT0)},
            {k, "ilamdaLT0w", 0.1, 0.8, 0.01, 2, lamda, in(&P::LamdaLT0w)},
            {k, "iLfULS", 0, 4.0, 0.01, 2, load, in(&P::LfULS)},
            {k, "iLfSLS", 0, 4.0, 0.01, 2, load, in(&P::LfSLS)},
            {k, "ineta", 1.0, 1.2, 0.01, 2, " 1 <= neta <=1.2 ", in(&P::Eta)},
            {k, "txtDefZ", 200, 2000, 1, 0, limit, in(&P::DefZ)},
            {k, "txtDefY", -kNone, 2000, 1, 0, limit, in(&P::DefY)},
            {k, "igammaFf", 0.5, 1.5, 0.01, 2, " 0.5 <= gammaFf <=1.5 ", in(&P::GammaFf)},
            {k, "igammaMf", 0.5, 1.5, 0.01, 2, " 0.5 <= gammaMf <=1.5 ", in(&P::GammaMf)}};
}

const char* kFirst1 = "First wheel for Crane  1 must have a vertical force!";
const char* kFirst2 = "First wheel for Crane  2 must have a vertical force!";

/// What both load forms have: one crane's wheels 1 to 4.
void addCrane1(std::vector<Box>& boxes, DialogKind k) {
    using P = Project;
    boxes.push_back({k, "txtPosition", 0, kNone, 1, 0, "Positiv value", in(&P::Position)});
    boxes.push_back({k, "txtPsiV1", 0.8, kNone, 0.01, 2, " Psi factor >= 0.8 ! ", in(&P::PsiV1)});
    boxes.push_back({k, "txtPsiH1", 1.0, kNone, 0.01, 2, " Psi factor >= 0.8 ! ", in(&P::PsiH1)});
    boxes.push_back({k, "txtV1", 0, kNone, 0.1, 1, kFirst1, item(&P::V, 1), true});
    boxes.push_back({k, "txtV2", 0, kNone, 0.1, 1, "Only positiv value!", item(&P::V, 2)});
    boxes.push_back({k, "txtV3", 0, kNone, 0.1, 1, "Only positiv value!", item(&P::V, 3)});
    boxes.push_back({k, "txtV4", 0, kNone, 0.1, 1, "Only positiv value", item(&P::V, 4)});
    static const char* side[] = {"txtH1", "txtH2", "txtH3", "txtH4"};
    static const char* gap[] = {"txtAvst1", "txtAvst2", "txtAvst3"};
    for (int i = 1; i <= 4; ++i) boxes.push_back({k, side[i - 1], -kNone, kNone, 0.1, 1, "", item(&P::H, i)});
    for (int i = 1; i <= 3; ++i)
        boxes.push_back({k, gap[i - 1], 0, kNone, 1, 0, " Distance must be postitiv !", item(&P::Avst, i)});
}

std::vector<Box> loadBoxes() {
    using P = Project;
    constexpr auto k = DialogKind::Load;
    std::vector<Box> boxes = {{k, "txtGangway", 0, kNone, 0.1, 1, " Load must be >= 0 ", in(&P::Gangway)},
                              {k, "txtPsiV2", 0.8, kNone, 0.01, 2, " Psi factor >= 0.8 ! ", in(&P::PsiV2)},
                              {k, "txtPsiH2", 1.0, kNone, 0.01, 2, " Psi factor >= 0.8 ! ", in(&P::PsiH2)},
                              {k, "txtv5", 0, kNone, 0.1, 1, kFirst2, item(&P::V, 5), true},
                              {k, "txtv6", 0, kNone, 0.1, 1, "Only positiv value!", item(&P::V, 6)},
                              {k, "txtv7", 0, kNone, 0.1, 1, "Only positiv value!", item(&P::V, 7)},
                              {k, "txtv8", 0, kNone, 0.1, 1, "Only positiv value!", item(&P::V, 8)}};
    static const char* side[] = {"txth5", "txth6", "txth7", "txth8"};
    static const char* gap[] = {"txtavst4", "txtavst5", "txtavst6"};
    for (int i = 5; i <= 8; ++i) boxes.push_back({k, side[i - 5], -kNone, kNone, 0.1, 1, "", item(&P::H, i)});
    for (int i = 4; i <= 6; ++i)
        boxes.push_back({k, gap[i - 4], 0, kNone, 1, 0, " Distance must be postitiv !", item(&P::Avst, i)});
    addCrane1(boxes, k);
    return boxes;
}

std::vector<Box> runwayBoxes() {
    std::vector<Box> boxes = {{DialogKind::LoadRunway, "inn", 5, kNone, 1, 0, " n >= 5 ", in(&Project::Inn)}};
    addCrane1(boxes, DialogKind::LoadRunway);
    return boxes;
}

std::vector<Box> sectionBoxes() {
    using S = SectionRecord;
    constexpr auto k = DialogKind::Profile;
    constexpr auto r = DialogKind::ProfReinf;
    const bool open = true;
    return {{k, "isth", 50, kNone, 1, 0, "H >= 50", section(&S::h), false, false, 1},
            {k, "istb1", 5, kNone, 1, 0, "b >= 5", section(&S::b1), false, false, 1},
            {k, "isttw", 0.1, kNone, 0.1, 1, "tw >= 0.1", section(&S::tw), false, false, 1},
            {k, "isttf1", 0.1, kNone, 0.1, 1, "tf1 >= 0.1", section(&S::tf1), false, false, 1},
            {k, "iusth", 50, kNone, 1, 0, "h >= 50", section(&S::h), false, false, 2},
            {k, "iustb1", 5, kNone, 1, 0, "b >= 5", section(&S::b1), false, false, 2},
            {k, "iustb2", 5, kNone, 1, 0, "b2 >= 5", section(&S::b2), false, false, 2},
            {k, "iusttw", 0.1, kNone, 0.1, 1, "tw >= 0.1", section(&S::tw), false, false, 2},
            {k, "iusttf1", 0.1, kNone, 0.1, 1, "tf1 >= 0.1", section(&S::tf1), false, false, 2},
            {k, "iusttf2", 0.1, kNone, 0.1, 1, "tf2 >= 0.1", section(&S::tf2), false, false, 2},
            // HEA 300 is 290 mm high
            {r, "ihr", 10, 145, 1, 0, " 10 < hr < H/2 ", section(&S::ReinfD), open, open},
            {r, "ibr", 10, kNone, 1, 0, "  10 < b  ", section(&S::ReinfB), open},
            {r, "itr", 0.5, kNone, 0.25, 0, " 0.5 < tr   ", section(&S::ReinfT), open}};
}

std::vector<Box> bucklingBoxes() {
    using P = Project;
    constexpr auto k = DialogKind::Lateral;
    const auto c = [](const char* name, double lowest, const char* message, Single P::*field) {
        return Box{k, name, lowest, kNone, 0.001, 3, message, in(field)};
    };
    return {c("txtC1EndPos", 1.0, "C1 >= 1.0", &P::C1EndPos), c("txtC2EndPos", 0.3, "C2 >= 0.3", &P::C2EndPos),
            c("txtC3EndPos", 0.3, "C3 >= 0.3", &P::C3EndPos), c("txtC1MidPos", 1.0, "C1 >= 1.0", &P::C1MidPos),
            c("txtC2MidPos", 0.3, "C2 >= 0.3", &P::C2MidPos), c("txtC3MidPos", 0.3, "C3 >= 0.3", &P::C3MidPos),
            c("txtC1EndNeg", 1.0, "C1 >= 1.0", &P::C1EndNeg), c("txtC3EndNeg", 0.3, "C3 >= 0.3", &P::C3EndNeg),
            c("txtC1MidNeg", 1.0, "C1 >= 1.0", &P::C1MidNeg), c("txtC3MidNeg", 0.3, "C3 >= 0.3", &P::C3MidNeg)};
}

std::vector<Box> fatigueBoxes() {
    using P = Project;
    constexpr auto f = DialogKind::Fatigue1, r = DialogKind::Fatigue2;
    const char* category = " 36 <= C-factor <= 160 ";
    const char* distance = " 10 <= d <= L ";
    const char* throat = " a >=3 mm";
    const auto c = [&](DialogKind k, const char* name, std::int16_t P::*field) {
        return Box{k, name, 36, 160, 1, 0, category, in(field)};
    };
    const auto a = [&](DialogKind k, const char* name, Single P::*field) {
        return Box{k, name, 3, kNone, 0.1, 1, throat, in(field)};
    };
    // the default project's splices lie in spans 2, 3, 2, 3 of 5000 and 6000 mm
    return {c(f, "txtFat1C1", &P::Fat1C1),
            c(f, "txtFat2C1", &P::Fat2C1),
            c(f, "txtFat3C1", &P::Fat3C1),
            c(f, "txtFat3C2", &P::Fat3C2),
            c(f, "txtFat4C1", &P::Fat4C1),
            c(f, "txtFat5C1", &P::Fat5C1),
            c(f, "txtFat6C1", &P::Fat6C1),
            {f, "txtFat5d1(1)", 10, 5000, 1, 0, distance, item(&P::Fat5d1, 1)},
            {f, "txtFat5d1(2)", 10, 6000, 1, 0, distance, item(&P::Fat5d1, 2)},
            {f, "txtFat5d1(3)", 10, 5000, 1, 0, distance, item(&P::Fat5d1, 3)},
            {f, "txtFat5d1(4)", 10, 6000, 1, 0, distance, item(&P::Fat5d1, 4)},
            {f, "txtFat6d1", 25, 1000, 1, 0, " 25 <= e <= 1000 ", in(&P::Fat6d1)},
            {f, "txtWS1t", 2, 100, 1, 0, " 2 <= t <= 100 ", text(&P::WS1t)},
            a(f, "txtW1a", &P::W1a),
            a(f, "txtW2a", &P::W2a),
            a(f, "txtW3a", &P::W3a),
            c(r, "txtFatR1C1", &P::FatR1C1),
            c(r, "txtFatR2C1", &P::FatR2C1),
            c(r, "txtFatR3C1", &P::FatR3C1),
            c(r, "txtFatR3C2", &P::FatR3C2),
            c(r, "txtFatR4C1", &P::FatR4C1),
            c(r, "txtFatR5C1", &P::FatR5C1),
            c(r, "txtFatR6C1", &P::FatR6C1),
            c(r, "txtFatR6C2", &P::FatR6C2),
            {r, "txtFatR5d1(1)", 10, 5000, 1, 0, distance, item(&P::FatR5d1, 1)},
            {r, "txtFatR5d1(4)", 10, 6000, 1, 0, distance, item(&P::FatR5d1, 4)},
            {r, "txtRWS1d", 25, 1000, 1, 0, " 25 <= e <= 1000 ", in(&P::RWS1d)},
            {r, "txtRWS1t", 2, 100, 1, 0, " 2 <= t <= 100 ", text(&P::RWS1t)},
            a(r, "txtRW1a", &P::RW1a),
            a(r, "txtRW2a", &P::RW2a),
            a(r, "txtRW3a", &P::RW3a),
            a(r, "txtRW4a", &P::RW4a)};
}

class NumberBoxes : public FormTest, public testing::WithParamInterface<Box> {
protected:
    void prepare() {
        project.NofCranes = 2;
        project.MinAvst = 2000;
        project.Fixerad = true;
        project.DefaultCfactor = false;
        for (std::string* weld :
             {&project.W1, &project.W2, &project.W3, &project.RW1, &project.RW2, &project.RW3, &project.RW4})
            *weld = "FW";
        open(GetParam().form);
        if (GetParam().form == DialogKind::Profile) control<QTabWidget>("SSTab1").setCurrentIndex(GetParam().tab);
    }

    void tryValue(double value, bool accepted) {
        const Box& box = GetParam();
        messages.texts.clear();
        const int before = changes;
        enter(box.name, QString::number(value, 'f', 3).toStdString());
        SCOPED_TRACE(std::string(box.name) + " = " + std::to_string(value));
        // refused or not, the value stays stored and is shown by its mask
        EXPECT_EQ(static_cast<float>(box.stored(session)), static_cast<float>(value));
        // (the mask of a plate's thickness shows no decimals)
        const std::string expected = QString::number(value, 'f', box.decimals).toStdString();
        if (box.name != std::string("itr")) {
            EXPECT_EQ(std::stod(shown(box.name)), std::stod(expected));
        }
        if (accepted) {
            EXPECT_TRUE(messages.texts.empty()) << messages.texts.back();
            EXPECT_FALSE(control(box.name).refused());
            EXPECT_GT(changes, before);
        } else {
            EXPECT_EQ(messages.texts, std::vector<std::string>{box.message});
            EXPECT_TRUE(control(box.name).refused());
            EXPECT_EQ(focused(), box.name);
            EXPECT_EQ(changes, before);
        }
    }
};

TEST_P(NumberBoxes, TakesWhatLiesWithinItsLimitsAndRefusesTheRest) {
    prepare();
    const Box& box = GetParam();
    if (std::isfinite(box.lowest)) {
        tryValue(box.lowest + box.step, true);
        tryValue(box.lowest, !box.openBelow);
        tryValue(box.lowest - box.step, false);
    } else {
        tryValue(-7, true);
    }
    if (std::isfinite(box.highest)) {
        tryValue(box.highest - box.step, true);
        tryValue(box.highest, !box.openAbove);
        tryValue(box.highest + box.step, false);
    } else {
        tryValue(123456, true);
    }
}

std::string nameOf(const testing::TestParamInfo<Box>& info) {
    std::string name;
    for (const char* c = info.param.name; *c != '\0'; ++c)
        if (std::isalnum(static_cast<unsigned char>(*c)) != 0) name += *c;
    return name;
}

INSTANTIATE_TEST_SUITE_P(Setup, NumberBoxes, testing::ValuesIn(setupBoxes()), nameOf);
INSTANTIATE_TEST_SUITE_P(Load, NumberBoxes, testing::ValuesIn(loadBoxes()), nameOf);
INSTANTIATE_TEST_SUITE_P(LoadRunway, NumberBoxes, testing::ValuesIn(runwayBoxes()), nameOf);
INSTANTIATE_TEST_SUITE_P(Sections, NumberBoxes, testing::ValuesIn(sectionBoxes()), nameOf);
INSTANTIATE_TEST_SUITE_P(Buckling, NumberBoxes, testing::ValuesIn(bucklingBoxes()), nameOf);
INSTANTIATE_TEST_SUITE_P(Fatigue, NumberBoxes, testing::ValuesIn(fatigueBoxes()), nameOf);

}  // namespace
}  // namespace borvik
