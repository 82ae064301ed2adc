#!/bin/bash
# ftp.sh — upload throughput of the program's FTP engine beside `curl -T`, in one run, to the same
# private vsftpd on loopback; and the engine's memory above idle while it sends.
#
# usage: bench/ftp.sh BENCH_FTP_UPLOAD [--size 512M] [--tls]      env: RUNS=5 WARMUP=1
# --tls (bench/ftps.sh): the server takes TLS with a certificate made here by openssl; the
# engine requires TLS and curl runs with --ssl-reqd, checking the same certificate.
# Starts vsftpd (its own config in a temp dir: 127.0.0.1 at a free port, anonymous uploads into
# incoming/), makes SIZE random bytes, and times WARMUP + RUNS uploads with each client, checking
# every upload byte for byte. MB = 10^6 bytes. Everything it starts is stopped by its process id.
set -euo pipefail
prog=${1:?usage: bench/ftp.sh BENCH_FTP_UPLOAD [--size 512M]}; shift
size=512M tls=
while [ $# -gt 0 ]; do
  case $1 in
    --size) size=${2:?--size needs a value}; shift 2 ;;
    --tls) tls=1; shift ;;
    *) echo "ftp.sh: unknown option $1" >&2; exit 1 ;;
  esac
done
RUNS=${RUNS:-5} WARMUP=${WARMUP:-1}
bytes=$(numfmt --from=iec "$size")
for tool in /usr/sbin/vsftpd curl ${tls:+openssl}; do
  command -v "$tool" > /dev/null || { echo "ftp.sh: $tool missing (scripts/install-deps)" >&2; exit 1; }
done

# Both files in RAM when /dev/shm has room, so the disk does not set the pace.
shm_kib=$(df -k --output=avail /dev/shm 2>/dev/null | tail -n 1 || echo 0)
if [ -w /dev/shm ] && [ "${shm_kib:-0}" -gt $((bytes / 512 + 262144)) ]; then tmp=$(mktemp -d -p /dev/shm); else tmp=$(mktemp -d); fi
ftpd=
cleanup() {
  if [ -n "$ftpd" ]; then kill -- -"$ftpd" 2>/dev/null || true; wait "$ftpd" 2>/dev/null || true; fi
  rm -rf "$tmp"
}
trap cleanup EXIT
mkdir -p "$tmp/root/incoming" "$tmp/empty"
chmod 755 "$tmp" "$tmp/root" "$tmp/empty"
[ "$(id -u)" = 0 ] && chown ftp "$tmp/root/incoming" || chmod 777 "$tmp/root/incoming"
port=$(/usr/bin/python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
pasv=$((40000 + RANDOM % 20000))
cat > "$tmp/vsftpd.conf" <<CONF
listen=YES
listen_ipv6=NO
listen_address=127.0.0.1
listen_port=$port
background=NO
anonymous_enable=YES
local_enable=NO
write_enable=YES
anon_upload_enable=YES
anon_other_write_enable=YES
anon_umask=022
anon_root=$tmp/root
ftp_username=ftp
pasv_enable=YES
pasv_address=127.0.0.1
pasv_min_port=$pasv
pasv_max_port=$((pasv + 200))
secure_chroot_dir=$tmp/empty
xferlog_enable=NO
dirmessage_enable=NO
CONF
curl_tls=()
if [ -n "$tls" ]; then
  openssl req -x509 -newkey rsa:2048 -nodes -keyout "$tmp/key.pem" -out "$tmp/cert.pem" -days 2 \
    -subj /CN=127.0.0.1 2> /dev/null
  printf 'ssl_enable=YES\nallow_anon_ssl=YES\nrsa_cert_file=%s\nrsa_private_key_file=%s\n' \
    "$tmp/cert.pem" "$tmp/key.pem" >> "$tmp/vsftpd.conf"
  curl_tls=(--ssl-reqd --cacert "$tmp/cert.pem")
  mkdir -p "$tmp/app"
  export FTP_TLS=1 FTP_APP_DIR=$tmp/app
else
  echo ssl_enable=NO >> "$tmp/vsftpd.conf"
fi
[ "$(id -u)" = 0 ] || echo run_as_launching_user=YES >> "$tmp/vsftpd.conf"
setsid /usr/sbin/vsftpd "$tmp/vsftpd.conf" > "$tmp/vsftpd.out" 2>&1 & ftpd=$!
url=ftp://127.0.0.1:$port
for i in $(seq 50); do
  curl -sS --max-time 2 "${curl_tls[@]}" -u anonymous:x "$url/" -o /dev/null 2>/dev/null && break
  kill -0 "$ftpd" 2>/dev/null || { cat "$tmp/vsftpd.out" >&2; exit 1; }
  sleep 0.1
done
head -c "$bytes" /dev/urandom > "$tmp/upload.bin"
export FTP_HOST=127.0.0.1 FTP_PORT=$port FTP_USER=anonymous FTP_PASS=anonymous@ \
  FTP_FILE=$tmp/upload.bin FTP_REMOTE=incoming/upload.bin

median() { sort -g | awk '{v[NR] = $1} END { print NR % 2 ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }
run() {  # run NAME CMD...: WARMUP + RUNS checked uploads; prints the median MB/s
  local i t0 t1
  : > "$tmp/times.$1"
  for i in $(seq $((WARMUP + RUNS))); do
    rm -f "$tmp/root/incoming/"*
    t0=${EPOCHREALTIME/[.,]/}
    "${@:2}" > "$tmp/out.$1" 2>&1 || { echo "$1 failed:" >&2; tail -n 20 "$tmp/out.$1" >&2; exit 1; }
    t1=${EPOCHREALTIME/[.,]/}
    cmp -s "$tmp/root/incoming/upload.bin" "$FTP_FILE" || { echo "$1: upload $i did not arrive intact" >&2; exit 1; }
    [ "$i" -le "$WARMUP" ] && continue
    echo $((t1 - t0)) >> "$tmp/times.$1"
    [ "$1" = velloro ] && cat "$tmp/out.$1" >> "$tmp/mem"
  done
  awk -v b="$bytes" -v us="$(median < "$tmp/times.$1")" 'BEGIN { printf "%.0f\n", b / us }'
}
: > "$tmp/mem"
curl_mbps=$(run curl curl -sS "${curl_tls[@]}" -T "$FTP_FILE" -u "$FTP_USER:$FTP_PASS" "$url/$FTP_REMOTE")
our_mbps=$(run velloro "$prog")
above=$(sed -n 's/idle_rss_kib=\([0-9]*\) peak_rss_kib=\([0-9]*\)/\1 \2/p' "$tmp/mem" |
  awk '{ d = $2 - $1; if (d > m) m = d } END { printf "%.1f", m / 1024 }')
printf 'size %s bytes, %s runs each (median)%s\n' "$bytes" "$RUNS" "${tls:+, FTP over TLS}"
printf 'curl %-8s%6s MB/s\n' "${tls:+--ssl-reqd }-T" "$curl_mbps"
printf 'engine       %6s MB/s   (%.0f %% of curl)\n' "$our_mbps" "$(awk -v a="$our_mbps" -v b="$curl_mbps" 'BEGIN { print 100 * a / b }')"
printf 'engine peak memory above idle: %s MiB (largest of the runs)\n' "$above"
echo "RESULT ${tls:+tls=1 }size_bytes=$bytes curl_MBps=$curl_mbps engine_MBps=$our_mbps ratio=$(awk -v a="$our_mbps" -v b="$curl_mbps" 'BEGIN { printf "%.3f", a / b }') engine_peak_above_idle_mib=$above"
