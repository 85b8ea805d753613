rem Change these settings. The other batch files of this folder read them.

rem The product, which is also the name of its folder below Program Files.
set "product=Brindle"
rem The name under which sorrel.exe records the product on its own list of the applications that use the Bluetooth service. It
rem must be the same for all versions, and must not be part of another application's name.
set "application=brindle"
rem The driver package, its signer's certificate, and the certificate of the authority that issued it.
set "inf=Tessalin.inf"
set "publisher=trusted.cer"
set "intermediate=trusted_i.cer"
rem What happens when the radio is missing or off. fails: the installation fails. spared: this failure, and no other, is ignored.
set "radio_off=fails"
