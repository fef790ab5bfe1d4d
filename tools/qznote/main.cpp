#include "runs_writer.h"

int main() { return 0; }
