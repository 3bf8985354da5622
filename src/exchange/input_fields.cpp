#include "exchange/input_fields.h"

namespace borvik {

std::span<const InputField> inputFields() {
    using P = Project;
    static const InputField fields[] = {
        {"Proj", "", &P::Proj},
        {"Ident", "", &P::Ident},
        {"Span", "mm", &P::Span},
        {"MinAvst", "mm", &P::MinAvst},
        {"Gangway", "kN/m", &P::Gangway},
        {"NofCranes", "", &P::NofCranes},
        {"Position", "mm", &P::Position},
        {"Fixerad", "", &P::Fixerad},
        {"TwoCraneMode", "", &P::TwoCraneMode},
        {"CraneClass1", "", &P::CraneClass1},
        {"CraneClass2", "", &P::CraneClass2},
        {"CraneClassR", "", &P::CraneClassR},
        {"PsiV1", "", &P::PsiV1},
        {"PsiH1", "", &P::PsiH1},
        {"PsiV2", "", &P::PsiV2},
        {"PsiH2", "", &P::PsiH2},
        {"V", "kN", &P::V},
        {"H", "kN", &P::H},
        {"Avst", "mm", &P::Avst},
        {"SelfWeight", "", &P::SelfWeight},
        {"HasLoadsY", "", &P::HasLoadsY},
        {"CraneType", "", &P::CraneType},
        {"StiffenerMode", "", &P::StiffenerMode},
        {"LoadLevel", "", &P::LoadLevel},
        {"RailName", "", &P::RailName},
        {"RailFix", "", &P::RailFix},
        {"RailOn", "", &P::RailOn},
        {"LtbCurve", "", &P::LtbCurve},
        {"DefaultCfactor", "", &P::DefaultCfactor},
        {"C1EndPos", "", &P::C1EndPos},
        {"C2EndPos", "", &P::C2EndPos},
        {"C3EndPos", "", &P::C3EndPos},
        {"C1MidPos", "", &P::C1MidPos},
        {"C2MidPos", "", &P::C2MidPos},
        {"C3MidPos", "", &P::C3MidPos},
        {"C1EndNeg", "", &P::C1EndNeg},
        {"C2EndNeg", "", &P::C2EndNeg},
        {"C3EndNeg", "", &P::C3EndNeg},
        {"C1MidNeg", "", &P::C1MidNeg},
        {"C2MidNeg", "", &P::C2MidNeg},
        {"C3MidNeg", "", &P::C3MidNeg},
        {"Inn", "mm", &P::Inn},
        {"Fat1", "", &P::Fat1},
        {"Fat1C1", "MPa", &P::Fat1C1},
        {"Fat2", "", &P::Fat2},
        {"Fat2C1", "MPa", &P::Fat2C1},
        {"Fat3", "", &P::Fat3},
        {"Fat3C1", "MPa", &P::Fat3C1},
        {"Fat3C2", "MPa", &P::Fat3C2},
        {"Fat4", "", &P::Fat4},
        {"Fat4C1", "MPa", &P::Fat4C1},
        {"Fat5", "", &P::Fat5},
        {"Fat5C1", "MPa", &P::Fat5C1},
        {"ChkFat5Sp", "", &P::ChkFat5Sp},
        {"Fat5Span", "", &P::Fat5Span},
        {"Fat5d1", "mm", &P::Fat5d1},
        {"Fat6", "", &P::Fat6},
        {"Fat6C1", "MPa", &P::Fat6C1},
        {"Fat6d1", "mm", &P::Fat6d1},
        {"W1", "", &P::W1},
        {"W1a", "mm", &P::W1a},
        {"W2", "", &P::W2},
        {"W2a", "mm", &P::W2a},
        {"W3", "", &P::W3},
        {"W3a", "mm", &P::W3a},
        {"WS1t", "mm", &P::WS1t},
        {"FatR1", "", &P::FatR1},
        {"FatR1C1", "MPa", &P::FatR1C1},
        {"FatR2", "", &P::FatR2},
        {"FatR2C1", "MPa", &P::FatR2C1},
        {"FatR3", "", &P::FatR3},
        {"FatR3C1", "MPa", &P::FatR3C1},
        {"FatR3C2", "MPa", &P::FatR3C2},
        {"FatR4", "", &P::FatR4},
        {"FatR4C1", "MPa", &P::FatR4C1},
        {"FatR5", "", &P::FatR5},
        {"FatR5C1", "MPa", &P::FatR5C1},
        {"ChkFatR5Sp", "", &P::ChkFatR5Sp},
        {"FatR5Span", "", &P::FatR5Span},
        {"FatR5d1", "mm", &P::FatR5d1},
        {"FatR6", "", &P::FatR6},
        {"FatR6C1", "MPa", &P::FatR6C1},
        {"FatR6C2", "MPa", &P::FatR6C2},
        {"RW1", "", &P::RW1},
        {"RW1a", "mm", &P::RW1a},
        {"RW2", "", &P::RW2},
        {"RW2a", "mm", &P::RW2a},
        {"RW3", "", &P::RW3},
        {"RW3a", "mm", &P::RW3a},
        {"RW4", "", &P::RW4},
        {"RW4a", "mm", &P::RW4a},
        {"RWS1t", "mm", &P::RWS1t},
        {"RWS1d", "mm", &P::RWS1d},
        {"SteelGrade", "", &P::SteelGrade},
        {"fyk", "MPa", &P::fyk},
        {"Eta", "", &P::Eta},
        {"LamdaLT0", "", &P::LamdaLT0},
        {"LamdaLT0w", "", &P::LamdaLT0w},
        {"Beta", "", &P::Beta},
        {"Betaw", "", &P::Betaw},
        {"GammaM0", "", &P::GammaM0},
        {"GammaM1", "", &P::GammaM1},
        {"GammaFf", "", &P::GammaFf},
        {"GammaMf", "", &P::GammaMf},
        {"DefY", "", &P::DefY},
        {"DefZ", "", &P::DefZ},
        {"LfULS", "", &P::LfULS},
        {"LfSLS", "", &P::LfSLS},
        {"MinDistConst", "", &P::MinDistConst},
        {"StartStopOutside", "", &P::StartStopOutside},
    };
    return fields;
}

Choice wordsOf(CraneKind) {
    static constexpr const char* words[] = {"overhead", "monorail"};
    return {1, words};
}

Choice wordsOf(TwoCranes) {
    static constexpr const char* words[] = {"independent", "together"};
    return {1, words};
}

Choice wordsOf(EndPost) {
    static constexpr const char* words[] = {"non-rigid", "rigid"};
    return {1, words};
}

Choice wordsOf(LoadPoint) {
    static constexpr const char* words[] = {"top of rail", "top flange", "shear centre", "bottom flange"};
    return {1, words};
}

Choice wordsOf(RailFixing) {
    static constexpr const char* words[] = {"rigid", "not rigid", "resilient pad"};
    return {1, words};
}

Choice wordsOf(LtbCase) {
    static constexpr const char* words[] = {"general", "rolled or welded"};
    return {2, words};
}

}  // namespace borvik
