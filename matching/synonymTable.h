// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace columnimport {

/// The listed words of one synonym class.
class SynonymWords {
public:
    template <std::size_t Count>
    constexpr SynonymWords(const std::string_view (&words)[Count]) // NOLINT(*-explicit-*)
        : m_begin(words), m_end(words + Count) {}

    constexpr const std::string_view *begin() const { return m_begin; }
    constexpr const std::string_view *end() const { return m_end; }

private:
    const std::string_view *m_begin;
    const std::string_view *m_end;
};

/// A head word and the words that it is a synonym of.
struct SynonymClass {
    std::string_view head;
    SynonymWords listed;
};

namespace synonymWords {

inline constexpr std::string_view holename[] = {"id", "holeid", "nom", "bhid"};
inline constexpr std::string_view easting[] = {"x",     "coordx", "xutm",    "utmx",
                                               "utm_x", "x_utm",  "xcollar", "xc"};
inline constexpr std::string_view northing[] = {"y",     "coordy", "yutm",    "utmy",
                                                "utm_y", "y_utm",  "ycollar", "yc"};
inline constexpr std::string_view elevation[] = {"z",     "coordz",  "zutm", "utmz",
                                                 "utm_z", "zcollar", "zc"};
inline constexpr std::string_view azimuth[] = {"bearing", "az", "brg"};
inline constexpr std::string_view dip[] = {"plongee"};
inline constexpr std::string_view length[] = {"profondeur"};
inline constexpr std::string_view depth[] = {"at", "length"};
inline constexpr std::string_view xsize[] = {"xinc"};
inline constexpr std::string_view ysize[] = {"yinc"};
inline constexpr std::string_view zsize[] = {"zinc"};
inline constexpr std::string_view fromdepth[] = {"from"};
inline constexpr std::string_view todepth[] = {"to"};
inline constexpr std::string_view duplicate[] = {"logduplicates"};
inline constexpr std::string_view blank[] = {"logexperimentalblank"};
inline constexpr std::string_view standard[] = {"logexperimentalstandard"};
inline constexpr std::string_view standardnominal[] = {"lognominalstandard"};
inline constexpr std::string_view blanknominal[] = {"lognominalblank"};
inline constexpr std::string_view standarderror[] = {"lognominalstandarderror"};

} // namespace synonymWords

/// What our field calls by other names, in normalised form. A head word is a synonym of each of
/// its own listed words and of nothing else: two listed words of one class are none of each other,
/// and nothing carries over from one class to the next.
inline constexpr std::array<SynonymClass, 22> synonymTable = {{
    {"holename", synonymWords::holename},
    {"easting", synonymWords::easting},
    {"x", synonymWords::easting},
    {"northing", synonymWords::northing},
    {"y", synonymWords::northing},
    {"elevation", synonymWords::elevation},
    {"z", synonymWords::elevation},
    {"azimuth", synonymWords::azimuth},
    {"dip", synonymWords::dip},
    {"length", synonymWords::length},
    {"depth", synonymWords::depth},
    {"xsize", synonymWords::xsize},
    {"ysize", synonymWords::ysize},
    {"zsize", synonymWords::zsize},
    {"fromdepth", synonymWords::fromdepth},
    {"todepth", synonymWords::todepth},
    {"duplicate", synonymWords::duplicate},
    {"blank", synonymWords::blank},
    {"standard", synonymWords::standard},
    {"standardnominal", synonymWords::standardnominal},
    {"blanknominal", synonymWords::blanknominal},
    {"standarderror", synonymWords::standarderror},
}};

} // namespace columnimport
