#include "cli/Commands.h"

int main(int count, char** arguments) { return tarnview::RunCommandLine(count, arguments); }
