#include "project/usual_values.h"

namespace borvik {

void setUsualOverheadDetails(Project& p, SectionMake make) {
    p.Fat1 = p.Fat2 = p.Fat3 = p.Fat5 = p.Fat6 = true;
    p.Fat1C1 = 90;
    p.Fat2C1 = p.Fat5C1 = p.Fat6C1 = 80;
    p.W3 = kFilletWeld;
    p.W3a = 4;
    if (make == SectionMake::Welded) {
        p.Fat3C1 = 71;
        p.Fat3C2 = 80;
        p.W1 = kFullPenetrationWeld;
        p.Fat4 = true;
        p.Fat4C1 = 80;
        p.W2 = kFilletWeld;
        p.W2a = 4;
    } else {
        p.Fat3C1 = 160;
        p.Fat3C2 = 100;
        p.Fat4 = false;
        p.Fat4C1 = 100;
    }
}

void setUsualMonorailDetails(Project& p, SectionMake make) {
    p.FatR1 = p.FatR2 = p.FatR3 = p.FatR5 = true;
    p.FatR1C1 = 56;
    p.FatR2C1 = p.FatR3C1 = p.FatR5C1 = 80;
    p.RW1 = p.RW2 = p.RW4 = kFullPenetrationWeld;
    if (make == SectionMake::Welded) {
        p.FatR3C2 = 80;
        p.FatR4 = p.FatR6 = true;
        p.FatR4C1 = p.FatR6C1 = p.FatR6C2 = 80;
        p.RW3 = kFilletWeld;
        p.RW3a = 4;
    } else {
        p.FatR3C2 = 100;
        p.FatR4 = p.FatR6 = false;
        p.FatR4C1 = 100;
        p.RW3 = kFullPenetrationWeld;
        p.FatR6C1 = 160;
        p.FatR6C2 = 100;
    }
}

bool chooseOverheadCrane(Project& project) {
    if (project.CraneType == CraneKind::Overhead) return false;
    project.CraneType = CraneKind::Overhead;
    project.LoadLevel = LoadPoint::TopOfRail;
    return true;
}

bool chooseMonorail(Project& project) {
    if (project.CraneType == CraneKind::Monorail) return false;
    project.CraneType = CraneKind::Monorail;
    project.LoadLevel = LoadPoint::BottomFlange;
    project.NofCranes = 1;
    project.MinDistConst = 0;
    project.Avst = {};
    project.V = {};
    project.H = {};
    return true;
}

}  // namespace borvik
