#pragma once
/// Makes dBase files byte by byte, sound ones and ones with a stated damage.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "support/catalogue_columns.h"

class dbf_builder {
public:
    dbf_builder& column(std::string name, char type, std::uint8_t length) {
        name.resize(11, '\0');
        columns_.push_back({name, type, displacement_, length});
        displacement_ += length;
        return *this;
    }
    /// Cells in the order of the columns, padded with blanks; missing ones are blank.
    dbf_builder& row(const std::vector<std::string>& cells) {
        std::string record = " ";
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            std::string cell = i < cells.size() ? cells[i] : "";
            cell.resize(columns_[i].length, ' ');
            record += cell;
        }
        rows_.push_back(record);
        return *this;
    }

    dbf_builder& claim_records(std::uint32_t count) { return claimed_records_ = count, *this; }
    dbf_builder& claim_header_length(std::uint16_t length) { return claimed_header_ = length, *this; }
    dbf_builder& claim_record_length(std::uint16_t length) { return claimed_record_ = length, *this; }
    dbf_builder& displace(std::size_t column, std::uint32_t to) { return columns_[column].at = to, *this; }
    dbf_builder& widen(std::size_t column, std::uint8_t to) { return columns_[column].length = to, *this; }
    dbf_builder& without_descriptor_end() { return descriptor_end_ = false, *this; }

    std::string bytes() const {
        const auto header_length = 32 * (columns_.size() + 1) + (descriptor_end_ ? 1 : 0);
        std::string out = "\x03\x7E\x01\x01";
        out += number(claimed_records_.value_or(static_cast<std::uint32_t>(rows_.size())), 4);
        out += number(claimed_header_.value_or(static_cast<std::uint16_t>(header_length)), 2);
        out += number(claimed_record_.value_or(static_cast<std::uint16_t>(displacement_)), 2);
        out.resize(32, '\0');
        for (const auto& column : columns_) {
            out += column.name + column.type + number(column.at, 4) + number(column.length, 16);
        }
        if (descriptor_end_) out += '\x0D';
        for (const auto& row : rows_) out += row;
        return out + '\x1A';
    }
    std::string write() const { return write(bytes()); }

    /// Path of a file with these bytes, one per test.
    static std::string write(std::string_view bytes) {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        auto name = std::string(test->test_suite_name()) + "_" + test->name();
        std::ranges::replace(name, '/', '_');
        const auto path = testing::TempDir() + name + "_\u0442\u0430\u0431\u043b.dbf";
        std::filesystem::remove(path);  // some file systems flush a file that is cut and rewritten
        std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return path;
    }

    template <std::size_t count>
    static dbf_builder with_columns(const std::array<std::string_view, count>& names, std::uint8_t length) {
        dbf_builder table;
        for (const auto name : names) table.column(std::string(name), 'C', length);
        return table;
    }

private:
    struct described_column {
        std::string name;
        char type;
        std::uint32_t at;
        std::uint8_t length;
    };

    static std::string number(std::uint32_t value, int size) {
        std::string bytes;
        for (; size > 0; --size, value >>= 8) bytes += static_cast<char>(value & 0xFF);
        return bytes;
    }

    std::vector<described_column> columns_;
    std::vector<std::string> rows_;
    std::uint32_t displacement_ = 1;
    std::optional<std::uint32_t> claimed_records_;
    std::optional<std::uint16_t> claimed_header_, claimed_record_;
    bool descriptor_end_ = true;
};
