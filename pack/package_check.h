#pragma once

#include "designs/catalogue_lines.h"

/// Every problem of a package, one a text; none for a package that the import takes. The package is unpacked
/// into a folder for temporary files, which goes again. Raises 70, 75 when there is no place for that.
text_lines package_problems(const std::string & package);

/// The same for a manifest and the names of the files that lie beside it.
text_lines manifest_problems(const text_lines & manifest, const text_lines & payload);
