# Fails unless BUNDLE holds exactly the files that CONTENTS lists.
file(STRINGS ${CONTENTS} wanted)
file(GLOB_RECURSE found LIST_DIRECTORIES FALSE RELATIVE ${BUNDLE} ${BUNDLE}/*)
# Signatures and the notarisation ticket.
list(FILTER found EXCLUDE REGEX "/_CodeSignature/|^Contents/CodeResources$")

set(missing ${wanted})
list(REMOVE_ITEM missing ${found})
set(strange ${found})
list(REMOVE_ITEM strange ${wanted})
if(missing OR strange)
  list(JOIN missing "\n  " missing)
  list(JOIN strange "\n  " strange)
  message(FATAL_ERROR "${BUNDLE} is not what it should be.\nMissing:\n  ${missing}\n"
    "Not known here (remove the bundle and build it again):\n  ${strange}")
endif()
