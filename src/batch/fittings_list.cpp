#include "batch/fittings_list.h"

#include <algorithm>
#include <map>

#include "batch/set_values.h"
#include "core/number_text.h"
#include "core/text_encoding.h"
#include "frame/catalogue.h"

namespace korvet::batch {
namespace {

enum Column : std::size_t { NameColumn, FittingColumn, TypeColumn, FirstValueColumn };

constexpr int MostTypes = 99;

/// A row as it stands in the file.
struct Record {
    std::size_t line = 0;  ///< on which it begins, from 1
    std::vector<std::string> cells;
    bool isTorn = false;  ///< a quote is not closed, or text follows one
};

/// Takes a text apart into rows of cells.
class Records {
  public:
    Records(std::string_view text, char mark) : rest_(text), mark_(mark) {}

    /// The next row; false at the end of the text.
    bool Next(Record& record) {
        if (rest_.empty()) {
            return false;
        }
        record = {line_, {}, false};
        do {
            record.cells.push_back(rest_.starts_with('"') ? Quoted(record) : Plain());
        } while (Take(mark_));
        if (!AtLineEnd()) {
            record.isTorn = true;
            rest_.remove_prefix(std::min(rest_.size(), rest_.find_first_of("\r\n")));
        }
        Take('\r');
        line_ += Take('\n') ? 1U : 0U;
        return true;
    }

  private:
    [[nodiscard]] bool AtLineEnd() const {
        return rest_.empty() || rest_.front() == '\n' || rest_.front() == '\r';
    }

    bool Take(char c) {
        if (!rest_.starts_with(c)) {
            return false;
        }
        rest_.remove_prefix(1);
        return true;
    }

    std::string Plain() {
        std::size_t end = 0;
        while (end < rest_.size() && rest_[end] != mark_ && rest_[end] != '\n' && rest_[end] != '\r') {
            ++end;
        }
        std::string cell(Trimmed(rest_.substr(0, end)));
        rest_.remove_prefix(end);
        return cell;
    }

    /// A cell between quotes, which may hold marks, line ends and, doubled, quotes.
    std::string Quoted(Record& record) {
        std::string cell;
        Take('"');
        while (!rest_.empty()) {
            if (Take('"') && !rest_.starts_with('"')) {
                return cell;
            }
            line_ += rest_.front() == '\n' ? 1U : 0U;
            cell += rest_.front();
            rest_.remove_prefix(1);
        }
        record.isTorn = true;
        return cell;
    }

    std::string_view rest_;
    char mark_;
    std::size_t line_ = 1;
};

/// The mark that comes more often in the first line, what is quoted aside.
char MarkOf(std::string_view text) {
    std::map<char, int> counts;
    bool isQuoted = false;
    for (const char c : text) {
        isQuoted = isQuoted != (c == '"');
        if (!isQuoted && c == '\n') {
            break;
        }
        counts[c] += isQuoted ? 0 : 1;
    }
    return counts[';'] > counts[','] ? ';' : ',';
}

bool NamesTheColumns(const std::vector<std::string>& cells) {
    return cells.size() >= FirstValueColumn && EqualIgnoringCase(cells[NameColumn], "name") &&
           EqualIgnoringCase(cells[FittingColumn], "fitting") && EqualIgnoringCase(cells[TypeColumn], "type");
}

/// A name stands in names of files.
bool IsSoundName(const std::string& name) {
    return !name.empty() && name != "." && name != ".." && OnOneLine(name) == name &&
           name.find_first_of("/\\") == std::string::npos;
}

/// Takes a NAME=VALUE cell; what is wrong with it, or nothing.
std::string TakeValue(const std::string& cell, BatchInput& input) {
    const std::size_t equals = cell.find('=');
    const std::string name(Trimmed(std::string_view(cell).substr(0, equals)));
    if (equals == std::string::npos || name.empty()) {
        return InQuotes(cell) + " is not NAME=VALUE";
    }
    const std::string value(Trimmed(std::string_view(cell).substr(equals + 1)));
    if (name == "select") {
        const auto number = ParseWholeNumber(value, 1, MostTypes);
        input.select = number.value_or(0);
        return number ? "" : InQuotes(value) + " is no pattern option";
    }
    if (!IsSettableName(name)) {
        return "there is no value " + std::string(Excerpt(name));
    }
    input.sets.emplace_back(name, value);
    return {};
}

/// Fills the input from the cells of a row; what is wrong with them, or nothing.
std::string TakeCells(const Record& record, BatchInput& input) {
    const std::vector<std::string>& cells = record.cells;
    if (record.isTorn) {
        return "a quoted cell is not closed, or text follows it";
    }
    if (!IsSoundName(input.name)) {
        return InQuotes(input.name) + " is no name for a file";
    }
    const CatalogueRow* fitting = FindCategory(input.category);
    if (fitting == nullptr) {
        return "there is no fitting " + InQuotes(input.category);
    }
    const std::string type = cells.size() > TypeColumn ? cells[TypeColumn] : "";
    const auto types = static_cast<int>(fitting->table->pages.size());
    const auto number = type.empty() ? std::optional(0) : ParseWholeNumber(type, 1, types);
    if (!number) {
        return "the type is to be 1 to " + std::to_string(types) + ", not " + InQuotes(type);
    }
    input.type = *number;
    for (std::size_t i = FirstValueColumn; i < cells.size(); ++i) {
        if (cells[i].empty()) {
            continue;
        }
        std::string fault = TakeValue(cells[i], input);
        if (!fault.empty()) {
            return fault;
        }
    }
    return {};
}

}  // namespace

std::vector<BatchInput> ReadFittingsList(std::string_view text, const std::string& path) {
    const std::string decoded = DecodeText(text);
    Records records(decoded, MarkOf(decoded));
    std::vector<BatchInput> rows;
    std::map<std::string, std::size_t> lines;  // of the names
    Record record;
    for (bool isFirst = true; records.Next(record); isFirst = false) {
        const bool isEmpty = std::all_of(record.cells.begin(), record.cells.end(),
                                         [](const std::string& cell) { return cell.empty(); });
        if ((isEmpty && !record.isTorn) || (isFirst && NamesTheColumns(record.cells))) {
            continue;
        }
        BatchInput input = {
            .label = path + ": line " + std::to_string(record.line),
            .name = record.cells[NameColumn],
            .file = {},
            .category = record.cells.size() > FittingColumn ? record.cells[FittingColumn] : "",
            .sets = {},
            .isRow = true};
        input.fault = TakeCells(record, input);
        if (input.fault.empty()) {  // a bad row writes nothing that another one could meet
            const auto [first, isNew] = lines.try_emplace(input.name, record.line);
            input.fault = isNew ? ""
                                : "the name " + InQuotes(input.name) + " stands on line " +
                                      std::to_string(first->second) + " too";
        }
        rows.push_back(std::move(input));
    }
    return rows;
}

}  // namespace korvet::batch
