#include "boxes/combination_list.h"

namespace borvik {

namespace {
constexpr const char* kLongest = "ULS: 1.35*(qk + 1.10*Vk1 + 1.10*Hk1 + 1.10*Vk2 + 1.10*Hk2)   ";
}

CombinationList::CombinationList() {
    setObjectName(QStringLiteral("lstCombination"));
    setToolTip(tr("The load combinations that follow from the factors"));
    setFocusPolicy(Qt::NoFocus);
    setSelectionMode(QAbstractItemView::NoSelection);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CombinationList::write(const Project& project, CombinationText kind) {
    const LoadCombinations texts = combinationTexts(project, kind);
    clear();
    for (const std::string& text : {texts.TextULS, texts.TextSLS, texts.TextFLS}) addItem(QString::fromStdString(text));
}

QSize CombinationList::sizeHint() const {
    const int line = fontMetrics().lineSpacing();
    return {fontMetrics().horizontalAdvance(QString::fromUtf8(kLongest)), 3 * line + line / 2 + 2 * frameWidth()};
}

}  // namespace borvik
