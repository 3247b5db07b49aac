#pragma once

#include "designs/package/package_rules.h"

/// Every problem of a package, one a text; none for a package that the import takes. The package is unpacked
/// into a folder for temporary files, which goes again. Raises 70, 75 when there is no place for that.
text_lines package_problems(const std::string & package);

/// The same for a package that isn't a file yet.
text_lines problems_of_bytes(const std::string & zip);

/// The same for a manifest and the files that lie beside it: first what the import refuses, then what it
/// would take and can't be meant.
text_lines manifest_problems(const text_lines & manifest, const package_payload & payload);
