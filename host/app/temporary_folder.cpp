#include "app/temporary_folder.h"

#include <stdlib.h>

#include <string>

#include "app/command.h"

namespace oxhost::app {

temporary_folder::temporary_folder() {
    std::string name = (std::filesystem::temp_directory_path() / "oxhost-XXXXXX").string();
    if (!mkdtemp(name.data())) throw failure(exit_code::nothing_done, name + ": cannot be created");
    path_ = name;
}

temporary_folder::~temporary_folder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace oxhost::app
