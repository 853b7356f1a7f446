// Certificates, requests and CRLs as arguments.
#ifndef ORTHOLAN_POSTGRESQL_CERTIFICATES_H_
#define ORTHOLAN_POSTGRESQL_CERTIFICATES_H_

#include "values.h"

// Reads one, in DER. False, where that may be, for what is none; else that is an error.
bool read_certificate(ortholan_octets der, bool is_soft, ortholan_certificate_view* certificate);
// A GeneralName as text. 0 for one without, where that may be; else that is an error.
Datum general_name_text(ortholan_octets name, bool is_soft);

#endif  // ORTHOLAN_POSTGRESQL_CERTIFICATES_H_
