#pragma once

#include "formulas/formula_browser.h"

namespace borvik {

/// A page of the help. Its pictures are as wide as the page at most; a
/// click on one that has been made smaller shows it in full.
class HelpPageView : public FormulaBrowser {
    Q_OBJECT

public:
    using FormulaBrowser::FormulaBrowser;

    /// Gives the pictures the width that the page has now. @param all  also when the width is what it was
    void fitPicturesToPage(bool all);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// The file of the picture at a point of the viewport, if it is shown smaller than it is; else nothing.
    [[nodiscard]] QString smallPictureAt(QPoint point) const;
    void showInFull(const QString& file);

    int fitted_ = 0;  ///< the width that the pictures were given
};

}  // namespace borvik
