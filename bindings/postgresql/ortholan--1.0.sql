-- Names and extensions of X.509 certificates.
--
-- Names and certificates are octets of DER. A malformed one is an error, and NULL (no rows) where
-- malformed_ok is true. Verdicts are true, false, and NULL where it cannot be told.

\echo Use "CREATE EXTENSION ortholan" to load this file. \quit

-- Names
CREATE FUNCTION x509_name_text(
  name bytea, malformed_ok boolean DEFAULT false, lenient boolean DEFAULT false)
  RETURNS text
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 30;
COMMENT ON FUNCTION x509_name_text(bytea, boolean, boolean) IS
  'the text of a name (RFC 4514); lenient also reads what is not quite DER';
CREATE FUNCTION x509_name_from_text(name text, malformed_ok boolean DEFAULT false)
  RETURNS bytea
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 30;
COMMENT ON FUNCTION x509_name_from_text(text, boolean) IS
  'the DER of a name from its text (RFC 4514)';
CREATE FUNCTION x509_name_attributes(
  name bytea, malformed_ok boolean DEFAULT false, lenient boolean DEFAULT false)
  RETURNS TABLE (rdn bigint, oid text, key text, value text, octets bytea)
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 100 ROWS 6;
COMMENT ON FUNCTION x509_name_attributes(bytea, boolean, boolean) IS
  'the attributes of a name: number of the RDN from 1, type, its short name or NULL, text or '
  'NULL where the value is none, DER of the value';
CREATE FUNCTION x509_name_error(name bytea)
  RETURNS text
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 30;
COMMENT ON FUNCTION x509_name_error(bytea) IS
  'why octets are no name, NULL where they are one';

-- Names compared (RFC 5280 7.1)
CREATE FUNCTION x509_name_key(name bytea, malformed_ok boolean DEFAULT false)
  RETURNS bytea
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 30;
COMMENT ON FUNCTION x509_name_key(bytea, boolean) IS
  'octets that are the same exactly for names that are; the key of a subtree begins the keys '
  'of the names within it';
CREATE FUNCTION x509_key_within_support(internal) RETURNS internal
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE;
CREATE FUNCTION x509_key_within(subtree_key bytea, key bytea)
  RETURNS boolean
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 1
  SUPPORT x509_key_within_support;
COMMENT ON FUNCTION x509_key_within(bytea, bytea) IS
  'whether a key is that of a name within the subtree; a btree index on the key finds it';
CREATE FUNCTION x509_names_match(first bytea, second bytea, malformed_ok boolean DEFAULT false)
  RETURNS boolean
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 30;
COMMENT ON FUNCTION x509_names_match(bytea, bytea, boolean) IS
  'whether two names are the same';
CREATE FUNCTION x509_names_match_reason(first bytea, second bytea)
  RETURNS text
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 30;
COMMENT ON FUNCTION x509_names_match_reason(bytea, bytea) IS
  'why two names are not the same, NULL where they are';
CREATE FUNCTION x509_name_within(subtree bytea, name bytea, malformed_ok boolean DEFAULT false)
  RETURNS boolean
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 30;
COMMENT ON FUNCTION x509_name_within(bytea, bytea, boolean) IS
  'whether a name is within a subtree';
CREATE FUNCTION x509_name_within_reason(subtree bytea, name bytea)
  RETURNS text
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 30;
COMMENT ON FUNCTION x509_name_within_reason(bytea, bytea) IS
  'why a name is not within a subtree, NULL where it is';

-- Parts of certificates, requests and CRLs
CREATE FUNCTION x509_subject(certificate bytea, malformed_ok boolean DEFAULT false)
  RETURNS bytea
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 20;
COMMENT ON FUNCTION x509_subject(bytea, boolean) IS
  'the subject; NULL for a CRL';
CREATE FUNCTION x509_issuer(certificate bytea, malformed_ok boolean DEFAULT false)
  RETURNS bytea
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 20;
COMMENT ON FUNCTION x509_issuer(bytea, boolean) IS
  'the issuer; NULL for a request';
CREATE FUNCTION x509_serial_number(certificate bytea, malformed_ok boolean DEFAULT false)
  RETURNS bytea
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 20;
COMMENT ON FUNCTION x509_serial_number(bytea, boolean) IS
  'the content octets of the serial number; NULL for a request or a CRL';
CREATE FUNCTION x509_not_before(certificate bytea, malformed_ok boolean DEFAULT false)
  RETURNS timestamptz
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 20;
COMMENT ON FUNCTION x509_not_before(bytea, boolean) IS
  'the begin of validity, of a CRL thisUpdate';
CREATE FUNCTION x509_not_after(certificate bytea, malformed_ok boolean DEFAULT false)
  RETURNS timestamptz
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 20;
COMMENT ON FUNCTION x509_not_after(bytea, boolean) IS
  'the end of validity, of a CRL nextUpdate';
CREATE FUNCTION x509_certificate_error(certificate bytea)
  RETURNS text
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 20;
COMMENT ON FUNCTION x509_certificate_error(bytea) IS
  'why octets are no certificate, request or CRL, NULL where they are one';
CREATE FUNCTION x509_alt_names(
  certificate bytea, malformed_ok boolean DEFAULT false, lenient boolean DEFAULT false)
  RETURNS text[]
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 100;
COMMENT ON FUNCTION x509_alt_names(bytea, boolean, boolean) IS
  'the alternative names as texts such as DNS:example.org; lenient also takes names that are '
  'malformed inside';
CREATE FUNCTION x509_dns_names(certificate bytea, malformed_ok boolean DEFAULT false)
  RETURNS text[]
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 100;
COMMENT ON FUNCTION x509_dns_names(bytea, boolean) IS
  'the hosts and wildcards among the alternative names, in lower case; for indexes';
CREATE FUNCTION x509_extensions(certificate bytea, malformed_ok boolean DEFAULT false)
  RETURNS jsonb
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 200;
COMMENT ON FUNCTION x509_extensions(bytea, boolean) IS
  'the extensions, an array of objects with oid, name, critical and value';
CREATE FUNCTION x509_pem(pem text, malformed_ok boolean DEFAULT false)
  RETURNS TABLE (label text, octets bytea)
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 100 ROWS 2;
COMMENT ON FUNCTION x509_pem(text, boolean) IS
  'the blocks of PEM text';

-- Verdicts about certificates
CREATE FUNCTION x509_identifies(
  certificate bytea, reference text, kind text DEFAULT 'host', malformed_ok boolean DEFAULT false)
  RETURNS boolean
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 50;
COMMENT ON FUNCTION x509_identifies(bytea, text, text, boolean) IS
  'whether a certificate is for a host, ip, email, uri or srv (RFC 9525)';
CREATE FUNCTION x509_identifies_reason(certificate bytea, reference text, kind text DEFAULT 'host')
  RETURNS text
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 50;
COMMENT ON FUNCTION x509_identifies_reason(bytea, text, text) IS
  'why it is not, NULL where it is';
CREATE FUNCTION x509_presented_names(
  certificate bytea, reference text, kind text DEFAULT 'host', malformed_ok boolean DEFAULT false)
  RETURNS TABLE (name text, reason text)
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 100 ROWS 5;
COMMENT ON FUNCTION x509_presented_names(bytea, text, text, boolean) IS
  'the names that a certificate presents, and why each is not the one asked for, NULL where it is';
CREATE FUNCTION x509_permitted(chain bytea[], malformed_ok boolean DEFAULT false)
  RETURNS boolean
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 200;
COMMENT ON FUNCTION x509_permitted(bytea[], boolean) IS
  'whether the name constraints of a chain permit its names; from the leaf upwards (RFC 5280 '
  '4.2.1.10)';
CREATE FUNCTION x509_permitted_reason(chain bytea[])
  RETURNS text
  AS 'MODULE_PATHNAME' LANGUAGE C IMMUTABLE STRICT PARALLEL SAFE COST 200;
COMMENT ON FUNCTION x509_permitted_reason(bytea[]) IS
  'why they do not, NULL where they do';
