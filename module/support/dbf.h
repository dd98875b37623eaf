#pragma once
/// dBase III tables: a 32-byte header, 32-byte column descriptors ended by 0x0D, records of fixed length
/// led by a deletion flag, 0x1A at the end. Memo files and indices are not supported.
///
/// One record is buffered at a time. Texts are bytes as they stand in the table; no code page is applied.
/// Deleted records are read like any other. Whatever a damaged table claims, nothing outside its record or
/// its file is touched: columns that lie there read as empty (a text "", a number 0), writing them does
/// nothing, and so does a column index that the table does not have. [ui]

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "support/dbf_field.h"
#include "support/file.h"

namespace ox {

class Tox_dbf {
public:
    static constexpr std::uint32_t no_record = 0xFFFFFFFF;

    Tox_dbf() = default;
    ~Tox_dbf() { dbf_close(); }
    Tox_dbf(const Tox_dbf&) = delete;
    Tox_dbf& operator=(const Tox_dbf&) = delete;

    // ---- Opening: 0 success, 1 not opened; paths are narrow, in the system's code page -----------------

    int dbf_open(const std::string& path, bool read_only);
    /// Creates a table of `record_count` blank records. What the format cannot hold (more than 2046
    /// columns, a record beyond 65535 bytes) counts as a file that cannot be opened.
    int dbf_create(const std::string& path, std::span<const Tox_dbf_field_def> columns,
                   std::uint32_t record_count);
    /// Writes a changed record back.
    void dbf_close();

    const std::string& path() const { return path_; }
    bool read_only() const { return file_.read_only(); }

    // ---- Structure ---------------------------------------------------------------------------------

    std::uint32_t record_count() const { return header_.record_count(); }  ///< as the header says
    /// How many of them begin within the file.
    std::uint32_t stored_record_count();
    std::uint32_t field_count() const { return static_cast<std::uint32_t>(fields_.size()); }
    /// A descriptor of zeros for an index beyond the count.
    const dbf_field& field(std::uint32_t index) const;
    /// First column of that name; names are compared trimmed and without regard to case.
    bool find_field(std::string_view name, std::uint32_t& index) const;
    void rename_field(std::uint32_t index, std::string_view name);
    std::uint8_t language_driver() const { return header_.bytes[29]; }
    void set_language_driver(std::uint8_t id);

    // ---- Records -----------------------------------------------------------------------------------

    /// Makes a record current; a changed one is written back first. A failed read is reported to the
    /// diagnostics sink only.
    void go_record(std::uint32_t index);
    std::uint32_t current_record() const { return current_; }
    /// Moves a record between file and buffer; the current record stays the same number. Before another
    /// record is read, a changed one is written back as the record that it was read from.
    void read_record(std::uint32_t index);
    bool write_record(std::uint32_t index);
    /// Adds `count` records of blanks. False, and nothing written, where the file is shorter than its
    /// header says.
    bool append_blank_records(std::uint32_t count);

    // ---- Values of the current record --------------------------------------------------------------

    /// The column's bytes, blanks included; binary columns as "%g" or "%d". Lives until the next call.
    const char* get_text(std::uint32_t index);
    std::int32_t get_int(std::uint32_t index) const;
    double get_double(std::uint32_t index) const;
    bool get_bool(std::uint32_t index) const;
    double get_raw_double(std::uint32_t index) const;     ///< bytes of a "B" column
    std::int32_t get_raw_int(std::uint32_t index) const;  ///< bytes of an "I" column

    /// Cut at, or padded with blanks to, the column's length.
    void set_text(std::uint32_t index, std::string_view text);
    void set_int(std::uint32_t index, std::int32_t value);
    void set_double(std::uint32_t index, double value);
    /// Like `set_text`; binary columns store the number that the text begins with.
    void set_from_text(std::uint32_t index, std::string_view text);
    void set_raw_double(std::uint32_t index, double value);
    void set_raw_int(std::uint32_t index, std::int32_t value);

private:
    void read_fields();
    void allocate_record();
    void write_back();
    void write_header();
    void write_blank_records(std::uint32_t first, std::uint32_t count);
    std::uint64_t record_offset(std::uint32_t index) const;
    std::string_view column(std::uint32_t index) const;
    std::span<char> writable_column(std::uint32_t index);
    void set_number(std::uint32_t index, double value);

    std::string path_;
    Tox_file file_;
    dbf_header header_;
    std::vector<dbf_field> fields_;
    std::uint32_t current_ = no_record;
    std::uint32_t buffered_ = no_record;  ///< what `record_` was read from
    bool dirty_ = false;                  ///< `record_` was changed since
    std::vector<char> record_;
    std::size_t loaded_ = 0;            ///< bytes of the record that the file or a setter gave
    std::array<char, 1000> scratch_{};  ///< holds the last text handed out; columns have 255 bytes at most
};

}  // namespace ox
