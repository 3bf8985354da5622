#pragma once

#include <QDialog>
#include <QPushButton>
#include <QSize>

namespace borvik {

/// The button that closes a window of results: Enter and Esc do the same.
inline QPushButton* closeButton(const char* name, QDialog* dialog) {
    auto* button = new QPushButton("OK");
    button->setObjectName(name);
    button->setDefault(true);
    QObject::connect(button, &QPushButton::clicked, dialog, &QDialog::accept);
    return button;
}

/// A window of results is nearly as large as the one that it stands over.
inline QSize generousSize(const QWidget* parent) {
    return parent == nullptr ? QSize(900, 600) : parent->size() * 0.9;
}

}  // namespace borvik
