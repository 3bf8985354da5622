#include "platform/progress.h"

#include <cmath>
#include <cstdio>

namespace borvik {

namespace {
std::string running(const char* name, double percent) {
    return std::string("Calculating ") + name + " ..." + std::to_string(std::lround(percent)) + "%";
}
}  // namespace

void ProgressText::walkStarts(Walk) {
    atStart_ = text_;
}

void ProgressText::position(Walk walk, double percent) {
    switch (walk) {
        case Walk::Uls:
            text_ = running("ULS", percent);
            break;
        case Walk::Sls:
            text_ = running("ULS", percent) + "\n" + running("SLS", percent);
            break;
        case Walk::Fls:
            text_ = atStart_ + "\n" + running("FLS", percent);
            break;
    }
}

void ProgressText::walkEnds(Walk walk) {
    switch (walk) {
        case Walk::Uls:
            text_ += "\nCalculating ULS finnished";
            break;
        case Walk::Sls:
            text_ += "\nCalculating SLS finnished";
            break;
        case Walk::Fls:
            text_ += "\nCalculating FLS finnished";
            break;
    }
}

void ProgressText::runEnds(double secondsStatic) {
    const long seconds = std::lround(secondsStatic);
    char clock[32];
    std::snprintf(clock, sizeof clock, "%02ld:%02ld:%02ld", seconds / 3600, seconds / 60 % 60, seconds % 60);
    text_ += std::string("\nCalculation FLS finnished  - ") + clock + "\r";
}

}  // namespace borvik
