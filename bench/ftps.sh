#!/bin/bash
# ftps.sh — the upload benchmark of ftp.sh over TLS: the engine with "TLS required" beside
# `curl --ssl-reqd -T`, to the same private vsftpd (ssl_enable=YES, a certificate made by openssl).
#
# usage: bench/ftps.sh BENCH_FTP_UPLOAD [--size 512M]      env: RUNS=5 WARMUP=1
exec "$(dirname "$0")/ftp.sh" "$@" --tls
