// Writes the empty bill-of-quantities template LVMuster.MDB from the schema
// code, so the template of the program data never drifts from it.
#include <cstdio>

#include "quantities/lv/lv_schema.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "Aufruf: %s ZIELDATEI\n", argv[0]);
    return 2;
  }
  if (!kolm::quantities::LVMusterErzeugen(argv[1])) {
    std::fprintf(stderr, "%s: LV-Vorlage %s konnte nicht geschrieben werden\n", argv[0], argv[1]);
    return 1;
  }
  return 0;
}
