rem Change these settings for your product. The other batch files in this folder read them.

rem The product's name, which is also the name of its folder below Program Files.
set "product=Brindle"
rem The product's version. Only detection rules read it. deploy.cmd copies this file last, so the copy in the product's
rem folder contains the version that was last installed successfully.
set "version=1.0.0"
rem The application's name, under which sorrel.exe records the product on the list of applications that use the
rem hands-free service. This name must be the same for all versions of the product. It must neither contain nor be part
rem of another application's name.
set "application=brindle"
rem The driver package's INF file, the certificate of the package's signer, and the certificate of the authority that
rem issued the signer's certificate.
set "inf=Tessalin.inf"
set "publisher=trusted.cer"
set "intermediate=trusted_i.cer"
rem What happens if Windows reports one of the two codes that it documents for a missing Bluetooth radio (see
rem run_sorrel.cmd). With "fails", the installation fails. With "spared", the installation ignores this error.
set "radio_off=fails"
