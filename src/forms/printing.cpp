#include "forms/printing.h"

namespace borvik {

bool canPrint() {
    return false;
}
void printReport(Session&, int, QWidget*) {}
bool canExportTable() {
    return false;
}
void exportTable(const ResultTable&, QWidget*) {}

}  // namespace borvik
