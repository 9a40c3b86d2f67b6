// batch_runs: many runs of korvet-batch in one process. Each line of the standard input is a JSON list: the
// folder to work in and the words of a command line. Its run is answered by a line of JSON: exit status,
// standard output and standard error.
#include <filesystem>
#include <iostream>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "batch/batch.h"

namespace {

/// Leads a stream elsewhere for as long as it lives.
class Redirected {
  public:
    explicit Redirected(std::ostream& stream) : stream_(stream), before_(stream.rdbuf(text_.rdbuf())) {}
    ~Redirected() { stream_.rdbuf(before_); }
    Redirected(const Redirected&) = delete;
    Redirected& operator=(const Redirected&) = delete;

    [[nodiscard]] std::string Text() const { return text_.str(); }

  private:
    std::ostringstream text_;
    std::ostream& stream_;
    std::streambuf* before_;
};

nlohmann::json Answer(const std::vector<std::string>& folderAndWords) {
    std::filesystem::current_path(folderAndWords.at(0));
    std::vector<const char*> arguments = {"korvet-batch"};
    for (std::size_t i = 1; i < folderAndWords.size(); ++i) {
        arguments.push_back(folderAndWords[i].c_str());
    }
    const Redirected output(std::cout);
    const Redirected errors(std::cerr);
    const int status = korvet::batch::RunCommandLine(static_cast<int>(arguments.size()), arguments.data());
    return {{"status", status}, {"output", output.Text()}, {"errors", errors.Text()}};
}

}  // namespace

int main() {
    std::string line;
    while (std::getline(std::cin, line)) {
        const nlohmann::json answer = Answer(nlohmann::json::parse(line).get<std::vector<std::string>>());
        std::cout << answer.dump() << std::endl;
    }
    return 0;
}
