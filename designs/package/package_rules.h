#pragma once

#include "designs/package/manifest.h"

#include <functional>

/// What a package may say and hold: one check for the import and for the program that makes packages.

/// The files that lie beside a manifest.
struct package_payload {
    text_lines names;                                            ///< folders too, "/" behind them
    std::function<std::string(const std::string & name)> bytes;  ///< reads one of them
    bool holds(const std::string & name) const;
};

/// Something that keeps a package from being imported.
struct package_refusal {
    enum class kind {
        forbidden,  ///< nothing of the package is carried out
        missing     ///< the import stops there; what stands before it is carried out
    };
    std::size_t line = 0;  ///< of the manifest, from 1
    std::string why;       ///< behind "the package": "may not use '..\x'"
    kind what = kind::forbidden;
    std::string about{};  ///< the file that is missing
};

/// All of them, in the order in which an import meets them: first what the whole manifest exceeds, then each
/// command's. `own` are folders that packages made before. None for a package that the import takes as far as
/// can be told without its data folder.
std::vector<package_refusal> package_refusals(const text_lines & manifest, const package_payload & payload,
                                              const package_folders & own);

/// The refusal of a path: "may not use 'x'".
package_refusal refused_path(std::size_t line, std::string_view path);
