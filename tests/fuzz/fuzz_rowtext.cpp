#include "commands/rowtext.h"
#include "fuzzing.h"

/// Rows that were read are written so that they are read again as they are.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const PastedRows pasted = readRowsText(QString::fromUtf8(fuzzInput(data, size)));
    require(pasted.rows.isEmpty() != pasted.fault.isEmpty());
    if (!pasted.rows.isEmpty()) {
        const PastedRows again = readRowsText(rowsText(pasted.rows));
        require(again.fault.isEmpty() && again.rows == pasted.rows);
    }
    return 0;
}
