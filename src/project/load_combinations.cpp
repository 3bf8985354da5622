#include "project/load_combinations.h"

#include "base/number_text.h"

namespace borvik {

namespace {

std::string factor(double number) {
    return formatNumber(number, "0.00");
}

}  // namespace

LoadCombinations combinationTexts(const Project& project, CombinationText kind) {
    const std::string permanent = kind == CombinationText::WithPermanentLoad ? "qk + " : "";
    const std::string uls = "ULS: " + factor(project.LfULS) + "*(" + permanent + factor(project.PsiV1);
    const std::string fls = "FLS: " + factor(project.GammaFf) + "*";
    // The fatigue dynamic factor is the mean of the factor and 1: EN 1991-3, 2.12.1(7).
    const std::string fls1 = factor((1 + project.PsiV1) / 2);
    LoadCombinations texts;
    texts.TextSLS = "SLS: " + factor(project.LfSLS) + "*(" + permanent + "Vk + Hk)";
    if (project.NofCranes == 2) {
        texts.TextULS = uls + "*Vk1 + " + factor(project.PsiH1) + "*Hk1 + " + factor(project.PsiV2) + "*Vk2 + " +
                        factor(project.PsiH2) + "*Hk2)";
        texts.TextFLS = fls + "(" + fls1 + "*Vk1 + " + factor((1 + project.PsiV2) / 2) + "*Vk2)  ";
    } else {
        texts.TextULS = uls + "*Vk + " + factor(project.PsiH1) + "*Hk)";
        texts.TextFLS = fls + fls1 + "*Vk";
    }
    return texts;
}

}  // namespace borvik
