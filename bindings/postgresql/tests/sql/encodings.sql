-- Databases of other encodings: text is converted, and refused where a character is not there.
CREATE DATABASE ortholan_latin1 TEMPLATE template0 ENCODING 'LATIN1' LOCALE 'C';
CREATE DATABASE ortholan_ascii TEMPLATE template0 ENCODING 'SQL_ASCII' LOCALE 'C';
-- An alternative name of letters beyond LATIN1, and a notice with a blank that nobody sees.
SELECT certificate('\x3000', '\x3000', extension('551D11', tlv('30', tlv('A4', x509_name_from_text('CN=Ал'))))) AS letters,
  certificate('\x3000', '\x3000', notice('\xE2808B')) AS blank \gset
\c ortholan_latin1
CREATE EXTENSION ortholan;
SELECT encode(x509_name_from_text(U&'CN=\00E9'), 'hex') AS e_acute;
SELECT length(x509_name_text('\x300F310D300B06035504030C04C3A9C3A8')) AS characters,
  convert_to(x509_name_text('\x300F310D300B06035504030C04C3A9C3A8'), 'UTF8') AS utf8;
SELECT x509_name_text('\x300F310D300B06035504030C04D090D0BB');
SELECT x509_name_text('\x300F310D300B06035504030C04D090D0BB', true) IS NULL AS is_null;
SELECT key, value, octets FROM x509_name_attributes('\x300F310D300B06035504030C04D090D0BB');
SELECT x509_extensions(:'letters') -> 0 -> 'refusal' AS letters, x509_extensions(:'blank') -> 0 AS blank;
SELECT x509_alt_names(:'letters', true) IS NULL AS is_null;
\c ortholan_ascii
-- Installed by somebody who is no superuser.
CREATE ROLE ortholan_somebody;
GRANT CREATE ON DATABASE ortholan_ascii TO ortholan_somebody;
SET ROLE ortholan_somebody;
CREATE EXTENSION ortholan;
RESET ROLE;
SELECT x509_extensions(:'letters') -> 0 -> 'refusal' AS letters, x509_extensions(:'blank') -> 0 AS blank;
SELECT convert_to(x509_name_text('\x300F310D300B06035504030C04D090D0BB'), 'SQL_ASCII') AS utf8;
SELECT x509_name_from_text('CN=' || convert_from('\xD090', 'SQL_ASCII'));
SELECT x509_name_from_text('CN=' || convert_from('\xD0', 'SQL_ASCII'));
\c contrib_regression
DROP DATABASE ortholan_latin1;
DROP DATABASE ortholan_ascii;
DROP ROLE ortholan_somebody;
