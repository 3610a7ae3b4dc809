#include "tablejobs/replace/registerreplace.h"

#include "tablejobs/replace/codereplace.h"
#include "tablejobs/replace/convertform.h"
#include "tablejobs/replace/formatform.h"
#include "tablejobs/replace/replaceform.h"

namespace zelko {

void registerReplacement() {
  registerReplaceForm();
  registerConvertForm();
  registerFormatForm();
  registerCodeReplace();
}

}  // namespace zelko
