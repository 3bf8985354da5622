#include "checks/code_checks.h"

#include "checks/deflection_checks.h"
#include "checks/local_checks.h"
#include "checks/ltb_checks.h"
#include "checks/section_checks.h"

namespace borvik {

CheckResults RunCodeChecks(Project& project, ProjectContext& context, const UlsResults& uls, const SlsResults& sls) {
    CheckResults checks;
    SectionChecks(project, context, uls, checks);
    LtbChecks(project, context, uls, checks);
    if (project.CraneType == 1) {
        PatchLoadCheck(project, context, checks);
    } else {
        FlangeBendingCheck(project, uls, checks);
        VonMisesCheck(project, uls, checks);
    }
    DeflectionChecks(project, sls, checks);
    return checks;
}

}  // namespace borvik
