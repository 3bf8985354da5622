#pragma once

#include <QApplication>
#include <QDir>
#include <QWidget>
#include <iostream>

#include "platform/questions.h"

namespace borvik {

/// Takes pictures of windows into a folder.
class Camera {
public:
    explicit Camera(const QString& folder) : folder_(folder) { QDir().mkpath(folder); }
    void take(QWidget& widget, const QString& name) {
        QApplication::processEvents();
        save(widget.grab(), name);
    }
    void save(const QPixmap& picture, const QString& name) {
        const QString path = folder_.filePath(name + ".png");
        if (!picture.save(path)) std::cerr << "can't write " << path.toStdString() << '\n';
    }

    [[nodiscard]] std::string path(const char* file) const { return folder_.filePath(file).toStdString(); }

private:
    QDir folder_;
};

/// Answers for a program that runs unattended.
class NoQuestions : public Questions {
public:
    Answer yesNoCancel(const std::string&) override { return Answer::No; }
    std::optional<std::size_t> choose(const std::string&, const std::vector<std::string>&) override {
        return std::nullopt;
    }
    std::optional<std::string> fileToOpen(const std::string&, const std::string&) override { return std::nullopt; }
    std::optional<std::string> fileToSave(const std::string&, const std::string&, const std::string&) override {
        return std::nullopt;
    }
};

}  // namespace borvik
