# make_certificate(NAME SUBJECT ALTERNATIVE_NAMES FOLDER): the build makes NAME.crt and NAME.key in
# FOLDER, for a loopback server of the demo or the tests. The source tree contains no private key,
# and the libraries need none.

function(make_certificate name subject alternative_names folder)
  find_program(QUORIX_OPENSSL openssl)
  if(NOT QUORIX_OPENSSL)
    message(FATAL_ERROR
      "The demo and the tests need the program openssl (scripts/install-packages build)")
  endif()
  file(MAKE_DIRECTORY ${folder})
  add_custom_command(
    OUTPUT ${folder}/${name}.crt ${folder}/${name}.key
    COMMAND ${QUORIX_OPENSSL} req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes -batch
            -days 3650 -subj "/CN=${subject}" -addext "subjectAltName=${alternative_names}"
            -keyout ${folder}/${name}.key -out ${folder}/${name}.crt
    VERBATIM)
endfunction()
