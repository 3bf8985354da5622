#pragma once

#include <QDialog>

#include "pictures/picture.h"

namespace borvik {

/// A window that only explains: one picture as large as the window. A click or any closing key closes it.
class InfoPicture : public QDialog {
public:
    /// @param name  "frmInfoSetup", "frmInfoFatigue" or "frmInfoLoadComb"
    InfoPicture(const char* name, const QString& caption, PicturePainter draw, QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

/// Shows such a window; it deletes itself when closed.
void showInfoPicture(const char* name, const QString& caption, PicturePainter draw, QWidget* parent);

}  // namespace borvik
