// All of the library.
#ifndef ORTHOLAN_ORTHOLAN_H_
#define ORTHOLAN_ORTHOLAN_H_

#include <ortholan/asn1.h>
#include <ortholan/cert_extension.h>
#include <ortholan/der_helper.h>
#include <ortholan/general_name.h>
#include <ortholan/ident_obj.h>
#include <ortholan/name_decoder.h>
#include <ortholan/name_encoder.h>
#include <ortholan/name_options.h>
#include <ortholan/name_text_error.h>
#include <ortholan/platform.h>
#include <ortholan/rdn.h>
#include <ortholan/status.h>
#include <ortholan/version.h>
#include <ortholan/x509_name.h>
#include <ortholan/zep_file.h>
#include <ortholan/zep_string.h>

#endif  // ORTHOLAN_ORTHOLAN_H_
