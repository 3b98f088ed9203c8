#include "tools/Platform.h"
#include "tools/Program.h"

int main(int argc, char** argv) {
    return hydrofacts::command::Run(hydrofacts::command::Utf8Arguments(argc, argv));
}
