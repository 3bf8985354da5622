#include "runways.h"

namespace borvik {

Session defaultSession() {
    static const ReferenceTables tables = LoadTables(BORVIK_SOURCE_DIR "/data");
    return Session(tables);
}

Session runway(int spans, int length, RunwayCranes cranes) {
    Session session = defaultSession();
    Project& project = session.project;
    for (int i = 1; i <= kMaxSpans; ++i) {
        project.Span(i) = i <= spans ? length : 0;
        project.SpanSection(i) = i <= spans ? blankSection(session.tables) : SectionRecord{};
    }
    for (int wheel = 1; wheel <= 8; ++wheel) {
        project.V(wheel) = wheel <= 4 ? 40 + wheel : 25 + wheel;
        project.H(wheel) = wheel % 4 == 1 ? 4 : -1;
    }
    project.Avst = FixedArray<Single, 1, 6>::of(900, 1900, 900, 700, 1300, 700);
    project.NofCranes = 2;
    project.MinAvst = 1000;
    project.MinDistConst = cranes == RunwayCranes::Train ? 1 : 0;
    project.Fat5 = false;
    return session;
}

}  // namespace borvik
