#pragma once

#include <QListWidget>

#include "project/load_combinations.h"

namespace borvik {

/// lstCombination: the three load combinations as text, one a line.
class CombinationList : public QListWidget {
public:
    CombinationList();
    void write(const Project& project, CombinationText kind);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
};

}  // namespace borvik
