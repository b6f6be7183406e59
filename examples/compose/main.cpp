// compose_example SOURCE.tab DOCUMENT.tr3
#include "core/document/document_file.h"
#include "examples/compose/tab_source.h"

#include <fstream>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "compose_example SOURCE.tab DOCUMENT.tr3\n";
        return 2;
    }
    std::ifstream source(argv[1]);
    tabrova::Document document;
    if (!source || !tabrova::readTabSource(document, source)) return 1;
    return tabrova::saveDocument(document, argv[2]) ? 0 : 1;
}
