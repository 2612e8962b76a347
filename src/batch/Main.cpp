// vrek-batch: converts without a window.
#include <iostream>

#include "batch/Batch.h"

int main(int argc, char** argv) {
  return vrek::batch::RunBatch(argc, argv, std::cout, std::cerr);
}
